#include "panes/kit/donut.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "base/bytes.h"

#include "translation/translation.h"

namespace klarvik {
namespace {

constexpr double edgeTolerance = 4;

bool isOnRing(double x, double y, double size, double thickness) {
  const double middle = (size - thickness) / 2;
  return std::abs(std::hypot(x, y) - middle) <= thickness / 2 + edgeTolerance;
}

/// 0 at the top, below 1, clockwise.
double positionOnRing(double x, double y) {
  double angle = std::atan2(y, x) * 180 / std::numbers::pi + 90;
  if (angle < 0) angle += 360;
  return angle < 360 ? angle / 360 : 0;  // a hair below 0 rounds to a whole turn
}

}  // namespace

QList<DonutArc> donutArcs(const QList<DonutSlice>& slices) {
  qint64 sum = 0;
  for (const DonutSlice& slice : slices) sum = addBytes(sum, slice.value);
  const auto total = static_cast<double>(std::max<qint64>(sum, 1));

  QList<DonutArc> arcs;
  arcs.reserve(slices.size());
  qint64 before = 0;
  for (const DonutSlice& slice : slices) {
    const qint64 after = before + slice.value;
    arcs.append({.id = slice.id,
                 .color = slice.color,
                 .start = static_cast<double>(before) / total,
                 .end = static_cast<double>(after) / total});
    before = after;
  }
  return arcs;
}

QString donutSliceAt(const QList<DonutSlice>& slices, QPointF point, double size,
                     double thickness) {
  const double x = point.x() - size / 2;
  const double y = point.y() - size / 2;
  if (!isOnRing(x, y, size, thickness)) return {};
  const double position = positionOnRing(x, y);
  for (const DonutArc& arc : donutArcs(slices)) {
    if (arc.start <= position && position < arc.end) return arc.id;
  }
  return {};
}

double donutOpacity(const QString& id, const QString& highlighted) {
  return highlighted.isEmpty() || highlighted == id ? 1.0 : 0.35;
}

QString shareText(double share) {
  return translate("Kit", "%1%").arg(static_cast<qint64>(std::round(share * 100)));
}

}  // namespace klarvik
