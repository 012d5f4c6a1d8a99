#include "panes/kit/pixel_exact_item.h"

#include <cmath>

#include "kit_window.h"

namespace klarvik {
namespace {

class PixelExactItems : public KitWindow {};

// Run a second time where a point is one and a half pixels.
TEST_F(PixelExactItems, HaveAPixelForEachOfTheScreensUnderThem) {
  const QQuickItem* const root = show(
      "Item { width: 200; height: 60;"
      " MonospacedDigits { objectName: 'figure'; text: '569.2 MB' }"
      " Symbol { objectName: 'symbol'; name: 'trash'; size: 13; y: 30 } }");
  ASSERT_NE(root, nullptr);
  const qreal pixels = view.effectiveDevicePixelRatio();
  for (const char* const name : {"figure", "symbol"}) {
    const auto* const item = root->findChild<PixelExactItem*>(name);
    ASSERT_NE(item, nullptr) << name;
    EXPECT_FALSE(item->smooth());
    const QSizeF covered = item->contentsBoundingRect().size();
    EXPECT_EQ(QSizeF(item->textureSize()), covered * pixels) << name << " at " << pixels;
    EXPECT_GE(covered.width(), item->width());
    EXPECT_GE(covered.height(), item->height());
  }
}

}  // namespace
}  // namespace klarvik
