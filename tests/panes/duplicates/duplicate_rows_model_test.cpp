#include "panes/duplicates/duplicate_rows_model.h"

#include <gmock/gmock.h>

#include <QAbstractItemModelTester>
#include <QPersistentModelIndex>
#include <QSignalSpy>

#include "panes/kit/kit_enums.h"
#include "panes/kit/row_text.h"
#include "support/fake_desktop.h"

namespace klarvik {
namespace {

class DuplicateRowsTest : public testing::Test {
 protected:
  /// Groups of `copies` files, the first of which stays: "/0/0", "/0/1"; "/1/0"...
  void show(std::size_t groups, std::size_t copies) {
    std::vector<DuplicateGroup> all(groups);
    for (std::size_t group = 0; group < groups; ++group) {
      for (std::size_t file = 0; file < copies; ++file) {
        all[group].files.push_back({.url = path(group, file), .size = 1000});
      }
    }
    rows.removeAll();
    former = choice.replace(unchosen(std::move(all)));
    rows.insertAll();
  }
  [[nodiscard]] static Path path(std::size_t group, std::size_t file) {
    return Path("/") / std::to_string(group) / std::to_string(file);
  }
  void remove(const std::vector<Path>& files) {
    DuplicateChoice::Paths gone;
    for (const Path& file : files) gone.insert(file.native());
    const auto dissolved = choice.dissolvedBy(gone);
    rows.removeFiles(gone, dissolved);
    former = choice.remove(gone, dissolved);
    rows.allChanged();
  }
  /// Whatever was done, the rows are those that the choice and the open groups ask for.
  void expectRight() const {
    int row = 0;
    for (const auto& group : choice.groups()) {
      ASSERT_LT(row, rows.rowCount());
      ASSERT_EQ(rows.at(row).group, group.get());
      ASSERT_TRUE(rows.at(row++).isGroup());
      if (!rows.expanded().contains(group->group.id)) continue;
      for (std::size_t file = 0; file < group->group.files.size(); ++file) {
        ASSERT_LT(row, rows.rowCount());
        ASSERT_EQ(rows.at(row).group, group.get());
        ASSERT_EQ(rows.at(row++).file, file);
      }
    }
    EXPECT_EQ(row, rows.rowCount());
  }
  [[nodiscard]] QVariant at(int row, int role) const { return rows.index(row).data(role); }

  FakeDesktopOnDisk around;
  const Desktop& desktop = around.desktop;
  DuplicateChoice choice;
  ChosenGroups former;
  DuplicateRowsModel rows{choice, desktop};
  QSignalSpy reset{&rows, &QAbstractItemModel::modelReset};
};

TEST_F(DuplicateRowsTest, ACopyThatIsNotSelectedIsMarkedAsOneThatGoesOnAMacsDiskOnly) {
  const FakeDesktopOnDisk linux(std::nullopt, linuxHome);
  show(1, 2);
  DuplicateRowsModel other{choice, linux.desktop};
  other.insertAll();
  const auto fate = [](const DuplicateRowsModel& model) {
    return model.index(2).data(DuplicateRowsModel::FateRole);
  };
  EXPECT_EQ(fate(other), static_cast<int>(KeepOrDelete::Delete));
  choice.toggle(*choice.groups().front(), 1);
  EXPECT_EQ(fate(other), static_cast<int>(KeepOrDelete::Neither));
  EXPECT_EQ(fate(rows), static_cast<int>(KeepOrDelete::Delete));
  EXPECT_EQ(other.index(2).data(DuplicateRowsModel::DescriptionRole), "1, 1 KB, /0/");
}

TEST_F(DuplicateRowsTest, TheFirstGroupStandsOpen) {
  show(2, 2);
  EXPECT_EQ(rows.rowCount(), 4);
  EXPECT_EQ(at(0, DuplicateRowsModel::IsExpandedRole), true);
  EXPECT_EQ(at(3, DuplicateRowsModel::IsExpandedRole), false);
  expectRight();
}

TEST_F(DuplicateRowsTest, AGroupRowAndACopyRowSayWhatTheyAre) {
  show(1, 3);
  EXPECT_EQ(at(0, DuplicateRowsModel::NameRole), "0");
  EXPECT_EQ(at(0, DuplicateRowsModel::CopiesRole), "3");
  EXPECT_EQ(at(0, DuplicateRowsModel::EachRole), "1 KB");
  EXPECT_EQ(at(0, DuplicateRowsModel::ReclaimableRole), "2 KB");
  EXPECT_EQ(at(0, DuplicateRowsModel::SelectionRole), static_cast<int>(SelectionState::All));
  EXPECT_EQ(at(0, DuplicateRowsModel::DescriptionRole), "0, 3 copies, 2 KB reclaimable");
  EXPECT_EQ(at(1, DuplicateRowsModel::FateRole), static_cast<int>(KeepOrDelete::Keep));
  EXPECT_EQ(at(1, DuplicateRowsModel::CanToggleRole), false);
  EXPECT_EQ(at(1, DuplicateRowsModel::MenuEntryRole), "This copy stays");
  EXPECT_EQ(at(2, DuplicateRowsModel::NameRole), "1");
  EXPECT_EQ(at(2, DuplicateRowsModel::FolderRole), "/0/");
  EXPECT_EQ(at(2, DuplicateRowsModel::PathRole), "/0/1");
  EXPECT_EQ(at(2, DuplicateRowsModel::FateRole), static_cast<int>(KeepOrDelete::Delete));
  EXPECT_EQ(at(2, DuplicateRowsModel::CanToggleRole), true);
  EXPECT_EQ(at(2, DuplicateRowsModel::SelectionRole), static_cast<int>(SelectionState::All));
  EXPECT_EQ(at(2, DuplicateRowsModel::MenuEntryRole), "Keep this copy instead");
  EXPECT_EQ(at(2, DuplicateRowsModel::DescriptionRole), "1, 1 KB, delete, /0/");
}

TEST_F(DuplicateRowsTest, TheBoxOfAGroupHasThreeStates) {
  show(1, 3);
  choice.toggle(*choice.groups()[0], 1);
  EXPECT_EQ(at(0, DuplicateRowsModel::SelectionRole), static_cast<int>(SelectionState::Partial));
  EXPECT_EQ(at(2, DuplicateRowsModel::SelectionRole), static_cast<int>(SelectionState::None));
  choice.toggle(*choice.groups()[0], 2);
  EXPECT_EQ(at(0, DuplicateRowsModel::SelectionRole), static_cast<int>(SelectionState::None));
}

TEST_F(DuplicateRowsTest, OpeningAndClosingTellsTheViewEveryRow) {
  const QAbstractItemModelTester tester(&rows,
                                        QAbstractItemModelTester::FailureReportingMode::Fatal);
  show(3, 3);
  rows.toggleExpanded(2);
  EXPECT_EQ(rows.rowCount(), 3);
  rows.toggleExpanded(1);
  expectRight();
  rows.toggleExpanded(0);
  expectRight();
  rows.toggleExpanded(0);
  expectRight();
  EXPECT_EQ(rows.rowCount(), 6);
  EXPECT_EQ(reset.count(), 0);
}

TEST_F(DuplicateRowsTest, ARemovalTakesTheirRowsAndLeavesTheOthersWhereTheyAre) {
  const QAbstractItemModelTester tester(&rows,
                                        QAbstractItemModelTester::FailureReportingMode::Fatal);
  show(4, 3);
  const QPersistentModelIndex last(rows.index(rows.rowCount() - 1));
  remove({path(0, 1), path(2, 1), path(2, 2)});
  expectRight();
  EXPECT_EQ(rows.rowCount(), 5);
  EXPECT_EQ(last.row(), 4);
  EXPECT_EQ(at(0, DuplicateRowsModel::CopiesRole), "2");
  EXPECT_EQ(at(2, DuplicateRowsModel::PathRole), "/0/2");
  EXPECT_EQ(reset.count(), 0);
}

TEST_F(DuplicateRowsTest, ARemovalAllOverTheListKeepsWhatIsInSightWhereItIs) {
  show(1000, 2);
  rows.lookAt(502);
  const QPersistentModelIndex inSight(rows.index(503));
  const ChosenGroup* group = rows.at(503).group;
  QSignalSpy removals(&rows, &QAbstractItemModel::rowsRemoved);
  std::vector<Path> gone;
  for (std::size_t number = 0; number < 1000; number += 2) gone.push_back(path(number, 1));
  ASSERT_EQ(rows.at(503).group, choice.groups()[501].get());
  remove(gone);
  expectRight();
  EXPECT_EQ(rows.rowCount(), 500);
  EXPECT_LE(removals.count(), 2);
  ASSERT_TRUE(inSight.isValid());
  EXPECT_EQ(rows.at(inSight.row()).group, group);
  EXPECT_EQ(reset.count(), 0);
}

TEST_F(DuplicateRowsTest, OfAMillionCopiesHalfGoInAFewSteps) {
  show(1000, 1000);
  for (int group = 1; group < 1000; ++group) rows.toggleExpanded(group * 1001);
  ASSERT_EQ(rows.rowCount(), 1'001'000);
  rows.lookAt(500'500);
  const QPersistentModelIndex inSight(rows.index(500'500));
  ASSERT_EQ(rows.at(500'500).group, choice.groups()[500].get());
  QSignalSpy inserted(&rows, &QAbstractItemModel::rowsInserted);
  QSignalSpy removed(&rows, &QAbstractItemModel::rowsRemoved);
  QSignalSpy changed(&rows, &QAbstractItemModel::dataChanged);
  std::vector<Path> gone;
  for (std::size_t group = 0; group < 1000; ++group) {
    for (std::size_t file = 1; file < 1000; file += 2) gone.push_back(path(group, file));
  }
  remove(gone);
  expectRight();
  EXPECT_EQ(rows.rowCount(), 501'000);
  EXPECT_LT(inserted.count() + removed.count() + changed.count(), 100);
  EXPECT_EQ(reset.count(), 0);
  ASSERT_TRUE(inSight.isValid());
  EXPECT_EQ(rows.at(inSight.row()).group, choice.groups()[500].get());
  EXPECT_TRUE(rows.at(inSight.row()).isGroup());
}

TEST_F(DuplicateRowsTest, NewGroupsComeAsRowsAndNotAsAReset) {
  show(2, 2);
  show(3, 2);
  expectRight();
  show(0, 0);
  EXPECT_EQ(rows.rowCount(), 0);
  EXPECT_EQ(reset.count(), 0);
}

TEST_F(DuplicateRowsTest, AGroupWithoutFilesIsUnknown) {
  show(1, 0);
  EXPECT_EQ(at(0, DuplicateRowsModel::NameRole), "Unknown");
  EXPECT_EQ(at(0, DuplicateRowsModel::SelectionRole), static_cast<int>(SelectionState::None));
}

TEST_F(DuplicateRowsTest, AnOddNameIsMadePrintableAndItsUrlHoldsTheBytes) {
  std::vector<DuplicateGroup> groups(1);
  groups[0].files = {{.url = "/a\xff\n"}, {.url = "/b"}};
  former = choice.replace(unchosen(std::move(groups)));
  rows.insertAll();
  EXPECT_EQ(at(1, DuplicateRowsModel::NameRole).toString(), QStringLiteral("a\uFFFD\uFFFD"));
  EXPECT_EQ(pathOfUrl(at(1, DuplicateRowsModel::UrlRole).toUrl()), Path("/a\xff\n"));
}

}  // namespace
}  // namespace klarvik
