#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <string>
#include <vector>

#include "core/uuid.h"
#include "places/disk_layout.h"

namespace klarvik {

/// What an idle pane shows: the categories that a scan goes through. Never changes.
class ScanPreviewModel : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The pane makes it.")
 public:
  struct Row {
    Uuid id = Uuid::random();
    std::string name;
    SafetyLevel level = SafetyLevel::safe;
  };
  enum Role { NameRole = Qt::UserRole, SafetyRole };

  explicit ScanPreviewModel(const DiskLayout& layout, QObject* parent = nullptr);

  [[nodiscard]] const std::vector<Row>& rows() const { return _rows; }

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

 private:
  std::vector<Row> _rows;
};

}  // namespace klarvik
