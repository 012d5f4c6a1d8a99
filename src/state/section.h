#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace klarvik {

/// The seven tools of the main window, in the order of the sidebar.
enum class Section {
  smartScan,
  storage,
  duplicates,
  largeFiles,
  systemData,
  uninstaller,
  privacy,
};

inline constexpr std::size_t sectionCount = 7;
[[nodiscard]] const std::array<Section, sectionCount>& allSections();

/// "smartScan" and so on: the key of the tool in `ScanCoordinator::totals` and
/// `ToolActivity::states`.
[[nodiscard]] std::string_view rawValue(Section section);
[[nodiscard]] std::string toolKey(Section section);
[[nodiscard]] std::optional<Section> section(std::string_view rawValue);
[[nodiscard]] std::string_view title(Section section);

/// Posted by whoever has just changed what is on the disk.
inline constexpr const char* diskChangedNotification = "klarvik.diskChanged";
/// Posted by the shell when the application comes to the front.
inline constexpr const char* applicationActiveNotification = "klarvik.applicationActive";

}  // namespace klarvik
