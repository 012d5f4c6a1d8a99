#include "places/linux/linux_layout.h"

namespace klarvik::linux_disk {
namespace {

using enum CategoryType;

constexpr bool forDevelopers = true;

constexpr std::array<ScanRow, 11> scanRows{{
    {"Build Artifacts", 0.10, buildArtifacts, forDevelopers},
    {"Package Caches", 0.22, packageCaches, forDevelopers},
    {"Toolchains & Stores", 0.34, toolchains, forDevelopers},
    {"App Caches", 0.50, appCaches},
    {"Logs & Crash Reports", 0.62, systemLogs},
    {"Installed Packages", 0.72, installedPackages},
    {"Trash", 0.82, trashBin},
    {"Browser Caches", 0.88, browserCaches},
    {"Containers", 0.91, dockerData, forDevelopers},
    {"Snapshots", 0.95, timeMachine},
    {"Leftovers", 0.99, systemData},
}};

/// What tools and programs have put there for themselves.
constexpr std::array<std::string_view, 8> notSearchedForProjects{
    "Android", "anaconda3", "go", "mambaforge", "micromamba", "miniconda3", "miniforge3", "snap",
};

constexpr std::array<ProgramName, 29> programs{{
    {"brave", "Brave"},
    {"chrome", "Google Chrome"},
    {"google-chrome", "Google Chrome"},
    {"chromium", "Chromium"},
    {"code", "Visual Studio Code"},
    {"code-insiders", "VS Code Insiders"},
    {"codium", "VSCodium"},
    {"cursor", "Cursor"},
    {"element-desktop", "Element"},
    {"epiphany", "GNOME Web"},
    {"evolution", "Evolution"},
    {"firefox", "Firefox"},
    {"firefox-bin", "Firefox"},
    {"firefox-esr", "Firefox"},
    {"geary", "Geary"},
    {"GradleDaemon", "the Gradle daemon"},
    {"java", "the IDE"},
    {"librewolf", "LibreWolf"},
    {"msedge", "Microsoft Edge"},
    {"obsidian", "Obsidian"},
    {"opera", "Opera"},
    {"signal-desktop", "Signal"},
    {"slack", "Slack"},
    {"spotify", "Spotify"},
    {"steam", "Steam"},
    {"teams", "Microsoft Teams"},
    {"thunderbird", "Thunderbird"},
    {"vivaldi-bin", "Vivaldi"},
    {"wineserver", "all Windows programs"},
}};

// Neither trails nor applications of a Linux disk are known yet.
constexpr TrailPlaces trailPlaces{};
constexpr ApplicationPlaces applicationPlaces{};

}  // namespace

const DiskLayout& layout() {
  static const DiskLayout all{
      .scanRows = scanRows,
      .places = scanPlaces(),
      .artifacts = projectArtifacts(),
      .artifactsAbove = 10'000'000,
      .notSearchedForProjects = notSearchedForProjects,
      .programs = programs,
      .sizesAreWhole = true,
      .desktopNamesFolders = true,
      .moreLargeFileFolders = {},
      .allVisibleFoldersMayBeLarge = true,
      .analysisPasses = analysisPasses(),
      .storageShares = storageShares(),
      .trails = trailPlaces,
      .applications = applicationPlaces,
      .guard = guardRules,
      .words = words,
      .systemData = systemDataWords(),
      .protectedFiles = {},
      .keptBlocksAreUsed = false,
  };
  return all;
}

}  // namespace klarvik::linux_disk
