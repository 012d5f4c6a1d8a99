#include "support/sample_disk.h"

#include <gtest/gtest.h>

#include <map>

#include "engine/scanner_engine.h"
#include "support/disk_snapshot.h"
#include "support/fake_desktop.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

/// An engine on the sample disk, with tools that answer what a test says.
struct SampleEngine {
  explicit SampleEngine(const SampleDisk& sample)
      : files(sample.root, sample.home), trash(sample.root, sample.home) {}

  LinuxFileSystem files;
  LinuxTrash trash;
  FakeDesktop around{files, trash};
  ScannerEngine engine{around.desktop};

  std::map<CategoryType, std::size_t> itemsFound() {
    std::map<CategoryType, std::size_t> counts;
    for (const CleanCategory& category : engine.scanAll({}, {}, {})) {
      counts[category.type] = category.items.size();
    }
    return counts;
  }
};

TEST(SampleDisk, HoldsWhatItSaysForASmartScan) {
  const TemporaryFolder folder;
  const SampleDisk sample = buildSampleDisk(folder.path());
  SampleEngine run(sample);
  EXPECT_EQ(run.itemsFound(), sample.smartScanItems);
  EXPECT_EQ(run.trash.list()->size(), sample.trashEntries);

  run.around.commands.answer("xcrun simctl list devices unavailable --json 2>/dev/null",
                             sample.simulatorListing);
  auto withSimulators = sample.smartScanItems;
  withSimulators[CategoryType::simulators] += sample.simulatorRows;
  EXPECT_EQ(run.itemsFound(), withSimulators);
}

TEST(SampleDisk, ACleanOfEverythingFoundTouchesNothingElse) {
  const TemporaryFolder folder;
  const SampleDisk sample = buildSampleDisk(folder.path());
  SampleEngine run(sample);
  std::vector<JunkItem> items;
  for (const CleanCategory& category : run.engine.scanAll({}, {}, {})) {
    items.insert(items.end(), category.items.begin(), category.items.end());
  }
  const auto before = outlineOf(folder.path());
  std::vector<std::string> removed;
  for (const DeletionOutcome& outcome : run.engine.deleteItems(items, /*useTrash=*/false)) {
    if (outcome.reclaimed > 0) removed.push_back(outcome.originalURL.relative_path());
  }
  EXPECT_GT(removed.size(), 20U);

  const auto after = outlineOf(folder.path());
  for (const auto& [place, content] : before) {
    const bool selected = std::any_of(removed.begin(), removed.end(), [&](const std::string& each) {
      return place == each || place.starts_with(each + "/");
    });
    if (place.ends_with(".trashinfo")) continue;  // goes with the item it is the record of
    EXPECT_NE(after.contains(place), selected) << place;
    EXPECT_EQ(selected ? content : after.at(place), content) << place;
  }
  EXPECT_LT(after.size(), before.size());
}

}  // namespace
}  // namespace klarvik
