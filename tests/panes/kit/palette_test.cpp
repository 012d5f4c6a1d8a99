#include "panes/kit/palette.h"

#include <set>

#include "kit_window.h"

namespace klarvik {
namespace {

class PaletteOfTheKit : public KitWindow {};

TEST_F(PaletteOfTheKit, HoldsTheColoursOfTheDarkWindow) {
  const Palette palette;
  EXPECT_EQ(palette.canvas, QColor::fromRgbF(0.11F, 0.11F, 0.118F));
  EXPECT_EQ(palette.accent, QColor::fromRgbF(0.039F, 0.518F, 1.0F));
  EXPECT_EQ(palette.review, QColor::fromRgbF(1.0F, 0.624F, 0.039F));
  EXPECT_EQ(palette.hairline, QColor::fromRgbF(1, 1, 1, 0.06F));
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
