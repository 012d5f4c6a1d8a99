#include "places/colors.h"
#include "places/linux/linux_layout.h"

namespace klarvik::linux_disk {
namespace {

using enum Base;
using Pattern = PlacePattern;

constexpr std::array applications{
    Pattern{root, "usr"},           Pattern{root, "opt"},        Pattern{root, "var/lib/flatpak"},
    Pattern{root, "var/lib/snapd"}, Pattern{root, "lib*"},       Pattern{root, "bin"},
    Pattern{root, "sbin"},          Pattern{root, "nix"},        Pattern{root, "gnu"},
    Pattern{data, "flatpak"},       Pattern{home, ".linuxbrew"},
};
constexpr std::array developer{
    Pattern{home, ".android"},   Pattern{home, ".arduino15"}, Pattern{home, ".asdf"},
    Pattern{home, ".bun"},       Pattern{home, ".cargo"},     Pattern{home, ".conan"},
    Pattern{home, ".conan2"},    Pattern{home, ".conda"},     Pattern{home, ".gradle"},
    Pattern{home, ".ivy2"},      Pattern{home, ".m2"},        Pattern{home, ".npm"},
    Pattern{home, ".nuget"},     Pattern{home, ".nvm"},       Pattern{home, ".platformio"},
    Pattern{home, ".pub-cache"}, Pattern{home, ".pyenv"},     Pattern{home, ".rbenv"},
    Pattern{home, ".rustup"},    Pattern{home, ".sbt"},       Pattern{home, ".sdkman"},
    Pattern{home, "Android"},    Pattern{home, "anaconda3"},  Pattern{home, "go"},
    Pattern{home, "miniconda3"}, Pattern{home, "micromamba"}, Pattern{data, "pnpm"},
};
constexpr std::array machines{
    Pattern{root, "var/lib/docker"},
    Pattern{root, "var/lib/containerd"},
    Pattern{root, "var/lib/containers"},
    Pattern{root, "var/lib/libvirt"},
    Pattern{root, "var/lib/lxc"},
    Pattern{root, "var/lib/lxd"},
    Pattern{root, "var/snap/lxd"},
    Pattern{root, "var/lib/machines"},
    Pattern{data, "containers"},
    Pattern{data, "docker"},
    Pattern{data, "gnome-boxes"},
    Pattern{data, "libvirt"},
    Pattern{home, "VirtualBox VMs"},
    Pattern{home, ".docker"},
    Pattern{home, ".lima"},
};
constexpr std::array mail{
    Pattern{home, ".thunderbird"}, Pattern{home, ".icedove"},  Pattern{home, "Mail"},
    Pattern{home, "Maildir"},      Pattern{data, "evolution"}, Pattern{data, "akonadi"},
    Pattern{data, "kmail2"},       Pattern{data, "geary"},     Pattern{root, "var/mail"},
};
constexpr std::array caches{
    Pattern{cache, ""},
    Pattern{home, ".var/app/*/cache"},
    Pattern{home, "snap/*/common/.cache"},
};
constexpr std::array appData{
    Pattern{data, ""},     Pattern{config, ""}, Pattern{state, ""},
    Pattern{home, "snap"}, Pattern{home, ".*"},
};
constexpr std::array restOfHome{Pattern{home, ""}};

constexpr StorageShare of(std::string_view id, std::string_view label, RgbColor color,
                          std::span<const PlacePattern> patterns) {
  return {.id = id, .label = label, .color = color, .patterns = patterns};
}

constexpr StorageShare shown(std::string_view id, std::string_view label, RgbColor color,
                             Path UserFolders::*folder) {
  return {.id = id, .label = label, .color = color, .shown = folder};
}

constexpr std::array shares{
    of("applications", "Applications", storage_palette::blue, applications),
    shown("documents", "Documents", storage_palette::orange, &UserFolders::documents),
    shown("desktop", "Desktop", storage_palette::teal, &UserFolders::desktop),
    shown("downloads", "Downloads", storage_palette::amber, &UserFolders::downloads),
    shown("photos", "Pictures", storage_palette::pink, &UserFolders::pictures),
    shown("music", "Music", storage_palette::green, &UserFolders::music),
    shown("movies", "Videos", storage_palette::violet, &UserFolders::videos),
    StorageShare{.id = "artifacts",
                 .label = "Build artifacts",
                 .color = storage_palette::coral,
                 .holdsArtifacts = true},
    of("developer", "Developer tools", storage_palette::lightGray, developer),
    of("containers", "Containers & machines", storage_palette::lightGray, machines),
    of("mail", "Mail", storage_palette::lightGray, mail),
    of("appSupport", "App data", storage_palette::lightGray, appData),
    of("caches", "Caches", storage_palette::lightGray, caches),
    of("home", "Other files in your home", storage_palette::darkGray, restOfHome),
};

}  // namespace

std::span<const StorageShare> storageShares() {
  return shares;
}

}  // namespace klarvik::linux_disk
