#pragma once

#include <memory>

#include "platform/formatting.h"
#include "platform/platform.h"
#include "platform/user_folders.h"

namespace klarvik {

/// Owns the real thing of everything that the engines ask for. No Qt, no main loop.
class SystemPlatform {
 public:
  /// `root` is where the logical "/" lies on the machine. `locale`: of sizes and dates; the user's
  /// own when absent.
  SystemPlatform(const Path& root, const UserFolders& folders, FormattingLanguage language = {});
  SystemPlatform(const Path& root, const Path& home)
      : SystemPlatform(root, UserFolders::in(home)) {}
  ~SystemPlatform();

  /// Refers to this object.
  [[nodiscard]] Platform platform();
  /// The document of the preferences, on the machine.
  [[nodiscard]] const Path& preferencesFile() const;

 private:
  struct Parts;
  const std::unique_ptr<Parts> _parts;
};

}  // namespace klarvik
