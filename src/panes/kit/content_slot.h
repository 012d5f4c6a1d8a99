#pragma once

#include <QtQml/qqmlregistration.h>
#include <QQuickItem>

namespace klarvik {

/// A place for what another element is handed: each child has its position and size. Main thread.
class ContentSlot : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
 public:
  using QQuickItem::QQuickItem;

 protected:
  void itemChange(ItemChange change, const ItemChangeData& data) override;
  void geometryChange(const QRectF& geometry, const QRectF& before) override;
};

}  // namespace klarvik
