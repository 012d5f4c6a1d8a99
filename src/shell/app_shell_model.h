#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>
#include <vector>

#include "platform/notification_center.h"
#include "platform/platform.h"
#include "shell/app_commands_model.h"
#include "shell/disk_block_model.h"
#include "shell/full_disk_access_model.h"
#include "shell/sidebar_model.h"
#include "shell/tool_panes.h"
#include "shell/trash_block_model.h"
#include "state/app_state.h"
#include "state/shared_state.h"

namespace klarvik {

/// The content of the main window: the sidebar and the panes beside it. Main thread only;
/// everything handed in must outlive it.
class AppShellModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The shell makes it.")
  Q_PROPERTY(klarvik::SidebarModel* sidebar READ sidebar CONSTANT)
  Q_PROPERTY(klarvik::DiskBlockModel* disk READ disk CONSTANT)
  Q_PROPERTY(klarvik::TrashBlockModel* trash READ trash CONSTANT)
  Q_PROPERTY(klarvik::PaneStackModel* panes READ panes CONSTANT)
  Q_PROPERTY(klarvik::FullDiskAccessModel* access READ access CONSTANT)
  Q_PROPERTY(klarvik::AppCommandsModel* commands READ commands CONSTANT)
  Q_PROPERTY(QString noticeHeadline READ noticeHeadline NOTIFY noticeChanged)
  Q_PROPERTY(QString notice READ notice NOTIFY noticeChanged)
  Q_PROPERTY(QString removalHeadline READ removalHeadline NOTIFY removalChanged)
  Q_PROPERTY(QString removalDetail READ removalDetail NOTIFY removalChanged)
  Q_PROPERTY(bool isRestored READ isRestored NOTIFY removalChanged)
  Q_PROPERTY(bool canRestore READ canRestore NOTIFY removalChanged)

 public:
  AppShellModel(const std::vector<PaneEntry>& panes, AppState& appState, SharedState& shared,
                AppCommandsModel& commands, const Desktop& desktop, QObject* parent = nullptr);

  [[nodiscard]] SidebarModel* sidebar() { return &_sidebar; }
  [[nodiscard]] DiskBlockModel* disk() { return &_disk; }
  [[nodiscard]] TrashBlockModel* trash() { return &_trash; }
  [[nodiscard]] PaneStackModel* panes() { return &_panes; }
  [[nodiscard]] FullDiskAccessModel* access() { return &_access; }
  [[nodiscard]] AppCommandsModel* commands() const { return &_commands; }
  /// Empty while there is none.
  [[nodiscard]] QString noticeHeadline() const;
  /// Empty while there is nothing to tell.
  [[nodiscard]] QString notice() const;
  Q_INVOKABLE void dismissNotice();
  /// What a tool has moved to the Trash, or put back; empty while there is nothing to tell.
  [[nodiscard]] QString removalHeadline() const;
  [[nodiscard]] QString removalDetail() const;
  [[nodiscard]] bool isRestored() const;
  /// Nothing comes back from a Trash that was emptied.
  [[nodiscard]] bool canRestore() const;
  Q_INVOKABLE void restoreRemoval() { _lastRemoval.restore(); }
  Q_INVOKABLE void dismissRemoval() { _lastRemoval.dismiss(); }
  Q_INVOKABLE void openSettings() { emit settingsAsked(); }

 signals:
  void settingsAsked();
  void noticeChanged();
  void removalChanged();

 private:
  SidebarModel _sidebar;
  DiskBlockModel _disk;
  TrashBlockModel _trash;
  PaneStackModel _panes;
  FullDiskAccessModel _access;
  AppCommandsModel& _commands;
  RemovalNotice& _removalNotice;
  LastRemoval& _lastRemoval;
  TrashMonitor& _trashMonitor;
  const Formatting& _formatting;
  bool _tellsOfSettings = false;  ///< that could not be saved
  NotificationCenter::Subscription _onSettingsNotSaved;
};

}  // namespace klarvik
