#include "places/linux/linux_layout.h"

namespace klarvik::linux_disk {
namespace {

using enum ItemSafety;
using Kind = SystemDataSubCategory;

constexpr std::int64_t mb = 1'000'000;

constexpr std::array<std::string_view, 3> dataOfOthers{"Trash", "pnpm", "baloo"};

constexpr std::array<std::string_view, 2> cachesOfOthers{"Homebrew", "tracker3"};

/// Hidden folders of the home that another pass looks at, or whose parts the packages' does.
constexpr std::array<std::string_view, 36> coveredHiddenFolders{
    ".android", ".arduino15",   ".bun",       ".cache",  ".cargo",      ".ccache",
    ".conan",   ".conan2",      ".conda",     ".config", ".gnupg",      ".gradle",
    ".ivy2",    ".linuxbrew",   ".local",     ".m2",     ".minikube",   ".mozilla",
    ".npm",     ".nuget",       ".nvm",       ".ollama", ".platformio", ".pub-cache",
    ".pyenv",   ".rbenv",       ".recoll",    ".rustup", ".sbt",        ".sdkman",
    ".ssh",     ".thunderbird", ".vagrant.d", ".var",    ".yarn",       ".asdf",
};

constexpr std::array<WholePlace, 20> developerTools{{
    {"Android", "Android SDK", 10 * mb},
    {".android/avd", "Android emulators", 10 * mb},
    {".arduino15", "Arduino tools", 10 * mb},
    {".asdf/installs", "asdf tools", 10 * mb},
    {".conan", "Conan 1 packages", 10 * mb},
    {".conan2", "Conan packages", 10 * mb},
    {".conda", "conda packages", 10 * mb},
    {".m2/repository", "Maven repository", 10 * mb},
    {".minikube", "minikube", 10 * mb},
    {".nvm/versions", "Node versions (nvm)", 10 * mb},
    {".ollama", "Ollama models", 10 * mb},
    {".platformio", "PlatformIO", 10 * mb},
    {".pyenv/versions", "Python versions (pyenv)", 10 * mb},
    {".rbenv/versions", "Ruby versions (rbenv)", 10 * mb},
    {".rustup/toolchains", "Rust toolchains", 10 * mb},
    {".sdkman/candidates", "SDKMAN tools", 10 * mb},
    {".vagrant.d/boxes", "Vagrant boxes", 10 * mb},
    {"anaconda3", "Anaconda", 10 * mb},
    {"micromamba", "micromamba", 10 * mb},
    {"miniconda3", "Miniconda", 10 * mb},
}};

constexpr std::array<WholePlace, 14> packageCaches{{
    {".bun/install/cache", "Bun", 10 * mb},
    {".cargo/git", "Cargo Git checkouts", 10 * mb},
    {".cargo/registry", "Cargo registry", 10 * mb},
    {".ccache", "ccache", 10 * mb},
    {".gradle/caches", "Gradle caches", 10 * mb},
    {".gradle/wrapper/dists", "Gradle distributions", 10 * mb},
    {".ivy2/cache", "Ivy", 10 * mb},
    {".npm/_cacache", "npm", 10 * mb},
    {".nuget/packages", "NuGet", 10 * mb},
    {".pub-cache/hosted", "Dart packages", 10 * mb},
    {".sbt/boot", "sbt", 10 * mb},
    {".yarn/berry/cache", "Yarn", 10 * mb},
    {".local/share/pnpm/store", "pnpm store", 10 * mb},
    {"go/pkg/mod", "Go modules", 10 * mb},
}};

constexpr std::array<WholePlace, 2> temporaryFiles{{
    {"/tmp", "Temporary files", 10 * mb},
    {"/var/tmp", "Temporary files that outlive a restart", 10 * mb},
}};

constexpr std::array<WholePlace, 2> swap{{
    {"/swapfile", "Swap file", 100 * mb},
    {"/swap.img", "Swap file", 100 * mb},
}};

constexpr std::array<WholePlace, 1> databases{{{"/var/lib", "What services keep", 100 * mb}}};

constexpr std::array<WholePlace, 6> mail{{
    {".thunderbird", "Thunderbird", 10 * mb},
    {".local/share/evolution", "Evolution", 10 * mb},
    {".local/share/akonadi", "KMail", 10 * mb},
    {".local/share/geary", "Geary", 10 * mb},
    {"Mail", "Mail folder", 10 * mb},
    {"Maildir", "Mail folder", 10 * mb},
}};

constexpr std::array<WholePlace, 3> homebrew{{
    {".cache/Homebrew", "Homebrew downloads", 10 * mb},
    {".linuxbrew", "Homebrew", 10 * mb},
    {"/home/linuxbrew/.linuxbrew", "Homebrew", 10 * mb},
}};

constexpr std::array<WholePlace, 3> firmware{{
    {"/boot", "Kernels", 10 * mb},
    {"/usr/lib/modules", "Modules of kernels", 10 * mb},
    {"/usr/lib/firmware", "Firmware of devices", 10 * mb},
}};

constexpr std::array<WholePlace, 4> searchIndexes{{
    {".cache/tracker3", "GNOME's search", 10 * mb},
    {".local/share/baloo", "KDE's search", 10 * mb},
    {".recoll", "Recoll", 10 * mb},
    {"/var/lib/plocate", "locate", 10 * mb},
}};

constexpr std::array<WholePlace, 2> crashReports{{
    {"/var/lib/systemd/coredump", "Memory of crashed programs", mb},
    {"/var/crash", "Crash reports", mb},
}};

constexpr std::array<WholePlace, 2> logs{{
    {"/var/log", "Logs of services", 10 * mb},
    {".local/share/xorg", "Logs of sessions", mb},
}};

constexpr std::array<WholePlace, 6> cloudFolders{{
    {"Dropbox", "Dropbox", 10 * mb},
    {"Insync", "Insync", 10 * mb},
    {"Nextcloud", "Nextcloud", 10 * mb},
    {"OneDrive", "OneDrive", 10 * mb},
    {"ownCloud", "ownCloud", 10 * mb},
    {"pCloudDrive", "pCloud", 10 * mb},
}};

constexpr std::array<WholePlace, 2> installedSystem{{
    {"/usr", "Programs of the system", 10 * mb},
    {"/opt", "Programs beside it", 10 * mb},
}};

constexpr std::span<const WholePlace> nothing{};

constexpr ChildFolder children(Base base, std::string_view path, std::int64_t minimumSize,
                               std::span<const std::string_view> except = {}) {
  return {path, minimumSize, base, false, except};
}

// The names of the passes are those of the kinds' words.
constexpr std::array<Pass, systemDataSubCategoryCount> passes{{
    {"", 0.04, Kind::applicationSupport, children(Base::data, "", 5 * mb, dataOfOthers)},
    {"", 0.08, Kind::containers, children(Base::home, ".var/app", 5 * mb)},
    {"", 0.12, Kind::groupContainers, children(Base::home, "snap", 5 * mb)},
    {"", 0.16, Kind::caches, children(Base::cache, "", 5 * mb, cachesOfOthers)},
    {"", 0.20, Kind::developerTools, developerTools},
    {"", 0.25, Kind::packageManagerCaches, packageCaches},
    {"", 0.30, Kind::timeMachineSnapshots, nothing},
    {"", 0.34, Kind::systemTemp, temporaryFiles},
    {"", 0.38, Kind::vmSwap, swap},
    {"", 0.42, Kind::systemDatabases, databases},
    {"", 0.47, Kind::systemLibrary, installedSystem},
    {"", 0.52, Kind::mailStorage, mail},
    {"", 0.56, Kind::homebrewCache, homebrew},
    {"", 0.60, Kind::logs, logs},
    {"", 0.64, Kind::firmware, firmware},
    {"", 0.68, Kind::spotlightIndex, searchIndexes},
    {"", 0.72, Kind::diagnostics, crashReports},
    {"", 0.76, Kind::preferences, children(Base::config, "", 5 * mb)},
    {"", 0.80, Kind::savedState, children(Base::state, "", 5 * mb)},
    {"", 0.84, Kind::cookiesStorage, nothing},
    {"", 0.88, Kind::icloudData, cloudFolders},
    {"", 0.92, Kind::otherLibrary,
     ChildFolder{"", 10 * mb, Base::home, true, coveredHiddenFolders}},
}};

}  // namespace

std::span<const Pass> analysisPasses() {
  return passes;
}

}  // namespace klarvik::linux_disk
