#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>
#include <vector>

#include "platform/platform.h"
#include "shell/app_commands.h"
#include "shell/disk_block.h"
#include "shell/full_disk_access_view.h"
#include "shell/pane_stack.h"
#include "shell/sidebar_model.h"
#include "shell/tool_panes.h"
#include "shell/trash_block.h"
#include "state/app_state.h"
#include "state/shared_state.h"

namespace klarvik {

/// The content of the main window: the sidebar and the panes beside it. Main thread only;
/// everything handed in must outlive it.
class AppShell : public QObject {
  Q_OBJECT
  QML_NAMED_ELEMENT(AppShellModel)
  QML_UNCREATABLE("The shell makes it.")
  Q_PROPERTY(klarvik::SidebarModel* sidebar READ sidebar CONSTANT)
  Q_PROPERTY(klarvik::DiskBlock* disk READ disk CONSTANT)
  Q_PROPERTY(klarvik::TrashBlock* trash READ trash CONSTANT)
  Q_PROPERTY(klarvik::PaneStack* panes READ panes CONSTANT)
  Q_PROPERTY(klarvik::FullDiskAccessView* access READ access CONSTANT)
  Q_PROPERTY(klarvik::AppCommands* commands READ commands CONSTANT)
  Q_PROPERTY(QString removalNotice READ removalNotice NOTIFY removalNoticeChanged)

 public:
  AppShell(const std::vector<LandedPane>& panes, AppState& appState, SharedState& shared,
           AppCommands& commands, const Desktop& desktop, QObject* parent = nullptr);

  [[nodiscard]] SidebarModel* sidebar() { return &_sidebar; }
  [[nodiscard]] DiskBlock* disk() { return &_disk; }
  [[nodiscard]] TrashBlock* trash() { return &_trash; }
  [[nodiscard]] PaneStack* panes() { return &_panes; }
  [[nodiscard]] FullDiskAccessView* access() { return &_access; }
  [[nodiscard]] AppCommands* commands() const { return &_commands; }
  /// Empty while there is none.
  [[nodiscard]] QString removalNotice() const;
  Q_INVOKABLE void dismissRemovalNotice() { _removalNotice.dismiss(); }
  Q_INVOKABLE void openSettings() { emit settingsAsked(); }

 signals:
  void settingsAsked();
  void removalNoticeChanged();

 private:
  SidebarModel _sidebar;
  DiskBlock _disk;
  TrashBlock _trash;
  PaneStack _panes;
  FullDiskAccessView _access;
  AppCommands& _commands;
  RemovalNotice& _removalNotice;
};

}  // namespace klarvik
