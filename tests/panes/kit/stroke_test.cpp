#include "panes/kit/stroke.h"

#include "kit_window.h"

namespace klarvik {
namespace {

class Strokes : public KitWindow {
 protected:
  /// Of the screen, at a place in points.
  [[nodiscard]] QColor colorAt(qreal x, qreal y) {
    const QImage picture = view.grabWindow();
    const qreal pixels = view.effectiveDevicePixelRatio();
    return picture.pixelColor(qRound(x * pixels), qRound(y * pixels));
  }
};

// Run a second time where a point is one and a half pixels.
TEST_F(Strokes, AnArcRunsAlongTheEdgeOfItsItem) {
  ASSERT_NE(
      show("Item { width: 120; height: 120; Rectangle { anchors.fill: parent; color: 'black' }"
           " Arc { x: 10; y: 10; width: 100; height: 100; thickness: 10; color: '#ff0000';"
           " startAngle: 0; sweepAngle: 270 } }"),
      nullptr);
  const QColor red(255, 0, 0);
  EXPECT_EQ(colorAt(105, 62), red);
  EXPECT_EQ(colorAt(60, 105), red);
  EXPECT_EQ(colorAt(15, 60), red);
  EXPECT_EQ(colorAt(58, 15), red);
  for (const QPointF bare : {QPointF(60, 60), QPointF(95, 25), QPointF(60, 117), QPointF(5, 60)}) {
    EXPECT_EQ(colorAt(bare.x(), bare.y()), QColor(Qt::black)) << bare.x() << ' ' << bare.y();
  }
}

TEST_F(Strokes, AnArcFollowsItsAngles) {
  QQuickItem* const root = show(
      "Item { width: 120; height: 120; Rectangle { anchors.fill: parent; color: 'black' }"
      " Arc { objectName: 'arc'; width: 100; height: 100; thickness: 10; color: '#ff0000';"
      " sweepAngle: 90 } }");
  ASSERT_NE(root, nullptr);
  EXPECT_EQ(colorAt(5, 50), QColor(Qt::black));
  part("arc")->setProperty("startAngle", 135);
  settle();
  EXPECT_EQ(colorAt(5, 50), QColor(255, 0, 0));
}

TEST_F(Strokes, ACapsuleIsDashed) {
  ASSERT_NE(show("Item { width: 120; height: 40; Rectangle { anchors.fill: parent; color: 'black' }"
                 " DashedCapsule { width: 100; height: 30; color: 'white' } }"),
            nullptr);
  const QImage picture = view.grabWindow();
  int bright = 0;
  int dark = 0;
  const int width = qRound(100 * view.effectiveDevicePixelRatio());
  for (int x = width / 5; x < width * 4 / 5; ++x) {
    ++(picture.pixelColor(x, 0).lightness() > 127 ? bright : dark);
  }
  EXPECT_GT(bright, width / 5);
  EXPECT_GT(dark, width / 5);
}

}  // namespace
}  // namespace klarvik
