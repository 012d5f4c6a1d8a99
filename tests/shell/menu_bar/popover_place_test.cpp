#include "shell/menu_bar/menu_bar_popover.h"

#include <gtest/gtest.h>

#include <ostream>

namespace klarvik {
namespace {

constexpr QSize popover(260, 300);
constexpr QRect screen(0, 30, 1280, 870);

TEST(PopoverPlace, IsBelowTheIconAndOnOneMiddleLineWithIt) {
  EXPECT_EQ(popoverPlace(QRect(600, 0, 20, 28), popover, screen), QPoint(480, 32));
}

TEST(PopoverPlace, IsAboveAnIconAtTheBottomOfTheScreen) {
  const QRect whole(0, 0, 1280, 870);
  EXPECT_EQ(popoverPlace(QRect(600, 872, 20, 28), popover, whole), QPoint(480, 568));
}

TEST(PopoverPlace, StaysInsideTheScreenAtItsSides) {
  EXPECT_EQ(popoverPlace(QRect(1255, 0, 20, 28), popover, screen).x(), 1020);
  EXPECT_EQ(popoverPlace(QRect(2, 0, 20, 28), popover, screen).x(), 0);
}

TEST(PopoverPlace, NeverCoversAPanelThatTheIconIsNotIn) {
  EXPECT_EQ(popoverPlace(QRect(600, 0, 20, 10), popover, screen).y(), 30);
}

TEST(PopoverPlace, ShowsTheTopOfWhatIsTallerThanTheScreen) {
  EXPECT_EQ(popoverPlace(QRect(600, 0, 20, 28), QSize(260, 2000), screen), QPoint(480, 30));
}

TEST(PopoverPlace, FollowsTheIconToAnotherScreen) {
  const QRect second(1280, 0, 1920, 1080);
  EXPECT_EQ(popoverPlace(QRect(3150, 0, 20, 28), popover, second), QPoint(2940, 32));
}

}  // namespace
}  // namespace klarvik
