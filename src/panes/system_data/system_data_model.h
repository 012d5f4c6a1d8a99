#pragma once

#include <QtQml/qqmlregistration.h>
#include <QCoro/QCoroTask>
#include <QList>
#include <QObject>
#include <QString>
#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "panes/kit/donut.h"
#include "panes/kit/tool_rules.h"
#include "panes/system_data/system_data_findings.h"
#include "panes/system_data/system_data_table_model.h"
#include "panes/tool_pane.h"
#include "platform/platform.h"
#include "state/picked_files_removal.h"
#include "state/scan_session.h"
#include "state/shared_state.h"
#include "systemdata/system_data_engine.h"
#include "translation/translation.h"

namespace klarvik {

/// The System Data section: an analysis when the user asks for one, its findings by kind, and the
/// way of what is selected to the Trash. Removes nothing without a confirmation, and offers nothing
/// that is protected. Main thread only; everything handed in must outlive it.
class SystemDataModel : public klarvik::ToolPane {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The pane makes it.")
  Q_PROPERTY(QString title READ title NOTIFY resultChanged)
  Q_PROPERTY(QString subtitle READ subtitle NOTIFY resultChanged)
  Q_PROPERTY(QString actionTitle READ actionTitle NOTIFY stateChanged)
  Q_PROPERTY(Body body READ body NOTIFY stateChanged)
  Q_PROPERTY(bool isScanning READ isScanning NOTIFY stateChanged)
  Q_PROPERTY(double scanProgress READ scanProgress NOTIFY scanProgressChanged)
  Q_PROPERTY(QString scanLabel READ scanLabel NOTIFY scanProgressChanged)
  Q_PROPERTY(bool hasFullDiskAccess READ hasFullDiskAccess NOTIFY hasFullDiskAccessChanged)
  Q_PROPERTY(klarvik::SystemDataTableModel* table READ table CONSTANT)
  Q_PROPERTY(QList<klarvik::DonutSlice> slices READ slices NOTIFY resultChanged)
  Q_PROPERTY(QString totalText READ totalText NOTIFY resultChanged)
  Q_PROPERTY(QString removableSummary READ removableSummary NOTIFY resultChanged)
  Q_PROPERTY(QString protectedSummary READ protectedSummary NOTIFY resultChanged)
  Q_PROPERTY(QString ledgerNote READ ledgerNote NOTIFY resultChanged)
  Q_PROPERTY(bool isLedger READ isLedger CONSTANT)
  Q_PROPERTY(QString highlighted READ highlighted NOTIFY highlightedChanged)
  Q_PROPERTY(QString selectionSummary READ selectionSummary NOTIFY selectionChanged)
  Q_PROPERTY(QString removalTitle READ removalTitle NOTIFY selectionChanged)
  Q_PROPERTY(bool canRemove READ canRemove NOTIFY selectionChanged)
  Q_PROPERTY(bool confirmDelete READ confirmDelete NOTIFY confirmDeleteChanged)
  Q_PROPERTY(QString confirmationTitle READ confirmationTitle NOTIFY selectionChanged)
  Q_PROPERTY(QString confirmationMessage READ confirmationMessage NOTIFY selectionChanged)
  Q_PROPERTY(bool isDeleting READ isDeleting NOTIFY removalChanged)
  Q_PROPERTY(klarvik::RemovalProgress deleteProgress READ deleteProgress NOTIFY removalChanged)
  Q_PROPERTY(bool isBannerShown READ isBannerShown NOTIFY bannerChanged)
  Q_PROPERTY(QString bannerHeadline READ bannerHeadline NOTIFY bannerChanged)
  Q_PROPERTY(QString bannerDetail READ bannerDetail NOTIFY bannerChanged)
  Q_PROPERTY(QString bannerHelp READ bannerHelp NOTIFY bannerChanged)
  Q_PROPERTY(bool trashHoldsIt READ trashHoldsIt NOTIFY bannerChanged)
  Q_PROPERTY(bool canEmptyTrash READ canEmptyTrash NOTIFY bannerChanged)

 public:
  enum class Body { Empty, Analysing, Result };
  Q_ENUM(Body)

  /// The verdicts, by the names that QML knows them by.
  enum Safety {
    Safe = static_cast<int>(ItemSafety::safe),
    Review = static_cast<int>(ItemSafety::review),
    Protected = static_cast<int>(ItemSafety::protected_),
  };
  Q_ENUM(Safety)

  /// What the last removal moved to the Trash.
  struct Removal {
    std::int64_t itemCount = 0;
    std::int64_t bytes = 0;
    bool operator==(const Removal&) const = default;
  };

  /// Analyses on the calling thread, as `SystemDataEngine::analyse` does; its result says how much
  /// is free.
  using Analyse = std::function<SystemDataResult(const SystemDataEngine::ProgressSink&,
                                                 const std::stop_token&)>;

  /// Without an `analyse` of its own, each analysis is that of a fresh `SystemDataEngine`.
  SystemDataModel(SharedState& shared, const Desktop& desktop, QObject* parent = nullptr,
                  Analyse analyse = {});
  /// Starts no further removal, and waits for what is under way, an analysis included.
  ~SystemDataModel() override;

  [[nodiscard]] QString title() const;
  [[nodiscard]] QString subtitle() const;
  [[nodiscard]] QString actionTitle() const;
  [[nodiscard]] Body body() const;
  [[nodiscard]] bool isScanning() const { return _scan.isRunning(); }
  [[nodiscard]] double scanProgress() const { return _scanProgress; }
  [[nodiscard]] QString scanLabel() const { return translated(_scanLabel); }
  [[nodiscard]] bool hasFullDiskAccess() const { return _permissions.hasFullDiskAccess(); }

  [[nodiscard]] const SystemDataFindings& findings() const { return _findings; }
  [[nodiscard]] SystemDataTableModel* table() { return &_table; }
  [[nodiscard]] QList<DonutSlice> slices() const;
  [[nodiscard]] QString totalText() const;
  [[nodiscard]] QString removableSummary() const;
  [[nodiscard]] QString protectedSummary() const;
  /// How the rows add up; empty where the analysis looks at certain places only.
  [[nodiscard]] QString ledgerNote() const;
  /// Whether the analysis accounts for the whole volume.
  [[nodiscard]] bool isLedger() const;
  /// The name of the kind under the pointer; empty without one.
  [[nodiscard]] QString highlighted() const { return _highlighted; }

  [[nodiscard]] QString selectionSummary() const;
  [[nodiscard]] QString removalTitle() const;
  [[nodiscard]] bool canRemove() const { return _findings.selected().count > 0; }
  [[nodiscard]] bool confirmDelete() const { return _confirmDelete; }
  [[nodiscard]] QString confirmationTitle() const;
  [[nodiscard]] QString confirmationMessage() const;
  [[nodiscard]] bool isDeleting() const { return _removal.isRunning(); }
  [[nodiscard]] RemovalProgress deleteProgress() const { return _removal.progress(); }

  [[nodiscard]] const std::optional<Removal>& lastRemoval() const { return _lastRemoval; }
  /// Taken out since the analysis.
  [[nodiscard]] const std::vector<SystemDataItem>& removedItems() const { return _removedItems; }
  [[nodiscard]] bool isBannerShown() const { return _lastRemoval.has_value(); }
  [[nodiscard]] QString bannerHeadline() const;
  [[nodiscard]] QString bannerDetail() const;
  /// What the last removal moved, by name.
  [[nodiscard]] QString bannerHelp() const;
  [[nodiscard]] bool trashHoldsIt() const;
  [[nodiscard]] bool canEmptyTrash() const { return !_trash.isEmptying(); }

  /// The header's main button: stops a running analysis, else starts one.
  Q_INVOKABLE void performAction();
  /// The pointer has come to or left a kind, in the chart or in the list.
  Q_INVOKABLE void hover(const QString& kind, bool inside);
  Q_INVOKABLE void requestRemoval();
  Q_INVOKABLE void confirmRemoval();
  Q_INVOKABLE void cancelConfirmation();
  Q_INVOKABLE void stopRemoval();
  Q_INVOKABLE void emptyTrash();
  Q_INVOKABLE void dismissBanner();
  /// For the words of the legend that no finding stands behind yet; by the number of an
  /// `ItemSafety`.
  Q_INVOKABLE [[nodiscard]] QString safetyText(int safety) const;
  void stopRemovals() override { _removal.cancel(); }
  void finishRemovals() override { _removal.finish(); }

 signals:
  void resultChanged();
  void stateChanged();
  void scanProgressChanged();
  void hasFullDiskAccessChanged();
  void highlightedChanged();
  void selectionChanged();
  void confirmDeleteChanged();
  void removalChanged();
  void bannerChanged();

 private:
  struct ScanReport {
    std::string label;
    double fraction = 0;
  };

  [[nodiscard]] const DiskLayout& layout() const;
  void startAnalysis();
  void stopAnalysis();
  void apply(const ScanReport& report);
  void finishAnalysis(const SystemDataResult& result);
  QCoro::Task<> remove(std::vector<SystemDataItem> items);
  void finishRemoval(const std::vector<SystemDataItem>& items, const std::set<Path>& moved);
  void findingsChanged();
  void selectionToggled();
  void writeTotal();
  void setHighlighted(const QString& kind);
  void setConfirmDelete(bool confirm);

  PermissionsManager& _permissions;
  TrashMonitor& _trash;
  const Desktop& _desktop;
  Analyse _analyse;

  SystemDataFindings _findings;
  SystemDataTableModel _table;
  double _scanProgress = 0;
  std::string _scanLabel;
  QString _highlighted;
  bool _confirmDelete = false;
  std::optional<Removal> _lastRemoval;
  std::vector<SystemDataItem> _removedItems;
  std::set<Path> _movedWhileScanning;
  PickedFilesRemoval _removal;
  ScanSession _scan;
};

}  // namespace klarvik
