#include "support/linux_sample_disk.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "base/paths.h"
#include "core/catalogue.h"
#include "core/deletion_guard.h"
#include "engine/scanner_engine.h"
#include "platform/system_platform.h"
#include "support/disk_snapshot.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

const DeletionScope general = DeletionScope::general();
const DeletionScope pickedFile = DeletionScope::pickedFile();
const DeletionScope otherApplication = DeletionScope::residual({"x y z none"});

bool isAtOrBelow(const Path& path, const Path& folder) {
  return std::ranges::mismatch(folder, path).in1 == folder.end();
}

/// What is fresh on the disk is so for the program as well.
LinuxSampleDiskOptions options() {
  static const std::int64_t now = ::time(nullptr);
  return {.now = now};
}

/// One disk for all of these, which leave it as it is.
class LinuxSampleDiskTest : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    _folder.emplace();
    _disk = buildLinuxSampleDisk(_folder->path(), options());
  }
  static void TearDownTestSuite() { _folder.reset(); }

  static const LinuxSampleDisk& disk() { return _disk; }
  static bool isThere(const Path& logical) { return _folder->holds(logical); }
  static const DiskLayout& layout() { return layoutFor(_disk.home); }
  static std::optional<std::string> refusal(const Path& path, const DeletionScope& scope) {
    return DeletionGuard::refusalReason(path, scope, _disk.home);
  }
  static std::string inHome(const Path& path) { return path.lexically_relative(_disk.home); }

  /// Whether the row of a table stands for the thing at `path`, and not only for what is around it.
  static bool isPlaceOf(const Place& row, const Path& path) {
    const std::string text = row.base == Base::root ? path.native() : inHome(path);
    const auto pieces = splitPath(text);
    const Catalogue known = catalogue();
    const auto base = known.folder(row.base).value_or("");
    const auto isAt = [&](std::string_view inside) {
      return matchPattern(pieces, {base, row.pattern, inside}).relation == Relation::at;
    };
    if (!row.details.only.empty()) return std::ranges::any_of(row.details.only, isAt);
    return isAt(row.unit == Unit::children || row.unit == Unit::unknown ? "*" : "");
  }
  static bool isKept(const PlacePattern& pattern) {
    return std::ranges::any_of(_disk.keep, [&](const Path& path) {
      const std::string text = inHome(path);
      const auto relation = catalogue().match(splitPath(text), pattern).relation;
      return relation == Relation::at || relation == Relation::below;
    });
  }

 private:
  static Catalogue catalogue() { return {layout(), UserFolders::in(_disk.home)}; }

  static inline std::optional<TemporaryFolder> _folder;
  static inline LinuxSampleDisk _disk;
};

TEST_F(LinuxSampleDiskTest, IsTheSameForTheSameOptions) {
  const TemporaryFolder folder;
  const LinuxSampleDisk again = buildLinuxSampleDisk(folder.path(), options());
  EXPECT_EQ(again.files, disk().files);
  auto outline = outlineOf(folder.path());
  // The records of the Trash name places on the machine.
  const auto isRecord = [](const auto& entry) { return entry.first.ends_with(".trashinfo"); };
  std::erase_if(outline, isRecord);
  auto first = outlineOf(disk().root);
  EXPECT_EQ(std::erase_if(first, isRecord), 4U);
  EXPECT_EQ(differences(first, outline), "");
}

TEST_F(LinuxSampleDiskTest, HasSomethingForEveryRowThatMayGo) {
  for (const Place& row : layout().places) {
    if (row.details.removal == Removal::byTool) continue;
    const bool isOffered = std::ranges::any_of(disk().places, [&](const LinuxSamplePlace& place) {
      return place.id == row.id && place.bytes > row.above && isPlaceOf(row, place.path);
    });
    EXPECT_TRUE(isOffered) << row.id;
  }
}

TEST_F(LinuxSampleDiskTest, HasAProjectForEveryArtifact) {
  for (const ProjectArtifact& row : layout().artifacts) {
    const auto isThereAny = [](std::span<const std::string_view> names, const Path& folder) {
      const auto entries = std::filesystem::directory_iterator(folder);
      return std::any_of(begin(entries), end(entries), [&](const auto& entry) {
        return nameMatchesAny(names, entry.path().filename().native());
      });
    };
    const bool isOffered = std::ranges::any_of(disk().places, [&](const LinuxSamplePlace& place) {
      if (place.id != row.id) return false;
      const Path path = disk().root / place.path.relative_path();
      return place.bytes > 10 * megabyte && nameMatchesAny(row.names, path.filename().native()) &&
             isThereAny(row.beside, path.parent_path()) &&
             !isThereAny(row.marks.notBeside, path.parent_path()) &&
             (row.marks.inside.empty() || isThereAny(row.marks.inside, path)) &&
             !isThereAny(row.marks.notInside, path);
    });
    EXPECT_TRUE(isOffered) << row.id;
  }
}

TEST_F(LinuxSampleDiskTest, HasSomethingOfEveryKindThatStays) {
  for (const PlacePattern& secret : layout().guard.secrets) {
    EXPECT_TRUE(isKept(secret)) << secret.pattern;
  }
  for (const PlacePattern& own : layout().guard.ownPlaces) {
    EXPECT_TRUE(isKept(own)) << own.pattern;
  }
  const auto unknown = std::ranges::find(layout().places, "cache-children", &Place::id);
  ASSERT_NE(unknown, layout().places.end());
  for (const std::string_view name : unknown->details.except) {
    EXPECT_TRUE(isKept({Base::cache, name})) << name;
  }
}

TEST_F(LinuxSampleDiskTest, NamesWhatIsThere) {
  for (const LinuxSamplePlace& place : disk().places)
    EXPECT_TRUE(isThere(place.path)) << place.path;
  for (const Path& path : disk().keep) EXPECT_TRUE(isThere(path)) << path;
  for (const Path& path : disk().passedOver) EXPECT_TRUE(isThere(path)) << path;
}

TEST_F(LinuxSampleDiskTest, TheRulesLetGoWhatAScanOffersAndKeepWhatStays) {
  for (const LinuxSamplePlace& place : disk().places) {
    EXPECT_EQ(refusal(place.path, general), std::nullopt) << place.path;
  }
  for (const Path& path : disk().keep) {
    EXPECT_NE(refusal(path, general), std::nullopt) << path;
    EXPECT_NE(refusal(path, otherApplication), std::nullopt) << path;
  }
  for (const Path& path : disk().secrets) {
    EXPECT_NE(refusal(path, pickedFile), std::nullopt) << path;
    EXPECT_TRUE(std::ranges::count(disk().keep, path) == 1) << path;
  }
}

TEST_F(LinuxSampleDiskTest, NothingThatStaysLiesInWhatAScanOffers) {
  for (const LinuxSamplePlace& place : disk().places) {
    for (const Path& path : disk().keep) EXPECT_FALSE(isAtOrBelow(path, place.path)) << path;
    for (const Path& path : disk().passedOver) EXPECT_FALSE(isAtOrBelow(path, place.path)) << path;
  }
}

TEST_F(LinuxSampleDiskTest, NothingOfferedLiesInAnotherThingOffered) {
  for (const LinuxSamplePlace& place : disk().places) {
    const auto around = std::ranges::count_if(disk().places, [&](const LinuxSamplePlace& other) {
      return isAtOrBelow(place.path, other.path);
    });
    EXPECT_EQ(around, 1) << place.path;
  }
}

std::vector<JunkItem> foundOn(ScannerEngine& engine) {
  std::vector<JunkItem> items;
  for (const CleanCategory& category : engine.scanAll({}, {}, {})) {
    items.insert(items.end(), category.items.begin(), category.items.end());
  }
  return items;
}

// On a disk of its own: reading the files of another test counts as using them.
TEST(AScanOfALinuxSampleDisk, OffersAllOfItAndNothingElse) {
  const TemporaryFolder folder;
  const LinuxSampleDisk disk = buildLinuxSampleDisk(folder.path(), options());
  SystemPlatform machine(disk.root, disk.home);
  const Platform platform = machine.platform();
  ScannerEngine engine(platform);
  std::map<Path, std::int64_t> found;
  for (const JunkItem& item : foundOn(engine)) {
    EXPECT_TRUE(found.emplace(item.path, item.size).second) << item.path;
  }
  std::map<Path, std::int64_t> expected;
  for (const LinuxSamplePlace& place : disk.places) expected.emplace(place.path, place.bytes);
  for (const auto& [path, bytes] : expected) {
    EXPECT_EQ(found.contains(path) ? found.at(path) : 0, bytes) << path;
  }
  for (const auto& [path, bytes] : found) EXPECT_TRUE(expected.contains(path)) << path;
}

TEST(ACleanOfALinuxSampleDisk, FreesWhatItPromisedAndLeavesTheRest) {
  const TemporaryFolder folder;
  const LinuxSampleDisk disk = buildLinuxSampleDisk(folder.path(), options());
  SystemPlatform machine(disk.root, disk.home);
  const Platform platform = machine.platform();
  ScannerEngine engine(platform);
  const std::vector<JunkItem> items = foundOn(engine);
  std::int64_t promised = 0;
  for (const JunkItem& item : items) promised += item.size;
  std::int64_t reclaimed = 0;
  for (const DeletionOutcome& outcome : engine.deleteItems(items, /*useTrash=*/true)) {
    EXPECT_GT(outcome.reclaimed, 0) << outcome.originalURL;
    reclaimed += outcome.reclaimed;
  }
  EXPECT_EQ(reclaimed, promised);
  for (const LinuxSamplePlace& place : disk.places) EXPECT_FALSE(folder.holds(place.path));
  for (const Path& path : disk.keep) EXPECT_TRUE(folder.holds(path)) << path;
  for (const Path& path : disk.passedOver) EXPECT_TRUE(folder.holds(path)) << path;
}

TEST_F(LinuxSampleDiskTest, IsLargerByItsScaleAndLiesInTheHomeThatItIsGiven) {
  const TemporaryFolder folder;
  const LinuxSampleDisk twice =
      buildLinuxSampleDisk(folder.path(), {.scale = 2, .home = "/data/home/eve"});
  EXPECT_GT(twice.files, disk().files + disk().files / 4);
  ASSERT_EQ(twice.places.size(), disk().places.size());
  EXPECT_GT(twice.places.front().bytes, disk().places.front().bytes * 19 / 10);
  EXPECT_EQ(twice.places.front().path, "/data/home/eve/.npm/_cacache");
  EXPECT_TRUE(folder.holds("/data/home/eve/.ssh/id_ed25519"));
}

}  // namespace
}  // namespace klarvik
