#pragma once

#include <optional>
#include <string>

#include "base/paths.h"

namespace klarvik {

class FileSystem;

/// What an application says of itself, in the property list that lies in its folder. All texts are
/// UTF-8; what they hold beyond that is up to the application, which may be anybody's.
struct ApplicationBundle {
  std::string identifier;  ///< never empty
  std::optional<std::string> displayName;
  std::optional<std::string> name;

  /// Reads the application at `folder`. Nothing when there is no property list that can be read, or
  /// when it has no text for the identifier. May be called from any thread.
  [[nodiscard]] static std::optional<ApplicationBundle> at(const FileSystem& files,
                                                           const Path& folder);
};

}  // namespace klarvik
