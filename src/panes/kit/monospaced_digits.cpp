#include "panes/kit/monospaced_digits.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QStringView>
#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

#include "panes/kit/palette.h"

namespace klarvik {
namespace {

bool isDigit(QChar character) {
  return character >= u'0' && character <= u'9';
}

/// Calls `take` with each digit alone and with what stands between two digits as a whole.
void forEachRun(const QString& text, auto take) {
  qsizetype start = 0;
  while (start < text.size()) {
    qsizetype end = start + 1;
    if (!isDigit(text[start])) {
      while (end < text.size() && !isDigit(text[end])) ++end;
    }
    take(text.mid(start, end - start));
    start = end;
  }
}

/// That of the widest, found once for each font.
qreal digitWidth(qreal size, int weight) {
  static std::map<std::pair<qreal, int>, qreal> widths;
  const auto [found, isNew] = widths.try_emplace({size, weight}, 0);
  if (isNew) {
    const QFontMetricsF metrics(interfaceFont(size, static_cast<QFont::Weight>(weight)));
    for (char16_t digit = u'0'; digit <= u'9'; ++digit) {
      found->second = std::max(found->second, metrics.horizontalAdvance(QChar(digit)));
    }
    found->second = std::round(found->second);
  }
  return found->second;
}

}  // namespace

MonospacedDigits::MonospacedDigits(QQuickItem* parent) : PixelExactItem(parent) {
  layOut();
}

void MonospacedDigits::setText(const QString& text) {
  if (text == _text) return;
  _text = text;
  layOut();
  emit textChanged();
}

void MonospacedDigits::setSize(qreal size) {
  if (size == _size) return;
  _size = size;
  layOut();
  emit fontChanged();
}

void MonospacedDigits::setWeight(int weight) {
  if (weight == _weight) return;
  _weight = weight;
  layOut();
  emit fontChanged();
}

void MonospacedDigits::setColor(const QColor& color) {
  if (color == _color) return;
  _color = color;
  update();
  emit colorChanged();
}

void MonospacedDigits::setAlignment(Qt::Alignment alignment) {
  if (alignment == _alignment) return;
  _alignment = alignment;
  update();
  emit alignmentChanged();
}

void MonospacedDigits::layOut() {
  _font = interfaceFont(_size, static_cast<QFont::Weight>(_weight));
  const QFontMetricsF metrics(_font);
  _digitWidth = digitWidth(_size, _weight);
  qreal width = 0;
  forEachRun(_text, [&](const QString& run) {
    width += isDigit(run[0]) ? _digitWidth : metrics.horizontalAdvance(run);
  });
  setImplicitSize(std::ceil(width), std::ceil(metrics.height()));
  setBaselineOffset(metrics.ascent());
  update();
}

void MonospacedDigits::paint(QPainter* painter) {
  const QFontMetricsF metrics(_font);
  painter->setFont(_font);
  painter->setPen(_color);
  const qreal baseline = std::round((height() - metrics.height()) / 2 + metrics.ascent());
  const qreal spare = std::max(0.0, std::floor(width() - implicitWidth()));
  qreal x = _alignment & Qt::AlignRight ? spare : _alignment & Qt::AlignHCenter ? spare / 2 : 0;
  forEachRun(_text, [&](const QString& run) {
    const qreal advance = metrics.horizontalAdvance(run);
    const qreal slot = isDigit(run[0]) ? _digitWidth : advance;
    painter->drawText(QPointF(x + (slot - advance) / 2, baseline), run);
    x += slot;
  });
}

}  // namespace klarvik
