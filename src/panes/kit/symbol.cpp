#include "panes/kit/symbol.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "panes/kit/palette.h"
#include "panes/kit/symbol_table.h"

namespace klarvik {
namespace {

constexpr qreal placePerSize = 1.25;

QColor usualColor() {
  static const QColor color = Palette().textPrimary;
  return color;
}

/// The middle, on a whole pixel.
int middle(qreal length) {
  return (static_cast<int>(std::ceil(length)) + 1) / 2;
}

}  // namespace

Symbol::Symbol(QQuickItem* parent) : PixelExactItem(parent), _color(usualColor()) {
  takePlace();
}

void Symbol::setName(const QString& name) {
  if (name == _name) return;
  _name = name;
  _glyph = Palette::glyph(name);
  update();
  emit nameChanged();
}

void Symbol::setSize(qreal size) {
  if (size == _size) return;
  _size = size;
  takePlace();
  update();
  emit sizeChanged();
}

void Symbol::setColor(const QColor& color) {
  if (color == _color) return;
  _color = color;
  update();
  emit colorChanged();
}

void Symbol::takePlace() {
  const qreal side = std::ceil(_size * placePerSize);
  setImplicitSize(side, side);
}

void Symbol::paint(QPainter* painter) {
  if (_glyph.isEmpty()) return;
  const QFont font = symbolFont(_size * placePerSize);
  const QFontMetricsF metrics(font);
  // Some reach beyond their advance.
  const qreal right =
      std::max(metrics.horizontalAdvance(_glyph), metrics.boundingRect(_glyph).right());
  const int left = middle(width()) - middle(right);
  const int top = middle(height()) - middle(metrics.height());
  painter->setFont(font);
  painter->setPen(_color);
  painter->drawText(QPointF(left, top + std::round(metrics.ascent())), _glyph);
}

}  // namespace klarvik
