#include "panes/smart_scan/review_table_model.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <filesystem>

#include "panes/kit/row_text.h"
#include "smart_scan_fixture.h"
#include "support/desktop_fakes.h"

namespace klarvik {
namespace {

class ReviewTableRows : public SmartScanFixture {
 protected:
  ReviewTableModel& table() { return *pane.reviewTable(); }

  /// Fails the test when rows come and go other than a view can follow.
  QAbstractItemModelTester _tester{pane.reviewTable(),
                                   QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(ReviewTableRows, AreNoneBeforeTheFirstScanAndWhileOneRuns) {
  addCache("a");
  EXPECT_EQ(table().rowCount(), 0);
  desk.commands.holdAt("docker", gate);
  gate.close();
  appState.startScan();
  ASSERT_TRUE(turnUntil([this] { return gate.waiting() == 1; }));
  ASSERT_TRUE(turnUntil([this] { return !appState.scanResults().empty(); }));
  EXPECT_EQ(table().rowCount(), 0);
  gate.open();
  ASSERT_TRUE(turnUntil([this] { return is<AppState::Done>(); }));
  EXPECT_EQ(reviewedNames(), QStringList{"App Caches"});
}

TEST_F(ReviewTableRows, DescribeACategory) {
  addCache("a", 3);
  addCache("b", 2);
  ASSERT_TRUE(scan());
  EXPECT_EQ(reviewed(0, ReviewTableModel::KindRole).toInt(),
            static_cast<int>(ReviewTableModel::RowKind::Category));
  EXPECT_EQ(reviewed(0, ReviewTableModel::NameRole), "App Caches");
  EXPECT_EQ(reviewed(0, ReviewTableModel::ItemsRole), "2");
  EXPECT_EQ(reviewed(0, ReviewTableModel::SymbolRole), "memorychip");
  EXPECT_EQ(reviewed(0, ReviewTableModel::SafetyRole).toInt(), static_cast<int>(SafetyLevel::safe));
  const QString size = byteText(appState.totalSpaceFreeable(), desk.formatting);
  EXPECT_EQ(reviewed(0, ReviewTableModel::SizeRole), size);
  EXPECT_EQ(reviewed(0, ReviewTableModel::DescriptionRole), "App Caches, " + size + ", Safe");
}

TEST_F(ReviewTableRows, OfACategoryWithNothingButHintsCannotBeSelected) {
  const AppState::Scan scan = [](const auto&, const auto&, const auto& onCategory) {
    CleanCategory told{.type = CategoryType::packageCaches, .items = {}};
    told.hints.push_back({.name = "Go modules",
                          .path = "/home/ann/go/pkg/mod",
                          .size = 5 * megabyte,
                          .reason = "They are read-only.",
                          .command = "go clean -modcache"});
    onCategory(told);
    return std::vector{told.id};
  };
  AppState state(desktop, shared.toolActivity(), shared.scanCoordinator(), shared.scanHistory(),
                 shared.removalNotice(), nullptr, scan);
  ReviewTableModel rows(state, desk.formatting, desk.pasteboard);
  QAbstractItemModelTester tester(&rows, QAbstractItemModelTester::FailureReportingMode::Fatal);
  state.startScan();
  ASSERT_TRUE(turnUntil([&] { return std::holds_alternative<AppState::Done>(state.scanState()); }));
  ASSERT_EQ(rows.rowCount(), 1);
  const QModelIndex category = rows.index(0);
  EXPECT_FALSE(category.data(ReviewTableModel::CanSelectRole).toBool());
  EXPECT_EQ(category.data(ReviewTableModel::NoteRole), "Klarvik removes none of this itself.");
  EXPECT_EQ(category.data(ReviewTableModel::SizeRole), "");
  rows.toggleSelection(0);
  EXPECT_TRUE(state.selectedItems().empty());
  rows.activate(0);
  ASSERT_EQ(rows.rowCount(), 3);
  EXPECT_EQ(rows.index(1).data(ReviewTableModel::NoteRole), "They are read-only.");
  rows.toggleSelection(1);
  rows.toggleSelection(2);
  EXPECT_TRUE(state.selectedItems().empty());
  EXPECT_EQ(state.totalSpaceFreeable(), 0);
}

/// A scan that found hints, and things on the disk that they tell of.
class ReviewTableHints : public ReviewTableRows {
 protected:
  static Hint hint(const std::string& name, std::int64_t size, const std::string& command) {
    return {.name = name,
            .path = "/Users/ann/told/" + name,
            .size = size,
            .reason = "Because.",
            .command = command};
  }

  void SetUp() override {
    ReviewTableRows::SetUp();
    desk.disk.makeFile("/Users/ann/told/first/file", 2 * megabyte);
    desk.disk.makeFile("/Users/ann/told/second/file", megabyte);
    state.startScan();
    ASSERT_TRUE(
        turnUntil([&] { return std::holds_alternative<AppState::Done>(state.scanState()); }));
  }

  [[nodiscard]] QString text(int row, int role) const {
    return rows.index(row).data(role).toString();
  }
  [[nodiscard]] int kind(int row) const {
    return rows.index(row).data(ReviewTableModel::KindRole).toInt();
  }

  const AppState::Scan scan = [](const auto&, const auto&, const auto& onCategory) {
    CleanCategory told{.type = CategoryType::systemLogs, .items = {}};
    told.hints = {hint("first", 5 * megabyte, "sudo first --clean"),
                  hint("silent", 4 * megabyte, ""), hint("second", megabyte, "second 'a b'")};
    onCategory(told);
    return std::vector{told.id};
  };
  AppState state{desktop,
                 shared.toolActivity(),
                 shared.scanCoordinator(),
                 shared.scanHistory(),
                 shared.removalNotice(),
                 nullptr,
                 scan};
  ReviewTableModel rows{state, desk.formatting, desk.pasteboard};
  QAbstractItemModelTester tester{&rows, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(ReviewTableHints, AreFollowedByTheirCommands) {
  EXPECT_EQ(rows.commandsNote(), "");
  rows.activate(0);
  ASSERT_EQ(rows.rowCount(), 1 + 3 + 2);
  const int hintKind = static_cast<int>(ReviewTableModel::RowKind::Hint);
  const int commandKind = static_cast<int>(ReviewTableModel::RowKind::Command);
  EXPECT_EQ(kind(1), hintKind);
  EXPECT_EQ(kind(2), commandKind);
  EXPECT_EQ(kind(3), hintKind);
  EXPECT_EQ(kind(4), hintKind);
  EXPECT_EQ(kind(5), commandKind);
  EXPECT_EQ(text(2, ReviewTableModel::NameRole), "sudo first --clean");
  EXPECT_EQ(text(2, ReviewTableModel::DescriptionRole), "Copy the command: sudo first --clean");
  EXPECT_EQ(text(4, ReviewTableModel::NameRole), "second");
  EXPECT_EQ(text(5, ReviewTableModel::NameRole), "second 'a b'");
  EXPECT_EQ(
      rows.commandsNote(),
      "Klarvik never asks for your password. Run these in a terminal if you agree with them.");
  rows.activate(0);
  EXPECT_EQ(rows.rowCount(), 1);
  EXPECT_EQ(rows.commandsNote(), "");
}

TEST_F(ReviewTableHints, AreCopiedAsTheyAre) {
  rows.activate(0);
  rows.copyCommand(1);
  rows.copyCommand(99);
  EXPECT_EQ(desk.pasteboard.copied, "");
  rows.copyCommand(5);
  EXPECT_EQ(desk.pasteboard.copied, "second 'a b'");
  EXPECT_TRUE(rows.index(5).data(ReviewTableModel::IsCopiedRole).toBool());
  rows.activate(2);
  EXPECT_EQ(desk.pasteboard.copied, "sudo first --clean");
  EXPECT_TRUE(rows.index(2).data(ReviewTableModel::IsCopiedRole).toBool());
  EXPECT_FALSE(rows.index(5).data(ReviewTableModel::IsCopiedRole).toBool());
}

TEST_F(ReviewTableHints, AreMeasuredAgainWhenTheUserComesBackFromTheTerminal) {
  rows.activate(0);
  QSignalSpy changed(&state, &AppState::scanResultsChanged);
  rows.copyCommand(2);
  rows.windowActivated();
  // Nothing is left of what is silent; the first has shrunk.
  ASSERT_TRUE(turnUntil([&] { return changed.count() > 0; }));
  ASSERT_EQ(rows.rowCount(), 1 + 2 + 2);
  EXPECT_EQ(text(1, ReviewTableModel::SizeRole),
            byteText(state.scanResults().front().hints.front().size, desk.formatting));
  EXPECT_LT(state.scanResults().front().hints.front().size, 3 * megabyte);
  EXPECT_EQ(text(4, ReviewTableModel::NameRole), "second 'a b'");
  EXPECT_FALSE(rows.index(2).data(ReviewTableModel::IsCopiedRole).toBool());

  rows.copyCommand(2);
  std::filesystem::remove_all(desk.disk.onDisk("/Users/ann/told"));
  rows.windowActivated();
  ASSERT_TRUE(turnUntil([&] { return rows.rowCount() == 0; }));
  EXPECT_TRUE(state.scanResults().empty());
}

TEST_F(ReviewTableRows, ShowEightItemsWithoutAButtonForMore) {
  for (int number = 0; number < 8; ++number) {
    addCache("cache-" + std::to_string(number));
  }
  ASSERT_TRUE(scan());
  table().activate(0);
  EXPECT_EQ(table().rowCount(), 1 + 8);
  EXPECT_FALSE(reviewedNames().contains("Show 0 more"));
}

TEST_F(ReviewTableRows, HoldTheNinthItemBackUntilAskedForAndThenShowAll) {
  for (int number = 0; number < 9; ++number) {
    addCache("cache-" + std::to_string(number), 10 - number);
  }
  ASSERT_TRUE(scan());
  table().activate(0);
  ASSERT_EQ(table().rowCount(), 1 + 8 + 1);
  EXPECT_EQ(reviewed(9, ReviewTableModel::NameRole), "Show 1 more");
  EXPECT_EQ(reviewed(1, ReviewTableModel::NameRole), "cache-0");
  EXPECT_EQ(reviewed(8, ReviewTableModel::NameRole), "cache-7");

  QSignalSpy reset(&table(), &ReviewTableModel::modelReset);
  table().activate(9);
  EXPECT_EQ(table().rowCount(), 1 + 9);
  EXPECT_EQ(reviewed(9, ReviewTableModel::NameRole), "cache-8");
  EXPECT_EQ(reset.count(), 0);
}

TEST_F(ReviewTableRows, GoWhenTheCategoryIsClosedAndStartWithEightWhenItIsOpenedAgain) {
  for (int number = 0; number < 9; ++number) {
    addCache("cache-" + std::to_string(number));
  }
  ASSERT_TRUE(scan());
  table().activate(0);
  table().activate(9);
  table().activate(0);
  EXPECT_EQ(table().rowCount(), 1);
  table().activate(0);
  EXPECT_EQ(table().rowCount(), 1 + 8 + 1);
}

TEST_F(ReviewTableRows, AreInTheOrderOfTheEngineWhateverTheOrderTheyWereFoundIn) {
  for (int number = 0; number < 30; ++number) {
    addCache("cache-" + std::to_string(number), 2 + (number * 7) % 5);
  }
  ASSERT_TRUE(scan());
  table().activate(0);
  table().activate(9);
  std::vector<JunkItem> sorted = appState.scanResults().front().items;
  sortItemsBySize(sorted);
  ASSERT_EQ(table().rowCount(), 31);
  for (int row = 1; row < table().rowCount(); ++row) {
    EXPECT_EQ(reviewed(row, ReviewTableModel::NameRole).toString().toStdString(),
              sorted[static_cast<std::size_t>(row - 1)].name);
  }
}

TEST_F(ReviewTableRows, SelectAllOfACategoryUnlessAllAreSelected) {
  addCache("a");
  addCache("b");
  ASSERT_TRUE(scan());
  const auto selection = [this] {
    return static_cast<ReviewTableModel::Selection>(
        reviewed(0, ReviewTableModel::SelectionRole).toInt());
  };
  EXPECT_EQ(selection(), ReviewTableModel::Selection::All);
  table().toggleSelection(0);
  EXPECT_EQ(selection(), ReviewTableModel::Selection::None);
  table().activate(0);
  table().toggleSelection(1);
  EXPECT_EQ(selection(), ReviewTableModel::Selection::Partial);
  EXPECT_EQ(appState.selectedCount(), 1);
  table().toggleSelection(0);
  EXPECT_EQ(selection(), ReviewTableModel::Selection::All);
}

TEST_F(ReviewTableRows, AsManyAsThereAreComeGoAndAreSelectedInOneStep) {
  for (int number = 0; number < 300; ++number) {
    addCache("cache-" + std::to_string(number));
  }
  ASSERT_TRUE(scan());
  table().activate(0);
  QSignalSpy inserted(&table(), &ReviewTableModel::rowsInserted);
  QSignalSpy removed(&table(), &ReviewTableModel::rowsRemoved);
  QSignalSpy changed(&table(), &ReviewTableModel::dataChanged);
  const QPersistentModelIndex showMore = table().index(9);
  table().activate(9);
  EXPECT_EQ(table().rowCount(), 301);
  EXPECT_EQ(inserted.count(), 1);
  EXPECT_EQ(showMore.row(), 9) << "whoever looks at the row is thrown to the end";
  changed.clear();
  table().toggleSelection(0);
  EXPECT_EQ(changed.count(), 1);
  table().activate(0);
  EXPECT_EQ(table().rowCount(), 1);
  EXPECT_EQ(inserted.count(), 1);
  EXPECT_EQ(removed.count(), 1);
}

/// A table over a scan that has found a million items, which no disk has to hold. Without the
/// tester, which looks at every row at every change.
class AMillionReviewedItems : public PaneFixture {
 protected:
  static constexpr std::size_t count = 1'000'000;

  static CleanCategory found(std::size_t count) {
    CleanCategory caches;
    caches.type = CategoryType::appCaches;
    caches.items.resize(count);
    for (std::size_t number = 0; number < count; ++number) {
      JunkItem& item = caches.items[number];
      item.name = std::to_string(number);
      item.path = Path("/Users/ann/Library/Caches") / item.name;
      item.size = static_cast<std::int64_t>(count - number);
    }
    return caches;
  }
  [[nodiscard]] QString nameAt(int row) {
    return table.index(row).data(ReviewTableModel::NameRole).toString();
  }

  AppState appState{desktop,
                    shared.toolActivity(),
                    shared.scanCoordinator(),
                    shared.scanHistory(),
                    shared.removalNotice(),
                    nullptr,
                    [](auto&&, auto&&, const auto& onCategory) {
                      const CleanCategory caches = found(count);
                      onCategory(caches);
                      return std::vector{caches.id};
                    }};
  ReviewTableModel table{appState, desk.formatting, desk.pasteboard};
};

TEST_F(AMillionReviewedItems, ComeGoAndAreSelectedInAFewSteps) {
  appState.startScan();
  ASSERT_TRUE(
      turnUntil([this] { return std::holds_alternative<AppState::Done>(appState.scanState()); }));
  QSignalSpy reset(&table, &ReviewTableModel::modelReset);
  QSignalSpy inserted(&table, &ReviewTableModel::rowsInserted);
  QSignalSpy removed(&table, &ReviewTableModel::rowsRemoved);
  QSignalSpy changed(&table, &ReviewTableModel::dataChanged);
  table.activate(0);
  table.activate(9);
  ASSERT_EQ(table.rowCount(), 1 + 1'000'000);
  table.toggleSelection(0);
  EXPECT_EQ(appState.selectedCount(), 0);
  std::unordered_set<Uuid> gone;
  const std::vector<JunkItem>& items = appState.scanResults().front().items;
  for (std::size_t number = 0; number < count; number += 2) gone.insert(items[number].id);
  appState.removeItems(gone);
  ASSERT_EQ(table.rowCount(), 1 + 500'000);
  EXPECT_EQ(nameAt(1), "1");
  EXPECT_EQ(nameAt(500'000), "999999");
  EXPECT_EQ(reset.count(), 0);
  EXPECT_LT(inserted.count() + removed.count() + changed.count(), 20);
}

TEST_F(ReviewTableRows, SelectAnItemWhenPressed) {
  addCache("a");
  addCache("b");
  ASSERT_TRUE(scan());
  table().activate(0);
  EXPECT_EQ(reviewed(1, ReviewTableModel::SelectionRole).toInt(),
            static_cast<int>(ReviewTableModel::Selection::All));
  table().activate(1);
  EXPECT_EQ(reviewed(1, ReviewTableModel::SelectionRole).toInt(),
            static_cast<int>(ReviewTableModel::Selection::None));
}

TEST_F(ReviewTableRows, IgnoreARowThatIsNotThere) {
  addCache("a");
  ASSERT_TRUE(scan());
  for (const int row : {-1, 1, 99}) {
    table().activate(row);
    table().toggleSelection(row);
  }
  EXPECT_EQ(table().rowCount(), 1);
  EXPECT_EQ(appState.selectedCount(), 1);
}

TEST_F(ReviewTableRows, ThatSurviveACleanStayOpenAndAreNotMadeAnew) {
  for (int number = 0; number < 12; ++number) {
    addCache("cache-" + std::to_string(number), 20 - number);
  }
  addArchive("Old");
  ASSERT_TRUE(scan());
  const int caches = static_cast<int>(reviewedNames().indexOf("App Caches"));
  ASSERT_EQ(caches, 0);
  table().activate(0);
  table().toggleSelection(0);
  table().toggleSelection(3);
  table().toggleSelection(5);

  QSignalSpy reset(&table(), &ReviewTableModel::modelReset);
  const QPersistentModelIndex stays = table().index(4);
  const QPersistentModelIndex goes = table().index(3);
  ASSERT_TRUE(clean());
  EXPECT_EQ(reset.count(), 0);
  EXPECT_FALSE(goes.isValid());
  ASSERT_TRUE(stays.isValid());
  EXPECT_EQ(stays.row(), 3);
  EXPECT_EQ(reviewedNames().mid(0, 10),
            (QStringList{"App Caches", "cache-0", "cache-1", "cache-3", "cache-5", "cache-6",
                         "cache-7", "cache-8", "cache-9", "Show 2 more"}));
  EXPECT_EQ(reviewedNames().mid(10), QStringList{"Xcode Archives"});
}

TEST_F(ReviewTableRows, OfACategoryWithoutItemsLeftGo) {
  addCache("a");
  addArchive("Old");
  ASSERT_TRUE(scan());
  ASSERT_EQ(table().rowCount(), 2);
  ASSERT_TRUE(clean());
  EXPECT_EQ(reviewedNames(), QStringList{"Xcode Archives"});
}

TEST_F(ReviewTableRows, CarryANameThatIsNotUtf8OrBreaksTheLine) {
  addCache("odd\xff\nname");
  ASSERT_TRUE(scan());
  table().activate(0);
  EXPECT_EQ(reviewed(1, ReviewTableModel::NameRole).toString(),
            QStringLiteral("odd\uFFFD\uFFFDname"));
  EXPECT_EQ(pathOfUrl(reviewed(1, ReviewTableModel::UrlRole).toUrl()),
            Path("/Users/ann/Library/Caches/odd\xff\nname"));
}

}  // namespace
}  // namespace klarvik
