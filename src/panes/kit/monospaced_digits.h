#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QFont>
#include <QString>

#include "panes/kit/pixel_exact_item.h"

namespace klarvik {

/// One line of text whose digits all take the width of the widest, so that a figure that counts up
/// does not tremble and figures below each other stand in columns. Qt 6.4 cannot turn on a face's
/// own tabular figures.
class MonospacedDigits : public klarvik::PixelExactItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
  Q_PROPERTY(qreal size READ size WRITE setSize NOTIFY fontChanged)
  Q_PROPERTY(int weight READ weight WRITE setWeight NOTIFY fontChanged)
  Q_PROPERTY(Qt::Alignment alignment READ alignment WRITE setAlignment NOTIFY alignmentChanged)
  Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)

 public:
  explicit MonospacedDigits(QQuickItem* parent = nullptr);

  [[nodiscard]] QString text() const { return _text; }
  void setText(const QString& text);
  [[nodiscard]] qreal size() const { return _size; }
  void setSize(qreal size);
  [[nodiscard]] int weight() const { return _weight; }
  void setWeight(int weight);
  [[nodiscard]] QColor color() const { return _color; }
  void setColor(const QColor& color);

  /// Left, right or centre, in an item that is wider than its text.
  [[nodiscard]] Qt::Alignment alignment() const { return _alignment; }
  void setAlignment(Qt::Alignment alignment);

  void paint(QPainter* painter) override;

 signals:
  void textChanged();
  void fontChanged();
  void colorChanged();
  void alignmentChanged();

 private:
  void layOut();

  QString _text;
  qreal _size = 13;
  int _weight = QFont::Normal;
  QColor _color = Qt::white;
  Qt::Alignment _alignment = Qt::AlignLeft;
  QFont _font;
  qreal _digitWidth = 0;
};

}  // namespace klarvik
