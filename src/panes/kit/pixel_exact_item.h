#pragma once

#include <QtQml/qqmlregistration.h>

#include <QtQuick/QQuickPaintedItem>

namespace klarvik {

/// An item that is painted into a picture, whose every pixel becomes one of the screen, wherever
/// the item lies and however many pixels a point is. Otherwise the picture would be drawn between
/// the pixels, and be blurred. Main thread.
class PixelExactItem : public QQuickPaintedItem {
  Q_OBJECT
  QML_ANONYMOUS
 public:
  explicit PixelExactItem(QQuickItem* parent = nullptr);

 protected:
  void itemChange(ItemChange change, const ItemChangeData& data) override;
  void geometryChange(const QRectF& now, const QRectF& before) override;

 private:
  void fitPicture();
};

}  // namespace klarvik
