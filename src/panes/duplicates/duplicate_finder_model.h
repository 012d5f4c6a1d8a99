#pragma once

#include <QtQml/qqmlregistration.h>
#include <QCoro/QCoroTask>
#include <QObject>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>
#include <set>
#include <stop_token>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "panes/duplicates/duplicate_choice.h"
#include "panes/duplicates/duplicate_rows_model.h"
#include "panes/duplicates/duplicates_texts.h"
#include "panes/kit/tool_rules.h"
#include "panes/tool_pane.h"
#include "platform/platform.h"
#include "state/picked_files_removal.h"
#include "state/remaining_time.h"
#include "state/scan_session.h"
#include "state/shared_state.h"
#include "tools/duplicate_removal_guard.h"
#include "tools/duplicate_scanner.h"

namespace klarvik {

/// The Duplicates section: finds equal files in the folders that the user names, and moves all but
/// one copy of each to the Trash. Right before a copy goes, the one that stays is read again: where
/// it is gone or has changed, the copy stays as well. Main thread only; everything handed in must
/// outlive it.
class DuplicateFinderModel : public klarvik::ToolPane {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The pane makes it.")
  Q_PROPERTY(QString title READ title NOTIFY totalsChanged)
  Q_PROPERTY(QString subtitle READ subtitle NOTIFY subtitleChanged)
  Q_PROPERTY(QString actionTitle READ actionTitle CONSTANT)
  Q_PROPERTY(bool canScan READ canScan NOTIFY deletionChanged)
  Q_PROPERTY(bool isScanning READ isScanning NOTIFY isScanningChanged)
  Q_PROPERTY(double progress READ progress NOTIFY subtitleChanged)
  Q_PROPERTY(QString remaining READ remaining NOTIFY subtitleChanged)
  Q_PROPERTY(klarvik::Placeholder placeholder READ placeholder NOTIFY placeholderChanged)
  Q_PROPERTY(QList<QString> folderNames READ folderNames NOTIFY scanDirsChanged)
  Q_PROPERTY(QList<QString> folderHelps READ folderHelps NOTIFY scanDirsChanged)
  Q_PROPERTY(QString removedFolder READ removedFolder NOTIFY scanDirsChanged)
  Q_PROPERTY(QList<QString> keepRules READ keepRules CONSTANT)
  Q_PROPERTY(int keepRuleIndex READ keepRuleIndex NOTIFY keepRuleChanged)
  Q_PROPERTY(QString minSizeText READ minSizeText CONSTANT)
  Q_PROPERTY(klarvik::DuplicateRowsModel* rows READ rows CONSTANT)
  Q_PROPERTY(QString selectionSummary READ selectionSummary NOTIFY totalsChanged)
  Q_PROPERTY(QString deleteButtonTitle READ deleteButtonTitle NOTIFY totalsChanged)
  Q_PROPERTY(bool canDelete READ canDelete NOTIFY totalsChanged)
  Q_PROPERTY(QString footerHint READ footerHint CONSTANT)
  Q_PROPERTY(bool isDeleting READ isDeleting NOTIFY deletionChanged)
  Q_PROPERTY(klarvik::RemovalProgress deleteProgress READ deleteProgress NOTIFY deletionChanged)

 public:
  using KeepRule = DuplicateSelection::KeepRule;

  static constexpr double minSizeMB = 1.0;

  DuplicateFinderModel(SharedState& shared, const Desktop& desktop, QObject* parent = nullptr);
  /// Starts no further removal and waits for those in hand; waits for scans as well, also for those
  /// that were cancelled, since they cannot be stopped.
  ~DuplicateFinderModel() override;

  [[nodiscard]] const ChosenGroups& groups() const { return _choice.groups(); }
  [[nodiscard]] const std::unordered_set<Uuid>& expanded() const { return _rows.expanded(); }
  [[nodiscard]] const std::unordered_set<Uuid>& deselected() const { return _choice.deselected(); }
  [[nodiscard]] const std::unordered_map<Uuid, Uuid>& keepOverrides() const {
    return _choice.keepOverrides();
  }
  [[nodiscard]] bool isScanning() const { return _scan.isRunning(); }
  [[nodiscard]] bool hasScanned() const { return _scan.hasScanned(); }
  [[nodiscard]] double progress() const { return _report.fraction; }
  /// How long the search will take yet; empty while nobody knows.
  [[nodiscard]] QString remaining() const {
    return duplicates::remainingText(_remaining.estimate());
  }
  [[nodiscard]] std::int64_t foundCount() const { return _report.groupsFound; }
  [[nodiscard]] const Message& currentPath() const { return _report.line; }
  [[nodiscard]] bool isDeleting() const { return _removal.isRunning(); }
  [[nodiscard]] RemovalProgress deleteProgress() const { return _removal.progress(); }
  [[nodiscard]] KeepRule keepRule() const { return _choice.keepRule(); }
  [[nodiscard]] const std::vector<Path>& scanDirs() const { return _scanDirs; }

  /// Bytes of all copies that may go, selected or not.
  [[nodiscard]] std::int64_t reclaimable() const { return _choice.totals().reclaimable; }
  [[nodiscard]] std::int64_t extraCopies() const { return _choice.totals().extraCopies; }
  [[nodiscard]] std::vector<SelectedCopy> selectedFiles() const {
    return _choice.selection().list();
  }
  [[nodiscard]] QString folderList() const { return duplicates::folderList(_scanDirs); }

  [[nodiscard]] QString title() const;
  [[nodiscard]] QString subtitle() const;
  [[nodiscard]] QString actionTitle() const;
  [[nodiscard]] bool canScan() const { return !isDeleting(); }
  /// Not shown while there are rows.
  [[nodiscard]] Placeholder placeholder() const;
  [[nodiscard]] QStringList folderNames() const { return duplicates::folderNames(_scanDirs); }
  [[nodiscard]] QStringList folderHelps() const;
  /// The name of the folder that `putFolderBack` brings back; empty when there is none.
  [[nodiscard]] QString removedFolder() const;
  [[nodiscard]] QStringList keepRules() const;
  [[nodiscard]] int keepRuleIndex() const;
  [[nodiscard]] QString minSizeText() const { return duplicates::minSizeText(minSizeMB); }
  [[nodiscard]] DuplicateRowsModel* rows() { return &_rows; }
  [[nodiscard]] QString selectionSummary() const;
  [[nodiscard]] QString deleteButtonTitle() const;
  [[nodiscard]] bool canDelete() const { return _choice.totals().selectedCount > 0; }
  [[nodiscard]] QString footerHint() const { return duplicates::footerHint(); }

  /// Scans by itself, once its turn has come.
  void appear() override;
  void stopRemovals() override { stopDeleting(); }
  void finishRemovals() override;

  /// The header's main button: gives a running scan up, else starts one. Nothing during a deletion.
  Q_INVOKABLE void performAction();
  Q_INVOKABLE void chooseFolders();
  /// The last folder stays.
  Q_INVOKABLE void removeFolder(int index);
  /// The folder that was removed last, unless folders were added or searched since.
  Q_INVOKABLE void putFolderBack();
  Q_INVOKABLE void chooseKeepRule(int index);
  /// What pressing the row does: a group opens or closes, a copy is selected or not.
  Q_INVOKABLE void activate(int row);
  /// What pressing the selection box of the row does. Nothing on a row that has none.
  Q_INVOKABLE void toggleSelection(int row);
  /// The entry in the menu of a copy that would go. Nothing on any other row.
  Q_INVOKABLE void keepInstead(int row);
  Q_INVOKABLE void deleteSelected();
  Q_INVOKABLE void stopDeleting();

 signals:
  void totalsChanged();
  void subtitleChanged();
  void isScanningChanged();
  void placeholderChanged();
  void scanDirsChanged();
  void keepRuleChanged();
  void deletionChanged();

 private:
  void askAndScan();
  void startScan();
  void cancelScan();
  void scanMovedOn(DuplicateProgress report);
  void scanFinished(ChosenGroups groups);
  void scanningChanged();
  void setGroups(ChosenGroups groups);
  void addFolders(const std::vector<Path>& folders);

  QCoro::Task<> moveSelectedToTrash();
  void forget(const std::set<Path>& trashed);
  void writeTotal();
  [[nodiscard]] bool holds(int row) const { return row >= 0 && row < _rows.rowCount(); }

  PermissionsManager& _permissions;
  const Desktop& _desktop;

  std::vector<Path> _scanDirs;
  struct RemovedFolder {
    int index = 0;
    Path path;
  };
  std::optional<RemovedFolder> _removedFolder;
  DuplicateChoice _choice;
  DuplicateRowsModel _rows;
  DuplicateProgress _report;  ///< the latest one
  RemainingTime _remaining;   ///< of the reading
  bool _wasStopped = false;   ///< the last search, so that it says nothing of what there is

  std::stop_source _deleteTask{std::nostopstate};
  PickedFilesRemoval _removal;
  ScanSession _scan;
};

}  // namespace klarvik
