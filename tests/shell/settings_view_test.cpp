#include "shell/settings/settings_model.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

namespace klarvik {
namespace {

TEST(SettingsModel, BeginsOnItsFirstTabAndShowsThePageOfTheChosenOne) {
  QObject general;
  QObject updates;
  SettingsModel view(
      {{"General", QUrl("qrc:/general"), &general}, {"Updates", QUrl("qrc:/updates"), &updates}});
  const QSignalSpy changes(&view, &SettingsModel::tabChanged);
  EXPECT_EQ(view.tabs(), QStringList({"General", "Updates"}));
  EXPECT_EQ(view.tab(), 0);
  EXPECT_EQ(view.pageModel(), &general);

  view.setTab(1);
  EXPECT_EQ(view.page(), QUrl("qrc:/updates"));
  EXPECT_EQ(view.pageModel(), &updates);
  EXPECT_EQ(changes.count(), 1);
}

TEST(SettingsModel, ATabThatIsNotThereOrIsShownAlreadyChangesNothing) {
  SettingsModel view({{"General", QUrl("qrc:/general"), nullptr}});
  const QSignalSpy changes(&view, &SettingsModel::tabChanged);
  view.setTab(0);
  view.setTab(1);
  view.setTab(-1);
  EXPECT_EQ(view.tab(), 0);
  EXPECT_EQ(changes.count(), 0);
}

}  // namespace
}  // namespace klarvik
