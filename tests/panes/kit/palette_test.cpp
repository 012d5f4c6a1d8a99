#include "panes/kit/palette.h"

#include <algorithm>
#include <cmath>
#include <set>

#include "kit_window.h"

namespace klarvik {
namespace {

class PaletteOfTheKit : public KitWindow {};

double luminance(const QColor& color) {
  const auto linear = [](double part) {
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
         0.0722 * linear(color.blueF());
}

/// 1 for two equal colours, 21 for white on black.
double contrast(const QColor& one, const QColor& other) {
  const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
  return (lighter + 0.05) / (darker + 0.05);
}

TEST_F(PaletteOfTheKit, HoldsTheColoursOfTheDarkWindow) {
  const Palette palette;
  EXPECT_EQ(palette.canvas, QColor::fromRgbF(0.11F, 0.11F, 0.118F));
  EXPECT_EQ(palette.accent, QColor::fromRgbF(0.039F, 0.518F, 1.0F));
  EXPECT_EQ(palette.review, QColor::fromRgbF(1.0F, 0.624F, 0.039F));
  EXPECT_EQ(palette.hairline, QColor::fromRgbF(1, 1, 1, 0.06F));
}

TEST_F(PaletteOfTheKit, HasTextsThatAreReadOnTheirGrounds) {
  const Palette palette;
  EXPECT_NEAR(contrast(Qt::white, Qt::black), 21, 0.01);
  for (const QColor& ground : {palette.canvas, palette.raised}) {
    for (const QColor& text : {palette.textPrimary, palette.textMuted, palette.textSecondary,
                               palette.textTertiary, palette.safe, palette.review}) {
      EXPECT_GE(contrast(text, ground), 4.5) << text.name().toStdString();
    }
    EXPECT_GE(contrast(palette.accent, ground), 3);
    EXPECT_GE(contrast(palette.destructive, ground), 3);
  }
  for (const QColor& text : {palette.textPrimary, palette.textMuted, palette.textSecondary}) {
    EXPECT_GE(contrast(text, palette.floating), 4.5) << text.name().toStdString();
  }
  EXPECT_GE(contrast(palette.onAccent, palette.accent), 3);
}

TEST_F(PaletteOfTheKit, NamesElevenDifferentSystemColours) {
  const Palette palette;
  std::set<QRgb> different;
  for (const char* name : {"blue", "purple", "indigo", "orange", "yellow", "green", "red", "cyan",
                           "mint", "teal", "gray"}) {
    different.insert(palette.systemColor(QString(name)).rgb());
  }
  EXPECT_EQ(different.size(), 11U);
  EXPECT_EQ(palette.systemColor(QString("blue")), Palette::systemColor(SystemColor::blue));
  EXPECT_EQ(palette.systemColor(static_cast<int>(SystemColor::teal)),
            palette.systemColor(QString("teal")));
}

TEST_F(PaletteOfTheKit, StylesTheTitles) {
  const Palette palette;
  EXPECT_EQ(palette.paneTitle().pixelSize(), 17);
  EXPECT_EQ(palette.paneTitle().weight(), QFont::DemiBold);
  EXPECT_EQ(palette.groupTitle().pixelSize(), 13);
  EXPECT_EQ(palette.groupTitle().weight(), QFont::Medium);
}

TEST_F(PaletteOfTheKit, RoundsAHalfSizeUp) {
  const Palette palette;
  EXPECT_EQ(palette.font(10.5).pixelSize(), 11);
  EXPECT_EQ(palette.font(13.5).pixelSize(), 14);
}

}  // namespace
}  // namespace klarvik
