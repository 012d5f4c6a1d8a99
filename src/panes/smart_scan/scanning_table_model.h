#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "state/app_state.h"

namespace klarvik {

class Formatting;

/// A line of the table that grows while a scan runs.
struct FoundRow {
  struct InProgress {
    bool operator==(const InProgress&) const = default;
  };
  using Safety = std::variant<SafetyLevel, InProgress>;

  std::string name;
  Safety safety;
  std::int64_t items = 0;
  std::int64_t bytes = 0;
  bool operator==(const FoundRow&) const = default;
};

/// What a running scan has found, in order of arrival, and below it the category it is at. Rows are
/// added and changed in place. Main thread only.
class ScanningTableModel : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The pane makes it.")
 public:
  enum class RowSafety { Safe, Review, InProgress };
  Q_ENUM(RowSafety)
  enum Role { NameRole = Qt::UserRole, SafetyRole, ItemsRole, SizeRole, DescriptionRole };

  ScanningTableModel(const AppState& appState, const Formatting& formatting,
                     QObject* parent = nullptr);

  [[nodiscard]] const std::vector<FoundRow>& rows() const { return _rows; }

  /// Brings the rows in line with the application's state. Empty unless a scan runs.
  void update();

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

 private:
  [[nodiscard]] std::vector<FoundRow> currentRows() const;
  void remove(std::size_t first, std::size_t count);
  void insert(std::size_t at, const FoundRow& row);

  const AppState& _appState;
  const Formatting& _formatting;
  std::vector<FoundRow> _rows;
};

}  // namespace klarvik
