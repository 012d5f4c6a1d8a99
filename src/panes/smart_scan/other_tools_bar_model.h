#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <QString>
#include <vector>

#include "state/scan_coordinator.h"
#include "state/section.h"
#include "state/tool_activity.h"

namespace klarvik {

class Formatting;

/// What the other tools have found. Main thread only.
class OtherToolsBarModel : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The pane makes it.")
  Q_PROPERTY(bool isShown READ isShown NOTIFY changed)
  Q_PROPERTY(QString pendingText READ pendingText NOTIFY changed)

 public:
  enum Role { SizeRole = Qt::UserRole, NoteRole, HelpRole };

  OtherToolsBarModel(const ScanCoordinator& coordinator, const ToolActivity& activity,
                     Navigator& navigator, const Formatting& formatting, QObject* parent = nullptr);

  [[nodiscard]] bool isShown() const;
  /// How many tools are still measuring; empty when none is.
  [[nodiscard]] QString pendingText() const;
  Q_INVOKABLE void open(int row);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

 signals:
  void changed();

 private:
  struct Row {
    const Tool* tool;
    std::int64_t bytes;
    bool operator==(const Row&) const = default;
  };
  void syncRows();
  void syncPending();
  [[nodiscard]] std::vector<Row> currentRows() const;

  const ScanCoordinator& _coordinator;
  const ToolActivity& _activity;
  Navigator& _navigator;
  const Formatting& _formatting;
  const std::vector<const Tool*> _tools;  ///< that have a line, in its order
  std::vector<Row> _rows;
  std::ptrdiff_t _pending = 0;
};

}  // namespace klarvik
