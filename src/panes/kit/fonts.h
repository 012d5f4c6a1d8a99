#pragma once

#include <QFont>

namespace klarvik {

/// Makes the symbols' font known to the program. Once, after the QGuiApplication is there; false
/// when the font cannot be read.
bool loadSymbolFont();

/// Inter, or the nearest face that is installed. `size` in logical pixels; Qt
/// 6.4 draws whole ones only, so a half goes up.
[[nodiscard]] QFont interfaceFont(qreal size, QFont::Weight weight);

/// A face whose characters are all as wide as each other. `size` as above.
[[nodiscard]] QFont codeFont(qreal size);

/// The face whose ligatures are the symbols.
[[nodiscard]] QFont symbolFont(qreal size);

}  // namespace klarvik
