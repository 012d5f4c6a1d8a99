#include "shell/settings/settings_view.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

namespace klarvik {
namespace {

TEST(SettingsView, BeginsOnItsFirstTabAndShowsThePageOfTheChosenOne) {
  QObject general;
  QObject updates;
  SettingsView view(
      {{"General", QUrl("qrc:/general"), &general}, {"Updates", QUrl("qrc:/updates"), &updates}});
  const QSignalSpy changes(&view, &SettingsView::tabChanged);
  EXPECT_EQ(view.tabs(), QStringList({"General", "Updates"}));
  EXPECT_EQ(view.tab(), 0);
  EXPECT_EQ(view.pageModel(), &general);

  view.setTab(1);
  EXPECT_EQ(view.page(), QUrl("qrc:/updates"));
  EXPECT_EQ(view.pageModel(), &updates);
  EXPECT_EQ(changes.count(), 1);
}

TEST(SettingsView, ATabThatIsNotThereOrIsShownAlreadyChangesNothing) {
  SettingsView view({{"General", QUrl("qrc:/general"), nullptr}});
  const QSignalSpy changes(&view, &SettingsView::tabChanged);
  view.setTab(0);
  view.setTab(1);
  view.setTab(-1);
  EXPECT_EQ(view.tab(), 0);
  EXPECT_EQ(changes.count(), 0);
}

}  // namespace
}  // namespace klarvik
