#include "panes/kit/donut.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace klarvik {
namespace {

constexpr double size = 200;
constexpr double thickness = 30;
constexpr double middleOfRing = (size - thickness) / 2;

QList<DonutSlice> slices(std::initializer_list<qint64> values) {
  QList<DonutSlice> result;
  for (const qint64 value : values) {
    result.append({.id = QString(QChar(u'a' + static_cast<char16_t>(result.size()))),
                   .label = {},
                   .value = value,
                   .color = Qt::red});
  }
  return result;
}

/// `degrees` clockwise from the top.
QPointF at(double degrees, double radius) {
  const double angle = (degrees - 90) * std::numbers::pi / 180;
  return {size / 2 + radius * std::cos(angle), size / 2 + radius * std::sin(angle)};
}

QString hit(const QList<DonutSlice>& chart, QPointF point) {
  return donutSliceAt(chart, point, size, thickness);
}

TEST(DonutArcs, FollowOneAnotherInTheOrderOfTheSlices) {
  const auto arcs = donutArcs(slices({1, 1, 2}));
  ASSERT_EQ(arcs.size(), 3);
  EXPECT_EQ(arcs[0].start, 0);
  EXPECT_EQ(arcs[0].end, 0.25);
  EXPECT_EQ(arcs[1].start, 0.25);
  EXPECT_EQ(arcs[1].end, 0.5);
  EXPECT_EQ(arcs[2].start, 0.5);
  EXPECT_EQ(arcs[2].end, 1);
  EXPECT_EQ(arcs[2].id, "c");
}

TEST(DonutArcs, OfManyUnevenSlicesCloseTheRingExactly) {
  const auto arcs = donutArcs(slices({1, 3, 7, 11, 13, 17, 19, 23, 29}));
  EXPECT_EQ(arcs.back().end, 1);
}

TEST(DonutArcs, AreDrawnFromTheTopAsFarAsTheSweepHasCome) {
  const DonutArc arc = donutArcs(slices({1, 1}))[1];
  EXPECT_EQ(arc.drawnStart(1), 90);
  EXPECT_EQ(arc.drawnEnd(1), 270);
  EXPECT_EQ(arc.drawnStart(0.5), 0);
  EXPECT_EQ(arc.drawnEnd(0.5), 90);
  EXPECT_EQ(arc.drawnStart(0), arc.drawnEnd(0));
}

TEST(DonutArcs, OneSliceDrawsAFullRing) {
  const auto arcs = donutArcs(slices({42}));
  EXPECT_EQ(arcs[0].drawnStart(1), -90);
  EXPECT_EQ(arcs[0].drawnEnd(1), 270);
}

TEST(DonutArcs, OfValuesThatSumToZeroHaveNoLengthAndAreNeverHit) {
  const auto chart = slices({0, 0});
  for (const DonutArc& arc : donutArcs(chart)) EXPECT_EQ(arc.start, arc.end);
  for (int degrees = 0; degrees < 360; ++degrees) {
    EXPECT_EQ(hit(chart, at(degrees, middleOfRing)), "");
  }
}

TEST(DonutArcs, OfNoSlicesAreNone) {
  EXPECT_TRUE(donutArcs({}).isEmpty());
  EXPECT_EQ(hit({}, at(10, middleOfRing)), "");
}

TEST(DonutArcsDeathTest, ASumThatNoLongerFitsEndsTheProgram) {
  EXPECT_DEATH(donutArcs(slices({std::numeric_limits<qint64>::max(), 1})), "");
}

TEST(DonutSliceAt, OneSliceIsFoundAtEveryAngle) {
  const auto chart = slices({42});
  for (int step = 0; step < 3600; ++step) {
    EXPECT_EQ(hit(chart, at(step / 10.0, middleOfRing)), "a") << step;
  }
}

TEST(DonutSliceAt, AHairLeftOfTheTopIsStillOnTheRing) {
  const QPointF top(std::nextafter(size / 2, 0.0), size / 2 - middleOfRing);
  EXPECT_EQ(hit(slices({42}), top), "a");
}

TEST(DonutSliceAt, ThePointAtTheTopFindsTheFirstSlice) {
  EXPECT_EQ(hit(slices({1, 1}), {size / 2, size / 2 - middleOfRing}), "a");
}

TEST(DonutSliceAt, ABorderBelongsToTheSliceThatBeginsThere) {
  EXPECT_EQ(hit(slices({1, 1}), {size / 2, size / 2 + middleOfRing}), "b");
}

TEST(DonutSliceAt, FourPointsBeyondAnEdgeHitsFiveDoesNot) {
  const auto chart = slices({42});
  const double outer = size / 2;
  const double inner = size / 2 - thickness;
  EXPECT_EQ(hit(chart, {size / 2 + outer + 4, size / 2}), "a");
  EXPECT_EQ(hit(chart, {size / 2 + outer + 5, size / 2}), "");
  EXPECT_EQ(hit(chart, {size / 2 + inner - 4, size / 2}), "a");
  EXPECT_EQ(hit(chart, {size / 2 + inner - 5, size / 2}), "");
}

TEST(DonutSliceAt, TheHoleIsNoSlice) {
  EXPECT_EQ(hit(slices({42}), {size / 2, size / 2}), "");
}

TEST(DonutOpacity, DimsAllButTheHighlighted) {
  EXPECT_EQ(donutOpacity("a", ""), 1);
  EXPECT_EQ(donutOpacity("a", "a"), 1);
  EXPECT_EQ(donutOpacity("a", "b"), 0.35);
}

TEST(ShareText, RoundsToWholePercent) {
  EXPECT_EQ(shareText(0.004), "0%");
  EXPECT_EQ(shareText(0.005), "1%");
  EXPECT_EQ(shareText(0.5), "50%");
  EXPECT_EQ(shareText(1), "100%");
}

}  // namespace
}  // namespace klarvik
