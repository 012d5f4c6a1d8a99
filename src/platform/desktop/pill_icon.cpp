#include "platform/desktop/pill_icon.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>

namespace klarvik {
namespace {

class PillIconEngine final : public QIconEngine {
 public:
  PillIconEngine(StatusItem::Icon icon, const QColor& color) : _icon(icon), _color(color) {}

  void paint(QPainter* painter, const QRect& area, QIcon::Mode /*mode*/,
             QIcon::State /*state*/) override {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->translate(area.topLeft());
    for (const StatusItem::Pill& pill : _icon(area.width(), area.height())) {
      QColor fill = _color;
      fill.setAlphaF(static_cast<float>(pill.opacity));
      painter->setBrush(fill);
      painter->drawRoundedRect(QRectF(pill.x, pill.y, pill.width, pill.height), pill.radius,
                               pill.radius);
    }
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap drawn(size);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return drawn;
  }

  [[nodiscard]] QIconEngine* clone() const override { return new PillIconEngine(*this); }

 private:
  StatusItem::Icon _icon;
  QColor _color;
};

}  // namespace

QIcon pillIcon(StatusItem::Icon icon, const QColor& color) {
  return icon != nullptr ? QIcon(new PillIconEngine(icon, color)) : QIcon();
}

}  // namespace klarvik
