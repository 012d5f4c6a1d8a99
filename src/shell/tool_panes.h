#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <QUrl>
#include <memory>
#include <vector>

#include "panes/tool_pane.h"
#include "platform/platform.h"
#include "state/app_state.h"
#include "state/section.h"
#include "state/shared_state.h"

namespace klarvik {

/// A section whose pane exists: the QML file that draws it, and the model it is handed as `model`.
struct PaneEntry {
  Section section = Section::smartScan;
  QUrl view;
  std::shared_ptr<ToolPane> model;
};

/// The pane of every tool, in the order of the sidebar. Main thread only; everything handed in must
/// outlive them.
[[nodiscard]] std::vector<PaneEntry> makePanes(AppState& appState, SharedState& shared,
                                               const Desktop& desktop);

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
