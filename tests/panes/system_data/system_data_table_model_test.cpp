#include "panes/system_data/system_data_table_model.h"

#include <gtest/gtest.h>

#include <QColor>
#include <QSignalSpy>
#include <QUrl>

#include "found_items.h"
#include "panes/kit/kit_enums.h"
#include "panes/kit/row_text.h"
#include "platform/formatting.h"

namespace klarvik {
namespace {

using Sub = SystemDataSubCategory;
using Table = SystemDataTableModel;
using enum ItemSafety;

class SystemDataTableRows : public ::testing::Test {
 protected:
  void find(std::vector<SystemDataItem> items) {
    findings.setResult(SystemDataResult(std::move(items)));
    table.syncRows();
  }
  [[nodiscard]] QVariant at(int row, Table::Role role) const { return table.index(row).data(role); }
  [[nodiscard]] int selection(int row) const { return at(row, Table::SelectionRole).toInt(); }
  [[nodiscard]] QStringList names() const {
    QStringList names;
    for (int row = 0; row < table.rowCount(); ++row) {
      const bool isHeader =
          at(row, Table::RowKindRole).toInt() == static_cast<int>(Table::RowKind::Header);
      names << (isHeader ? QStringLiteral("header") : at(row, Table::NameRole).toString());
    }
    return names;
  }

  Formatting formatting{"en_US"};
  SystemDataFindings findings;
  SystemDataTableModel table{findings, formatting, "/Users/ann"};
};

TEST_F(SystemDataTableRows, AreTheKindsLargestFirst) {
  find({found(Sub::logs, "a", 1'000'000), found(Sub::vmSwap, "b", 3'000'000)});
  EXPECT_EQ(names(), (QStringList{"VM & Swap", "Logs"}));
  EXPECT_EQ(at(0, Table::SizeRole), "3 MB");
  EXPECT_EQ(at(0, Table::ShareRole), "75%");
  EXPECT_EQ(at(0, Table::DetailRole), "1 item · macOS needs these");
  EXPECT_EQ(at(0, Table::SafetyTextRole), "Shown, not offered");
  EXPECT_EQ(at(0, Table::SymbolRole), "memorychip.fill");
  EXPECT_EQ(at(0, Table::ColorRole).value<QColor>(), QColor::fromRgbF(0.298F, 0.298F, 0.318F));
  EXPECT_EQ(at(0, Table::CanToggleRole), false);
  EXPECT_EQ(at(1, Table::CanToggleRole), true);
  EXPECT_EQ(at(1, Table::SelectionHelpRole), "Select everything in Logs");
  EXPECT_EQ(at(1, Table::DescriptionRole), "Logs, 1 MB, Safe to remove");
}

TEST_F(SystemDataTableRows, OpenToAnExplanationAndTheItemsAndCloseAgain) {
  find({found(Sub::logs, "small", 1'000'000), found(Sub::logs, "large", 3'000'000)});
  table.activate(0);
  EXPECT_EQ(names(), (QStringList{"Logs", "header", "large", "small"}));
  EXPECT_EQ(at(0, Table::IsExpandedRole), true);
  EXPECT_EQ(at(1, Table::NameRole),
            "System and app log files. Safe to delete — they accumulate over time.");
  EXPECT_EQ(table.expandedCategories(), std::set<std::string>{"Logs"});
  EXPECT_EQ(at(2, Table::DetailRole), "~/Library/Caches/");
  EXPECT_EQ(at(2, Table::PathRole), "/Users/ann/Library/Caches/large");
  EXPECT_EQ(pathOfUrl(at(2, Table::UrlRole).toUrl()), Path("/Users/ann/Library/Caches/large"));
  EXPECT_EQ(at(2, Table::ShareRole), "75%");
  EXPECT_EQ(at(2, Table::KindNameRole), "Logs");
  table.activate(0);
  EXPECT_EQ(names(), QStringList{"Logs"});
}

TEST_F(SystemDataTableRows, AreSelectedOneByOneAndByKind) {
  find({found(Sub::logs, "a", 3), found(Sub::logs, "b", 2)});
  table.activate(0);
  QSignalSpy toggled(&table, &Table::selectionToggled);
  table.activate(2);
  EXPECT_EQ(selection(2), SelectionState::All);
  EXPECT_EQ(selection(0), SelectionState::Partial);
  table.toggleSelection(0);
  EXPECT_EQ(selection(0), SelectionState::All);
  EXPECT_EQ(selection(3), SelectionState::All);
  table.toggleSelection(0);
  EXPECT_EQ(selection(0), SelectionState::None);
  EXPECT_EQ(toggled.count(), 3);
}

TEST_F(SystemDataTableRows, OfProtectedThingsCannotBeSelectedByAnyRoute) {
  find({found(Sub::developerTools, "kept", 3, protected_), found(Sub::developerTools, "b", 2)});
  table.activate(0);
  EXPECT_EQ(at(2, Table::CanToggleRole), false);
  table.activate(2);
  table.toggleSelection(2);
  EXPECT_EQ(selection(2), SelectionState::None);
  table.toggleSelection(0);
  EXPECT_EQ(selection(2), SelectionState::None);
  EXPECT_EQ(selection(0), SelectionState::All);
  table.toggleSelection(1);
  table.toggleSelection(-1);
  table.toggleSelection(99);
  table.activate(99);
  EXPECT_EQ(findings.selected().count, 1);
}

TEST_F(SystemDataTableRows, GoOneByOneAndNeverByAReset) {
  find({found(Sub::logs, "a", 9), found(Sub::logs, "b", 8), found(Sub::logs, "c", 7)});
  table.activate(0);
  QSignalSpy removed(&table, &Table::rowsRemoved);
  QSignalSpy inserted(&table, &Table::rowsInserted);
  QSignalSpy reset(&table, &Table::modelReset);
  findings.removePaths({"/Users/ann/Library/Caches/b"}, 0);
  table.syncRows();
  EXPECT_EQ(names(), (QStringList{"Logs", "header", "a", "c"}));
  EXPECT_EQ(removed.count(), 1);
  EXPECT_EQ(inserted.count(), 0);
  EXPECT_EQ(reset.count(), 0);
}

TEST_F(SystemDataTableRows, MoveWithTheirKindWhenItsSizeChangesItsPlace) {
  find({found(Sub::logs, "a", 9), found(Sub::logs, "b", 2), found(Sub::caches, "c", 10)});
  table.activate(0);
  ASSERT_EQ(names(), (QStringList{"Logs", "header", "a", "b", "App Caches"}));
  QSignalSpy moved(&table, &Table::rowsMoved);
  findings.removePaths({"/Users/ann/Library/Caches/b"}, 0);
  table.syncRows();
  EXPECT_EQ(names(), (QStringList{"App Caches", "Logs", "header", "a"}));
  EXPECT_EQ(moved.count(), 1);
}

TEST_F(SystemDataTableRows, KeepTheirKindsOpenThroughANewAnalysis) {
  find({found(Sub::logs, "a", 9), found(Sub::caches, "c", 3)});
  table.activate(0);
  QSignalSpy reset(&table, &Table::modelReset);
  find({found(Sub::caches, "c", 30), found(Sub::firmware, "f", 20), found(Sub::logs, "d", 9)});
  EXPECT_EQ(names(), (QStringList{"App Caches", "Firmware Files", "Logs", "header", "d"}));
  EXPECT_EQ(reset.count(), 0);
}

TEST_F(SystemDataTableRows, AreAsWantedAfterAnyChangeOfAnyResult) {
  std::vector<SystemDataItem> all;
  for (std::size_t number = 0; number < 400; ++number) {
    all.push_back(found(allSystemDataSubCategories()[number % 5], std::to_string(number),
                        static_cast<std::int64_t>(1 + number * 37 % 101)));
  }
  find(all);
  for (int row = 4; row >= 0; --row) {
    table.activate(row);
  }
  for (std::size_t step = 1; step < 8; ++step) {
    std::vector<SystemDataItem> some;
    for (std::size_t number = 0; number < all.size(); number += step) {
      some.push_back(all[number]);
      some.back().size += static_cast<std::int64_t>(number * step % 13);
    }
    find(some);
    QStringList wanted;
    for (const SystemDataKind& kind : findings.kinds()) {
      wanted << QString::fromStdString(std::string(rawValue(kind.kind))) << "header";
      for (const SystemDataItem& item : kind.items) wanted << QString::fromStdString(item.name);
    }
    EXPECT_EQ(names(), wanted) << step;
  }
}

TEST_F(SystemDataTableRows, WithLongRightToLeftEmojiAndBrokenNamesAreFitForOneLine) {
  find({found(Sub::logs, std::string(4'000, 'x'), 9), found(Sub::logs, "\xE2\x80\xAEgnp.exe", 8),
        found(Sub::logs, "😀", 7), found(Sub::logs, "odd\xff\nname", 6)});
  table.activate(0);
  EXPECT_EQ(at(2, Table::NameRole).toString().size(), 4'000);
  EXPECT_EQ(at(3, Table::NameRole), QStringLiteral("\uFFFDgnp.exe"));
  EXPECT_EQ(at(4, Table::NameRole), QStringLiteral("😀"));
  EXPECT_EQ(at(5, Table::NameRole), QStringLiteral("odd\uFFFD\uFFFDname"));
  EXPECT_EQ(pathOfUrl(at(5, Table::UrlRole).toUrl()),
            Path("/Users/ann/Library/Caches/odd\xff\nname"));
}

TEST_F(SystemDataTableRows, AnswerEveryRoleOfEveryRow) {
  find({found(Sub::logs, "a", 9)});
  table.activate(0);
  for (int row = 0; row < table.rowCount(); ++row) {
    for (const int role : table.roleNames().keys()) {
      EXPECT_TRUE(table.index(row).data(role).isValid()) << row << " " << role;
    }
  }
}

}  // namespace
}  // namespace klarvik
