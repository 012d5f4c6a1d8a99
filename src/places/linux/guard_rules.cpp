#include "places/linux/linux_layout.h"

namespace klarvik::linux_disk {
namespace {

using enum Base;

constexpr std::array<std::string_view, 36> systemDirectories{
    "/",    "/Applications", "/Library",    "/System",   "/Users",      "/Volumes",
    "/bin", "/boot",         "/dev",        "/etc",      "/gnu",        "/home",
    "/lib", "/lib32",        "/lib64",      "/libx32",   "/lost+found", "/media",
    "/mnt", "/nix",          "/opt",        "/private",  "/proc",       "/root",
    "/run", "/sbin",         "/snap",       "/srv",      "/sys",        "/timeshift",
    "/usr", "/var",          "/.snapshots", "/swapfile", "/swap.img",   "/tmp",
};

constexpr std::array<std::string_view, 26> protectedPrefixes{
    "/bin/",       "/boot/",       "/dev/",       "/etc/",      "/gnu/",       "/lib/",
    "/lib32/",     "/lib64/",      "/libx32/",    "/nix/",      "/opt/",       "/proc/",
    "/run/",       "/sbin/",       "/snap/",      "/srv/",      "/sys/",       "/usr/",
    "/var/lib/",   "/var/log/",    "/var/cache/", "/var/mail/", "/var/spool/", "/var/backups/",
    "/timeshift/", "/.snapshots/",
};

constexpr std::array<std::string_view, 20> nobodysHomes{
    "/Applications", "/Library", "/System", "/private", "/bin",    "/boot", "/dev",
    "/etc",          "/lib",     "/lib32",  "/lib64",   "/libx32", "/nix",  "/opt",
    "/proc",         "/run",     "/sbin",   "/sys",     "/usr",    "/var",
};

constexpr std::array<std::string_view, 2> homesAllTheSame{"/root", "/var/home/*"};

constexpr std::array<std::string_view, 4> otherHomes{"/home", "/root", "/var/home", "/Users"};

constexpr std::array secrets{
    PlacePattern{home, ".ssh"},
    PlacePattern{home, ".gnupg"},
    PlacePattern{home, ".pki"},
    PlacePattern{home, ".password-store"},
    PlacePattern{data, "keyrings"},
    PlacePattern{data, "kwalletd"},
    PlacePattern{data, "gnome-online-accounts"},
    PlacePattern{data, "TelegramDesktop/tdata"},
    PlacePattern{home, ".aws"},
    PlacePattern{home, ".azure"},
    PlacePattern{home, ".kube/config"},
    PlacePattern{home, ".docker/config.json"},
    PlacePattern{home, ".netrc"},
    PlacePattern{home, ".git-credentials"},
    PlacePattern{home, ".npmrc"},
    PlacePattern{home, ".pypirc"},
    PlacePattern{home, ".cargo/credentials*"},
    PlacePattern{home, ".cargo/config*"},
    PlacePattern{home, ".cargo/bin"},
    PlacePattern{home, ".gradle/gradle.properties"},
    PlacePattern{home, ".gradle/init.d"},
    PlacePattern{home, ".m2/settings*.xml"},
    PlacePattern{home, ".gem/credentials"},
    PlacePattern{home, ".android/adbkey*"},
    PlacePattern{home, ".android/*.keystore"},
    PlacePattern{home, ".terraform.d/credentials*"},
    PlacePattern{home, ".vault-token"},
    PlacePattern{home, ".bitcoin"},
    PlacePattern{home, ".ethereum"},
    PlacePattern{home, ".electrum"},
    PlacePattern{home, ".monero"},
    PlacePattern{home, ".bundle/config"},
    PlacePattern{home, ".composer/auth.json"},
    PlacePattern{home, ".ivy2/.credentials"},
    PlacePattern{home, ".kde/share/apps/kwallet"},
    PlacePattern{home, ".kde4/share/apps/kwallet"},
    PlacePattern{home, ".my.cnf"},
    PlacePattern{home, ".nuget/NuGet"},
    PlacePattern{home, ".ollama/id_ed25519*"},
    PlacePattern{home, ".pgpass"},
    PlacePattern{home, ".yarnrc.yml"},
    PlacePattern{config, "composer/auth.json"},
    PlacePattern{config, "containers/auth.json"},
    PlacePattern{config, "pypoetry/auth.toml"},
    PlacePattern{config, "gcloud"},
    PlacePattern{config, "git"},
    PlacePattern{config, "gh"},
    PlacePattern{config, "hub"},
    PlacePattern{config, "rclone"},
    PlacePattern{config, "op"},
    PlacePattern{config, "Bitwarden"},
    PlacePattern{config, "keepassxc"},
    PlacePattern{config, "sops"},
    PlacePattern{config, "age"},
    PlacePattern{config, "Signal/sql"},
    PlacePattern{cache, "keepassxc"},
    PlacePattern{cache, "rclone"},
    PlacePattern{cache, "huggingface/token"},
    PlacePattern{cache, "huggingface/stored_tokens"},
};

constexpr std::array<std::string_view, 1> secretNames{"*.kdbx"};

constexpr std::array ownPlaces{
    // Mail.
    PlacePattern{home, ".thunderbird"},
    PlacePattern{home, ".mozilla-thunderbird"},
    PlacePattern{home, ".icedove"},
    PlacePattern{home, "Mail"},
    PlacePattern{home, "Maildir"},
    PlacePattern{home, ".mutt"},
    PlacePattern{home, ".mbsync"},
    // What browsers keep of a person.
    PlacePattern{home, ".mozilla"},
    PlacePattern{home, ".librewolf"},
    PlacePattern{home, ".zen"},
    PlacePattern{home, ".waterfox"},
    // Settings, and what programs have stored.
    PlacePattern{config, ""},
    PlacePattern{data, ""},
    PlacePattern{state, ""},
    PlacePattern{home, ".local"},
    PlacePattern{home, ".var/app"},
    PlacePattern{home, "snap"},
    PlacePattern{home, ".dotfiles"},
    PlacePattern{home, ".cfg"},
    PlacePattern{home, ".git"},
    // Games and other people's machines.
    PlacePattern{home, ".minecraft"},
    PlacePattern{home, ".wine"},
    PlacePattern{home, "Games"},
    PlacePattern{home, "VirtualBox VMs"},
    PlacePattern{home, ".docker/desktop"},
    PlacePattern{home, ".lima"},
    // What is kept in step with another machine.
    PlacePattern{home, "Nextcloud"},
    PlacePattern{home, "ownCloud"},
    PlacePattern{home, "Dropbox"},
    PlacePattern{home, "OneDrive"},
    PlacePattern{home, "pCloudDrive"},
    PlacePattern{home, "Insync"},
    PlacePattern{home, ".dropbox*"},
    // Work that is not saved anywhere else.
    PlacePattern{cache, "JetBrains/*/LocalHistory"},
    PlacePattern{cache, "vim"},
    PlacePattern{cache, "nvim"},
    PlacePattern{cache, "emacs"},
};

}  // namespace

const GuardRules guardRules{
    .onlyListedPlaces = true,
    .systemDirectories = systemDirectories,
    .protectedPrefixes = protectedPrefixes,
    .protectedReason = "%1 is protected by Linux and by Klarvik.",
    .nobodysHomes = nobodysHomes,
    .homesAllTheSame = homesAllTheSame,
    .otherHomes = otherHomes,
    .secrets = secrets,
    .secretNames = secretNames,
    .ownPlaces = ownPlaces,
};

}  // namespace klarvik::linux_disk
