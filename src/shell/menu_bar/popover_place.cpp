#include "shell/menu_bar/popover_place.h"

#include <algorithm>

namespace klarvik {
namespace {

constexpr int gap = 4;

/// As near to `wanted` as a stretch of `length` can be within `low` to `high`; the start of what is
/// too long stays to be seen.
int held(int wanted, int length, int low, int high) {
  return std::max(low, std::min(wanted, high - length));
}

}  // namespace

QPoint popoverPlace(const QRect& icon, const QSize& popover, const QRect& screen) {
  const int right = screen.x() + screen.width();
  const int bottom = screen.y() + screen.height();
  const int below = icon.y() + icon.height() + gap;
  const int above = icon.y() - gap - popover.height();
  const bool hasRoomBelow = below + popover.height() <= bottom;
  const int x = icon.x() + icon.width() / 2 - popover.width() / 2;
  const int y = hasRoomBelow ? below : above;
  return {held(x, popover.width(), screen.x(), right),
          held(y, popover.height(), screen.y(), bottom)};
}

}  // namespace klarvik
