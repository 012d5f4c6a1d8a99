// What was shown is what goes: while an operation runs, another thing comes to the name of the
// item, at each system call in turn, on a fresh disk each time. The other thing stays where it is.

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "engine/scanner_engine.h"
#include "support/desktop_fakes.h"
#include "support/disk_snapshot.h"
#include "support/fake_desktop.h"
#include "support/system_call_faults.h"
#include "tools/privacy_scanner.h"
#include "tools/uninstaller_engine.h"

namespace klarvik {
namespace {

/// An item that a tool shows, and one of the same name elsewhere that nobody was shown.
struct Stage {
  Stage(const Path& place, bool asFolder) : shown(place), isFolder(asFolder) {
    make(shown, "shown");
    make(stranger, "nobody was shown this");
    identity = entryIdentity(world.files, shown);
    static_cast<void>(world.trash.folders());
  }

  void make(const Path& place, std::string_view content) const {
    world.disk.makeFile(isFolder ? place / "Contents/file" : place, content);
  }
  [[nodiscard]] Path onDisk(const Path& place) const { return world.disk.onDisk(place); }
  [[nodiscard]] bool isWholeStranger(const Path& place) const {
    const Path file = isFolder ? place / "Contents/file" : place;
    return world.disk.holds(file) && world.disk.contentOf(file) == "nobody was shown this";
  }

  FakeDesktopOnDisk world;
  const Path shown;
  const bool isFolder;
  const Path stranger = "/Users/ann/Projects/keep" / shown.filename();
  std::optional<EntryIdentity> identity;
  LeftAlone leftAlone;
};

/// How another thing comes to the name.
struct Replacement {
  const char* name;
  void (*replace)(const Stage&);
};

void move(const Path& from, const Path& to) {
  std::error_code gone;
  std::filesystem::rename(from, to, gone);
}

void linkFolderAbove(const Stage& stage) {
  const Path folder = stage.onDisk(stage.shown.parent_path());
  move(folder, folder.native() + " aside");
  std::error_code failed;
  std::filesystem::create_symlink(stage.onDisk(stage.stranger.parent_path()), folder, failed);
}

void giveTheNameToTheStranger(const Stage& stage) {
  move(stage.onDisk(stage.shown), stage.onDisk(stage.shown).native() + " aside");
  move(stage.onDisk(stage.stranger), stage.onDisk(stage.shown));
}

/// An operation on the item; answers whether it was carried out.
struct Operation {
  const char* name;
  Path place;
  bool (*perform)(Stage&);
};

JunkItem junk(const Stage& stage) {
  return {.name = "item", .path = stage.shown, .size = 10, .identity = stage.identity};
}

bool clean(Stage& stage) {
  return ScannerEngine(stage.world.desktop, &stage.leftAlone)
             .deleteItem(junk(stage), true)
             .reclaimed > 0;
}

bool cleanForGood(Stage& stage) {
  return ScannerEngine(stage.world.desktop, &stage.leftAlone)
             .deleteItem(junk(stage), false)
             .reclaimed > 0;
}

bool trashPicked(Stage& stage) {
  return ScannerEngine(stage.world.desktop, &stage.leftAlone)
      .trashFile({.url = stage.shown, .name = "", .size = 10, .identity = stage.identity})
      .moved;
}

bool restore(Stage& stage) {
  return ScannerEngine(stage.world.desktop, &stage.leftAlone)
      .restoreItem(stage.shown, "/Users/ann/Documents/back", stage.identity);
}

bool uninstall(Stage& stage) {
  const AppInfo app{.name = "Writer",
                    .bundleID = "com.acme.writer",
                    .appURL = stage.shown,
                    .appSize = 10,
                    .identity = stage.identity};
  return UninstallerEngine(stage.world.desktop, &stage.leftAlone).uninstall(app, {}) > 0;
}

bool removeLeftover(Stage& stage) {
  const AppInfo app{.name = "Writer", .bundleID = "com.acme.writer"};
  const ResidualFile leftover{.url = stage.shown, .size = 10, .identity = stage.identity};
  return UninstallerEngine(stage.world.desktop, &stage.leftAlone).uninstall(app, {leftover}) > 0;
}

bool clearTrail(Stage& stage) {
  PrivacyScanner scanner(stage.world.desktop, stage.world.pasteboard, &stage.leftAlone);
  const PrivacyItem trail{.category = PrivacyCategory::quarantine,
                          .name = "trail",
                          .path = stage.shown,
                          .size = 10,
                          .identity = stage.identity};
  return scanner.clear({trail}).cleaned > 0;
}

const Path cache = "/Users/ann/Library/Caches/com.acme.writer";
const Path trashed = "/Users/ann/.local/share/Trash/files/app-0";

const Operation operations[] = {
    {"ACleanToTheTrash", cache, clean},
    {"ACleanForGood", cache, cleanForGood},
    {"PickedFiles", "/Users/ann/Documents/film", trashPicked},
    {"Emptying", trashed, cleanForGood},
    {"Restoring", trashed, restore},
    {"AnUninstall", "/Applications/Writer.app", uninstall},
    {"AnUninstallOfLeftovers", cache, removeLeftover},
    {"ClearingATrail", cache, clearTrail},
};
const Replacement replacements[] = {
    {"ALinkAboveLeadsElsewhere", linkFolderAbove},
    {"TheNameIsGivenToAnother", giveTheNameToTheStranger},
};

using Case = std::tuple<Operation, Replacement, bool>;

class ReplacedItem : public testing::TestWithParam<Case> {};

TEST_P(ReplacedItem, StaysWhateverTheStepAtSwapSweep) {
  const auto& [operation, replacement, isFolder] = GetParam();
  bool reached = true;
  int at = 1;
  for (; reached && !HasFailure(); ++at) {
    SCOPED_TRACE("at call " + std::to_string(at));
    Stage stage(operation.place, isFolder);
    const FaultyRun run = runWithFault({SystemCallFault::Kind::disturbed, at, 0,
                                        [&, replace = replacement.replace] { replace(stage); }},
                                       [&, perform = operation.perform] { return perform(stage); });
    EXPECT_TRUE(stage.isWholeStranger(stage.stranger) || stage.isWholeStranger(stage.shown));
    EXPECT_FALSE(stage.isWholeStranger("/Users/ann/Documents/back"));
    reached = run.reached;
    if (!reached) {
      EXPECT_TRUE(run.answer);
    }
  }
  EXPECT_GT(at, 8) << "the operation makes hardly any system call";
}

INSTANTIATE_TEST_SUITE_P(InEveryOperation, ReplacedItem,
                         testing::Combine(testing::ValuesIn(operations),
                                          testing::ValuesIn(replacements), testing::Bool()),
                         [](const auto& instance) {
                           return std::string(std::get<0>(instance.param).name) +
                                  std::get<1>(instance.param).name +
                                  (std::get<2>(instance.param) ? "AFolder" : "AFile");
                         });

/// What each operation says of an item that was replaced before it began.
class ReplacedBefore : public testing::TestWithParam<std::tuple<Operation, Replacement>> {};

TEST_P(ReplacedBefore, IsLeftAndCountedAndNothingElseChanges) {
  const auto& [operation, replacement] = GetParam();
  Stage stage(operation.place, true);
  replacement.replace(stage);
  const DiskSnapshot before = snapshotOf(stage.world.disk.path());
  EXPECT_FALSE(operation.perform(stage));
  EXPECT_EQ(differences(before, snapshotOf(stage.world.disk.path())), "");
  EXPECT_EQ(stage.leftAlone.replaced + stage.leftAlone.notReturned, 1);
}

TEST(ItemThatWasOnlyWrittenTo, IsStillTheItemThatWasShown) {
  for (const Operation& operation : operations) {
    for (const bool isFolder : {false, true}) {
      Stage stage(operation.place, isFolder);
      stage.world.disk.makeFile(isFolder ? stage.shown / "more" : stage.shown, "longer content");
      EXPECT_TRUE(operation.perform(stage)) << operation.name;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(InEveryOperation, ReplacedBefore,
                         testing::Combine(testing::ValuesIn(operations),
                                          testing::ValuesIn(replacements)),
                         [](const auto& instance) {
                           return std::string(std::get<0>(instance.param).name) +
                                  std::get<1>(instance.param).name;
                         });

}  // namespace
}  // namespace klarvik
