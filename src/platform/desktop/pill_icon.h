#pragma once

#include <QColor>
#include <QIcon>

#include "platform/status_item.h"

namespace klarvik {

/// An icon that is drawn anew at each size that is asked for. Without an `icon` it is empty.
[[nodiscard]] QIcon pillIcon(StatusItem::Icon icon, const QColor& color);

}  // namespace klarvik
