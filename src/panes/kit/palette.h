#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QFont>
#include <QObject>
#include <QString>

#include "places/category_type.h"
#include "places/colors.h"

namespace klarvik {

/// Makes the symbols' font known to the program. Once, after the QGuiApplication is there; false
/// when the font cannot be read.
bool loadSymbolFont();

/// Inter, or the nearest face that is installed. `size` in logical pixels; Qt
/// 6.4 draws whole ones only, so a half goes up. `tracking` is added between letters. Main thread.
[[nodiscard]] QFont interfaceFont(qreal size, QFont::Weight weight, qreal tracking = 0);

/// The face whose ligatures are the symbols. Main thread.
[[nodiscard]] QFont symbolFont(qreal size);
/// A face whose characters are all as wide as each other. `size` as above.
[[nodiscard]] QFont codeFont(qreal size);

/// Every colour and measure that is drawn with. The window is dark whatever the desktop looks like.
/// QtQuick has a Palette of its own, so QML knows this one as `Theme`.
class Palette : public QObject {
  Q_OBJECT
  QML_NAMED_ELEMENT(Theme)
  QML_SINGLETON
  Q_PROPERTY(QColor canvas MEMBER canvas CONSTANT)
  Q_PROPERTY(QColor raised MEMBER raised CONSTANT)
  Q_PROPERTY(QColor textPrimary MEMBER textPrimary CONSTANT)
  Q_PROPERTY(QColor textMuted MEMBER textMuted CONSTANT)
  Q_PROPERTY(QColor textSecondary MEMBER textSecondary CONSTANT)
  Q_PROPERTY(QColor textTertiary MEMBER textTertiary CONSTANT)
  Q_PROPERTY(QColor accent MEMBER accent CONSTANT)
  Q_PROPERTY(QColor safe MEMBER safe CONSTANT)
  Q_PROPERTY(QColor review MEMBER review CONSTANT)
  Q_PROPERTY(QColor destructive MEMBER destructive CONSTANT)
  Q_PROPERTY(QColor hairline MEMBER hairline CONSTANT)
  Q_PROPERTY(QColor hairlineFaint MEMBER hairlineFaint CONSTANT)
  Q_PROPERTY(QColor hairlineStrong MEMBER hairlineStrong CONSTANT)
  Q_PROPERTY(QColor floating MEMBER floating CONSTANT)
  Q_PROPERTY(QColor onAccent MEMBER onAccent CONSTANT)
  Q_PROPERTY(QColor markDeep MEMBER markDeep CONSTANT)
  Q_PROPERTY(QColor markLight MEMBER markLight CONSTANT)
  Q_PROPERTY(QColor markPale MEMBER markPale CONSTANT)
  Q_PROPERTY(QColor iconTop MEMBER iconTop CONSTANT)
  Q_PROPERTY(QColor iconBottom MEMBER iconBottom CONSTANT)
  Q_PROPERTY(QColor clear MEMBER clear CONSTANT)
  Q_PROPERTY(QFont paneTitle READ paneTitle CONSTANT)
  Q_PROPERTY(QFont groupTitle READ groupTitle CONSTANT)
  Q_PROPERTY(int sidePadding MEMBER sidePadding CONSTANT)
  Q_PROPERTY(int partSpacing MEMBER partSpacing CONSTANT)
  Q_PROPERTY(int cornerRadius MEMBER cornerRadius CONSTANT)

 public:
  using QObject::QObject;

  const QColor canvas = QColor::fromRgbF(0.11F, 0.11F, 0.118F);
  const QColor raised = QColor::fromRgbF(0.137F, 0.137F, 0.149F);
  const QColor textPrimary = QColor::fromRgbF(0.949F, 0.949F, 0.957F);
  const QColor textMuted = QColor::fromRgbF(0.647F, 0.647F, 0.667F);
  const QColor textSecondary = QColor::fromRgbF(0.596F, 0.596F, 0.616F);
  const QColor textTertiary = QColor::fromRgbF(0.541F, 0.541F, 0.561F);
  const QColor accent = QColor::fromRgbF(0.039F, 0.518F, 1.0F);
  const QColor safe = QColor::fromRgbF(0.188F, 0.82F, 0.345F);
  const QColor review = QColor::fromRgbF(1.0F, 0.624F, 0.039F);
  const QColor destructive = QColor::fromRgb(255, 69, 58);
  const QColor hairline = white(0.06);
  const QColor hairlineFaint = white(0.04);
  const QColor hairlineStrong = white(0.08);
  const QColor floating = QColor::fromRgbF(0.19F, 0.19F, 0.204F);  ///< menus, tooltips, dialogs
  const QColor onAccent = Qt::white;
  const QColor markDeep = QColor::fromRgb(38, 84, 214);  ///< the brand mark, from the ground up
  const QColor markLight = QColor::fromRgb(64, 190, 255);
  const QColor markPale = QColor::fromRgb(178, 240, 255);
  const QColor iconTop = QColor::fromRgb(41, 47, 66);
  const QColor iconBottom = QColor::fromRgb(16, 18, 28);
  const QColor clear = Qt::transparent;

  const int sidePadding = 24;
  const int partSpacing = 12;
  const int cornerRadius = 6;

  [[nodiscard]] QFont paneTitle() const;
  [[nodiscard]] QFont groupTitle() const;

  /// The interface's face. `size` in logical pixels, rounded; `weight` is one of
  /// `QFont::Weight`; `tracking` is added between letters.
  Q_INVOKABLE [[nodiscard]] QFont font(qreal size, int weight = QFont::Normal,
                                       qreal tracking = 0) const;
  /// A face whose characters are all as wide as each other, for what is typed into a terminal.
  Q_INVOKABLE [[nodiscard]] QFont codeFont(qreal size) const;
  Q_INVOKABLE [[nodiscard]] QFont symbolFont(qreal size) const;
  /// The ligature that draws a symbol; empty for a name that nothing stands for.
  Q_INVOKABLE [[nodiscard]] static QString glyph(const QString& symbol);
  Q_INVOKABLE [[nodiscard]] static QColor white(qreal opacity);
  Q_INVOKABLE [[nodiscard]] static QColor shade(qreal opacity);
  /// A named system colour in its dark appearance, by name ("blue") or by the number of its
  /// `SystemColor`. An unknown one is gray.
  Q_INVOKABLE [[nodiscard]] QColor systemColor(const QString& name) const;
  Q_INVOKABLE [[nodiscard]] QColor systemColor(int color) const;
  [[nodiscard]] static QColor systemColor(SystemColor color);
  [[nodiscard]] static QColor color(const RgbColor& color);
};

}  // namespace klarvik
