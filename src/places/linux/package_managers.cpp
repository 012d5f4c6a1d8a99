#include <array>

#include "places/linux/linux_layout.h"

namespace klarvik::linux_disk {
namespace {

using Texts = std::string_view;

constexpr auto dpkgDatabases = std::to_array<Texts>({"/var/lib/dpkg/status"});
constexpr auto aptCommands = std::to_array<PackageFrontEnd>({{"/usr/bin/apt", "sudo apt remove"}});
constexpr auto askApt = std::to_array<Texts>({"apt-get", "--simulate", "remove"});
/// Without these there is no desktop, no start or no network; so below.
constexpr auto neededByDebian = std::to_array<Texts>({
    "*-desktop",      "task-*",        "linux-image-*", "gnome-shell",
    "plasma-desktop", "xorg",          "xserver-xorg*", "network-manager",
    "systemd",        "systemd-sysv",  "grub-*",        "sudo",
    "gdm3",           "sddm",          "lightdm",       "xfce4",
    "cinnamon",       "mate-desktop*", "lxqt*",         "apt",
    "dpkg",
});

// Of each kind of database that rpm has had, at the two places where systems keep it.
constexpr auto rpmDatabases = std::to_array<Texts>({
    "/usr/lib/sysimage/rpm/rpmdb.sqlite",
    "/usr/lib/sysimage/rpm/Packages.db",
    "/usr/lib/sysimage/rpm/Packages",
    "/var/lib/rpm/rpmdb.sqlite",
    "/var/lib/rpm/Packages.db",
    "/var/lib/rpm/Packages",
});
constexpr auto rpmCommands = std::to_array<PackageFrontEnd>({
    {"/usr/bin/dnf", "sudo dnf remove"},
    {"/usr/bin/zypper", "sudo zypper remove"},
    {"/usr/bin/yum", "sudo yum remove"},
});
constexpr auto askRpm = std::to_array<Texts>({"rpm", "--erase", "--test"});
constexpr auto neededByRpmSystems = std::to_array<Texts>({
    "gnome-shell",
    "mutter",
    "gnome-session*",
    "plasma-desktop",
    "plasma-workspace*",
    "kwin*",
    "cinnamon",
    "xfce4-session",
    "mate-desktop*",
    "lxqt-session",
    "xorg-x11-*",
    "NetworkManager",
    "kernel*",
    "systemd*",
    "grub2*",
    "shim-*",
    "dracut*",
    "sudo",
    "gdm",
    "sddm",
    "lightdm",
    "dnf*",
    "libdnf*",
    "zypper",
    "libzypp",
    "yum",
    "rpm",
    "rpm-libs",
    "glibc*",
    "bash",
    "coreutils*",
    "filesystem",
    "setup",
    "*-release",
    "*-release-*",
    "selinux-policy*",
    "patterns-base-*",
    "polkit",
    "dbus*",
});

constexpr auto pacmanDatabases = std::to_array<Texts>({"/var/lib/pacman/local"});
constexpr auto pacmanCommands =
    std::to_array<PackageFrontEnd>({{"/usr/bin/pacman", "sudo pacman -Rs"}});
constexpr auto askPacman =
    std::to_array<Texts>({"pacman", "-Rs", "--print", "--print-format", "%n"});
constexpr auto neededByPacmanSystems = std::to_array<Texts>({
    "base",
    "linux",
    "linux-lts",
    "linux-zen",
    "linux-hardened",
    "linux-firmware",
    "mkinitcpio*",
    "filesystem",
    "glibc",
    "bash",
    "coreutils",
    "pacman",
    "systemd*",
    "sudo",
    "grub",
    "gnome-shell",
    "mutter",
    "gnome-session",
    "plasma-desktop",
    "plasma-workspace",
    "plasma-meta",
    "kwin*",
    "cinnamon",
    "xfce4-session",
    "mate-desktop",
    "lxqt-session",
    "xorg-server*",
    "networkmanager",
    "gdm",
    "sddm",
    "lightdm",
    "polkit",
    "dbus*",
    "archlinux-keyring",
    "manjaro-system",
});

constexpr std::string_view usualMarks = "+-._";

}  // namespace

constinit const std::array<PackageManager, 3> packageManagers{{
    {.records = PackageRecords::dpkg,
     .databases = dpkgDatabases,
     .frontEnds = aptCommands,
     .question = askApt,
     .answer = RemovalAnswer::marked,
     .databaseOption = {},
     .nameMarks = "+-.",
     .needed = neededByDebian},
    {.records = PackageRecords::rpm,
     .databases = rpmDatabases,
     .frontEnds = rpmCommands,
     .question = askRpm,
     .answer = RemovalAnswer::dependents,
     .databaseOption = "--dbpath",
     .nameMarks = usualMarks,
     .needed = neededByRpmSystems,
     .protectedLists = "/etc/dnf/protected.d",
     .mayTakeMore = true},
    {.records = PackageRecords::pacman,
     .databases = pacmanDatabases,
     .frontEnds = pacmanCommands,
     .question = askPacman,
     .answer = RemovalAnswer::names,
     .databaseOption = "--dbpath",
     .nameMarks = "@+-._",
     .needed = neededByPacmanSystems},
}};

}  // namespace klarvik::linux_disk
