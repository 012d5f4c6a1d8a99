#include "panes/kit/content_slot.h"

namespace klarvik {

void ContentSlot::itemChange(ItemChange change, const ItemChangeData& data) {
  if (change == ItemChildAddedChange) data.item->setSize(size());
  QQuickItem::itemChange(change, data);
}

void ContentSlot::geometryChange(const QRectF& geometry, const QRectF& before) {
  QQuickItem::geometryChange(geometry, before);
  if (geometry.size() == before.size()) return;
  for (QQuickItem* child : childItems()) child->setSize(geometry.size());
}

}  // namespace klarvik
