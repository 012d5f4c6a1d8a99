#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <QString>
#include <vector>

#include "shell/tool_panes.h"
#include "state/app_state.h"
#include "state/scan_coordinator.h"
#include "state/section.h"
#include "state/tool_activity.h"

namespace klarvik {

class Formatting;

/// The sections of the sidebar in their order, each group below its heading. A section without a
/// pane is not listed, nor is a heading without a section. Main thread only.
class SidebarModel : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The shell makes it.")
 public:
  enum Role {
    IsHeadingRole = Qt::UserRole,
    LabelRole,
    SymbolRole,
    HelpRole,
    RightHandRole,
    HasCheckmarkRole,
    IsWorkingRole,
    IsSelectedRole,
    DescriptionRole,
  };

  SidebarModel(const std::vector<PaneEntry>& panes, const AppState& appState,
               const ScanCoordinator& coordinator, const ToolActivity& activity,
               Navigator& navigator, const Formatting& formatting, QObject* parent = nullptr);

  /// Selects the section of the row. Nothing on a heading.
  Q_INVOKABLE void select(int row);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

 private:
  struct Row {
    QString title;
    std::optional<Section> section;  ///< nothing: a heading
    QString symbol;
    QString help;
    QString rightHand;
    bool hasCheckmark = false;
    bool isWorking = false;
    bool isSelected = false;
    bool operator==(const Row&) const = default;
  };
  void update();
  [[nodiscard]] Row heading(std::string_view group) const;
  [[nodiscard]] Row row(Section section) const;

  const AppState& _appState;
  const ScanCoordinator& _coordinator;
  const ToolActivity& _activity;
  Navigator& _navigator;
  const Formatting& _formatting;
  std::vector<Row> _rows;
};

}  // namespace klarvik
