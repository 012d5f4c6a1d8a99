#include "panes/uninstaller/app_list_model.h"
#include "platform/formatting.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <random>

namespace klarvik {
namespace {

AppInfo app(const std::string& name, std::int64_t bytes) {
  return {.name = name,
          .bundleID = "com.acme." + name,
          .appURL = Path("/Applications") / (name + ".app"),
          .appSize = bytes};
}

class AppListRows : public ::testing::Test {
 protected:
  QStringList names() {
    QStringList shown;
    for (int row = 0; row < list.rowCount(); ++row) {
      shown << list.index(row).data(AppListModel::NameRole).toString();
    }
    return shown;
  }

  Formatting formatting{"en_US"};
  AppListModel list{formatting};
  QAbstractItemModelTester tester{&list, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(AppListRows, StandBySizeTheLargestFirst) {
  list.setApps({app("Alpha", 10), app("Beta", 30), app("Gamma", 20)});
  EXPECT_EQ(names(), (QStringList{"Beta", "Gamma", "Alpha"}));
}

TEST_F(AppListRows, OfOneSizeKeepTheOrderOfTheirNames) {
  list.setApps({app("Alpha", 10), app("Beta", 10), app("Gamma", 10)});
  EXPECT_EQ(names(), (QStringList{"Alpha", "Beta", "Gamma"}));
}

TEST_F(AppListRows, SayWhatTheApplicationIs) {
  list.setApps({app("Writer", 1'500'000)});
  const QModelIndex row = list.index(0);
  EXPECT_EQ(row.data(AppListModel::BundleRole), "com.acme.Writer");
  EXPECT_EQ(row.data(AppListModel::PathRole), "/Applications/Writer.app");
  EXPECT_EQ(row.data(AppListModel::SizeRole), "1.5 MB");
  EXPECT_EQ(row.data(AppListModel::DescriptionRole), "Writer, 1.5 MB, com.acme.Writer");
}

TEST_F(AppListRows, AreThoseWhoseNameHoldsTheSearchTextInWhateverCase) {
  list.setApps({app("Note", 10), app("Notebook", 30), app("Writer", 20), app("KEYNOTE", 5)});
  list.setSearchText("nOTe");
  EXPECT_EQ(names(), (QStringList{"Notebook", "Note", "KEYNOTE"}));
  list.setSearchText("xyz");
  EXPECT_EQ(names(), QStringList());
  EXPECT_EQ(list.apps().size(), 4U);
  list.setSearchText("");
  EXPECT_EQ(names(), (QStringList{"Notebook", "Writer", "Note", "KEYNOTE"}));
}

TEST_F(AppListRows, AreNotSearchedByBundle) {
  list.setApps({app("Note", 10)});
  list.setSearchText("acme");
  EXPECT_EQ(names(), QStringList());
}

TEST_F(AppListRows, SearchedInALanguageWithAccentsIgnoreCaseToo) {
  list.setApps({app("ÜBERSICHT", 10)});
  list.setSearchText("übersicht");
  EXPECT_EQ(names(), QStringList("ÜBERSICHT"));
}

TEST_F(AppListRows, ThatStayKeepTheirPlaceWhenTheListIsReadAnew) {
  list.setApps({app("Alpha", 40), app("Beta", 30), app("Gamma", 20)});
  const QPersistentModelIndex beta = list.index(1);
  const QPersistentModelIndex gamma = list.index(2);
  QSignalSpy reset(&list, &AppListModel::modelReset);
  list.setApps({app("Beta", 31), app("Delta", 25), app("Gamma", 20), app("Epsilon", 1)});
  EXPECT_EQ(names(), (QStringList{"Beta", "Delta", "Gamma", "Epsilon"}));
  EXPECT_TRUE(beta.isValid());
  EXPECT_TRUE(gamma.isValid());
  EXPECT_EQ(beta.data(AppListModel::SizeRole), "31 bytes");
  EXPECT_EQ(reset.count(), 0);
}

TEST_F(AppListRows, OfWhichOneGrewMoveNoOther) {
  list.setApps({app("Alpha", 40), app("Beta", 30), app("Gamma", 20), app("Delta", 10)});
  const QPersistentModelIndex alpha = list.index(0);
  const QPersistentModelIndex beta = list.index(1);
  const QPersistentModelIndex gamma = list.index(2);
  list.setApps({app("Alpha", 40), app("Beta", 30), app("Gamma", 20), app("Delta", 100)});
  EXPECT_EQ(names(), (QStringList{"Delta", "Alpha", "Beta", "Gamma"}));
  EXPECT_TRUE(alpha.isValid() && beta.isValid() && gamma.isValid());
}

TEST_F(AppListRows, LoseOnlyWhatIsRemoved) {
  list.setApps({app("Alpha", 40), app("Beta", 30), app("Gamma", 20)});
  QSignalSpy removed(&list, &AppListModel::rowsRemoved);
  QSignalSpy inserted(&list, &AppListModel::rowsInserted);
  list.remove("/Applications/Beta.app");
  EXPECT_EQ(names(), (QStringList{"Alpha", "Gamma"}));
  EXPECT_EQ(removed.count(), 1);
  EXPECT_EQ(inserted.count(), 0);
  list.remove("/Applications/Beta.app");
  EXPECT_EQ(names(), (QStringList{"Alpha", "Gamma"}));
}

TEST_F(AppListRows, AreRightAfterAnySequenceOfReadingsAndSearches) {
  std::mt19937 random(7);
  const auto pick = [&random](int below) {
    return static_cast<std::int64_t>(random() % static_cast<unsigned>(below));
  };
  for (int round = 0; round < 200; ++round) {
    std::vector<AppInfo> apps;
    for (int number = 0; number < 300; ++number) {
      if (pick(4) > 0) apps.push_back(app("App " + std::to_string(number), pick(1'000)));
    }
    list.setApps(apps);
    list.setSearchText(pick(2) == 0 ? QString() : QString::number(pick(30)));

    std::ranges::stable_sort(apps, std::ranges::greater{}, &AppInfo::appSize);
    QStringList expected;
    for (const AppInfo& each : apps) {
      const QString name = QString::fromStdString(each.name);
      if (name.contains(list.searchText())) expected << name;
    }
    ASSERT_EQ(names(), expected) << "round " << round;
  }
}

TEST_F(AppListRows, WithOddBytesInTheirNameArePrintable) {
  list.setApps({app("odd\xff\nname", 10)});
  EXPECT_EQ(names(), QStringList(QStringLiteral("odd\uFFFD\uFFFDname")));
}

TEST_F(AppListRows, ThatAreNotThereHaveNoApplication) {
  list.setApps({app("Alpha", 40)});
  EXPECT_EQ(list.appAt(-1), nullptr);
  EXPECT_EQ(list.appAt(1), nullptr);
  ASSERT_NE(list.appAt(0), nullptr);
  EXPECT_EQ(list.appAt(0)->name, "Alpha");
}

}  // namespace
}  // namespace klarvik
