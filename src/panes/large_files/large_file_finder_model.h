#pragma once

#include <QtQml/qqmlregistration.h>
#include <QCoro/QCoroTask>
#include <QObject>
#include <QString>
#include <QStringList>
#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <unordered_set>

#include "panes/kit/tool_rules.h"
#include "panes/large_files/large_file_rows_model.h"
#include "panes/large_files/large_files_texts.h"
#include "panes/tool_pane.h"
#include "platform/main_loop/background_tasks.h"
#include "platform/platform.h"
#include "state/picked_files_removal.h"
#include "state/scan_session.h"
#include "state/shared_state.h"
#include "tools/large_file_walker.h"

namespace klarvik {

/// The Large Files section: lists the biggest files of the home while they are found, and moves
/// those that the user picks to the Trash. Main thread only; everything handed in must outlive it.
///
/// `files` changes with every report of the walk; the rows follow as soon as they have been
/// filtered, ordered and compared off the main thread.
class LargeFileFinderModel : public klarvik::ToolPane {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The pane makes it.")
  Q_PROPERTY(QString title READ title CONSTANT)
  Q_PROPERTY(QString subtitle READ subtitle NOTIFY subtitleChanged)
  Q_PROPERTY(QString actionTitle READ actionTitle CONSTANT)
  Q_PROPERTY(bool isScanning READ isScanning NOTIFY isScanningChanged)
  Q_PROPERTY(double progress READ progress NOTIFY subtitleChanged)
  Q_PROPERTY(klarvik::Placeholder placeholder READ placeholder NOTIFY placeholderChanged)
  Q_PROPERTY(QList<QString> thresholds READ thresholds CONSTANT)
  Q_PROPERTY(int thresholdIndex READ thresholdIndex NOTIFY thresholdChanged)
  Q_PROPERTY(QList<QString> sorts READ sorts CONSTANT)
  Q_PROPERTY(int sortIndex READ sortIndex NOTIFY sortChanged)
  Q_PROPERTY(QList<QString> kinds READ kinds NOTIFY kindsChanged)
  Q_PROPERTY(QList<QString> kindNames READ kindNames NOTIFY kindsChanged)
  Q_PROPERTY(int mostKinds READ mostChips CONSTANT)
  Q_PROPERTY(QString activeKind READ activeKind NOTIFY kindFilterChanged)
  Q_PROPERTY(klarvik::LargeFileRowsModel* rows READ rows CONSTANT)
  Q_PROPERTY(QString selectionSummary READ selectionSummary NOTIFY selectionChanged)
  Q_PROPERTY(QString trashButtonTitle READ trashButtonTitle NOTIFY selectionChanged)
  Q_PROPERTY(bool canTrash READ canTrash NOTIFY selectionChanged)
  Q_PROPERTY(QString footerHint READ footerHint CONSTANT)
  Q_PROPERTY(bool isDeleting READ isDeleting NOTIFY deletionChanged)
  Q_PROPERTY(klarvik::RemovalProgress deleteProgress READ deleteProgress NOTIFY deletionChanged)

 public:
  using Sort = LargeFileSort;

  /// Megabytes; the only values on offer.
  static constexpr std::array<double, 5> thresholdSteps{50, 100, 250, 500, 1000};

  LargeFileFinderModel(SharedState& shared, const Desktop& desktop, QObject* parent = nullptr);
  /// Ends the scan, starts no further removal, and waits for both.
  ~LargeFileFinderModel() override;

  [[nodiscard]] const LargeFileList& files() const { return *_files; }
  [[nodiscard]] const std::unordered_set<Uuid>& selected() const { return _selected; }
  /// In the order of `files`.
  [[nodiscard]] LargeFileList selectedFiles() const;
  [[nodiscard]] bool isScanning() const { return _scan.isRunning(); }
  [[nodiscard]] bool hasScanned() const { return _scan.hasScanned(); }
  [[nodiscard]] double progress() const { return _progress; }
  [[nodiscard]] bool isDeleting() const { return _removal.isRunning(); }
  [[nodiscard]] RemovalProgress deleteProgress() const { return _removal.progress(); }
  [[nodiscard]] double thresholdMB() const { return _thresholdMB; }
  [[nodiscard]] Sort sort() const { return _view.sort; }
  [[nodiscard]] const std::optional<std::string>& kindFilter() const { return _view.kind; }

  [[nodiscard]] QString title() const;
  [[nodiscard]] QString subtitle() const;
  [[nodiscard]] QString actionTitle() const;
  /// Not shown while there are rows.
  [[nodiscard]] Placeholder placeholder() const;
  [[nodiscard]] QStringList thresholds() const;
  [[nodiscard]] int thresholdIndex() const;
  [[nodiscard]] QStringList sorts() const;
  [[nodiscard]] int sortIndex() const;
  /// The kinds that have a chip.
  [[nodiscard]] const QStringList& kinds() const { return _kinds; }
  /// What the user reads of each.
  [[nodiscard]] QStringList kindNames() const;
  [[nodiscard]] static int mostChips() { return static_cast<int>(mostKinds); }
  /// Empty while all kinds are shown.
  [[nodiscard]] QString activeKind() const;
  [[nodiscard]] LargeFileRowsModel* rows() { return &_rows; }
  [[nodiscard]] QString selectionSummary() const;
  [[nodiscard]] QString trashButtonTitle() const;
  [[nodiscard]] bool canTrash() const { return !_selected.empty(); }
  [[nodiscard]] QString footerHint() const;

  /// Scans by itself, once its turn has come.
  void appear() override;
  void stopRemovals() override { _removal.cancel(); }
  void finishRemovals() override { _removal.finish(); }

  /// The header's main button: stops a running scan, else starts one.
  Q_INVOKABLE void performAction();
  Q_INVOKABLE void chooseThreshold(int index);
  Q_INVOKABLE void chooseSort(int index);
  Q_INVOKABLE void toggleKind(const QString& kind);
  Q_INVOKABLE void showAllKinds();
  Q_INVOKABLE void toggleSelection(int row);
  Q_INVOKABLE void trashSelected();
  Q_INVOKABLE void stopTrashing();

 signals:
  void subtitleChanged();
  void isScanningChanged();
  void placeholderChanged();
  void thresholdChanged();
  void sortChanged();
  void kindsChanged();
  void kindFilterChanged();
  /// The rows are others, or stand in another order, because the user asked for it.
  void viewChanged();
  void selectionChanged();
  void deletionChanged();

 private:
  using SharedFiles = std::shared_ptr<const LargeFileList>;

  void startScan();
  void stopScan();
  void scanMovedOn(LargeFileUpdate update);
  void scanFinished(LargeFileList files, bool wasStopped);
  void scanningChanged();
  /// Whether that changed anything.
  bool setFiles(LargeFileList files);
  void setView(FileView view);
  QCoro::Task<> arrangeRows();
  void setKinds(const std::vector<std::string_view>& kinds);
  void keepDatesFresh();

  QCoro::Task<> moveSelectedToTrash();
  void forget(const std::set<Path>& trashed);
  void clearSelection();
  void writeTotal();

  PermissionsManager& _permissions;
  const Desktop& _desktop;

  SharedFiles _files = std::make_shared<const LargeFileList>();  ///< largest first
  std::unordered_set<Uuid> _selected;
  std::int64_t _selectedBytes = 0;
  double _progress = 0;
  std::string _currentPath;
  double _thresholdMB = 100;
  FileView _view;
  QStringList _kinds;
  /// Trashed since the walk began: it may have seen them before.
  std::unordered_set<std::string> _trashed;

  LargeFileRowsModel _rows;
  FileView _arrangedView;
  bool _areRowsStale = false;
  bool _isArranging = false;

  std::unique_ptr<Clock::Alarm> _minute;
  PickedFilesRemoval _removal;
  ScanSession _scan;
  BackgroundTasks _arranging;
};

}  // namespace klarvik
