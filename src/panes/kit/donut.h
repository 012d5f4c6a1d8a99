#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QList>
#include <QMetaType>
#include <QPointF>
#include <QString>

namespace klarvik {

struct DonutSlice {
  Q_GADGET
  QML_VALUE_TYPE(donutSlice)
  Q_PROPERTY(QString id MEMBER id)
  Q_PROPERTY(QString label MEMBER label)
  Q_PROPERTY(qint64 value MEMBER value)
  Q_PROPERTY(QColor color MEMBER color)

 public:
  QString id;
  QString label;
  qint64 value = 0;
  QColor color;

  bool operator==(const DonutSlice&) const = default;
};

/// The place of one slice on the ring: parts of a whole turn, clockwise from the top.
struct DonutArc {
  Q_GADGET
  QML_VALUE_TYPE(donutArc)
  Q_PROPERTY(QString id MEMBER id)
  Q_PROPERTY(QColor color MEMBER color)
  Q_PROPERTY(double start MEMBER start)
  Q_PROPERTY(double end MEMBER end)

 public:
  QString id;
  QColor color;
  double start = 0;
  double end = 0;

  /// Angles in degrees, clockwise, 0 at the right; `sweep` (0 to 1) is how much of the ring has
  /// been drawn so far.
  Q_INVOKABLE [[nodiscard]] double drawnStart(double sweep) const {
    return start * sweep * 360 - 90;
  }
  Q_INVOKABLE [[nodiscard]] double drawnEnd(double sweep) const { return end * sweep * 360 - 90; }

  bool operator==(const DonutArc&) const = default;
};

[[nodiscard]] QList<DonutArc> donutArcs(const QList<DonutSlice>& slices);

/// The slice at `point` of a chart of `size` × `size`; empty off the ring.
[[nodiscard]] QString donutSliceAt(const QList<DonutSlice>& slices, QPointF point, double size,
                                   double thickness);

/// `highlighted` is the id of a slice, or empty.
[[nodiscard]] double donutOpacity(const QString& id, const QString& highlighted);

/// A share of 0 to 1 in whole percent.
[[nodiscard]] QString shareText(double share);

}  // namespace klarvik
