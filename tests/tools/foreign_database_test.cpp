#include "tools/foreign_database.h"

#include "firefox_profile.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

class RowCountTest : public testing::Test {
 protected:
  static void fill(const Path& place, const std::string& more = {}) {
    BrowserDatabase(place).run(
        "CREATE TABLE urls (id INTEGER PRIMARY KEY);"
        "INSERT INTO urls VALUES (1), (2), (3);" +
        more);
  }

  TemporaryFolder disk;
  const Path file = disk.path() / "History";
};

TEST_F(RowCountTest, IsThatOfTheTable) {
  fill(file);
  EXPECT_EQ(rowCount(file, "urls"), 3);
}

TEST_F(RowCountTest, LeavesNothingBesideTheDatabase) {
  fill(file, "PRAGMA journal_mode = WAL");
  ASSERT_EQ(rowCount(file, "urls"), 3);
  const std::filesystem::directory_iterator entries(disk.path());
  EXPECT_EQ(std::distance(begin(entries), end(entries)), 1);
}

TEST_F(RowCountTest, ReadsNamesThatMeanSomethingInAnAddress) {
  const Path strange = disk.path() / "a?b#c%20d";
  fill(strange);
  EXPECT_EQ(rowCount(strange, "urls"), 3);
}

TEST_F(RowCountTest, IsUnknownWhereThereIsNoSuchTable) {
  fill(file, "CREATE VIEW seen AS SELECT * FROM urls");
  EXPECT_EQ(rowCount(file, "seen"), std::nullopt);
  EXPECT_EQ(rowCount(file, "cookies"), std::nullopt);
}

TEST_F(RowCountTest, IsUnknownOfWhatIsNoDatabase) {
  EXPECT_EQ(rowCount(file, "urls"), std::nullopt);
  disk.makeFile("/History", 40'000);
  EXPECT_EQ(rowCount(file, "urls"), std::nullopt);
  std::filesystem::resize_file(file, 0);
  EXPECT_EQ(rowCount(file, "urls"), std::nullopt);
}

TEST_F(RowCountTest, IsUnknownOfADatabaseThatIsCutOff) {
  fill(file,
       "WITH RECURSIVE n(i) AS (SELECT 4 UNION ALL SELECT i + 1 FROM n WHERE i < 20000) "
       "INSERT INTO urls SELECT i FROM n");
  ASSERT_EQ(rowCount(file, "urls"), 20'000);
  std::filesystem::resize_file(file, std::filesystem::file_size(file) / 2);
  EXPECT_EQ(rowCount(file, "urls"), std::nullopt);
}

TEST_F(RowCountTest, IsUnknownBehindALink) {
  fill(file);
  std::filesystem::create_symlink(file, disk.path() / "link");
  EXPECT_EQ(rowCount(disk.path() / "link", "urls"), std::nullopt);
}

TEST_F(RowCountTest, IsUnknownWhereALogHoldsTheRest) {
  fill(file);
  for (const char* const log : {"/History-wal", "/History-journal"}) {
    const Path beside = disk.makeFile(log, "not empty");
    EXPECT_EQ(rowCount(file, "urls"), std::nullopt) << log;
    std::filesystem::remove(beside);
  }
}

TEST_F(RowCountTest, IsUnknownOfAHugeDatabase) {
  fill(file);
  std::filesystem::resize_file(file, std::uintmax_t{300} * 1024 * 1024);
  EXPECT_EQ(rowCount(file, "urls"), std::nullopt);
}

}  // namespace
}  // namespace klarvik
