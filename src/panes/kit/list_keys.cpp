#include "panes/kit/list_keys.h"

#include <QtCore/qnamespace.h>
#include <algorithm>

namespace klarvik {
namespace {

std::optional<int> stepOf(int key, const ListPlace& place) {
  // One row stays in sight, so that the eye finds its way.
  const int page = std::max(1, place.rowsInSight - 1);
  switch (key) {
    case Qt::Key_PageUp:
      return -page;
    case Qt::Key_PageDown:
      return page;
    case Qt::Key_Home:
      return -place.rowCount;
    case Qt::Key_End:
      return place.rowCount;
    default:
      return std::nullopt;
  }
}

}  // namespace

std::optional<int> rowReachedBy(int key, const ListPlace& place) {
  const std::optional<int> step = stepOf(key, place);
  if (!step || place.rowCount == 0) return std::nullopt;
  return std::clamp(place.row + *step, 0, place.rowCount - 1);
}

}  // namespace klarvik
