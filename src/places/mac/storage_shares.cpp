#include "places/colors.h"
#include "places/mac/mac_layout.h"

namespace klarvik::mac {
namespace {

using Place = std::array<std::string_view, 1>;

constexpr Place applications{"/Applications"};
constexpr Place documents{"Documents"};
constexpr Place desktop{"Desktop"};
constexpr Place downloads{"Downloads"};
constexpr Place pictures{"Pictures"};
constexpr Place music{"Music"};
constexpr Place movies{"Movies"};
constexpr Place developer{"Library/Developer"};
constexpr Place cloud{"Library/Mobile Documents"};
constexpr Place mail{"Library/Mail"};
constexpr Place containers{"Library/Containers"};
constexpr Place support{"Library/Application Support"};
constexpr Place caches{"Library/Caches"};

// People keep photos in Pictures, so that is what its share is called.
constexpr std::array<StorageShare, 13> shares{{
    {"applications", "Applications", storage_palette::blue, applications},
    {"documents", "Documents", storage_palette::orange, documents},
    {"desktop", "Desktop", storage_palette::teal, desktop},
    {"downloads", "Downloads", storage_palette::amber, downloads},
    {"photos", "Photos", storage_palette::pink, pictures},
    {"music", "Music", storage_palette::green, music},
    {"movies", "Movies", storage_palette::violet, movies},
    {"developer", "Developer", storage_palette::coral, developer},
    {"icloud", "iCloud Drive (local)", storage_palette::lightGray, cloud},
    {"mail", "Mail", storage_palette::lightGray, mail},
    {"containers", "App containers", storage_palette::lightGray, containers},
    {"appSupport", "App support", storage_palette::lightGray, support},
    {"caches", "Caches", storage_palette::lightGray, caches},
}};

}  // namespace

std::span<const StorageShare> storageShares() {
  return shares;
}

}  // namespace klarvik::mac
