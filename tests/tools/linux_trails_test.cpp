#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>

#include "core/deletion_guard.h"
#include "firefox_profile.h"
#include "platform/system_platform.h"
#include "support/desktop_fakes.h"
#include "support/fake_running_programs.h"
#include "support/temporary_folder.h"
#include "tools/privacy_scanner.h"

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;
using enum PrivacyCategory;

const Path chrome = "/home/ann/.config/google-chrome";
const Path firefox = "/home/ann/.mozilla/firefox/ab12.default";

class LinuxTrails : public testing::Test {
 protected:
  std::vector<PrivacyItem> scan() { return scanner.scan({}); }

  std::vector<std::string> names() {
    std::vector<std::string> all;
    for (const PrivacyItem& item : scan()) all.push_back(item.name);
    return all;
  }

  PrivacyClearance clear(PrivacyCategory category) {
    std::vector<PrivacyItem> chosen = scan();
    std::erase_if(chosen, [&](const PrivacyItem& item) { return item.category != category; });
    return scanner.clear(chosen);
  }

  [[nodiscard]] bool isThere(const Path& path) const {
    return std::filesystem::exists(disk.onDisk(path));
  }

  void makeProfiles() {
    for (const char* profile : {"Default", "Profile 2"}) {
      disk.makeFile(chrome / profile / "History", 40'000);
      disk.makeFile(chrome / profile / "Network/Cookies", 20'000);
      for (const char* own : {"Bookmarks", "Login Data", "Web Data", "Preferences"}) {
        disk.makeFile(chrome / profile / own, 1'000);
      }
    }
    disk.makeFile(firefox / "places.sqlite", 50'000);
    disk.makeFile(firefox / "cookies.sqlite", 30'000);
    for (const char* own : {"logins.json", "key4.db", "sessionstore.jsonlz4"}) {
      disk.makeFile(firefox / own, 1'000);
    }
  }

  TemporaryFolder disk;
  SystemPlatform machine{disk.path(), "/home/ann"};
  FakeRunningPrograms programs;
  const Platform system = machine.platform();
  const Platform platform{system.files,  system.trash,      system.commands, system.defaults,
                          system.volume, system.formatting, system.info,     system.recentDocuments,
                          programs,      system.tools};
  FakePasteboard pasteboard;
  PrivacyScanner scanner{platform, pasteboard};
};

TEST_F(LinuxTrails, AreNoneInAnEmptyHome) {
  disk.makeFolder("/home/ann");
  EXPECT_THAT(names(), IsEmpty());
}

TEST_F(LinuxTrails, AreOneItemForEachKindAndProgram) {
  makeProfiles();
  disk.makeFile("/home/ann/.bash_history", "ls\nmake\n");
  disk.makeFile("/home/ann/.cache/thumbnails/large/a.png", 3'000);
  EXPECT_THAT(names(), ElementsAre("Browser History — Google Chrome", "Browser History — Firefox",
                                   "Browser Cookies — Google Chrome", "Browser Cookies — Firefox",
                                   "Shell History", "Thumbnails"));
}

TEST_F(LinuxTrails, OfABrowserAreCountedByTheRowsOfItsDatabases) {
  makeProfiles();
  const auto fill = [&](const Path& file, const std::string& table) {
    std::filesystem::remove(disk.onDisk(file));
    BrowserDatabase(disk.onDisk(file))
        .run("CREATE TABLE " + table +
             " (id INTEGER PRIMARY KEY);"
             "INSERT INTO " +
             table + " VALUES (1), (2), (3)");
  };
  for (const char* profile : {"Default", "Profile 2"}) {
    fill(chrome / profile / "History", "urls");
    fill(chrome / profile / "Network/Cookies", "cookies");
  }
  fill(firefox / "cookies.sqlite", "moz_cookies");
  std::map<std::string, std::int64_t> counts;
  for (const PrivacyItem& item : scan()) counts[item.name] = item.count;
  EXPECT_EQ(counts["Browser History — Google Chrome"], 6);
  EXPECT_EQ(counts["Browser Cookies — Google Chrome"], 6);
  EXPECT_EQ(counts["Browser Cookies — Firefox"], 3);
}

TEST_F(LinuxTrails, OfABrowserAreClearedInEveryProfileAndNothingElseOfIt) {
  makeProfiles();
  const PrivacyClearance done = clear(browserCookies);
  EXPECT_EQ(done.cleaned, 2);
  EXPECT_GE(done.freed, 70'000);
  EXPECT_THAT(done.stayed, IsEmpty());
  for (const char* profile : {"Default", "Profile 2"}) {
    EXPECT_FALSE(isThere(chrome / profile / "Network/Cookies"));
    for (const char* own : {"History", "Bookmarks", "Login Data", "Web Data", "Preferences"}) {
      EXPECT_TRUE(isThere(chrome / profile / own)) << own;
    }
  }
  EXPECT_FALSE(isThere(firefox / "cookies.sqlite"));
  for (const char* own : {"places.sqlite", "logins.json", "key4.db", "sessionstore.jsonlz4"}) {
    EXPECT_TRUE(isThere(firefox / own)) << own;
  }
}

TEST_F(LinuxTrails, OfClipboardManagersAreToldWhereTheDesktopHoldsThemOrPeopleKeepThings) {
  const Path home = "/home/ann";
  const std::vector<Path> kept{home / ".local/share/klipper/history3.sqlite",
                               home / ".local/share/clipman.json",
                               home / ".cache/clipboard-indicator@tudmotu.com/registry.txt",
                               home / ".config/copyq/copyq_tab_a.dat",
                               home / ".local/share/kactivitymanagerd/resources/database"};
  for (const Path& file : kept) disk.makeFile(file, 3'000);
  const Path gpaste = home / ".local/share/gpaste/history.xml";
  const Path named = home / ".local/share/gpaste/recipes.xml";
  disk.makeFile(gpaste, 3'000);
  disk.makeFile(named, 3'000);
  const auto found = scan();
  EXPECT_EQ(
      std::ranges::count_if(found, [](const PrivacyItem& item) { return !item.told.empty(); }), 5);
  for (const PrivacyItem& item : found) {
    EXPECT_EQ(item.canBeCleared(), item.program == "GPaste") << item.name;
  }
  programs.running = {"gpaste-daemon"};
  EXPECT_EQ(scanner.clear(found).cleaned, 0) << "it would be written again";
  programs.running = {};
  EXPECT_EQ(scanner.clear(found).cleaned, 1);
  EXPECT_FALSE(isThere(gpaste));
  EXPECT_TRUE(isThere(named));
  for (const Path& file : kept) EXPECT_TRUE(isThere(file)) << file;
}

TEST_F(LinuxTrails, OfFirefoxAreTakenOutOfTheFileThatHoldsTheBookmarksToo) {
  disk.makeFolder(firefox);
  makePlaces(disk.onDisk(firefox / "places.sqlite"));
  makeIcons(disk.onDisk(firefox / "favicons.sqlite"));
  const auto found = scan();
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found.front().name, "Browser History — Firefox");
  EXPECT_EQ(found.front().count, 3);
  EXPECT_EQ(found.front().size, 0);
  EXPECT_TRUE(found.front().isSelected);
  const PrivacyClearance done = scanner.clear(found);
  EXPECT_EQ(done.cleaned, 1);
  EXPECT_EQ(done.freed, 0);
  EXPECT_THAT(done.stayed, IsEmpty());
  const BrowserDatabase after(disk.onDisk(firefox / "places.sqlite"));
  EXPECT_THAT(after.rows("SELECT title FROM moz_bookmarks WHERE fk NOT NULL"),
              ElementsAre("My page", "My query"));
  EXPECT_THAT(after.rows("SELECT * FROM moz_historyvisits"), IsEmpty());
  EXPECT_THAT(BrowserDatabase(disk.onDisk(firefox / "favicons.sqlite"))
                  .rows("SELECT page_url FROM moz_pages_w_icons"),
              ElementsAre("https://marked.example/"));
  EXPECT_THAT(names(), IsEmpty());
}

TEST_F(LinuxTrails, OfAFirefoxThatRunsOrHasItsDatabaseOpenStay) {
  disk.makeFolder(firefox);
  const Path places = disk.onDisk(firefox / "places.sqlite");
  makePlaces(places);
  const std::string before = disk.contentOf(firefox / "places.sqlite");
  const auto found = scan();
  programs.running = {"firefox-esr"};
  EXPECT_EQ(scanner.clear(found).stayed, (std::vector<StayedTrail>{{found.front().id, "Firefox"}}));
  const auto whileItRuns = scan();
  ASSERT_EQ(whileItRuns.size(), 1U);
  EXPECT_EQ(whileItRuns.front().closeFirst, "Firefox");
  programs.running = {};
  EXPECT_EQ(disk.contentOf(firefox / "places.sqlite"), before);
  const BrowserDatabase open(places);
  open.run("PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE; COMMIT");
  EXPECT_EQ(scanner.clear(found).stayed, (std::vector<StayedTrail>{{found.front().id, "Firefox"}}));
  EXPECT_EQ(open.rows("SELECT * FROM moz_historyvisits").size(), 4U);
}

TEST_F(LinuxTrails, OfFirefoxInAFileThatCameSinceTheScanOrHasAnotherNameStay) {
  disk.makeFolder(firefox);
  const Path places = disk.onDisk(firefox / "places.sqlite");
  makePlaces(places);
  const auto found = scan();
  const Path other = disk.onDisk(firefox / "other.sqlite");
  makePlaces(other);
  std::filesystem::rename(other, places);
  EXPECT_EQ(scanner.clear(found).stayed.size(), 1U);
  EXPECT_EQ(BrowserDatabase(places).rows("SELECT * FROM moz_historyvisits").size(), 4U);

  std::filesystem::create_hard_link(places, other);
  EXPECT_THAT(names(), IsEmpty());
  std::filesystem::remove(places);
  disk.makeLink(firefox / "places.sqlite", "other.sqlite");
  EXPECT_THAT(names(), IsEmpty());
}

TEST_F(LinuxTrails, OfFirefoxThatCannotBeClearedAreTold) {
  disk.makeFolder(firefox);
  const Path places = disk.onDisk(firefox / "places.sqlite");
  const auto told = [&] {
    const auto found = scan();
    EXPECT_EQ(found.size(), 1U);
    EXPECT_FALSE(found.front().isSelected);
    return std::string(found.front().told);
  };
  makePlaces(places);
  BrowserDatabase(places).run("ALTER TABLE moz_places RENAME TO moz_pages");
  EXPECT_EQ(told(), "In the browser: Ctrl+Shift+Del");
  std::filesystem::resize_file(places, 2ULL << 30);
  EXPECT_EQ(told(), "Too large to clear from here");
  disk.makeFile(firefox / "places.sqlite", 50'000);
  EXPECT_EQ(told(), "Its database is damaged: left as it is");
}

TEST_F(LinuxTrails, OfADamagedFirefoxAreNeverRemovedForTheBookmarksInTheSameFile) {
  makeProfiles();
  const PrivacyClearance done = clear(browserHistory);
  EXPECT_EQ(done.cleaned, 1);
  EXPECT_EQ(done.stayed.size(), 1U);
  EXPECT_FALSE(isThere(chrome / "Default/History"));
  EXPECT_TRUE(isThere(firefox / "places.sqlite"));
}

TEST_F(LinuxTrails, OfAProgramThatRunsStayUntilItIsClosed) {
  makeProfiles();
  const auto before = scan();
  programs.running = {"chrome"};
  for (const PrivacyItem& item : scan()) {
    if (item.program != "Google Chrome") continue;
    EXPECT_EQ(item.closeFirst, "Google Chrome");
    EXPECT_FALSE(item.isSelected);
  }
  // Started after the scan.
  const PrivacyClearance done = scanner.clear(before);
  EXPECT_TRUE(isThere(chrome / "Default/History"));
  EXPECT_TRUE(isThere(chrome / "Default/Network/Cookies"));
  EXPECT_EQ(done.cleaned, 1);
  EXPECT_EQ(done.stayed.size(), 3U);
}

TEST_F(LinuxTrails, CachesOfABrowserThatRunsAreAnItemOfTheirOwn) {
  disk.makeFile("/home/ann/.cache/mozilla/firefox/ab.default/x", 3'000'000);
  disk.makeFile("/home/ann/.cache/google-chrome/Default/Cache/x", 3'000'000);
  EXPECT_THAT(names(), ElementsAre("Browser Cache"));
  programs.running = {"firefox"};
  EXPECT_THAT(names(), ElementsAre("Browser Cache", "Browser Cache"));
  const PrivacyClearance done = clear(browserCache);
  EXPECT_EQ(done.cleaned, 1);
  EXPECT_GE(done.freed, 3'000'000);
  EXPECT_TRUE(isThere("/home/ann/.cache/mozilla/firefox/ab.default/x"));
  EXPECT_FALSE(isThere("/home/ann/.cache/google-chrome/Default/Cache/x"));
}

TEST_F(LinuxTrails, OfAShellAreEmptiedInPlaceWithTheirRightsAndCountedByLines) {
  const Path history = "/home/ann/.bash_history";
  disk.makeFile(history, std::string(70'000, 'x') + "\nls\nmake");
  ASSERT_EQ(::chmod(disk.onDisk(history).c_str(), 0600), 0);
  const auto found = scan();
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found.front().count, 2);
  EXPECT_EQ(scanner.clear(found).cleaned, 1);
  struct stat status {};
  ASSERT_EQ(::stat(disk.onDisk(history).c_str(), &status), 0);
  EXPECT_EQ(status.st_size, 0);
  EXPECT_EQ(status.st_mode & 07777, 0600U);
  EXPECT_THAT(names(), IsEmpty());
}

TEST_F(LinuxTrails, ThatAreLinksOrHaveAnotherNameStay) {
  disk.makeFile("/home/ann/dotfiles/history", "ls\n");
  disk.makeLink("/home/ann/.bash_history", "dotfiles/history");
  disk.makeFile("/home/ann/.zsh_history", "ls\n");
  std::filesystem::create_hard_link(disk.onDisk("/home/ann/.zsh_history"),
                                    disk.onDisk("/home/ann/dotfiles/zsh"));
  const auto found = scan();
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found.front().path, "/home/ann/.zsh_history");
  const PrivacyClearance done = scanner.clear(found);
  EXPECT_EQ(done.cleaned, 0);
  EXPECT_EQ(done.stayed, (std::vector<StayedTrail>{{found.front().id}}));
  EXPECT_EQ(std::filesystem::file_size(disk.onDisk("/home/ann/dotfiles/zsh")), 3U);
}

TEST_F(LinuxTrails, ThatWereReplacedSinceTheScanStay) {
  disk.makeFile("/home/ann/.bash_history", "ls\n");
  const auto found = scan();
  std::filesystem::remove(disk.onDisk("/home/ann/.bash_history"));
  disk.makeFile("/home/ann/other", "mine\n");
  std::filesystem::rename(disk.onDisk("/home/ann/other"), disk.onDisk("/home/ann/.bash_history"));
  EXPECT_EQ(scanner.clear(found).stayed.size(), 1U);
  EXPECT_EQ(std::filesystem::file_size(disk.onDisk("/home/ann/.bash_history")), 5U);
}

TEST_F(LinuxTrails, OfTheTrashAreRecordsWithoutAThing) {
  disk.makeFile("/home/ann/.local/share/Trash/files/there", 10);
  disk.makeFile("/home/ann/.local/share/Trash/info/on its way.trashinfo", 10);
  for (const char* old : {"there", "gone", "back"}) {
    const Path record = "/home/ann/.local/share/Trash/info/" + std::string(old) + ".trashinfo";
    std::filesystem::last_write_time(
        disk.makeFile(record, 10),
        std::filesystem::file_time_type::clock::now() - std::chrono::hours(25));
  }
  const auto found = scan();
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found.front().category, trashHistory);
  EXPECT_EQ(found.front().count, 2);
  disk.makeFile("/home/ann/.local/share/Trash/files/back", 10);
  EXPECT_EQ(scanner.clear(found).stayed.size(), 1U);
  for (const char* stays : {"there", "on its way", "back"}) {
    const Path record = "/home/ann/.local/share/Trash/info/" + std::string(stays) + ".trashinfo";
    EXPECT_TRUE(isThere(record)) << record;
  }
  EXPECT_FALSE(isThere("/home/ann/.local/share/Trash/info/gone.trashinfo"));
}

TEST_F(LinuxTrails, OfRecentFilesAreCountedAndTheListStays) {
  const Path list = "/home/ann/.local/share/recently-used.xbel";
  disk.makeFile(list, "<xbel><bookmark href=\"a\"/><bookmark href=\"b\"/></xbel>");
  const auto found = scan();
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found.front().count, 2);
  EXPECT_EQ(scanner.clear(found).cleaned, 1);
  EXPECT_TRUE(isThere(list));
  EXPECT_THAT(names(), IsEmpty());
}

TEST_F(LinuxTrails, AreNamedBeforeTheyAreLookedFor) {
  disk.makeFolder("/home/ann");
  std::vector<std::string> lines;
  double last = 0;
  static_cast<void>(scanner.scan([&](double fraction, std::string_view line) {
    EXPECT_GT(fraction, last);
    last = fraction;
    lines.emplace_back(line);
  }));
  EXPECT_EQ(lines.front(), "Scanning browser history...");
  EXPECT_EQ(lines.back(), "Done");
  EXPECT_EQ(last, 1.0);
}

TEST_F(LinuxTrails, TheRulesLetGoWhatTheTableNamesAndNoSecret) {
  const auto refusal = [&](const Path& path) {
    return DeletionGuard::refusalReason(path, DeletionScope::trail(), "/home/ann");
  };
  EXPECT_FALSE(refusal(chrome / "Default/History"));
  EXPECT_FALSE(refusal("/home/ann/.bash_history"));
  for (const Path& path :
       {chrome / "Default/Login Data", chrome / "Default", chrome / "Default/History/x",
        firefox / "places.sqlite", firefox / "logins.json", Path("/home/ann/.ssh/known_hosts"),
        Path("/home/ann/Documents/History"), Path("/home/ann/.config"),
        Path("/home/ann/.local/share/keyrings/login.keyring"), Path("/etc/passwd")}) {
    EXPECT_TRUE(refusal(path)) << path;
  }
  const auto refusesToChange = [&](const Path& path, const Path& home) {
    return DeletionGuard::refusalReason(path, DeletionScope::database(), home).has_value();
  };
  EXPECT_FALSE(refusesToChange(firefox / "places.sqlite", "/home/ann"));
  for (const Path& path :
       {firefox / "cookies.sqlite", firefox / "logins.json", firefox / "x/places.sqlite", firefox,
        chrome / "Default/History", Path("/home/ann/.cache/mozilla"), Path("/tmp/places.sqlite"),
        Path("/home/ann/Documents/places.sqlite")}) {
    EXPECT_TRUE(refusesToChange(path, "/home/ann")) << path;
  }
  EXPECT_TRUE(
      refusesToChange("/Users/ann/.mozilla/firefox/ab.default/places.sqlite", "/Users/ann"));
  EXPECT_TRUE(DeletionGuard::refusalReason(chrome / "Default/History", DeletionScope::general(),
                                           "/home/ann"));
}

}  // namespace
}  // namespace klarvik
