#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <cstddef>
#include <functional>
#include <vector>

#include "core/uuid.h"

namespace klarvik {

/// A flat list whose rows are known again by what they stand for, so that another list of rows can
/// take its place with the fewest changes: scroll position, focus and what is open survive. Made
/// for lists of thousands of rows. Main thread only.
class KeyedListModel : public QAbstractListModel {
  Q_OBJECT
  QML_ANONYMOUS
 public:
  using QAbstractListModel::QAbstractListModel;

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;

 protected:
  /// The first three are what a row stands for; the others say where the model finds it.
  struct Row {
    int kind = 0;
    int section = 0;
    Uuid item{};
    std::size_t sectionPlace = 0;
    std::size_t itemPlace = 0;

    [[nodiscard]] bool isSame(const Row& other) const {
      return kind == other.kind && section == other.section && item == other.item;
    }
  };

  [[nodiscard]] const std::vector<Row>& rows() const { return _rows; }

  /// Removes the rows that are not among `wanted`, calls `exchange`, which puts the data of the
  /// wanted rows in place, then moves, inserts and redraws rows. No two of `wanted` are the same.
  void showRows(const std::vector<Row>& wanted, const std::function<void()>& exchange = {});

 private:
  void removeRowsMissingFrom(const std::vector<Row>& wanted);
  void moveRowsAsIn(const std::vector<Row>& wanted);
  void insertRowsOf(const std::vector<Row>& wanted);

  std::vector<Row> _rows;
};

}  // namespace klarvik
