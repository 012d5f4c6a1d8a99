#include "systemdata/ledger.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>

#include "base/posix_io.h"
#include "platform/system_platform.h"
#include "platform/volume.h"
#include "support/fake_running_programs.h"
#include "support/fake_volume.h"
#include "support/private_mounts.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

using Kind = SystemDataSubCategory;

constexpr std::int64_t mb = 1'000'000;

std::int64_t bytesOf(const SystemDataResult& result) {
  std::int64_t sum = 0;
  for (const SystemDataItem& item : result.items()) {
    if (isCounted(item.subCategory)) sum += item.size;
  }
  return sum;
}

/// The item at `path`; one of kind `notReadable` and no name when there is none.
SystemDataItem at(const SystemDataResult& result, const Path& path) {
  const auto& items = result.items();
  const auto found = std::ranges::find(items, path, &SystemDataItem::path);
  return found != items.end() ? *found
                              : SystemDataItem{.name = {}, .subCategory = Kind::notReadable};
}

SystemDataResult ledgerOf(const Platform& platform) {
  return makeLedger(platform, [](const std::string&, double) {}, {});
}

/// A disk with figures of its own.
class Ledger : public testing::Test {
 protected:
  Ledger() { volume.setKeptForRootBytes(0); }

  SystemDataResult make() {
    Platform platform = machine.platform();
    return ledgerOf({.files = platform.files,
                     .trash = platform.trash,
                     .commands = platform.commands,
                     .defaults = platform.defaults,
                     .volume = volume,
                     .formatting = platform.formatting,
                     .info = platform.info,
                     .recentDocuments = platform.recentDocuments,
                     .programs = programs,
                     .tools = platform.tools});
  }

  const TemporaryFolder disk;
  SystemPlatform machine{disk.path(), "/home/ann"};
  FakeVolume volume;
  FakeRunningPrograms programs;
};

TEST(LedgerOfAFileSystem, AddsUpToWhatIsUsed) {
  const TemporaryFolder disk;
  EXPECT_TRUE(passesWithPrivateMounts([&] {
    mountTmpfs(disk.path(), "size=400m");
    disk.makeFile("/home/ann/Documents/film", 40 * mb);
    disk.makeFile("/home/ann/loose", 2 * mb);
    disk.makeFile("/home/ann/.cache/writer/a", 30 * mb);
    disk.makeFile("/home/ann/.cache/small", 3 * mb);
    disk.makeFile("/home/ann/.config/writer/a", 6 * mb);
    disk.makeFile("/home/ann/.odd/a", 12 * mb);
    disk.makeFile("/home/bob/film", 20 * mb);
    disk.makeFile("/usr/lib/modules/6.1/a", 15 * mb);
    disk.makeFile("/usr/bin/program", 25 * mb);
    disk.makeFile("/srv/data", 11 * mb);
    disk.makeFile("/var/lib/service/data", 60 * mb);
    disk.makeFolder("/media/stick");
    mountTmpfs(disk.onDisk("/media/stick"));
    disk.makeFile("/media/stick/film", 50 * mb);
    std::filesystem::create_hard_link(disk.onDisk("/home/ann/Documents/film"),
                                      disk.onDisk("/home/ann/.odd/again"));
    const UniqueFd open{::open(disk.onDisk("/home/ann/gone").c_str(), O_RDWR | O_CREAT, 0600)};
    ASSERT_EQ(::posix_fallocate(open.get(), 0, 9 * mb), 0);
    ASSERT_EQ(::unlink(disk.onDisk("/home/ann/gone").c_str()), 0);

    SystemPlatform machine(disk.path(), "/home/ann");
    const SystemDataResult result = ledgerOf(machine.platform());
    ASSERT_TRUE(result.ledger);
    EXPECT_GT(result.ledger->usedBytes, 230 * mb);
    EXPECT_EQ(result.ledger->exceedsBy, 0);
    EXPECT_EQ(bytesOf(result), result.ledger->usedBytes);
    std::int64_t unread = 0;
    std::int64_t deleted = 0;
    for (const SystemDataItem& item : result.items()) {
      if (item.subCategory == Kind::notReadable) unread += item.size;
      if (item.subCategory == Kind::deletedOpen) deleted += item.size;
    }
    EXPECT_LT(unread, result.ledger->usedBytes / 100);
    EXPECT_NEAR(static_cast<double>(deleted), 9.0 * mb, 4096);
  }));
}

TEST_F(Ledger, CountsAThingWhereItLiesDeepest) {
  disk.makeFile("/usr/bin/program", 25 * mb);
  disk.makeFile("/usr/lib/modules/6.1/a", 15 * mb);
  disk.makeFile("/home/ann/.local/share/flatpak/a", 14 * mb);
  disk.makeFile("/home/ann/.local/share/writer/a", 13 * mb);
  const SystemDataResult result = make();
  EXPECT_NEAR(static_cast<double>(at(result, "/usr").size), 25.0 * mb, 0.1 * mb);
  EXPECT_EQ(at(result, "/usr/lib/modules/6.1").subCategory, Kind::firmware);
  EXPECT_EQ(at(result, "/home/ann/.local/share/flatpak").subCategory, Kind::packages);
  EXPECT_EQ(at(result, "/home/ann/.local/share/writer").subCategory, Kind::applicationSupport);
}

TEST_F(Ledger, EveryRowSaysWhatItIs) {
  disk.makeFile("/home/ann/Documents/film", 40 * mb);
  disk.makeFile("/home/ann/.cache/writer/a", 30 * mb);
  disk.makeFile("/srv/data", 11 * mb);
  const SystemDataResult result = make();
  ASSERT_GT(result.items().size(), 3U);
  for (const SystemDataItem& item : result.items()) {
    EXPECT_TRUE(item.sentence.ends_with('.')) << item.name;
    EXPECT_FALSE(item.name.empty()) << item.path;
  }
}

TEST_F(Ledger, OffersWhatTheRulesLetGoAndNothingElse) {
  disk.makeFile("/home/ann/.cache/pip/a", 30 * mb);
  disk.makeFile("/home/ann/Documents/film", 40 * mb);
  disk.makeFile("/home/ann/.ssh/film", 40 * mb);
  disk.makeFile("/home/ann/.config/writer/a", 30 * mb);
  disk.makeFile("/usr/bin/program", 25 * mb);
  disk.makeFile("/srv/data", 25 * mb);
  std::vector<Path> offered;
  const SystemDataResult result = make();
  for (const SystemDataItem& item : result.items()) {
    if (item.isRemovable()) offered.push_back(item.path);
  }
  EXPECT_THAT(offered, testing::ElementsAre("/home/ann/.cache/pip"));
}

TEST_F(Ledger, TheRemainderIsLastAndWhatIsKeptIsNoPartOfTheSum) {
  disk.makeFile("/home/ann/Documents/film", 40 * mb);
  volume.setTotalBytes(1'000 * mb);
  volume.setAvailableBytes(300 * mb);
  volume.setKeptForRootBytes(200 * mb);
  const SystemDataResult result = make();
  ASSERT_TRUE(result.ledger);
  EXPECT_EQ(result.ledger->usedBytes, 500 * mb);
  EXPECT_EQ(bytesOf(result), 500 * mb);
  EXPECT_EQ(result.items().back().subCategory, Kind::notReadable);
  const SystemDataItem& kept = result.items()[result.items().size() - 2];
  EXPECT_EQ(kept.subCategory, Kind::reserved);
  EXPECT_EQ(kept.size, 200 * mb);
}

TEST_F(Ledger, MoreThanIsUsedIsToldAndGivesNoNegativeRow) {
  disk.makeFile("/home/ann/Documents/film", 40 * mb);
  volume.setTotalBytes(1'000 * mb);
  volume.setAvailableBytes(990 * mb);
  const SystemDataResult result = make();
  ASSERT_TRUE(result.ledger);
  EXPECT_NEAR(static_cast<double>(result.ledger->exceedsBy), 30.0 * mb, 0.1 * mb);
  for (const SystemDataItem& item : result.items()) {
    EXPECT_GT(item.size, 0);
    EXPECT_NE(item.subCategory, Kind::notReadable);
  }
}

TEST_F(Ledger, TellsByProgramWhatIsDeletedAndOpen) {
  programs.deleted = {{.program = "player", .file = {1, 2}, .bytes = 3 * mb},
                      {.program = "player", .file = {1, 3}, .bytes = 4 * mb},
                      {.program = "idle", .file = {1, 4}, .bytes = 0}};
  std::vector<std::pair<std::string, std::int64_t>> found;
  const SystemDataResult result = make();
  for (const SystemDataItem& item : result.items()) {
    if (item.subCategory == Kind::deletedOpen) found.emplace_back(item.name, item.size);
  }
  EXPECT_THAT(found, testing::ElementsAre(std::pair<std::string, std::int64_t>("player", 7 * mb)));
}

}  // namespace
}  // namespace klarvik
