#include "places/mac/mac_layout.h"

namespace klarvik::mac {
namespace {

using enum CategoryType;

constexpr bool forDevelopers = true;

constexpr std::array<ScanRow, 11> scanRows{{
    {"Xcode Cache", 0.10, xcodeCache, forDevelopers},
    {"iOS Simulators", 0.22, simulators, forDevelopers},
    {"Xcode Archives", 0.34, xcodeArchives, forDevelopers},
    {"App Caches", 0.50, appCaches},
    {"System Logs", 0.62, systemLogs},
    {"iPhone Backups", 0.72, iosBackups},
    {"Trash", 0.82, trashBin},
    {"Browser Caches", 0.88, browserCaches},
    {"Docker", 0.91, dockerData, forDevelopers},
    {"Time Machine", 0.95, timeMachine},
    {"Leftovers", 0.99, systemData},
}};

constexpr std::array<std::string_view, 2> moreLargeFileFolders{"Library/Developer",
                                                               "Library/Caches"};
constexpr std::array<std::string_view, 5> videos{"mp4", "mov", "avi", "mkv", "m4v"};
constexpr std::array<std::string_view, 5> audio{"m4a", "mp3", "wav", "aiff", "flac"};
constexpr std::array<std::string_view, 5> archives{"zip", "tar", "gz", "rar", "7z"};
constexpr std::array<std::string_view, 4> diskImages{"dmg", "iso", "pkg", "sparsebundle"};
constexpr std::array<std::string_view, 3> developerFiles{"xcarchive", "ipa", "dsym"};
constexpr std::array<std::string_view, 7> writings{"pdf",  "doc", "docx", "xls",
                                                   "xlsx", "key", "pages"};
constexpr std::array<std::string_view, 4> designs{"psd", "ai", "sketch", "fig"};
constexpr std::array<FileKindName, 7> fileKinds{{
    {"Video", videos},
    {"Audio", audio},
    {"Archive", archives},
    {"Disk image", diskImages},
    {"Developer", developerFiles},
    {"Document", writings},
    {"Design", designs},
}};

constexpr std::array<std::string_view, 3> protectedFiles{
    "Library/Application Support/com.apple.TCC/TCC.db",
    "Library/Safari/CloudTabs.db",
    "/Library/Application Support/com.apple.TCC/TCC.db",
};

}  // namespace

const DiskLayout& layout() {
  static const DiskLayout all{
      .scanRows = scanRows,
      .places = {},
      .tools = {},
      .artifacts = {},
      .artifactsAbove = 0,
      .notSearchedForProjects = {},
      .programs = {},
      .programLocks = {},
      .sizesAreWhole = false,
      .tellsWhatGoesForGood = false,
      .marksSelectedCopiesOnly = false,
      .desktopNamesFolders = false,
      .moreLargeFileFolders = moreLargeFileFolders,
      .fileKinds = fileKinds,
      .allVisibleFoldersMayBeLarge = false,
      .analysisPasses = analysisPasses(),
      .ledger = {},
      .storageShares = storageShares(),
      .trails = trailPlaces,
      .applications = applicationPlaces,
      .guard = guardRules,
      .words = words,
      .systemData = {},
      .protectedFiles = protectedFiles,
      .keptBlocksAreUsed = true,
  };
  return all;
}

}  // namespace klarvik::mac
