#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace klarvik {

/// Where a popover goes that belongs to an icon: below it, or above where there is no room below,
/// on one middle line with it, and in any case inside `screen`, the part of the icon's screen that
/// no panel takes.
[[nodiscard]] QPoint popoverPlace(const QRect& icon, const QSize& popover, const QRect& screen);

}  // namespace klarvik
