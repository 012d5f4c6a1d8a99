#pragma once

#include <span>
#include <string_view>

namespace klarvik {

/// A symbol as the models name it, and the ligature of the symbol font that draws it.
struct SymbolGlyph {
  std::string_view symbol;
  std::string_view glyph;
};

/// Every symbol that the interface uses.
[[nodiscard]] std::span<const SymbolGlyph> symbolTable();

/// Empty for a name that is not in the table.
[[nodiscard]] std::string_view glyphOfSymbol(std::string_view symbol);

}  // namespace klarvik
