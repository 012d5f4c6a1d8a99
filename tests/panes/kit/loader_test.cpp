#include <gtest/gtest.h>

#include "kit_window.h"
#include "panes/kit/loader_timeline.h"

namespace klarvik {
namespace {

TEST(InlineLoaderOpacity, PulsesBetweenAQuarterAndOneInTwelveTenthsOfASecond) {
  EXPECT_DOUBLE_EQ(inlineLoaderOpacity(0, 0, false), 0.25);
  EXPECT_DOUBLE_EQ(inlineLoaderOpacity(0, 0.3, false), 0.625);
  EXPECT_DOUBLE_EQ(inlineLoaderOpacity(0, 0.6, false), 1);
  EXPECT_NEAR(inlineLoaderOpacity(0, 1.2, false), 0.25, 1e-12);
  EXPECT_NEAR(inlineLoaderOpacity(0, 12.6, false), 1, 1e-12);
}

TEST(InlineLoaderOpacity, EachDotFollowsTheOneBeforeItByFifteenHundredths) {
  EXPECT_NEAR(inlineLoaderOpacity(1, 0.75, false), 1, 1e-12);
  EXPECT_NEAR(inlineLoaderOpacity(2, 0.9, false), 1, 1e-12);
  EXPECT_NEAR(inlineLoaderOpacity(1, 0, false), inlineLoaderOpacity(0, 1.05, false), 1e-12);
}

TEST(InlineLoaderOpacity, IsOneUnderReducedMotion) {
  for (int dot = 0; dot < 3; ++dot) EXPECT_EQ(inlineLoaderOpacity(dot, 0.1, true), 1);
}

TEST(LoaderTimeline, DrawsNoMoreThanThirtyFramesASecond) {
  EXPECT_LE(std::chrono::seconds(1) / LoaderTimeline::frame, 30);
}

class Loaders : public KitWindow {};

TEST_F(Loaders, StandStillUnderReducedMotion) {
  FakeMotionPreference still;
  still.setReduced(true);
  QQmlEngine calm;
  installKit(calm, {formatting, "/Users/ann", workspace, clock, still});
  EXPECT_TRUE(Kit::of(calm).reduceMotion());
  QQmlComponent component(&calm);
  component.setData("import Klarvik.Kit\nInlineLoader { size: 15 }", {});
  const std::unique_ptr<QObject> loader(component.create());
  ASSERT_TRUE(loader) << component.errorString().toStdString();
  EXPECT_FALSE(loader->findChild<LoaderTimeline*>()->isRunning());
}

TEST_F(Loaders, StandStillAsSoonAsLessMotionIsAskedFor) {
  QQuickItem* loader = show("InlineLoader { size: 15 }");
  ASSERT_NE(loader, nullptr);
  auto* timeline = loader->findChild<LoaderTimeline*>();
  EXPECT_TRUE(timeline->isRunning());
  motionPreference.setReduced(true);
  EXPECT_FALSE(timeline->isRunning());
  motionPreference.setReduced(false);
  EXPECT_TRUE(timeline->isRunning());
}

TEST_F(Loaders, RunWhileTheyAreSeenAndStopWhenHidden) {
  for (const char* element : {"SweepLoader", "LiftingLoader", "InlineLoader"}) {
    QQuickItem* loader = show(QByteArray(element) + " { size: 44 }");
    ASSERT_NE(loader, nullptr);
    auto* timeline = loader->findChild<LoaderTimeline*>();
    ASSERT_NE(timeline, nullptr) << element;
    EXPECT_TRUE(timeline->isRunning()) << element;
    const double before = timeline->seconds();
    EXPECT_TRUE(QTest::qWaitFor([&] { return timeline->seconds() > before; })) << element;
    loader->setVisible(false);
    EXPECT_FALSE(timeline->isRunning()) << element;
    EXPECT_EQ(accessible(loader)->text(QAccessible::Name), "Working");
  }
}

TEST_F(Loaders, AppearAfterFourHundredMillisecondsAndNotBefore) {
  QQuickItem* delayed = show("DelayedAppearance { SweepLoader { size: 44 } }");
  ASSERT_NE(delayed, nullptr);
  clock.advance(std::chrono::milliseconds(399));
  EXPECT_FALSE(delayed->property("appeared").toBool());
  EXPECT_FALSE(delayed->findChild<LoaderTimeline*>()->isRunning());
  clock.advance(std::chrono::milliseconds(1));
  EXPECT_TRUE(delayed->property("appeared").toBool());
  EXPECT_TRUE(delayed->findChild<LoaderTimeline*>()->isRunning());
}

TEST_F(Loaders, OfAPaneThatIsHiddenAfterThreeHundredMillisecondsNeverAppear) {
  QQuickItem* pane = show(
      "Item { width: 400; height: 300; LoadingPane { objectName: 'pane'; title: 'Reading';"
      " style: LoadingStyle.Reading } }");
  ASSERT_NE(pane, nullptr);
  clock.advance(std::chrono::milliseconds(300));
  part("pane")->setVisible(false);
  EXPECT_EQ(clock.pendingAlarms(), 0U);
  clock.advance(std::chrono::seconds(5));
  EXPECT_FALSE(part("delayedLoader")->property("appeared").toBool());
}

TEST_F(Loaders, OfAPaneThatIsRemovedAfterThreeHundredMillisecondsNeverAppear) {
  QQuickItem* root = show(
      "Item { width: 400; height: 300; property bool here: true; Loader { anchors.fill: parent;"
      " active: parent.here; sourceComponent: LoadingPane { title: 'Reading';"
      " style: LoadingStyle.Reading } } }");
  ASSERT_NE(root, nullptr);
  clock.advance(std::chrono::milliseconds(300));
  EXPECT_EQ(clock.pendingAlarms(), 1U);
  root->setProperty("here", false);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(clock.pendingAlarms(), 0U);
  clock.advance(std::chrono::seconds(5));
}

/// What runs in `item`, by the names of its types.
QStringList runningLoaders(const QQuickItem& item) {
  QStringList running;
  for (const auto* timeline :
       item.findChildren<LoaderTimeline*>(QString(), Qt::FindDirectChildrenOnly)) {
    if (timeline->isRunning()) running << item.metaObject()->className();
  }
  for (const QQuickItem* child : item.childItems()) running << runningLoaders(*child);
  return running;
}

TEST_F(Loaders, OfALoadingPaneAreChosenByItsStyle) {
  const std::pair<const char*, const char*> styles[] = {{"Reading", "SweepLoader"},
                                                        {"Working", "LiftingLoader"}};
  for (const auto& [style, element] : styles) {
    show(QByteArray(
             "Item { width: 400; height: 300; LoadingPane { title: 'T'; style: LoadingStyle.") +
         style + " } }");
    clock.advance(std::chrono::milliseconds(400));
    const QStringList running = runningLoaders(*view.rootObject());
    ASSERT_EQ(running.size(), 1);
    EXPECT_TRUE(running[0].startsWith(element));
  }
}

}  // namespace
}  // namespace klarvik
