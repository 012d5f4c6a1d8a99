#include "places/linux/linux_layout.h"

namespace klarvik::linux_disk {
namespace {

using enum Base;
using enum ResidualCategory;

constexpr std::array entryFolders{
    PlacePattern{data, "applications"},
    PlacePattern{root, "usr/local/share/applications"},
    PlacePattern{root, "usr/share/applications"},
    PlacePattern{root, "var/lib/snapd/desktop/applications"},
};

constexpr std::array flatpaks{
    PlacePattern{root, "var/lib/flatpak"},
    PlacePattern{data, "flatpak"},
};

constexpr std::array appImages{
    PlacePattern{home, "Applications"},
    PlacePattern{home, "AppImages"},
    PlacePattern{home, ".local/bin"},
};

constexpr std::array programs{
    PlacePattern{home, ".local/bin"},    PlacePattern{home, "bin"},
    PlacePattern{root, "usr/local/bin"}, PlacePattern{root, "usr/bin"},
    PlacePattern{root, "bin"},           PlacePattern{root, "usr/local/games"},
    PlacePattern{root, "usr/games"},     PlacePattern{root, "usr/sbin"},
    PlacePattern{root, "snap/bin"},
};

constexpr std::array byHand{
    PlacePattern{home, "Applications/*"}, PlacePattern{home, "AppImages/*"},
    PlacePattern{home, "Apps/*"},         PlacePattern{home, "apps/*"},
    PlacePattern{home, "Programs/*"},     PlacePattern{home, "opt/*"},
    PlacePattern{home, "bin/*"},          PlacePattern{home, ".local/opt/*"},
    PlacePattern{home, ".local/bin/*"},
};

constexpr std::array alongside{
    PlacePattern{data, "applications/*.desktop"},
    PlacePattern{data, "icons/hicolor/*/apps/*"},
};

constexpr std::array leftovers{
    LeftoverFolder{{config, ""}, preferences},
    LeftoverFolder{{cache, ""}, caches},
    LeftoverFolder{{data, ""}, appSupport},
    LeftoverFolder{{state, ""}, savedState},
    LeftoverFolder{{home, ".var/app"}, containers},
    LeftoverFolder{{home, "snap"}, containers},
    LeftoverFolder{{home, ""}, appSupport, LeftoverName::hidden},
    LeftoverFolder{{data, "applications"}, other, LeftoverName::stem},
    LeftoverFolder{{config, "autostart"}, other, LeftoverName::stem},
    LeftoverFolder{{data, "icons/hicolor/*/apps"}, other, LeftoverName::stem},
};

constexpr std::array knownLeftovers{
    KnownLeftover{"google-chrome", {config, "google-chrome"}, preferences},
    KnownLeftover{"google-chrome", {cache, "google-chrome"}, caches},
    KnownLeftover{"google-chrome-stable", {config, "google-chrome"}, preferences},
    KnownLeftover{"google-chrome-stable", {cache, "google-chrome"}, caches},
    KnownLeftover{"brave-browser", {config, "BraveSoftware/Brave-Browser"}, preferences},
    KnownLeftover{"brave-browser", {cache, "BraveSoftware/Brave-Browser"}, caches},
    KnownLeftover{"firefox", {cache, "mozilla/firefox"}, caches},
    KnownLeftover{"firefox-esr", {cache, "mozilla/firefox"}, caches},
    KnownLeftover{"code", {config, "Code"}, preferences},
    KnownLeftover{"code", {home, ".vscode"}, appSupport},
    KnownLeftover{"thunderbird", {home, ".thunderbird"}, appSupport},
    KnownLeftover{"thunderbird", {cache, "thunderbird"}, caches},
    KnownLeftover{"steam", {data, "Steam"}, appSupport},
    KnownLeftover{"steam", {home, ".steam"}, appSupport},
    KnownLeftover{"jetbrains-idea", {config, "JetBrains/IntelliJIdea*"}, preferences},
    KnownLeftover{"jetbrains-idea", {data, "JetBrains/IntelliJIdea*"}, appSupport},
    KnownLeftover{"jetbrains-idea-ce", {config, "JetBrains/IdeaIC*"}, preferences},
    KnownLeftover{"jetbrains-idea-ce", {data, "JetBrains/IdeaIC*"}, appSupport},
    KnownLeftover{"jetbrains-pycharm", {config, "JetBrains/PyCharm2*"}, preferences},
    KnownLeftover{"jetbrains-pycharm", {data, "JetBrains/PyCharm2*"}, appSupport},
    KnownLeftover{"jetbrains-clion", {config, "JetBrains/CLion2*"}, preferences},
    KnownLeftover{"jetbrains-clion", {data, "JetBrains/CLion2*"}, appSupport},
    KnownLeftover{"jetbrains-goland", {config, "JetBrains/GoLand2*"}, preferences},
    KnownLeftover{"jetbrains-webstorm", {config, "JetBrains/WebStorm2*"}, preferences},
};

constexpr auto sharedNames = std::to_array<std::string_view>({
    "jetbrains", "google",    "bravesoftware", "kde.org",   "kde",   "gnome-*", "systemd",
    "mozilla",   "microsoft", "applications",  "autostart", "icons", "themes",  "fonts",
    "mime",      "menus",     "local",         "config",    "cache", "flatpak", "trash",
    "dconf",     "pulse",     "fontconfig",    "gtk-*",     "xfce4", "lxqt",    "vim",
    "profile",   "bashrc",    "ssh",
});

constexpr auto commonWords = std::to_array<std::string_view>({
    "code",
    "app",
    "client",
    "config",
    "data",
    "desktop",
    "edit",
    "files",
    "maps",
    "mail",
    "music",
    "notes",
    "photos",
    "player",
    "shell",
    "studio",
    "terminal",
    "text",
    "tool",
    "view",
    "web",
    "common",
    "default",
    "gnome",
    "kde",
    "gtk",
    "qt",
    "python",
    "java",
    "node",
    "editor",
    "viewer",
    "browser",
    "settings",
    "manager",
    "launcher",
    "application",
    "program",
    "run",
    "start",
    "main",
    "update",
    "updater",
    "setup",
    "install",
    "game",
    "games",
    "calculator",
    "calendar",
    "clock",
    "weather",
    "contacts",
    "camera",
    "videos",
    "pictures",
    // Programs that run others.
    "bash",
    "dash",
    "env",
    "flatpak",
    "snap",
    "wine",
    "electron",
    "perl",
    "ruby",
    "mono",
    "dotnet",
    "pkexec",
    "sudo",
    "xdg-open",
    "gio",
    "exo-open",
    "python2",
    "python3",
    "nodejs",
    "apprun",
    "dbus-launch",
});

constexpr DesktopApplications desktopApplications{
    .entryFolders = entryFolders,
    .flatpaks = flatpaks,
    .appImages = appImages,
    .programs = programs,
    .byHand = byHand,
    .alongside = alongside,
    .leftovers = leftovers,
    .knownLeftovers = knownLeftovers,
    .sharedNames = sharedNames,
    .commonWords = commonWords,
    .packageManagers = packageManagers,
    .snapFiles = "/var/lib/snapd/snaps",
    .addOns = "/opt",
};

}  // namespace

const ApplicationPlaces applicationPlaces{
    .folders = {},
    .residuals = {},
    .protectedNames = {},
    .desktop = &desktopApplications,
};

}  // namespace klarvik::linux_disk
