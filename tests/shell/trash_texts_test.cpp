#include "shell/sidebar_texts.h"

#include <gtest/gtest.h>

#include "places/disk_layout.h"

namespace klarvik::sidebar {
namespace {

const Formatting& english() {
  static const Formatting formatting("en_US");
  return formatting;
}

const DiskLayout& macDisk() {
  return layoutFor("/Users/ann");
}

const DiskLayout& linuxDisk() {
  return layoutFor("/home/ann");
}

TrashMonitor::Figures trashOf(std::int64_t items, std::int64_t bytes) {
  TrashMonitor::Figures trash;
  trash.itemCount = items;
  trash.bytes = bytes;
  return trash;
}

TEST(TrashBlockTexts, SayHowManyItemsTakeHowMuch) {
  EXPECT_EQ(trashSubtitle(trashOf(0, 0), macDisk().words, english()), "Empty");
  EXPECT_EQ(trashSubtitle(trashOf(1, 12'000), macDisk().words, english()), "12 KB · 1 item");
  EXPECT_EQ(trashSubtitle(trashOf(2, 12'000), macDisk().words, english()), "12 KB · 2 items");
}

TEST(TrashBlockTexts, SayThatTheTrashIsBeingMeasured) {
  TrashMonitor::Figures trash = trashOf(1, 0);
  trash.isMeasuring = true;
  EXPECT_EQ(trashSubtitle(trash, macDisk().words, english()), "1 item · measuring…");
}

TEST(TrashBlockTexts, SayThatAccessIsMissing) {
  TrashMonitor::Figures trash;
  trash.isReadable = false;
  EXPECT_EQ(trashSubtitle(trash, macDisk().words, english()), "Needs Full Disk Access");
  EXPECT_EQ(trashControl(trash, macDisk()), TrashBlockModel::Control::Grant);
  EXPECT_EQ(trashControlHelp(trash, macDisk(), english()),
            "macOS keeps the Trash behind Full Disk Access");
}

TEST(TrashBlockTexts, GrantNothingWhereThereIsNoPermissionToGrant) {
  TrashMonitor::Figures trash;
  trash.isReadable = false;
  EXPECT_EQ(trashSubtitle(trash, linuxDisk().words, english()), "Cannot be read");
  EXPECT_EQ(trashControl(trash, linuxDisk()), TrashBlockModel::Control::None);
  EXPECT_EQ(trashControlHelp(trash, linuxDisk(), english()), "");
}

TEST(TrashBlockTexts, CountAnEmptyingUpToItsTotalAndNotBeyond) {
  TrashMonitor::Figures trash = trashOf(5, 12'000);
  trash.isEmptying = true;
  trash.isReadable = false;
  EXPECT_EQ(trashSubtitle(trash, macDisk().words, english()), "Emptying…");
  trash.emptyProgress = DeletionProgress{.completed = 0, .total = 0, .currentName = "", .freed = 0};
  EXPECT_EQ(trashSubtitle(trash, macDisk().words, english()), "Emptying…");
  trash.emptyProgress = DeletionProgress{.completed = 0, .total = 5, .currentName = "", .freed = 0};
  EXPECT_EQ(trashSubtitle(trash, macDisk().words, english()), "Emptying 1 of 5");
  trash.emptyProgress = DeletionProgress{.completed = 5, .total = 5, .currentName = "", .freed = 0};
  EXPECT_EQ(trashSubtitle(trash, macDisk().words, english()), "Emptying 5 of 5");
  EXPECT_EQ(trashControl(trash, macDisk()), TrashBlockModel::Control::Progress);
}

TEST(TrashBlockTexts, OfferToEmptyOnlyWhatHoldsSomething) {
  EXPECT_EQ(trashControl(trashOf(0, 0), macDisk()), TrashBlockModel::Control::None);
  EXPECT_EQ(trashControl(trashOf(3, 12'000), macDisk()), TrashBlockModel::Control::Empty);
  EXPECT_EQ(trashControlHelp(trashOf(3, 12'000), macDisk(), english()),
            "Delete everything in the Trash and reclaim 12 KB");
}

TEST(TrashBlockTexts, FillTheBinOnceThereIsSomethingInIt) {
  EXPECT_EQ(trashSymbol(trashOf(0, 0)), "trash");
  EXPECT_EQ(trashSymbol(trashOf(1, 0)), "trash.fill");
}

TEST(TrashBlockTexts, WarnBeforeEmptying) {
  EXPECT_EQ(emptyTrashMessage(trashOf(1, 12'000), english()),
            "1 item · 12 KB. This cannot be undone.");
  EXPECT_EQ(emptyTrashMessage(trashOf(3, 12'000), english()),
            "3 items · 12 KB. This cannot be undone.");
}

}  // namespace
}  // namespace klarvik::sidebar
