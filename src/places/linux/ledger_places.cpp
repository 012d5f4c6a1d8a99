#include "places/linux/linux_layout.h"

namespace klarvik::linux_disk {
namespace {

using Kind = SystemDataSubCategory;
using enum LedgerUnit;
using enum Base;

constexpr std::int64_t mb = 1'000'000;
constexpr bool offered = true;

constexpr std::string_view verbatim = "*";
constexpr std::string_view apps;  // called after the folder's name

constexpr std::string_view toolSentence =
    "Can be fetched or made again, which may take long. Remove it in the tool that put it there.";
constexpr std::string_view packageSentence =
    "Downloaded packages. They are fetched again when a build needs them.";
constexpr std::string_view mailSentence = "Your messages. Remove mail in its program.";
constexpr std::string_view cloudSentence =
    "A copy of what a server keeps. Remove files in it as you would on the server.";
constexpr std::string_view machineSentence =
    "Containers or virtual machines. Remove those you no longer need in the program itself.";
constexpr std::string_view webSentence =
    "What websites keep in this browser. Clear it in the browser's settings.";
constexpr std::string_view managerSentence =
    "Installed by a package manager, which removes what you no longer need.";
constexpr std::string_view downloadSentence =
    "Packages that were downloaded to be installed. The package manager has a command to clean it.";

constexpr LedgerPlace tool(Base base, std::string_view pattern, std::string_view name) {
  return {Kind::developerTools, base, pattern, whole, 10 * mb, name, toolSentence, offered};
}

constexpr LedgerPlace packageCache(Base base, std::string_view pattern, std::string_view name) {
  return {
      Kind::packageManagerCaches, base, pattern, whole, 10 * mb, name, packageSentence, offered};
}

constexpr LedgerPlace kept(Kind kind, Base base, std::string_view pattern, std::string_view name,
                           std::string_view sentence, LedgerUnit unit = whole,
                           std::int64_t above = 10 * mb) {
  return {kind, base, pattern, unit, above, name, sentence};
}

constexpr std::array places{
    // The home.
    kept(Kind::yourFiles, home, "", "Your home", "Loose files at the top of your home."),
    kept(Kind::yourFiles, home, "", verbatim,
         "Your own folder. Storage shows what in it takes the space.", visibleChildren),
    kept(Kind::yourFiles, data, "Trash", "Trash",
         "What you have deleted. Empty the Trash to get the space back."),
    LedgerPlace{Kind::otherLibrary, home, "", hiddenChildren, 10 * mb, verbatim,
                "A hidden folder of your home. Look into it before you remove anything.", offered},
    LedgerPlace{Kind::applicationSupport, data, "", children, 5 * mb, apps,
                "What one app keeps. Clear it from inside the app where you can.", offered},
    LedgerPlace{Kind::containers, home, ".var/app", children, 5 * mb, verbatim,
                "Documents and settings of one Flatpak app. Clear it from inside the app.",
                offered},
    LedgerPlace{Kind::groupContainers, home, "snap", children, 5 * mb, verbatim,
                "Documents and settings of one snap app. Clear it from inside the app.", offered},
    LedgerPlace{Kind::caches, cache, "", children, 5 * mb, apps,
                "Copies that a program keeps to be quicker. It makes them again.", offered},
    LedgerPlace{Kind::caches, home, ".var/app/*/cache", whole, 5 * mb, "Cache of *",
                "Copies that the app keeps to be quicker. It makes them again.", offered},
    LedgerPlace{Kind::caches, home, "snap/*/common/.cache", whole, 5 * mb, "Cache of *",
                "Copies that the app keeps to be quicker. It makes them again.", offered},
    kept(Kind::preferences, config, "", apps, "Settings of one app. Reset them in the app itself.",
         children, 5 * mb),
    LedgerPlace{Kind::savedState, state, "", children, 5 * mb, apps,
                "What an app remembers from one start to the next. It starts afresh without it.",
                offered},
    LedgerPlace{Kind::savedState, config, "session", whole, mb, "Saved session",
                "Which windows were open. They do not come back without it.", offered},
    kept(Kind::savedState, cache, "sessions", "Saved sessions",
         "Which windows were open. They do not come back without it.", whole, mb),

    // Tools and packages.
    tool(home, "Android", "Android SDK"),
    tool(home, ".android/avd", "Android emulators"),
    tool(home, ".arduino15", "Arduino tools"),
    tool(home, ".asdf/installs", "asdf tools"),
    tool(home, ".conan", "Conan 1 packages"),
    tool(home, ".conan2", "Conan packages"),
    tool(home, ".conda", "conda packages"),
    tool(home, ".m2/repository", "Maven repository"),
    tool(home, ".minikube", "minikube"),
    tool(home, ".nvm/versions", "Node versions (nvm)"),
    tool(home, ".ollama", "Ollama models"),
    tool(home, ".platformio", "PlatformIO"),
    tool(home, ".pyenv/versions", "Python versions (pyenv)"),
    tool(home, ".rbenv/versions", "Ruby versions (rbenv)"),
    tool(home, ".rustup/toolchains", "Rust toolchains"),
    tool(home, ".sdkman/candidates", "SDKMAN tools"),
    tool(home, ".vagrant.d/boxes", "Vagrant boxes"),
    tool(home, "anaconda3", "Anaconda"),
    tool(home, "micromamba", "micromamba"),
    tool(home, "miniconda3", "Miniconda"),
    packageCache(home, ".bun/install/cache", "Bun"),
    packageCache(home, ".cargo/git", "Cargo Git checkouts"),
    packageCache(home, ".cargo/registry", "Cargo registry"),
    packageCache(home, ".ccache", "ccache"),
    packageCache(home, ".gradle/caches", "Gradle caches"),
    packageCache(home, ".gradle/wrapper/dists", "Gradle distributions"),
    packageCache(home, ".ivy2/cache", "Ivy"),
    packageCache(home, ".npm/_cacache", "npm"),
    packageCache(home, ".nuget/packages", "NuGet"),
    packageCache(home, ".pub-cache/hosted", "Dart packages"),
    packageCache(home, ".sbt/boot", "sbt"),
    packageCache(home, ".yarn/berry/cache", "Yarn"),
    packageCache(data, "pnpm/store", "pnpm store"),
    packageCache(home, "go/pkg/mod", "Go modules"),
    LedgerPlace{Kind::homebrewCache, cache, "Homebrew", whole, 10 * mb, "Homebrew downloads",
                "Downloads that Homebrew keeps. 'brew cleanup' removes the old ones.", offered},
    kept(Kind::homebrewCache, home, ".linuxbrew", "Homebrew", managerSentence),
    kept(Kind::homebrewCache, root, "home/linuxbrew/.linuxbrew", "Homebrew", managerSentence),

    // Mail, browsers, clouds.
    kept(Kind::mailStorage, home, ".thunderbird", "Thunderbird", mailSentence),
    kept(Kind::mailStorage, home, ".icedove", "Icedove", mailSentence),
    kept(Kind::mailStorage, data, "evolution", "Evolution", mailSentence),
    kept(Kind::mailStorage, data, "akonadi", "KMail", mailSentence),
    kept(Kind::mailStorage, data, "kmail2", "KMail", mailSentence),
    kept(Kind::mailStorage, data, "geary", "Geary", mailSentence),
    kept(Kind::mailStorage, home, "Mail", "Mail folder", mailSentence),
    kept(Kind::mailStorage, home, "Maildir", "Mail folder", mailSentence),
    kept(Kind::mailStorage, root, "var/mail", "Mail of this machine", mailSentence),
    kept(Kind::mailStorage, root, "var/spool/mail", "Mail of this machine", mailSentence),
    kept(Kind::cookiesStorage, home, ".mozilla/firefox/*/storage", "Firefox", webSentence),
    kept(Kind::cookiesStorage, config, "mozilla/firefox/*/storage", "Firefox", webSentence),
    kept(Kind::cookiesStorage, config, "chromium/*/IndexedDB", "Chromium", webSentence),
    kept(Kind::cookiesStorage, config, "chromium/*/Service Worker", "Chromium", webSentence),
    kept(Kind::cookiesStorage, config, "google-chrome/*/IndexedDB", "Google Chrome", webSentence),
    kept(Kind::cookiesStorage, config, "google-chrome/*/Service Worker", "Google Chrome",
         webSentence),
    kept(Kind::cookiesStorage, config, "BraveSoftware/Brave-Browser/*/IndexedDB", "Brave",
         webSentence),
    kept(Kind::cookiesStorage, config, "BraveSoftware/Brave-Browser/*/Service Worker", "Brave",
         webSentence),
    kept(Kind::cookiesStorage, config, "microsoft-edge/*/IndexedDB", "Microsoft Edge", webSentence),
    kept(Kind::cookiesStorage, config, "microsoft-edge/*/Service Worker", "Microsoft Edge",
         webSentence),
    kept(Kind::icloudData, home, "Dropbox", "Dropbox", cloudSentence),
    kept(Kind::icloudData, home, "Insync", "Insync", cloudSentence),
    kept(Kind::icloudData, home, "Nextcloud", "Nextcloud", cloudSentence),
    kept(Kind::icloudData, home, "OneDrive", "OneDrive", cloudSentence),
    kept(Kind::icloudData, home, "ownCloud", "ownCloud", cloudSentence),
    kept(Kind::icloudData, home, "pCloudDrive", "pCloud", cloudSentence),

    // Containers and machines.
    kept(Kind::containerStorage, data, "containers", "Podman", machineSentence),
    kept(Kind::containerStorage, data, "docker", "Docker without root", machineSentence),
    kept(Kind::containerStorage, home, ".docker/desktop", "Docker Desktop", machineSentence),
    kept(Kind::containerStorage, data, "gnome-boxes", "Boxes", machineSentence),
    kept(Kind::containerStorage, data, "libvirt", "Virtual machines", machineSentence),
    kept(Kind::containerStorage, home, ".lima", "Lima", machineSentence),
    kept(Kind::containerStorage, home, "VirtualBox VMs", "VirtualBox", machineSentence),
    kept(Kind::containerStorage, root, "var/lib/docker", "Docker", machineSentence),
    kept(Kind::containerStorage, root, "var/lib/containerd", "containerd", machineSentence),
    kept(Kind::containerStorage, root, "var/lib/containers", "Podman of the system",
         machineSentence),
    kept(Kind::containerStorage, root, "var/lib/libvirt", "Virtual machines", machineSentence),
    kept(Kind::containerStorage, root, "var/lib/lxc", "LXC", machineSentence),
    kept(Kind::containerStorage, root, "var/lib/lxd", "LXD", machineSentence),
    kept(Kind::containerStorage, root, "var/snap/lxd", "LXD", machineSentence),
    kept(Kind::containerStorage, root, "var/lib/machines", "systemd's machines", machineSentence),

    // What package managers keep.
    kept(Kind::packages, root, "var/lib/flatpak", "Flatpak apps and runtimes", managerSentence),
    kept(Kind::packages, data, "flatpak", "Flatpak apps of yours", managerSentence),
    kept(Kind::packages, root, "var/lib/snapd", "Snap apps", managerSentence),
    kept(Kind::packages, root, "var/cache/apt", "Downloads of apt", downloadSentence),
    kept(Kind::packages, root, "var/lib/apt", "Lists of apt", downloadSentence),
    kept(Kind::packages, root, "var/cache/dnf", "Downloads of dnf", downloadSentence),
    kept(Kind::packages, root, "var/cache/libdnf5", "Downloads of dnf", downloadSentence),
    kept(Kind::packages, root, "var/cache/pacman", "Downloads of pacman", downloadSentence),
    kept(Kind::packages, root, "var/cache/zypp", "Downloads of zypper", downloadSentence),
    kept(Kind::packages, root, "var/cache/PackageKit", "Downloads of PackageKit", downloadSentence),

    // The system.
    kept(Kind::systemLibrary, root, "usr", "Programs of the system", managerSentence),
    kept(Kind::systemLibrary, root, "usr/local", "Programs installed by hand",
         "What was installed past the package manager. Whoever put it there can remove it."),
    kept(Kind::systemLibrary, root, "opt", verbatim,
         "A program beside the system's own. Its installer or package removes it.", children),
    kept(Kind::systemLibrary, root, "bin", "Programs of the system", managerSentence),
    kept(Kind::systemLibrary, root, "sbin", "Programs of the system", managerSentence),
    kept(Kind::systemLibrary, root, "lib*", "Libraries of the system", managerSentence),
    kept(Kind::systemLibrary, root, "etc", "Settings of the system",
         "What the system and its services are set to. Leave it alone."),
    kept(Kind::systemLibrary, root, "nix", "Nix store", managerSentence),
    kept(Kind::systemLibrary, root, "gnu", "Guix store", managerSentence),
    kept(Kind::systemLibrary, root, "var/lib/dpkg", "List of packages", managerSentence),
    kept(Kind::systemLibrary, root, "var/lib/rpm", "List of packages", managerSentence),
    kept(Kind::systemLibrary, root, "var/lib/pacman", "List of packages", managerSentence),
    kept(Kind::firmware, root, "boot", "Kernels",
         "What the machine starts with. Your package manager removes older kernels."),
    kept(Kind::firmware, root, "usr/lib/modules", verbatim,
         "Modules of one kernel. Your package manager removes those of older kernels.", children),
    kept(Kind::firmware, root, "lib/modules", verbatim,
         "Modules of one kernel. Your package manager removes those of older kernels.", children),
    kept(Kind::firmware, root, "usr/lib/firmware", "Firmware of devices",
         "Needed by devices of this machine. Leave it alone."),
    kept(Kind::firmware, root, "lib/firmware", "Firmware of devices",
         "Needed by devices of this machine. Leave it alone."),
    kept(Kind::firmware, root, "usr/src", verbatim,
         "Sources or headers of a kernel. Your package manager removes those of older kernels.",
         children),
    kept(Kind::firmware, root, "var/lib/fwupd", "Firmware updates",
         "Kept by the updater of firmware. It looks after them itself."),
    kept(Kind::systemDatabases, root, "var", "Other data of services",
         "What services keep. Change it in the service that it belongs to."),
    kept(Kind::systemDatabases, root, "var/lib", verbatim,
         "What one service keeps. Change it in that service.", children, 50 * mb),
    kept(Kind::vmSwap, root, "swapfile", "Swap file",
         "Used when memory runs short. Leave it alone."),
    kept(Kind::vmSwap, root, "swap.img", "Swap file",
         "Used when memory runs short. Leave it alone."),
    kept(Kind::vmSwap, root, "swap", "Swap file", "Used when memory runs short. Leave it alone."),
    kept(Kind::vmSwap, root, "hiberfil*", "Hibernation file",
         "Holds the memory while the machine sleeps. Leave it alone."),
    LedgerPlace{Kind::systemTemp, root, "tmp", children, 10 * mb, verbatim,
                "Temporary. A restart of the machine removes it where nothing else does.", offered},
    LedgerPlace{Kind::systemTemp, root, "var/tmp", children, 10 * mb, verbatim,
                "Temporary, but kept over restarts. The system removes it after some weeks.",
                offered},
    kept(Kind::logs, root, "var/log/journal", "Journal of the system",
         "Messages of all services. 'journalctl --vacuum-size' shortens it.", whole, mb),
    kept(Kind::logs, root, "var/log", "Logs of services",
         "Each service shortens its own. Change how much is kept in its settings.", whole, mb),
    LedgerPlace{Kind::logs, data, "xorg", whole, mb, "Logs of sessions",
                "Messages of the desktop. Of use only to whoever looks for a fault.", offered},
    LedgerPlace{Kind::logs, home, ".xsession-errors*", whole, mb, verbatim,
                "Messages of the desktop. Of use only to whoever looks for a fault.", offered},
    LedgerPlace{Kind::diagnostics, root, "var/lib/systemd/coredump", whole, mb,
                "Memory of crashed programs", "The system removes the older ones by itself.",
                offered},
    LedgerPlace{Kind::diagnostics, root, "var/crash", whole, mb, "Crash reports",
                "Of use only to whoever looks for the fault.", offered},
    kept(Kind::diagnostics, root, "var/spool/abrt", "Crash reports",
         "Of use only to whoever looks for the fault.", whole, mb),
    LedgerPlace{Kind::diagnostics, config, "*/Crash Reports", whole, mb, "Crash reports of *",
                "Of use only to whoever looks for the fault.", offered},
    kept(Kind::spotlightIndex, cache, "tracker3", "GNOME's search",
         "The desktop looks after it. 'tracker3 reset -s' builds it anew."),
    kept(Kind::spotlightIndex, data, "baloo", "KDE's search",
         "The desktop looks after it. 'balooctl purge' builds it anew."),
    kept(Kind::spotlightIndex, home, ".recoll", "Recoll",
         "Recoll's index of your files. It builds it anew."),
    kept(Kind::spotlightIndex, root, "var/lib/plocate", "locate",
         "The list of all file names. The system renews it every day."),
    kept(Kind::spotlightIndex, root, "var/lib/mlocate", "locate",
         "The list of all file names. The system renews it every day."),
    kept(Kind::timeMachineSnapshots, root, "timeshift", "Timeshift",
         "Earlier states of the disk. Remove old ones in Timeshift."),
    kept(Kind::timeMachineSnapshots, root, ".snapshots", "Snapper",
         "Earlier states of the disk. 'snapper delete' removes old ones."),
    kept(Kind::timeMachineSnapshots, root, "home/.snapshots", "Snapper",
         "Earlier states of the homes. 'snapper delete' removes old ones."),

    // Everybody and everything else.
    kept(Kind::otherUsers, root, "home", verbatim,
         "The home of another user, as far as you may read it. Only its owner can tidy it.",
         children, mb),
    kept(Kind::otherUsers, root, "var/home", verbatim,
         "The home of another user, as far as you may read it. Only its owner can tidy it.",
         children, mb),
    kept(Kind::otherUsers, root, "root", "The administrator",
         "The administrator's home, as far as you may read it.", whole, mb),
    kept(Kind::elsewhere, root, "", "The top of the disk", "Loose files outside of all homes."),
    kept(Kind::elsewhere, root, "", verbatim,
         "Neither the system's nor in a home. Whoever made it knows whether it is still needed.",
         children),
};

}  // namespace

std::span<const LedgerPlace> ledgerPlaces() {
  return places;
}

}  // namespace klarvik::linux_disk
