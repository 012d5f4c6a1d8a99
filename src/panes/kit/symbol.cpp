#include "panes/kit/symbol.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>

#include "panes/kit/palette.h"

namespace klarvik {
namespace {

/// Where the font has no namesake, the nearest in meaning stands in. Sorted by symbol.
constexpr auto table = std::to_array<SymbolGlyph>({
    {"app.badge.fill", "app_badge_fill"},
    {"archivebox.fill", "archivebox_fill"},
    {"arrow.clockwise", "arrow_clockwise"},
    {"arrow.down.circle.fill", "arrow_down_circle_fill"},
    {"arrow.triangle.2.circlepath", "arrow_2_circlepath"},
    {"arrow.uturn.backward", "arrow_uturn_left"},
    {"bookmark.fill", "bookmark_fill"},
    {"building.columns.fill", "building_columns_fill"},
    {"chart.bar.fill", "chart_bar_fill"},
    {"checkmark", "checkmark"},
    {"checkmark.circle", "checkmark_circle"},
    {"checkmark.circle.fill", "checkmark_circle_fill"},
    {"checkmark.shield.fill", "checkmark_shield_fill"},
    {"chevron.down", "chevron_down"},
    {"chevron.left", "chevron_left"},
    {"chevron.right", "chevron_right"},
    {"chevron.up.chevron.down", "chevron_up_chevron_down"},
    {"circle.dashed", "circle"},
    {"clock.arrow.2.circlepath", "arrow_counterclockwise_circle_fill"},
    {"cpu.fill", "square_grid_4x3_fill"},
    {"cylinder.fill", "layers_alt_fill"},
    {"doc.badge.clock.fill", "stopwatch_fill"},
    {"doc.on.doc", "doc_on_doc"},
    {"doc.text.fill", "doc_text_fill"},
    {"doc.text.magnifyingglass", "doc_text_search"},
    {"envelope.fill", "envelope_fill"},
    {"exclamationmark.triangle.fill", "exclamationmark_triangle_fill"},
    {"externaldrive", "tray"},
    {"externaldrive.fill", "tray_fill"},
    {"folder", "folder"},
    {"folder.fill", "folder_fill"},
    {"gear", "gear"},
    {"gearshape", "gear_alt"},
    {"gearshape.fill", "gear_alt_fill"},
    {"globe", "globe"},
    {"hammer.fill", "hammer_fill"},
    {"house.fill", "house_fill"},
    {"icloud.and.arrow.up.fill", "cloud_upload_fill"},
    {"icloud.fill", "cloud_fill"},
    {"info.circle", "info_circle"},
    {"iphone", "device_phone_portrait"},
    {"lock.fill", "lock_fill"},
    {"lock.shield.fill", "lock_shield_fill"},
    {"macwindow", "macwindow"},
    {"magnifyingglass", "search"},
    {"memorychip", "square_grid_3x2"},
    {"memorychip.fill", "square_grid_3x2_fill"},
    {"minus", "minus"},
    {"mug.fill", "drop_fill"},
    {"person.2.fill", "person_2_fill"},
    {"plus", "plus"},
    {"safari.fill", "compass_fill"},
    {"shield", "shield"},
    {"shippingbox.and.arrow.backward.fill", "cube_box_fill"},
    {"shippingbox.fill", "shippingbox_fill"},
    {"sparkles", "sparkles"},
    {"square.dashed", "viewfinder"},
    {"square.stack.3d.up.fill", "square_stack_3d_up_fill"},
    {"stethoscope", "waveform_path_ecg"},
    {"trash", "trash"},
    {"trash.fill", "trash_fill"},
    {"wrench.and.screwdriver.fill", "wrench_fill"},
    {"xmark", "xmark"},
    {"xmark.circle", "xmark_circle"},
    {"xmark.circle.fill", "xmark_circle_fill"},
});
static_assert(std::ranges::is_sorted(table, {}, &SymbolGlyph::symbol));

}  // namespace

std::span<const SymbolGlyph> symbolTable() {
  return table;
}

std::string_view glyphOfSymbol(std::string_view symbol) {
  const auto found = std::ranges::lower_bound(table, symbol, {}, &SymbolGlyph::symbol);
  return found != table.end() && found->symbol == symbol ? found->glyph : std::string_view{};
}

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
