#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QString>
#include <span>
#include <string_view>

#include "panes/kit/pixel_exact_item.h"

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

/// A symbol in the middle of its place, which is a quarter larger than its size. Rows are made of
/// many, so it is one item that draws a glyph. Main thread.
class Symbol : public klarvik::PixelExactItem {
  Q_OBJECT
  QML_ELEMENT
  /// As the symbol table has it; nothing is drawn for one that it lacks.
  Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged REQUIRED)
  Q_PROPERTY(qreal size READ size WRITE setSize NOTIFY sizeChanged)
  Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)

 public:
  explicit Symbol(QQuickItem* parent = nullptr);

  [[nodiscard]] QString name() const { return _name; }
  void setName(const QString& name);
  [[nodiscard]] qreal size() const { return _size; }
  void setSize(qreal size);
  [[nodiscard]] QColor color() const { return _color; }
  void setColor(const QColor& color);

  void paint(QPainter* painter) override;

 signals:
  void nameChanged();
  void sizeChanged();
  void colorChanged();

 private:
  void takePlace();

  QString _name;
  QString _glyph;
  qreal _size = 13;
  QColor _color;
};

}  // namespace klarvik
