#pragma once

#include <memory>

#include "platform/desktop/observed_user_defaults.h"
#include "platform/desktop/open_panel.h"
#include "platform/desktop/qt_clock.h"
#include "platform/desktop/qt_pasteboard.h"
#include "platform/desktop/qt_status_item.h"
#include "platform/desktop/xdg_login_item.h"
#include "platform/desktop/xdg_motion_preference.h"
#include "platform/desktop/xdg_workspace.h"
#include "platform/notification_center.h"
#include "platform/platform.h"
#include "platform/system_platform.h"
#include "platform/update/appcast_updater.h"

namespace klarvik {

/// Owns the real thing of everything that a program with a window asks of the system. Main thread
/// only; needs a `QApplication` as long as it is in use.
class DesktopPlatform {
 public:
  /// The whole machine, as the user who runs this program sees it. Nothing when that user has no
  /// home of their own: no removal would be safe, so that the program is to say so and exit with 1.
  /// `language`: of sizes and dates.
  [[nodiscard]] static std::unique_ptr<DesktopPlatform> ofThisUser(
      FormattingLanguage language = {});

  DesktopPlatform(const Path& root, const UserFolders& folders, FormattingLanguage language = {});

  /// Refers to this object.
  [[nodiscard]] Desktop desktop();
  [[nodiscard]] LoginItem& loginItem() { return _loginItem; }
  /// The very last thing to do: starts the program again where that was asked for.
  void startSuccessor() const { _workspace.startSuccessor(); }

 private:
  SystemPlatform _system;
  QtClock _clock;
  NotificationCenter _notifications;
  ObservedUserDefaults _defaults;
  XdgWorkspace _workspace;
  XdgMotionPreference _motion;
  QtPasteboard _pasteboard;
  QtOpenPanel _ownOpenPanel;
  PortalOpenPanel _openPanel;
  QtStatusItem _statusItem;
  XdgLoginItem _loginItem;
  AppcastUpdater _updater;
};

}  // namespace klarvik
