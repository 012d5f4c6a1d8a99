#pragma once

#include <QtQml/qqmlregistration.h>

#include <QColor>

#include "panes/kit/pixel_exact_item.h"

namespace klarvik {

/// A line of this colour and thickness, in points, along the inner edge of the item. Shapes of
/// Qt 6.4 are misplaced by its software renderer where a point is more than a pixel.
class Stroke : public klarvik::PixelExactItem {
  Q_OBJECT
  QML_ANONYMOUS
  Q_PROPERTY(QColor color MEMBER _color NOTIFY changed)
  Q_PROPERTY(qreal thickness MEMBER _thickness NOTIFY changed)
 public:
  explicit Stroke(QQuickItem* parent = nullptr);

 signals:
  void changed();

 protected:
  [[nodiscard]] QPen pen() const;
  /// Where the middle of the line runs.
  [[nodiscard]] QRectF course() const;

 private:
  QColor _color = Qt::white;
  qreal _thickness = 1;
};

/// A part of a circle. Angles in degrees, clockwise, 0 at the right.
class Arc : public klarvik::Stroke {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(qreal startAngle MEMBER _startAngle NOTIFY changed)
  Q_PROPERTY(qreal sweepAngle MEMBER _sweepAngle NOTIFY changed)
  Q_PROPERTY(bool hasRoundEnds MEMBER _hasRoundEnds NOTIFY changed)
 public:
  explicit Arc(QQuickItem* parent = nullptr) : Stroke(parent) {}

  void paint(QPainter* painter) override;

 private:
  qreal _startAngle = 0;
  qreal _sweepAngle = 0;
  bool _hasRoundEnds = false;
};

/// A dashed line around a shape whose short sides are half circles.
class DashedCapsule : public klarvik::Stroke {
  Q_OBJECT
  QML_ELEMENT
 public:
  explicit DashedCapsule(QQuickItem* parent = nullptr) : Stroke(parent) {}

  void paint(QPainter* painter) override;
};

}  // namespace klarvik
