#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <vector>

#include "shell/tool_panes.h"
#include "state/navigator.h"

namespace klarvik {

/// The landed panes in section order, their models all alive at once; selecting a section only
/// changes which one can be seen and reached. A view is made when it is first selected, and stays.
/// Main thread only.
class PaneStackModel : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The shell makes it.")
 public:
  enum Role { ViewRole = Qt::UserRole, ModelRole, IsSelectedRole };

  PaneStackModel(std::vector<PaneEntry> panes, const Navigator& navigator,
                 QObject* parent = nullptr);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

 private:
  std::vector<PaneEntry> _panes;
  const Navigator& _navigator;
};

}  // namespace klarvik
