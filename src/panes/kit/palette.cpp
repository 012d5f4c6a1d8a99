#include "panes/kit/palette.h"

#include <QFontDatabase>
#include <QResource>
#include <QStringList>
#include <array>
#include <map>
#include <string>
#include <string_view>
#include <tuple>

#include "panes/kit/symbol.h"

namespace klarvik {
namespace {

constexpr auto symbolFontFile = ":/Klarvik/Kit/symbols.ttf";
constexpr auto symbolFamily = "Framework7 Icons";

QFont makeInterfaceFont(int pixels, QFont::Weight weight, qreal tracking) {
  QFont font;
  font.setFamilies({"Inter", "Inter Variable", "Noto Sans", "Cantarell", "DejaVu Sans"});
  font.setWeight(weight);
  font.setHintingPreference(QFont::PreferVerticalHinting);
  font.setPixelSize(pixels);
  if (tracking != 0) font.setLetterSpacing(QFont::AbsoluteSpacing, tracking);
  return font;
}

}  // namespace

bool loadSymbolFont() {
  static const int font = [] {
    // A font that is loaded by its name is copied, once for each who reads it.
    static const QResource file(symbolFontFile);
    const auto* const bytes = reinterpret_cast<const char*>(file.data());
    return QFontDatabase::addApplicationFontFromData(QByteArray::fromRawData(bytes, file.size()));
  }();
  return font != -1;
}

QFont interfaceFont(qreal size, QFont::Weight weight, qreal tracking) {
  // A font that is kept has its face found once; a row of a table draws with five of them.
  static std::map<std::tuple<int, int, qreal>, QFont> made;
  const auto [found, isNew] = made.try_emplace({qRound(size), weight, tracking});
  if (isNew) found->second = makeInterfaceFont(qRound(size), weight, tracking);
  return found->second;
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
  static std::map<int, QFont> made;
  const auto [found, isNew] = made.try_emplace(qRound(size), QString(symbolFamily));
  if (isNew) {
    found->second.setStyleStrategy(QFont::NoFontMerging);
    found->second.setPixelSize(qRound(size));
  }
  return found->second;
}

namespace {

struct NamedColor {
  std::string_view name;
  SystemColor color;
  QRgb rgb;
};

constexpr std::array<NamedColor, 11> systemColors{{
    {"blue", SystemColor::blue, qRgb(10, 132, 255)},
    {"purple", SystemColor::purple, qRgb(191, 90, 242)},
    {"indigo", SystemColor::indigo, qRgb(94, 92, 230)},
    {"orange", SystemColor::orange, qRgb(255, 159, 10)},
    {"yellow", SystemColor::yellow, qRgb(255, 214, 10)},
    {"green", SystemColor::green, qRgb(48, 209, 88)},
    {"red", SystemColor::red, qRgb(255, 69, 58)},
    {"cyan", SystemColor::cyan, qRgb(100, 210, 255)},
    {"mint", SystemColor::mint, qRgb(99, 230, 226)},
    {"teal", SystemColor::teal, qRgb(64, 200, 224)},
    {"gray", SystemColor::gray, qRgb(152, 152, 157)},
}};

QColor colorWhere(auto matches) {
  for (const NamedColor& entry : systemColors) {
    if (matches(entry)) return QColor(entry.rgb);
  }
  return QColor(systemColors.back().rgb);
}

}  // namespace

QFont Palette::paneTitle() const {
  return font(17, QFont::DemiBold);
}
QFont Palette::groupTitle() const {
  return font(13, QFont::Medium);
}

QFont Palette::font(qreal size, int weight, qreal tracking) const {
  return interfaceFont(size, static_cast<QFont::Weight>(weight), tracking);
}

QFont Palette::codeFont(qreal size) const {
  return klarvik::codeFont(size);
}

QFont Palette::symbolFont(qreal size) const {
  return klarvik::symbolFont(size);
}

QString Palette::glyph(const QString& symbol) {
  const std::string_view name = glyphOfSymbol(symbol.toStdString());
  return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

QColor Palette::white(qreal opacity) {
  return QColor::fromRgbF(1, 1, 1, static_cast<float>(opacity));
}

QColor Palette::shade(qreal opacity) {
  return QColor::fromRgbF(0, 0, 0, static_cast<float>(opacity));
}

QColor Palette::systemColor(const QString& name) const {
  const std::string wanted = name.toStdString();
  return colorWhere([&](const NamedColor& entry) { return entry.name == wanted; });
}

QColor Palette::systemColor(int color) const {
  return systemColor(static_cast<SystemColor>(color));
}

QColor Palette::systemColor(SystemColor color) {
  return colorWhere([&](const NamedColor& entry) { return entry.color == color; });
}

QColor Palette::color(const RgbColor& color) {
  return QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green),
                          static_cast<float>(color.blue));
}

}  // namespace klarvik
