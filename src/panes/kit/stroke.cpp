#include "panes/kit/stroke.h"

#include <QPainter>
#include <QPainterPath>
#include <QPen>

namespace klarvik {

Stroke::Stroke(QQuickItem* parent) : PixelExactItem(parent) {
  setAntialiasing(true);
  connect(this, &Stroke::changed, this, [this] { update(); });
}

QPen Stroke::pen() const {
  return {_color, _thickness, Qt::SolidLine, Qt::FlatCap};
}

QRectF Stroke::course() const {
  const qreal margin = _thickness / 2;
  return boundingRect().adjusted(margin, margin, -margin, -margin);
}

void Arc::paint(QPainter* painter) {
  QPainterPath path;
  // Counter-clockwise, for a painter.
  path.arcMoveTo(course(), -_startAngle);
  path.arcTo(course(), -_startAngle, -_sweepAngle);
  QPen line = pen();
  if (_hasRoundEnds) line.setCapStyle(Qt::RoundCap);
  painter->strokePath(path, line);
}

void DashedCapsule::paint(QPainter* painter) {
  const qreal radius = course().height() / 2;
  QPen line = pen();
  line.setDashPattern({3, 3});
  painter->setPen(line);
  painter->drawRoundedRect(course(), radius, radius);
}

}  // namespace klarvik
