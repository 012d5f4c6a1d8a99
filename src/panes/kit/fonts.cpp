#include "panes/kit/fonts.h"

#include <QFontDatabase>
#include <QStringList>

namespace klarvik {
namespace {

constexpr auto symbolFontFile = ":/Klarvik/Kit/symbols.ttf";
constexpr auto symbolFamily = "Framework7 Icons";

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
  font.setPixelSize(qRound(size));
  return font;
}

QFont codeFont(qreal size) {
  QFont font;
  font.setFamilies({"DejaVu Sans Mono", "Noto Sans Mono", "Liberation Mono", "monospace"});
  font.setStyleHint(QFont::Monospace);
  font.setHintingPreference(QFont::PreferVerticalHinting);
  font.setPixelSize(qRound(size));
  return font;
}

QFont symbolFont(qreal size) {
  QFont font{QString(symbolFamily)};
  font.setStyleStrategy(QFont::NoFontMerging);
  font.setPixelSize(qRound(size));
  return font;
}

}  // namespace klarvik
