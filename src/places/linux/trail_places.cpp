#include <algorithm>

#include "places/linux/linux_layout.h"

namespace klarvik::linux_disk {
namespace {

using enum PrivacyCategory;
using enum TrailClearing;
using Patterns = std::span<const std::string_view>;

/// Where a browser keeps its profiles.
struct Browser {
  std::string_view name;
  std::string_view program;
  Base base;
  std::string_view folder;
};

constexpr std::array<Browser, 13> chromiumBrowsers{{
    {"Google Chrome", "chrome", Base::config, "google-chrome"},
    {"Google Chrome", "chrome", Base::config, "google-chrome-beta"},
    {"Google Chrome", "chrome", Base::config, "google-chrome-unstable"},
    {"Google Chrome", "chrome", Base::home, ".var/app/com.google.Chrome/config/google-chrome"},
    {"Chromium", "chromium", Base::config, "chromium"},
    {"Chromium", "chromium", Base::home, ".var/app/org.chromium.Chromium/config/chromium"},
    {"Chromium", "chromium", Base::home, "snap/chromium/common/chromium"},
    {"Brave", "brave", Base::config, "BraveSoftware/Brave-Browser"},
    {"Brave", "brave", Base::home, ".var/app/com.brave.Browser/config/BraveSoftware/Brave-Browser"},
    {"Microsoft Edge", "msedge", Base::config, "microsoft-edge"},
    {"Microsoft Edge", "msedge", Base::home, ".var/app/com.microsoft.Edge/config/microsoft-edge"},
    {"Vivaldi", "vivaldi-bin", Base::config, "vivaldi"},
    {"Opera", "opera", Base::config, "opera"},
}};
// The pages that were opened stand in the databases of icons and of what is measured, too. Icons of
// bookmarks come back with the next visit.
constexpr std::array<std::string_view, 15> chromiumHistories{
    "*/History",
    "*/History-journal",
    "*/Visited Links",
    "*/Top Sites",
    "*/Top Sites-journal",
    "*/Shortcuts",
    "*/Shortcuts-journal",
    "*/Network Action Predictor",
    "*/Network Action Predictor-journal",
    "*/Favicons",
    "*/Favicons-journal",
    "segmentation_platform/ukm_db",
    "segmentation_platform/ukm_db-journal",
    "segmentation_platform/ukm_db-wal",
    "segmentation_platform/ukm_db-shm",
};
constexpr std::array<std::string_view, 4> chromiumCookies{
    "*/Cookies", "*/Cookies-journal", "*/Network/Cookies", "*/Network/Cookies-journal"};

constexpr std::array<Browser, 7> firefoxBrowsers{{
    {"Firefox", "firefox", Base::home, ".mozilla/firefox"},
    {"Firefox", "firefox", Base::config, "mozilla/firefox"},
    {"Firefox", "firefox", Base::home, "snap/firefox/common/.mozilla/firefox"},
    {"Firefox", "firefox", Base::home, ".var/app/org.mozilla.firefox/.mozilla/firefox"},
    {"LibreWolf", "librewolf", Base::home, ".librewolf"},
    {"Zen", "zen", Base::home, ".zen"},
    {"Waterfox", "waterfox", Base::home, ".waterfox"},
}};
// Bookmarks lie in the same file.
constexpr std::array<std::string_view, 1> firefoxHistories{"*/places.sqlite"};
constexpr std::array<std::string_view, 3> firefoxCookies{"*/cookies.sqlite", "*/cookies.sqlite-wal",
                                                         "*/cookies.sqlite-shm"};

constexpr std::array<CountedTable, 3> countedTables{
    {{"History", "urls"}, {"Cookies", "cookies"}, {"cookies.sqlite", "moz_cookies"}}};

constexpr std::array<std::string_view, 1> recentList{"recently-used.xbel"};
constexpr std::array<std::string_view, 1> sandboxedRecentLists{"*/data/recently-used.xbel"};
constexpr std::array<std::string_view, 1> snapsRecentLists{"*/*/.local/share/recently-used.xbel"};
constexpr std::array<std::string_view, 1> recentEntries{"*.desktop"};
constexpr std::array<std::string_view, 1> usedApplications{"application_state"};
constexpr std::array<std::string_view, 1> activities{"activity.sqlite*"};
constexpr std::array<std::string_view, 1> downloadedSites{".wget-hsts"};
constexpr std::array<std::string_view, 1> clipboardDatabase{"db"};
// Histories with other names are those that somebody keeps.
constexpr std::array<std::string_view, 1> gpasteHistory{"history.xml"};
constexpr std::array<std::string_view, 1> clipmanHistory{"clipman.json"};
constexpr std::array<std::string_view, 1> klipperHistory{"history*"};
constexpr std::array<std::string_view, 1> indicatorHistory{"registry.txt"};
constexpr std::array<std::string_view, 1> copyqTabs{"*.dat"};
constexpr std::array<std::string_view, 1> plasmaActivities{"database"};
constexpr std::array<std::string_view, 1> trashRecords{"*.trashinfo"};
constexpr std::array<std::string_view, 4> cachedMaps{"shumate", "champlain", "libchamplain",
                                                     "gnome-maps"};
constexpr std::array<std::string_view, 3> ownMaps{"marble/maps", "maps-places.json", "gnome-maps"};
constexpr std::array<std::string_view, 9> shellHistories{
    ".bash_history",      ".zsh_history",  ".python_history",
    ".node_repl_history", ".psql_history", ".mysql_history",
    ".sqlite_history",    ".lesshst",      ".viminfo"};
constexpr std::array<std::string_view, 1> fishHistory{"fish_history"};
constexpr std::array<std::string_view, 1> editorHistory{"*.shada"};
constexpr std::array<std::string_view, 1> previews{"*"};

constexpr std::array<std::string_view, 2> originAttributes{"user.xdg.origin.url",
                                                           "user.xdg.referrer.url"};

constexpr Trail toldTrail(PrivacyCategory category, std::string_view program, Base base,
                          std::string_view folder, Patterns files, std::string_view how) {
  return {category, program, base, folder, files, told, TrailCount::none, {}, how};
}

/// What a desktop's own parts hold in memory, and would write again; and where people keep things.
constexpr std::array<Trail, 5> toldOnes{{
    toldTrail(recentFiles, "Plasma", Base::data, "kactivitymanagerd/resources", plasmaActivities,
              "In System Settings: Recent Files"),
    toldTrail(clipboard, "Klipper", Base::data, "klipper", klipperHistory,
              "In the tray: Clear Clipboard History"),
    toldTrail(clipboard, "Clipman", Base::data, "", clipmanHistory, "In Clipman: Clear history"),
    toldTrail(clipboard, "Clipboard Indicator", Base::cache, "clipboard-indicator@tudmotu.com",
              indicatorHistory, "In the top bar: Clear history"),
    toldTrail(clipboard, "CopyQ", Base::config, "copyq", copyqTabs, "In CopyQ, entry by entry"),
}};

constexpr std::array<Trail, 15> others{{
    {recentFiles, "", Base::data, "", recentList, asList, TrailCount::bookmarks},
    {recentFiles, "", Base::home, ".var/app", sandboxedRecentLists, removed, TrailCount::bookmarks},
    {recentFiles, "", Base::home, "snap", snapsRecentLists, removed, TrailCount::bookmarks},
    {recentFiles, "", Base::data, "RecentDocuments", recentEntries, removed, TrailCount::files},
    {recentApps, "", Base::data, "gnome-shell", usedApplications},
    {recentApps, "Zeitgeist", Base::data, "zeitgeist", activities, removed, TrailCount::none,
     "zeitgeist-daemon"},
    {downloadsList, "wget", Base::home, "", downloadedSites, removed, TrailCount::lines},
    {clipboard, "cliphist", Base::cache, "cliphist", clipboardDatabase},
    {clipboard, "GPaste", Base::data, "gpaste", gpasteHistory, removed, TrailCount::none,
     "gpaste-daemon"},
    {trashHistory, "", Base::data, "Trash/info", trashRecords, orphansRemoved, TrailCount::files},
    {locationHistory, "", Base::cache, "", cachedMaps, removed, TrailCount::none, "gnome-maps"},
    {locationHistory, "", Base::data, "", ownMaps, removed, TrailCount::none, "marble"},
    {shellHistory, "", Base::home, "", shellHistories, emptied, TrailCount::lines},
    {shellHistory, "", Base::data, "fish", fishHistory, emptied, TrailCount::lines},
    {shellHistory, "Neovim", Base::state, "nvim/shada", editorHistory, removed, TrailCount::none,
     "nvim"},
}};
constexpr std::array<Trail, 2> pictures{{
    {thumbnails, "", Base::cache, "thumbnails", previews, removed, TrailCount::files},
    {thumbnails, "", Base::home, ".thumbnails", previews, removed, TrailCount::files},
}};

constexpr Trail trailOf(const Browser& browser, PrivacyCategory category, Patterns files) {
  return {category, browser.name, browser.base,     browser.folder,
          files,    removed,      TrailCount::rows, browser.program};
}

constexpr Trail historyTrailOf(const Browser& browser) {
  return {browserHistory,   browser.name,     browser.base,
          browser.folder,   firefoxHistories, firefoxHistory,
          TrailCount::none, browser.program,  "In the browser: Ctrl+Shift+Del"};
}

constexpr auto allTrails = [] {
  std::array<Trail, 2 * (chromiumBrowsers.size() + firefoxBrowsers.size()) + toldOnes.size() +
                        others.size() + pictures.size()>
      all{};
  auto next = all.begin();
  for (const Browser& browser : chromiumBrowsers) {
    *next++ = trailOf(browser, browserHistory, chromiumHistories);
    *next++ = trailOf(browser, browserCookies, chromiumCookies);
  }
  for (const Browser& browser : firefoxBrowsers) {
    *next++ = historyTrailOf(browser);
    *next++ = trailOf(browser, browserCookies, firefoxCookies);
  }
  next = std::ranges::copy(toldOnes, next).out;
  next = std::ranges::copy(others, next).out;
  std::ranges::copy(pictures, next);
  return all;
}();

}  // namespace

const TrailPlaces trailPlaces{
    .histories = {},
    .cookies = {},
    .browserCaches = {},
    .downloads = {},
    .locations = {},
    .recentLists = {},
    .recentApplications = {},
    .downloadOrigins = {},
    .trails = allTrails,
    .countedTables = countedTables,
    .originAttributes = originAttributes,
};

}  // namespace klarvik::linux_disk
