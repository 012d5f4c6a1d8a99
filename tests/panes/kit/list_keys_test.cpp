#include "panes/kit/list_keys.h"

#include <gtest/gtest.h>

#include <QtCore/qnamespace.h>
#include <optional>

namespace klarvik {
namespace {

constexpr ListPlace middle{.row = 50, .rowCount = 100, .rowsInSight = 10};

TEST(ListKeys, APageLeavesOneRowInSight) {
  EXPECT_EQ(rowReachedBy(Qt::Key_PageDown, middle), 59);
  EXPECT_EQ(rowReachedBy(Qt::Key_PageUp, middle), 41);
}

TEST(ListKeys, HomeAndEndLeadToTheFirstRowAndTheLast) {
  EXPECT_EQ(rowReachedBy(Qt::Key_Home, middle), 0);
  EXPECT_EQ(rowReachedBy(Qt::Key_End, middle), 99);
}

TEST(ListKeys, NoPageLeadsBeyondTheRows) {
  EXPECT_EQ(rowReachedBy(Qt::Key_PageUp, {.row = 3, .rowCount = 100, .rowsInSight = 10}), 0);
  EXPECT_EQ(rowReachedBy(Qt::Key_PageDown, {.row = 95, .rowCount = 100, .rowsInSight = 10}), 99);
}

TEST(ListKeys, APageOfAListTooLowForARowIsOneRow) {
  EXPECT_EQ(rowReachedBy(Qt::Key_PageDown, {.row = 3, .rowCount = 100, .rowsInSight = 0}), 4);
}

TEST(ListKeys, LeadNowhereInAListWithoutRows) {
  EXPECT_EQ(rowReachedBy(Qt::Key_End, {.row = -1, .rowCount = 0, .rowsInSight = 10}), std::nullopt);
}

TEST(ListKeys, OtherKeysLeadNowhere) {
  EXPECT_EQ(rowReachedBy(Qt::Key_Space, middle), std::nullopt);
  EXPECT_EQ(rowReachedBy(Qt::Key_Menu, middle), std::nullopt);
}

}  // namespace
}  // namespace klarvik
