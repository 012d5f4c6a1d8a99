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

constexpr std::array<ProgramLock, 18> programLocks{{
    {"firefox", Base::home, ".mozilla/firefox/*/lock"},
    {"firefox", Base::config, "mozilla/firefox/*/lock"},
    {"firefox", Base::home, "snap/firefox/common/.mozilla/firefox/*/lock"},
    {"firefox", Base::home, ".var/app/org.mozilla.firefox/.mozilla/firefox/*/lock"},
    {"librewolf", Base::home, ".librewolf/*/lock"},
    {"zen", Base::home, ".zen/*/lock"},
    {"waterfox", Base::home, ".waterfox/*/lock"},
    {"thunderbird", Base::home, ".thunderbird/*/lock"},
    {"chrome", Base::config, "google-chrome*/SingletonLock"},
    {"chrome", Base::home, ".var/app/com.google.Chrome/config/google-chrome/SingletonLock"},
    {"chromium", Base::config, "chromium/SingletonLock"},
    {"chromium", Base::home, "snap/chromium/common/chromium/SingletonLock"},
    {"chromium", Base::home, ".var/app/org.chromium.Chromium/config/chromium/SingletonLock"},
    {"brave", Base::config, "BraveSoftware/*/SingletonLock"},
    {"msedge", Base::config, "microsoft-edge*/SingletonLock"},
    {"vivaldi-bin", Base::config, "vivaldi*/SingletonLock"},
    {"opera", Base::config, "opera*/SingletonLock"},
    {"code", Base::config, "Code/SingletonLock"},
}};

constexpr std::array<std::string_view, 8> videos{"mp4", "mov",  "avi", "mkv",
                                                 "m4v", "webm", "mpg", "wmv"};
constexpr std::array<std::string_view, 7> audio{"m4a", "mp3", "wav", "aiff", "flac", "ogg", "opus"};
constexpr std::array<std::string_view, 10> archives{"zip", "tar", "gz",  "rar", "7z",
                                                    "xz",  "zst", "bz2", "tgz", "jar"};
constexpr std::array<std::string_view, 3> diskImages{"iso", "img", "dmg"};
constexpr std::array<std::string_view, 4> machines{"vdi", "qcow2", "vmdk", "vhdx"};
constexpr std::array<std::string_view, 6> installers{"deb",     "rpm",        "appimage",
                                                     "flatpak", "flatpakref", "snap"};
constexpr std::array<std::string_view, 9> writings{"pdf", "doc", "docx", "xls", "xlsx",
                                                   "odt", "ods", "odp",  "pptx"};
constexpr std::array<std::string_view, 6> designs{"psd", "ai", "sketch", "fig", "xcf", "blend"};
constexpr std::array<FileKindName, 8> fileKinds{{
    {"Video", videos},
    {"Audio", audio},
    {"Archive", archives},
    {"Disk image", diskImages},
    {"Virtual machine", machines},
    {"Installer", installers},
    {"Document", writings},
    {"Design", designs},
}};

}  // namespace

const DiskLayout& layout() {
  static const DiskLayout all{
      .scanRows = scanRows,
      .places = scanPlaces(),
      .tools = tools(),
      .artifacts = projectArtifacts(),
      .artifactsAbove = 10'000'000,
      .notSearchedForProjects = notSearchedForProjects,
      .programs = programs,
      .programLocks = programLocks,
      .sizesAreWhole = true,
      .tellsWhatGoesForGood = true,
      .marksSelectedCopiesOnly = true,
      .desktopNamesFolders = true,
      .moreLargeFileFolders = {},
      .fileKinds = fileKinds,
      .allVisibleFoldersMayBeLarge = true,
      .analysisPasses = {},
      .ledger = ledgerPlaces(),
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
