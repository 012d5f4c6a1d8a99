#include "places/mac/mac_layout.h"

namespace klarvik::mac {
namespace {

// Some of them are folders, which as files measure nothing.
constexpr std::string_view recentLists = "Library/Application Support/com.apple.sharedfilelist";
constexpr std::string_view quarantineDatabase =
    "Library/Preferences/com.apple.LaunchServices.QuarantineEventsV2";
constexpr std::string_view firefoxProfiles = "Library/Application Support/Firefox/Profiles";

constexpr std::array<std::string_view, 4> histories{
    "Library/Application Support/Google/Chrome/Default/History", "Library/Safari/History.db",
    firefoxProfiles, recentLists};

constexpr std::array<std::string_view, 3> cookies{
    "Library/Application Support/Google/Chrome/Default/Cookies", "Library/Cookies",
    firefoxProfiles};

constexpr std::array<std::string_view, 4> browserCaches{
    "Library/Caches/Google/Chrome", "Library/Caches/com.apple.Safari",
    "Library/Caches/com.google.Chrome", "Library/Caches/Firefox"};

constexpr std::array<std::string_view, 2> downloads{
    quarantineDatabase,
    "Library/Application Support/com.apple.sharedfilelist/"
    "com.apple.LSSharedFileList.RecentDownloads.sfl2"};

constexpr std::array<std::string_view, 2> locations{"Library/Caches/com.apple.locationd",
                                                    "Library/Caches/locationd"};

}  // namespace

const TrailPlaces trailPlaces{
    .histories = histories,
    .cookies = cookies,
    .browserCaches = browserCaches,
    .downloads = downloads,
    .locations = locations,
    .recentLists = recentLists,
    .recentApplications = "Library/Preferences/com.apple.dock.plist",
    .downloadOrigins = quarantineDatabase,
};

}  // namespace klarvik::mac
