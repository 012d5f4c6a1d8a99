#pragma once

#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include "base/paths.h"
#include "platform/platform.h"
#include "tools/firefox_history.h"
#include "tools/privacy_item.h"

namespace klarvik {

/// Finds the trails that the table of a layout names, and the caches of browsers. Trails of one
/// kind and one program are one item. What is a link, or lies on another volume, is passed over.
/// Nothing throws; any thread.
class TrailFinder {
 public:
  explicit TrailFinder(const Platform& platform) : _platform(platform) {}

  /// In the order of the kinds. `before` is called before a kind is looked for.
  [[nodiscard]] std::vector<PrivacyItem> find(
      const std::function<void(PrivacyCategory)>& before) const;

 private:
  const Platform& _platform;
};

/// Whether a record in a Trash is of a thing that is not there, and not just on its way.
[[nodiscard]] bool isOrphanedRecord(const FileSystem& files, const Path& record);

/// The databases of the profile whose history lies at `places`. Nothing where the rules do not let
/// it be changed, and where it is a link or has another name.
[[nodiscard]] std::optional<FirefoxDatabases> firefoxDatabases(const FileSystem& files,
                                                               const Path& places);

}  // namespace klarvik
