#include "panes/kit/fonts.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QScreen>
#include <QStringList>
#include <cmath>

namespace klarvik {
namespace {

constexpr auto symbolFontFile = ":/Klarvik/Kit/symbols.ttf";
constexpr auto symbolFamily = "Framework7 Icons";

/// Whole sizes are set in pixels; Qt takes fractions only in points.
void setLogicalSize(QFont& font, qreal size) {
  if (size == std::round(size)) {
    font.setPixelSize(static_cast<int>(size));
    return;
  }
  const QScreen* screen = QGuiApplication::primaryScreen();
  const qreal dotsPerInch = screen == nullptr ? 96 : screen->logicalDotsPerInchY();
  font.setPointSizeF(size * 72 / dotsPerInch);
}

}  // namespace

bool loadSymbolFont() {
  static const int font = QFontDatabase::addApplicationFont(symbolFontFile);
  return font != -1;
}

QFont interfaceFont(qreal size, QFont::Weight weight) {
  QFont font;
  font.setFamilies({"Inter", "Inter Variable", "Noto Sans", "Cantarell", "DejaVu Sans"});
  font.setWeight(weight);
  font.setHintingPreference(QFont::PreferVerticalHinting);
  setLogicalSize(font, size);
  return font;
}

QFont symbolFont(qreal size) {
  QFont font{QString(symbolFamily)};
  font.setStyleStrategy(QFont::NoFontMerging);
  setLogicalSize(font, size);
  return font;
}

}  // namespace klarvik
