#include "panes/kit/symbol.h"

#include <QFont>
#include <QGlyphRun>
#include <QTextLayout>

#include "kit_window.h"
#include "panes/kit/palette.h"
#include "places/category_type.h"

namespace klarvik {
namespace {

class Symbols : public KitWindow {
 protected:
  /// The glyphs that the symbol font, and no other, draws `text` with.
  static QList<quint32> glyphs(const QString& text) {
    QTextLayout layout(text, symbolFont(32));
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    QList<quint32> result;
    for (const QGlyphRun& run : layout.glyphRuns()) {
      EXPECT_EQ(run.rawFont().familyName(), symbolFont(32).family());
      result += run.glyphIndexes();
    }
    return result;
  }
};

TEST_F(Symbols, EachIsDrawnByExactlyOneGlyphOfTheFont) {
  ASSERT_FALSE(symbolTable().empty());
  for (const SymbolGlyph& entry : symbolTable()) {
    const auto found =
        glyphs(QString::fromLatin1(entry.glyph.data(), static_cast<qsizetype>(entry.glyph.size())));
    ASSERT_EQ(found.size(), 1) << entry.symbol;
    EXPECT_NE(found[0], 0U) << entry.symbol;
  }
}

TEST_F(Symbols, ANameThatTheFontDoesNotHaveIsMoreThanOneGlyph) {
  EXPECT_GT(glyphs("no_such_symbol").size(), 1);
}

TEST_F(Symbols, EveryCategoryHasOne) {
  for (const CategoryType type : allCategoryTypes()) {
    EXPECT_NE(glyphOfSymbol(icon(type)), "") << icon(type);
  }
}

TEST_F(Symbols, AnUnknownNameHasNone) {
  EXPECT_EQ(glyphOfSymbol("no.such.symbol"), "");
}

}  // namespace
}  // namespace klarvik
