#include "panes/kit/pixel_exact_item.h"

#include <QQuickWindow>
#include <cmath>

namespace klarvik {
namespace {

/// The fewest points that are a whole number of pixels; 1 where no few points are.
int wholePoints(qreal pixelsPerPoint) {
  constexpr int most = 8;
  for (int points = 1; points <= most; ++points) {
    if (points * pixelsPerPoint == std::round(points * pixelsPerPoint)) return points;
  }
  return 1;
}

}  // namespace

PixelExactItem::PixelExactItem(QQuickItem* parent) : QQuickPaintedItem(parent) {
  setSmooth(false);
}

void PixelExactItem::itemChange(ItemChange change, const ItemChangeData& data) {
  if (change == ItemSceneChange || change == ItemDevicePixelRatioHasChanged) fitPicture();
  QQuickPaintedItem::itemChange(change, data);
}

void PixelExactItem::geometryChange(const QRectF& now, const QRectF& before) {
  if (now.size() != before.size()) fitPicture();
  QQuickPaintedItem::geometryChange(now, before);
}

/// Left to itself, the picture has a pixel for each point. It may be larger than the item, by what
/// is missing to a whole number of pixels.
void PixelExactItem::fitPicture() {
  if (window() == nullptr) return;
  const qreal pixelsPerPoint = window()->effectiveDevicePixelRatio();
  const int step = wholePoints(pixelsPerPoint);
  const auto up = [step](qreal length) {
    return static_cast<int>(std::ceil(length / step)) * step;
  };
  const QSize points(up(width()), up(height()));
  setContentsSize(points);
  setTextureSize(
      {qRound(points.width() * pixelsPerPoint), qRound(points.height() * pixelsPerPoint)});
}

}  // namespace klarvik
