#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <cstddef>
#include <cstdint>
#include <unordered_set>
#include <variant>
#include <vector>

#include "tools/app_info.h"

namespace klarvik {

class Formatting;

/// What the opened application has left behind, as one flat list: for each category that has
/// something a heading, and below it the leftovers, largest first. Main thread only.
class LeftoverList : public QAbstractListModel {
  Q_OBJECT
  QML_NAMED_ELEMENT(LeftoverListModel)
  QML_UNCREATABLE("The pane makes it.")
 public:
  enum class RowKind { Heading, Leftover };
  Q_ENUM(RowKind)
  enum Role {
    KindRole = Qt::UserRole,
    NameRole,
    PathRole,
    UrlRole,
    WhatItIsRole,
    SizeRole,
    IsSelectedRole,
    DescriptionRole,
  };

  explicit LeftoverList(const Formatting& formatting, QObject* parent = nullptr);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  [[nodiscard]] const std::vector<ResidualFile>& residuals() const { return _residuals; }
  [[nodiscard]] const std::unordered_set<Uuid>& selected() const { return _selected; }
  /// In the order in which they were found.
  [[nodiscard]] std::vector<ResidualFile> selectedResiduals() const;
  [[nodiscard]] std::int64_t totalSize() const;
  [[nodiscard]] std::int64_t selectedSize() const;

  /// Selects all but settings and data that the user may want again.
  void show(std::vector<ResidualFile> residuals);
  void clear();
  /// Selects the leftover of the row, or no longer. Nothing on a heading.
  void toggle(int row);

 signals:
  void selectionChanged();

 private:
  struct Heading {
    ResidualCategory category = ResidualCategory::other;
    std::int64_t size = 0;
  };
  using Row = std::variant<Heading, std::size_t>;  ///< else the place in `_residuals`

  [[nodiscard]] std::vector<Row> rowsOf(const std::vector<ResidualFile>& residuals) const;
  [[nodiscard]] QVariant headingData(const Heading& heading, int role) const;
  [[nodiscard]] QVariant leftoverData(const ResidualFile& residual, int role) const;

  const Formatting& _formatting;
  std::vector<ResidualFile> _residuals;
  std::unordered_set<Uuid> _selected;
  std::vector<Row> _rows;
};

}  // namespace klarvik
