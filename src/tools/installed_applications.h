#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/platform.h"
#include "tools/app_info.h"

namespace klarvik {

/// The installed applications of a disk that tells them by desktop entries, and AppImages without
/// one. Several entries of one package are one application. Reads, and asks no other program than
/// "rpm", where that has installed something; nothing throws; what cannot be read is not listed.
/// Any thread.
class InstalledApplications {
 public:
  explicit InstalledApplications(const Platform& platform) : _platform(platform) {}

  /// What a user sees in the menus of `desktops`, with sizes.
  [[nodiscard]] std::vector<AppInfo> listed(const std::vector<std::string>& desktops) const;
  /// What is installed, seen or not, without sizes.
  [[nodiscard]] std::vector<AppInfo> all() const;

 private:
  const Platform& _platform;
};

/// Whether these are one application: what removes one removes the other.
[[nodiscard]] bool isSameApplication(const AppInfo& one, const AppInfo& other);

/// A file's name without its version and ending: "joplin" of "Joplin-3.0.15-x86_64.AppImage".
[[nodiscard]] std::string nameWithoutVersion(std::string_view name);

}  // namespace klarvik
