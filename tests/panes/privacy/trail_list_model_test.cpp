#include "panes/privacy/trail_list_model.h"
#include "places/disk_layout.h"
#include "platform/formatting.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>

namespace klarvik {
namespace {

using enum PrivacyCategory;

PrivacyItem trail(PrivacyCategory category, std::int64_t bytes = 10) {
  return {.category = category, .name = std::string(rawValue(category)), .size = bytes};
}

class TrailListRows : public ::testing::Test {
 protected:
  QStringList names() {
    QStringList shown;
    for (int row = 0; row < list.rowCount(); ++row) {
      shown << list.index(row).data(TrailListModel::NameRole).toString();
    }
    return shown;
  }

  Formatting formatting{"en_US"};
  TrailListModel list{formatting, layoutFor("/Users/ann").words};
  QAbstractItemModelTester tester{&list, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(TrailListRows, StandInTheirSectionsWhateverTheOrderTheyWereFoundIn) {
  std::vector<PrivacyItem> items;
  for (const PrivacyCategory category : allPrivacyCategories()) {
    items.insert(items.begin(), trail(category));
  }
  list.show(items);
  EXPECT_EQ(names(),
            (QStringList{"SAFARI, CHROME, FIREFOX", "Browser Cache", "Browser Cookies",
                         "Browser History", "MACOS RECENTS", "Thumbnails", "Trash History",
                         "Downloads List", "Recent Apps", "Recent Files", "SYSTEM TRAILS",
                         "Shell History", "Location Cache", "Quarantine DB", "Clipboard"}));
}

TEST_F(TrailListRows, AreCalledAsOnALinuxDiskThere) {
  TrailListModel onLinux(formatting, layoutFor("/home/ann").words);
  onLinux.show({trail(browserHistory), trail(recentFiles), trail(quarantine)});
  QStringList shown;
  for (int row = 0; row < onLinux.rowCount(); ++row) {
    shown << onLinux.index(row).data(TrailListModel::NameRole).toString();
  }
  EXPECT_EQ(shown, (QStringList{"BROWSERS", "Browser History", "RECENT FILES", "Recent Files",
                                "SYSTEM TRAILS", "Origin of downloads"}));
}

TEST_F(TrailListRows, OfWhatCannotBeClearedNowSayWhyAndCannotBeSelected) {
  PrivacyItem inUse = trail(browserHistory, 5);
  inUse.program = inUse.closeFirst = "Firefox";
  PrivacyItem told = trail(browserHistory, 4);
  told.told = "In the browser: Ctrl+Shift+Del";
  list.show({inUse, told});
  EXPECT_TRUE(list.selected().empty());
  EXPECT_EQ(list.index(1).data(TrailListModel::NameRole), "Browser History — Firefox");
  EXPECT_EQ(list.index(1).data(TrailListModel::NoteRole), "Close Firefox first.");
  EXPECT_EQ(list.index(2).data(TrailListModel::NoteRole), "In the browser: Ctrl+Shift+Del");
  for (const int row : {1, 2}) {
    EXPECT_FALSE(list.index(row).data(TrailListModel::CanSelectRole).toBool());
    list.toggle(row);
  }
  EXPECT_TRUE(list.selected().empty());
}

TEST_F(TrailListRows, OfWhatGivesNoSpaceBackHaveNoSize) {
  PrivacyItem history = trail(browserHistory, 0);
  history.parts = {{.path = "/home/ann/places.sqlite"}};
  list.show({history, trail(clipboard, 0)});
  EXPECT_EQ(list.index(1).data(TrailListModel::SizeRole), "—");
  EXPECT_EQ(list.index(3).data(TrailListModel::SizeRole), "Zero KB");
}

TEST_F(TrailListRows, StandBySizeInTheirSection) {
  list.show({trail(browserHistory, 5), trail(browserCache, 50), trail(browserCookies, 20)});
  EXPECT_EQ(names(), (QStringList{"SAFARI, CHROME, FIREFOX", "Browser Cache", "Browser Cookies",
                                  "Browser History"}));
  EXPECT_EQ(list.items().front().category, browserHistory);
}

TEST_F(TrailListRows, HaveNoHeadingForASectionThatHoldsNothing) {
  list.show({trail(quarantine)});
  EXPECT_EQ(names(), (QStringList{"SYSTEM TRAILS", "Quarantine DB"}));
  list.show({});
  EXPECT_EQ(names(), QStringList());
}

TEST_F(TrailListRows, SayWhatTheTrailIsAndWhatClearingItCosts) {
  PrivacyItem apps = trail(recentApps, 8'000);
  apps.path = "/Users/ann/Library/Preferences/com.apple.dock.plist";
  PrivacyItem files = trail(recentFiles, 6'000);
  files.count = 3;
  list.show({apps, files});
  const QModelIndex first = list.index(1);
  EXPECT_EQ(first.data(TrailListModel::NameRole), "Recent Apps");
  EXPECT_EQ(first.data(TrailListModel::PathRole),
            "/Users/ann/Library/Preferences/com.apple.dock.plist");
  EXPECT_EQ(first.data(TrailListModel::NoteRole), "Recent apps list empties");
  EXPECT_EQ(first.data(TrailListModel::CountRole), "—");
  EXPECT_EQ(first.data(TrailListModel::SizeRole), "8 KB");
  EXPECT_EQ(first.data(TrailListModel::DescriptionRole),
            "Recent Apps, 8 KB, Recent apps list empties");
  EXPECT_EQ(list.index(2).data(TrailListModel::CountRole), "3");
}

TEST_F(TrailListRows, AreSelectedUnlessClearingThemHurts) {
  list.show({trail(browserHistory), trail(browserCookies), trail(clipboard), trail(quarantine)});
  EXPECT_EQ(list.selected().size(), 2U);
  for (const PrivacyItem& item : list.selectedItems()) EXPECT_FALSE(needsReview(item.category));
}

TEST_F(TrailListRows, AreToggledOneByOneAndHeadingsNever) {
  list.show({trail(browserHistory), trail(browserCookies)});
  QSignalSpy changed(&list, &TrailListModel::selectionChanged);
  list.toggle(0);
  list.toggle(-1);
  list.toggle(9);
  EXPECT_EQ(changed.count(), 0);
  list.toggle(1);
  EXPECT_EQ(list.selected().size(), 0U);
  list.toggle(1);
  list.toggle(2);
  EXPECT_EQ(list.selected().size(), 2U);
  EXPECT_EQ(changed.count(), 3);
}

TEST_F(TrailListRows, ThatAreRemovedTakeTheHeadingOfAnEmptySectionAlongAndLeaveTheRest) {
  list.show({trail(browserHistory), trail(browserCookies), trail(recentApps), trail(quarantine)});
  const QPersistentModelIndex cookies = list.index(2);
  QSignalSpy reset(&list, &TrailListModel::modelReset);
  list.takeOut(list.selectedItems(), {});
  EXPECT_EQ(names(), (QStringList{"SAFARI, CHROME, FIREFOX", "Browser Cookies"}));
  EXPECT_TRUE(cookies.isValid());
  EXPECT_TRUE(list.selected().empty());
  EXPECT_EQ(list.items().size(), 1U);
  EXPECT_EQ(reset.count(), 0);
  list.takeOut(list.items(), {});
  EXPECT_EQ(list.rowCount(), 0);
}

TEST_F(TrailListRows, OfTrailsThatStayedSayWhyAndCannotBeSelectedAnyMore) {
  list.show({trail(browserHistory), trail(browserCache)});
  const auto cleared = list.selectedItems();
  ASSERT_EQ(cleared.size(), 2U);
  list.takeOut(cleared, {{cleared[0].id, "Firefox"}, {cleared[1].id}});
  EXPECT_EQ(list.rowCount(), 3);
  EXPECT_TRUE(list.selected().empty());
  const auto note = [&](int row) {
    return list.index(row).data(TrailListModel::NoteRole).toString();
  };
  EXPECT_EQ((QSet<QString>{note(1), note(2)}),
            (QSet<QString>{"Close Firefox first.", "Stayed: in use, or changed"}));
  list.toggle(1);
  EXPECT_TRUE(list.selected().empty());
}

}  // namespace
}  // namespace klarvik
