#include "places/mac/mac_layout.h"

namespace klarvik::mac {
namespace {

using enum ResidualCategory;

constexpr std::array<std::string_view, 2> folders{"/Applications", "Applications"};

constexpr std::array<ResidualFolder, 12> residuals{{
    {"Library/Preferences", preferences},
    {"Library/Caches", caches},
    {"Library/Application Support", appSupport},
    {"Library/Logs", logs},
    {"Library/Containers", containers},
    {"Library/Group Containers", containers},
    {"Library/Saved Application State", savedState},
    {"Library/Cookies", cookies},
    {"Library/HTTPStorages", caches},
    {"/Library/Preferences", preferences},
    {"/Library/Application Support", appSupport},
    {"/Library/Caches", caches},
}};

constexpr std::array<std::string_view, 21> protectedNames{
    "com.apple.music",       "com.apple.tv",          "com.apple.podcasts",
    "com.apple.itunes",      "com.apple.photos",      "com.apple.photolibrary",
    "com.apple.cloudphotos", "com.apple.photobooth",  "com.apple.addressbook",
    "com.apple.contactsui",  "com.apple.ical",        "com.apple.reminders",
    "com.apple.mail",        "com.apple.safari",      "com.apple.notes",
    "com.apple.home",        "com.apple.ams",         "com.apple.applemediaservices",
    "com.apple.markupui",    "group.com.apple.music", "group.com.apple.photos",
};

}  // namespace

const ApplicationPlaces applicationPlaces{
    .folders = folders,
    .residuals = residuals,
    .protectedNames = protectedNames,
};

}  // namespace klarvik::mac
