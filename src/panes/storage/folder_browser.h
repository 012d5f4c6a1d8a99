#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <QCoro/QCoroTask>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <stop_token>
#include <vector>

#include "panes/kit/tool_rules.h"
#include "platform/platform.h"
#include "state/engine_run.h"
#include "state/picked_files_removal.h"
#include "state/shared_state.h"
#include "tools/folder_sizes.h"

namespace klarvik {

/// The way down from a share of the disk to the folders and files in it: the rows of one level,
/// largest first, the names that lead to it, and the way of a row to the Trash. Main thread only;
/// everything handed in must outlive it.
class FolderBrowser : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The pane makes it.")
  Q_PROPERTY(bool isOpen READ isOpen NOTIFY stateChanged)
  Q_PROPERTY(bool isMeasuring READ isMeasuring NOTIFY stateChanged)
  Q_PROPERTY(QString status READ status NOTIFY statusChanged)
  Q_PROPERTY(QStringList crumbs READ crumbs NOTIFY levelChanged)
  Q_PROPERTY(bool isDeleting READ isDeleting NOTIFY removalChanged)
  Q_PROPERTY(bool isConfirming READ isConfirming NOTIFY confirmingChanged)
  Q_PROPERTY(QString confirmationTitle READ confirmationTitle NOTIFY confirmingChanged)
  Q_PROPERTY(QString confirmationMessage READ confirmationMessage NOTIFY confirmingChanged)

 public:
  enum Role {
    NameRole = Qt::UserRole,
    DetailRole,
    PathRole,
    UrlRole,
    ShareRole,
    ShareTextRole,
    SizeRole,
    SymbolRole,
    CanOpenRole,
    CanTrashRole,
    DescriptionRole,
  };

  /// What of the disk is looked into, and what in there counts elsewhere.
  struct Area {
    QString name;
    std::vector<Path> places;
    std::vector<Path> leftOut{};
    bool isWholeVolume = false;  ///< all of it, in the place of `places`
  };
  /// Measures on the calling thread, as `FolderSizes::measure` does.
  using Measure =
      std::function<FolderSizes(const Area&, const std::stop_token&, const FolderSizes::Progress&)>;

  /// Without a `measure` of its own, the disk is.
  FolderBrowser(SharedState& shared, const Desktop& desktop, QObject* parent = nullptr,
                Measure measure = {});
  /// Waits for what is under way.
  ~FolderBrowser() override;

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  /// Begins anew with another area.
  void open(Area area);

  [[nodiscard]] bool isOpen() const { return _isOpen; }
  [[nodiscard]] bool isMeasuring() const { return _measurement.isRunning(); }
  /// While it measures, how much it has met; then what the level takes.
  [[nodiscard]] QString status() const;
  /// From the area to the level that is shown.
  [[nodiscard]] QStringList crumbs() const;
  [[nodiscard]] const std::vector<FolderSizes::Row>& rows() const { return _rows; }
  [[nodiscard]] bool isDeleting() const { return _removal.isRunning(); }
  [[nodiscard]] bool isConfirming() const { return _asked.has_value(); }
  [[nodiscard]] QString confirmationTitle() const;
  [[nodiscard]] QString confirmationMessage() const;

  /// Return, or a press: into a folder; nothing on a file.
  Q_INVOKABLE void activate(int row);
  /// To one of the `crumbs`.
  Q_INVOKABLE void goTo(int crumb);
  /// To the level above; out of the area at its top.
  Q_INVOKABLE void goUp();
  Q_INVOKABLE void close();
  /// Asks whether the row is to go to the Trash.
  Q_INVOKABLE void requestTrash(int row);
  Q_INVOKABLE void confirmTrash();
  Q_INVOKABLE void cancelTrash();

  void stopRemovals() { _removal.cancel(); }
  void finishRemovals() { _removal.finish(); }

 signals:
  void stateChanged();
  void statusChanged();
  void levelChanged();
  void removalChanged();
  void confirmingChanged();

 private:
  struct Asked {
    int opening = 0;  ///< which of the areas that were opened one after the other
    FolderSizes::Id folder = 0;
    FolderSizes::Row row;
  };

  void measure();
  void finishMeasuring(FolderSizes sizes);
  /// The same area again, in the folder that is shown, or the nearest above it that is there.
  void measureAgain();
  [[nodiscard]] FolderSizes::Id levelAt(const Path& place) const;
  [[nodiscard]] std::vector<FolderSizes::Row> rowsOf(FolderSizes::Id folder) const;
  void show(FolderSizes::Id folder);
  void showWithout(const Path& gone);
  [[nodiscard]] FolderSizes::Id topLevel() const;
  [[nodiscard]] bool mayTrash(const FolderSizes::Row& row) const;
  QCoro::Task<> trash(Asked asked);

  const Desktop& _desktop;
  Measure _measure;
  Area _area;
  bool _isOpen = false;
  int _openings = 0;
  std::int64_t _counted = 0;
  FolderSizes _sizes;
  FolderSizes::Id _folder = FolderSizes::top;
  Path _shownNext;  ///< once it is measured; empty for the top of the area
  std::vector<FolderSizes::Row> _rows;
  std::optional<Asked> _asked;
  RemovalNotice& _notice;
  PickedFilesRemoval _removal;
  EngineRun _measurement;
};

}  // namespace klarvik
