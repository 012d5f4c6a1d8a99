#include "tools/firefox_history.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "firefox_profile.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class FirefoxHistoryTest : public testing::Test {
 protected:
  void SetUp() override { makePlaces(places); }

  [[nodiscard]] HistoryOutcome clear(const FirefoxDatabases& databases) const {
    return clearFirefoxHistory(databases, [] { return true; });
  }
  [[nodiscard]] HistoryOutcome clear() const { return clear({places}); }

  [[nodiscard]] std::vector<std::string> rows(const std::string& question) const {
    return BrowserDatabase(places).rows(question);
  }

  void expectUntouched(HistoryOutcome expected) const {
    const std::string before = profile.contentOf("places.sqlite");
    EXPECT_EQ(clear(), expected);
    EXPECT_EQ(profile.contentOf("places.sqlite"), before);
  }

  void damage(std::int64_t from, std::int64_t bytes) const {
    std::fstream file(places, std::ios::binary | std::ios::in | std::ios::out);
    file.seekp(from);
    file << std::string(static_cast<std::size_t>(bytes), '\x5a');
  }

  TemporaryFolder profile;
  Path places = profile.onDisk("places.sqlite");
  Path icons = profile.onDisk("favicons.sqlite");
};

TEST_F(FirefoxHistoryTest, CountsThePagesThatWereVisited) {
  const FirefoxHistory history = readFirefoxHistory({places});
  EXPECT_EQ(history.outcome, HistoryOutcome::done);
  EXPECT_EQ(history.pages, 3);
  EXPECT_FALSE(history.mayHoldMore);
}

TEST_F(FirefoxHistoryTest, IsReadWithoutAFileBesideTheDatabase) {
  const std::string before = profile.contentOf("places.sqlite");
  static_cast<void>(readFirefoxHistory({places}));
  EXPECT_EQ(profile.contentOf("places.sqlite"), before);
  std::size_t files = 0;
  for (const auto& file : std::filesystem::directory_iterator(profile.path())) {
    EXPECT_EQ(file.path(), places);
    ++files;
  }
  EXPECT_EQ(files, 1U);
}

TEST_F(FirefoxHistoryTest, GoesAndLeavesTheBookmarks) {
  const auto bookmarks = rows("SELECT * FROM moz_bookmarks");
  const auto keywords = rows("SELECT * FROM moz_keywords");
  EXPECT_EQ(clear(), HistoryOutcome::done);
  EXPECT_EQ(rows("SELECT * FROM moz_bookmarks"), bookmarks);
  EXPECT_EQ(rows("SELECT * FROM moz_keywords"), keywords);
  EXPECT_THAT(rows("SELECT id, url, title, visit_count, typed, frecency, last_visit_date, guid "
                   "FROM moz_places"),
              ElementsAre("3|https://marked.example/|Marked|0|0|-1|-|g3",
                          "4|https://marked.example/?q=%s|Search|0|0|1|-|g4",
                          "5|place:type=6|A query|0|0|0|-|g5"));
  EXPECT_THAT(rows("SELECT content FROM moz_annos"), ElementsAre("a note"));
  EXPECT_THAT(rows("SELECT host FROM moz_origins"), ElementsAre("marked.example"));
  for (const char* table : {"moz_historyvisits", "moz_historyvisits_extra", "moz_inputhistory",
                            "moz_places_metadata"}) {
    EXPECT_THAT(rows(std::string("SELECT * FROM ") + table), IsEmpty()) << table;
  }
  EXPECT_THAT(rows("PRAGMA integrity_check"), ElementsAre("ok"));
  EXPECT_THAT(rows("PRAGMA foreign_key_check"), IsEmpty());
  EXPECT_EQ(readFirefoxHistory({places}).pages, 0);
}

TEST_F(FirefoxHistoryTest, IsOverwrittenInTheFile) {
  ASSERT_THAT(profile.contentOf("places.sqlite"), HasSubstr("secret.example"));
  EXPECT_EQ(clear(), HistoryOutcome::done);
  EXPECT_THAT(profile.contentOf("places.sqlite"), Not(HasSubstr("secret.example")));
  EXPECT_FALSE(profile.holds("places.sqlite-wal"));
  EXPECT_FALSE(profile.holds("places.sqlite-shm"));
}

TEST_F(FirefoxHistoryTest, OfABookmarkThatFirefoxForgotToCountLeavesItsPage) {
  BrowserDatabase(places).run("UPDATE moz_places SET foreign_count = 0");
  EXPECT_EQ(clear(), HistoryOutcome::done);
  EXPECT_THAT(rows("SELECT id FROM moz_places"), ElementsAre("3", "4", "5"));
}

TEST_F(FirefoxHistoryTest, OfAPageThatOnlyANoteKeepsLeavesThePage) {
  BrowserDatabase(places).run(
      "INSERT INTO moz_annos VALUES (3, 1, 2, 'a note of a page without a bookmark')");
  EXPECT_EQ(clear(), HistoryOutcome::done);
  EXPECT_THAT(rows("SELECT id FROM moz_places"), ElementsAre("1", "3", "4", "5"));
  EXPECT_THAT(rows("SELECT id FROM moz_annos"), ElementsAre("2", "3"));
}

TEST_F(FirefoxHistoryTest, IsLockedAgainstOthersBeforeItIsAskedAbout) {
  const auto isLocked = [&](const Path& file) {
    sqlite3* opened = nullptr;
    EXPECT_EQ(sqlite3_open(file.c_str(), &opened), SQLITE_OK);
    const int code = sqlite3_exec(opened, "SELECT * FROM sqlite_master", nullptr, nullptr, nullptr);
    sqlite3_close(opened);
    return code == SQLITE_BUSY;
  };
  makeIcons(icons);
  int asked = 0;
  EXPECT_EQ(clearFirefoxHistory({places},
                                [&] {
                                  ++asked;
                                  EXPECT_TRUE(isLocked(places));
                                  return true;
                                }),
            HistoryOutcome::done);
  EXPECT_EQ(clearFirefoxHistory({places, icons},
                                [&] {
                                  ++asked;
                                  EXPECT_TRUE(isLocked(places));
                                  EXPECT_TRUE(isLocked(icons));
                                  return true;
                                }),
            HistoryOutcome::done);
  EXPECT_EQ(asked, 2);
}

TEST_F(FirefoxHistoryTest, ThatACrashLeftInTheLogGoesAsWell) {
  const BrowserDatabase open(places);
  open.run("PRAGMA wal_autocheckpoint = 0");
  open.run("INSERT INTO moz_places (id, url) VALUES (9, 'https://late.example/')");
  open.run("INSERT INTO moz_historyvisits (id, place_id) VALUES (9, 9)");
  const TemporaryFolder crashed;
  for (const char* name : {"places.sqlite", "places.sqlite-wal"}) {
    std::filesystem::copy_file(profile.onDisk(name), crashed.onDisk(name));
  }
  const FirefoxDatabases databases{crashed.onDisk("places.sqlite")};
  EXPECT_TRUE(readFirefoxHistory(databases).mayHoldMore);
  EXPECT_EQ(clear(databases), HistoryOutcome::done);
  EXPECT_THAT(BrowserDatabase(databases.places).rows("SELECT id FROM moz_places"),
              ElementsAre("3", "4", "5"));
  EXPECT_THAT(crashed.contentOf("places.sqlite"), Not(HasSubstr("late.example")));
}

TEST_F(FirefoxHistoryTest, OfWhichOnlyTheLogIsWholeIsNotCalledDamaged) {
  const BrowserDatabase open(places);
  open.run("PRAGMA wal_autocheckpoint = 0; VACUUM");
  const TemporaryFolder crashed;
  for (const char* name : {"places.sqlite", "places.sqlite-wal"}) {
    std::filesystem::copy_file(profile.onDisk(name), crashed.onDisk(name));
  }
  const FirefoxDatabases databases{crashed.onDisk("places.sqlite")};
  // The power failed while the pages of the log were being written into the database.
  {
    std::fstream file(databases.places, std::ios::binary | std::ios::in | std::ios::out);
    file.seekp(4096);
    file << std::string(60'000, '\x5a');
  }
  const FirefoxHistory history = readFirefoxHistory(databases);
  EXPECT_NE(history.outcome, HistoryOutcome::damaged);
  EXPECT_TRUE(history.mayHoldMore);
  EXPECT_EQ(clear(databases), HistoryOutcome::done);
  EXPECT_THAT(BrowserDatabase(databases.places).rows("SELECT id FROM moz_places"),
              ElementsAre("3", "4", "5"));
}

TEST_F(FirefoxHistoryTest, OfAnOpenBrowserIsLeftAlone) {
  const BrowserDatabase open(places);
  for (const char* use :
       {"BEGIN; SELECT * FROM moz_places", "BEGIN IMMEDIATE", "BEGIN EXCLUSIVE"}) {
    open.run(use);
    EXPECT_EQ(clear(), HistoryOutcome::inUse) << use;
    open.run("COMMIT");
  }
  // As Firefox has it, while it does nothing.
  open.run("PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE; COMMIT");
  EXPECT_EQ(clear(), HistoryOutcome::inUse);
  EXPECT_EQ(open.rows("SELECT id FROM moz_historyvisits").size(), 4U);
}

TEST_F(FirefoxHistoryTest, OfAnotherFileThanWasMeantIsLeftAlone) {
  const std::string before = profile.contentOf("places.sqlite");
  EXPECT_EQ(clearFirefoxHistory({places}, [] { return false; }), HistoryOutcome::replaced);
  EXPECT_EQ(profile.contentOf("places.sqlite"), before);
}

TEST_F(FirefoxHistoryTest, BehindALinkIsLeftAlone) {
  profile.makeLink("linked.sqlite", places);
  EXPECT_NE(clear({profile.onDisk("linked.sqlite")}), HistoryOutcome::done);
  EXPECT_NE(readFirefoxHistory({profile.onDisk("linked.sqlite")}).outcome, HistoryOutcome::done);
  EXPECT_EQ(rows("SELECT id FROM moz_historyvisits").size(), 4U);
}

TEST_F(FirefoxHistoryTest, WithAnotherFilesLogBesideItIsLeftAlone) {
  profile.makeFile("mine", "my letter");
  profile.makeLink("places.sqlite-wal", "mine");
  expectUntouched(HistoryOutcome::replaced);
  EXPECT_EQ(profile.contentOf("mine"), "my letter");
}

TEST_F(FirefoxHistoryTest, ThatIsNoDatabaseIsLeftAlone) {
  profile.makeFile("places.sqlite", 50'000);
  EXPECT_EQ(readFirefoxHistory({places}).outcome, HistoryOutcome::damaged);
  expectUntouched(HistoryOutcome::damaged);
  profile.makeFile("places.sqlite", "");
  EXPECT_NE(readFirefoxHistory({places}).outcome, HistoryOutcome::done);
  EXPECT_NE(clear(), HistoryOutcome::done);
  EXPECT_EQ(profile.contentOf("places.sqlite"), "");
}

TEST_F(FirefoxHistoryTest, ThatIsCutOffOrOverwrittenIsLeftAlone) {
  const auto whole = static_cast<std::int64_t>(std::filesystem::file_size(places));
  damage(whole / 2, 6'000);
  expectUntouched(HistoryOutcome::damaged);
  makePlaces(profile.onDisk("other.sqlite"));
  std::filesystem::rename(profile.onDisk("other.sqlite"), places);
  std::filesystem::resize_file(places, static_cast<std::uintmax_t>(whole / 2));
  expectUntouched(HistoryOutcome::damaged);
}

TEST_F(FirefoxHistoryTest, IsLeftAloneWhereAnyOtherTableIsDamaged) {
  BrowserDatabase(places).run(
      "CREATE TABLE moz_other (text TEXT);"
      "WITH RECURSIVE numbers(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM numbers WHERE n < 2000) "
      "INSERT INTO moz_other SELECT 'marker' || n FROM numbers");
  const std::size_t at = profile.contentOf("places.sqlite").find("marker1000");
  ASSERT_NE(at, std::string::npos);
  damage(static_cast<std::int64_t>(at / 4096 * 4096), 100);
  expectUntouched(HistoryOutcome::damaged);
}

TEST_F(FirefoxHistoryTest, ThatIsLargerThanAnyIsLeftAlone) {
  std::filesystem::resize_file(places, (1ULL << 30) + 1);
  EXPECT_EQ(readFirefoxHistory({places}).outcome, HistoryOutcome::tooLarge);
  EXPECT_EQ(clear(), HistoryOutcome::tooLarge);
  EXPECT_EQ(std::filesystem::file_size(places), (1ULL << 30) + 1);
}

TEST_F(FirefoxHistoryTest, WithOtherColumnsIsLeftAlone) {
  for (const char* column :
       {"moz_places RENAME COLUMN foreign_count", "moz_bookmarks RENAME COLUMN fk",
        "moz_historyvisits RENAME COLUMN place_id", "moz_annos RENAME COLUMN anno_attribute_id",
        "moz_anno_attributes RENAME COLUMN name", "moz_keywords RENAME COLUMN place_id"}) {
    makePlaces(profile.onDisk("other.sqlite"));
    std::filesystem::rename(profile.onDisk("other.sqlite"), places);
    BrowserDatabase(places).run("ALTER TABLE " + std::string(column) + " TO another");
    EXPECT_EQ(readFirefoxHistory({places}).outcome, HistoryOutcome::unknown) << column;
    expectUntouched(HistoryOutcome::unknown);
  }
}

TEST_F(FirefoxHistoryTest, WithATriggerIsLeftAlone) {
  BrowserDatabase(places).run(
      "CREATE TRIGGER harm AFTER DELETE ON moz_places BEGIN DELETE FROM moz_bookmarks; END");
  expectUntouched(HistoryOutcome::unknown);
}

TEST_F(FirefoxHistoryTest, WhosePagesAnUnknownTableKeepsIsLeftAlone) {
  BrowserDatabase(places).run(
      "CREATE TABLE moz_collections (place_id INTEGER, name TEXT);"
      "INSERT INTO moz_collections VALUES (1, 'Recipes')");
  expectUntouched(HistoryOutcome::unknown);
  BrowserDatabase(places).run(
      "DROP TABLE moz_collections;"
      "CREATE TABLE moz_pinned (page INTEGER REFERENCES moz_places(id));"
      "INSERT INTO moz_pinned VALUES (1)");
  expectUntouched(HistoryOutcome::unknown);
}

TEST_F(FirefoxHistoryTest, OfAnOlderFirefoxWithFewerTablesGoesAsWell) {
  BrowserDatabase(places).run(
      "DROP TABLE moz_places_metadata; DROP TABLE moz_historyvisits_extra; DROP TABLE moz_annos;"
      "DROP TABLE moz_anno_attributes; ALTER TABLE moz_places DROP COLUMN origin_id;"
      "DROP TABLE moz_origins; ALTER TABLE moz_places DROP COLUMN recalc_frecency");
  EXPECT_EQ(clear(), HistoryOutcome::done);
  EXPECT_THAT(rows("SELECT id FROM moz_places"), ElementsAre("3", "4", "5"));
}

TEST_F(FirefoxHistoryTest, TakesAlongTheIconsOfItsPages) {
  makeIcons(icons);
  EXPECT_EQ(clear({places, icons}), HistoryOutcome::done);
  const BrowserDatabase after(icons);
  EXPECT_THAT(
      after.rows("SELECT icon_url FROM moz_icons"),
      ElementsAre("https://marked.example/b.png", "https://www.marked.example/favicon.ico"));
  EXPECT_THAT(after.rows("SELECT page_url FROM moz_pages_w_icons"),
              ElementsAre("https://marked.example/"));
  EXPECT_THAT(after.rows("SELECT * FROM moz_icons_to_pages"), ElementsAre("2|2"));
  EXPECT_THAT(profile.contentOf("favicons.sqlite"), Not(HasSubstr("secret.example")));
}

TEST_F(FirefoxHistoryTest, GoesAlsoWhereTheIconsCannotBeRead) {
  profile.makeFile("favicons.sqlite", 50'000);
  const std::string before = profile.contentOf("favicons.sqlite");
  EXPECT_EQ(clear({places, icons}), HistoryOutcome::done);
  EXPECT_EQ(profile.contentOf("favicons.sqlite"), before);
  EXPECT_THAT(rows("SELECT id FROM moz_places"), ElementsAre("3", "4", "5"));
}

TEST_F(FirefoxHistoryTest, OfAnOpenBrowsersIconsStaysToo) {
  makeIcons(icons);
  const BrowserDatabase open(icons);
  open.run("BEGIN IMMEDIATE");
  EXPECT_EQ(clear({places, icons}), HistoryOutcome::inUse);
  EXPECT_EQ(rows("SELECT id FROM moz_historyvisits").size(), 4U);
}

}  // namespace
}  // namespace klarvik
