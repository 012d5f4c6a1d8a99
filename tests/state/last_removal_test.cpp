#include "state/last_removal.h"

#include <gtest/gtest.h>

#include "signal_count.h"
#include "state/removal_notice.h"
#include "support/application/main_loop.h"
#include "support/fake_desktop.h"

namespace klarvik {
namespace {

class LastRemovalTest : public testing::Test {
 protected:
  /// Puts a file of the home into the Trash.
  TrashedItem trash(const Path& file) {
    desktop.disk.addFile(file, 100);
    const auto identity = entryIdentity(desktop.files, file);
    const auto trashed =
        desktop.trash.moveToTrash(file, [](const Path&, const FileAttributes&) { return true; });
    return {file, trashed.value(), identity, 100};
  }
  void restore() {
    removal.restore();
    EXPECT_TRUE(turnMainLoopUntil([this] { return removal.summary()->restoredCount.has_value(); }));
  }

  FakeDesktopInMemory desktop;
  RemovalNotice notice;
  LastRemoval removal{desktop.desktop, notice};
};

TEST_F(LastRemovalTest, OneThatMovedNothingIsNoNews) {
  const SignalCount changes(removal, &LastRemoval::changed);
  removal.tell({});
  EXPECT_FALSE(removal.summary());
  EXPECT_FALSE(removal.canRestore());
  EXPECT_EQ(changes.get(), 0);
}

TEST_F(LastRemovalTest, PutsBackWhatWasMoved) {
  const Path one = "/Users/ann/Documents/a";
  const Path other = "/Users/ann/Documents/deep/b";
  removal.tell({trash(one), trash(other)});
  EXPECT_EQ(removal.summary(), (LastRemoval::Summary{.itemCount = 2, .bytes = 200}));
  ASSERT_TRUE(removal.canRestore());
  EXPECT_FALSE(desktop.disk.holds(one));

  restore();
  EXPECT_TRUE(desktop.disk.holds(one));
  EXPECT_TRUE(desktop.disk.holds(other));
  EXPECT_EQ(removal.summary()->restoredCount, 2);
  EXPECT_FALSE(removal.canRestore()) << "twice";
  removal.dismiss();
  EXPECT_FALSE(removal.summary());
}

TEST_F(LastRemovalTest, WhatStandsInThePlaceStaysAndSoDoesWhatWasThere) {
  const Path file = "/Users/ann/Documents/a";
  const TrashedItem item = trash(file);
  desktop.disk.addFile(file, 7);
  removal.tell({item});
  restore();
  EXPECT_EQ(removal.summary()->restoredCount, 0);
  EXPECT_EQ(desktop.files.attributes(file)->logicalBytes, 7);
  EXPECT_TRUE(desktop.disk.holds(item.trashed));
}

TEST_F(LastRemovalTest, WhatHasGoneFromTheTrashIsNotCounted) {
  const TrashedItem gone = trash("/Users/ann/Documents/a");
  const TrashedItem there = trash("/Users/ann/Documents/b");
  ASSERT_TRUE(
      desktop.disk.remove(gone.trashed, [](const Path&, const FileAttributes&) { return true; }));
  removal.tell({gone, there});
  restore();
  EXPECT_EQ(removal.summary()->restoredCount, 1);
}

TEST_F(LastRemovalTest, AnApplicationThatLeftNothingInTheTrashIsNewsAndHasNoWayBack) {
  removal.tell({trash("/Users/ann/Documents/a")});
  removal.tellUninstalled("Writer", {}, {});
  EXPECT_EQ(removal.summary(), (LastRemoval::Summary{.application = "Writer"}));
  EXPECT_FALSE(removal.canRestore());
}

TEST_F(LastRemovalTest, TellsWhoRemovedItOnlyWhereSomethingCameBack) {
  int told = 0;
  const Path file = "/Users/ann/Documents/a";
  removal.tell({trash(file)}, [&] { ++told; });
  desktop.disk.addFile(file, 7);
  restore();
  EXPECT_EQ(told, 0);
  removal.tell({trash("/Users/ann/Documents/b")}, [&] { ++told; });
  restore();
  EXPECT_EQ(told, 1);
}

TEST_F(LastRemovalTest, TheNextOneTakesItsPlace) {
  removal.tell({trash("/Users/ann/Documents/a")});
  removal.tell({trash("/Users/ann/Documents/b"), trash("/Users/ann/Documents/c")});
  EXPECT_EQ(removal.summary()->itemCount, 2);
}

TEST_F(LastRemovalTest, AnEndInMidRestoreLosesNothing) {
  const Path file = "/Users/ann/Documents/a";
  const TrashedItem item = trash(file);
  {
    LastRemoval ended(desktop.desktop, notice);
    ended.tell({item});
    ended.restore();
  }
  EXPECT_NE(desktop.disk.holds(file), desktop.disk.holds(item.trashed));
}

}  // namespace
}  // namespace klarvik
