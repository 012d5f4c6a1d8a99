#include "places/linux/linux_layout.h"
#include "places/storage_palette.h"

namespace klarvik::linux_disk {
namespace {

constexpr std::array<std::string_view, 4> applications{"/usr", "/opt", "/var/lib/flatpak",
                                                       "/var/lib/snapd"};
constexpr std::array<std::string_view, 3> projects{"Projects", "projects", "src"};
constexpr std::array<std::string_view, 24> developer{
    ".android", ".arduino15", ".asdf",   ".bun", ".cargo",  ".conan",  ".conan2",     ".conda",
    ".gradle",  ".ivy2",      ".m2",     ".npm", ".nuget",  ".nvm",    ".platformio", ".pub-cache",
    ".pyenv",   ".rbenv",     ".rustup", ".sbt", ".sdkman", "Android", "go",          "miniconda3",
};
constexpr std::array<std::string_view, 3> machines{"/var/lib/docker", "/var/lib/libvirt",
                                                   "VirtualBox VMs"};
constexpr std::array<std::string_view, 4> mail{".thunderbird", ".icedove", "Mail", "Maildir"};
constexpr std::array<std::string_view, 1> caches{".cache"};
constexpr std::array<std::string_view, 4> appData{".local", ".config", ".var/app", "snap"};

constexpr std::array<StorageShare, 13> shares{{
    {"applications", "Applications", storage_palette::blue, applications},
    {"documents", "Documents", storage_palette::orange, {}, &UserFolders::documents},
    {"desktop", "Desktop", storage_palette::teal, {}, &UserFolders::desktop},
    {"downloads", "Downloads", storage_palette::amber, {}, &UserFolders::downloads},
    {"photos", "Pictures", storage_palette::pink, {}, &UserFolders::pictures},
    {"music", "Music", storage_palette::green, {}, &UserFolders::music},
    {"movies", "Videos", storage_palette::violet, {}, &UserFolders::videos},
    {"projects", "Projects", storage_palette::darkGray, projects},
    {"developer", "Developer tools", storage_palette::coral, developer},
    {"containers", "Containers & machines", storage_palette::lightGray, machines},
    {"mail", "Mail", storage_palette::lightGray, mail},
    {"appSupport", "App data", storage_palette::lightGray, appData},
    {"caches", "Caches", storage_palette::lightGray, caches},
}};

}  // namespace

std::span<const StorageShare> storageShares() {
  return shares;
}

}  // namespace klarvik::linux_disk
