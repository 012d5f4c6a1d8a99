#include "support/desktop_fakes.h"

namespace klarvik {

DesktopFakes::DesktopFakes() {
  defaults.onChange([this] { notifications.post(defaultsChangedNotification); });
}

Platform DesktopFakes::platformOn(FileSystem& files, Trash& trash) {
  return {files, trash, commands, defaults, volume, formatting, info, recentDocuments};
}

Desktop DesktopFakes::around(FileSystem& files, Trash& trash, Clock& clock) {
  return {platformOn(files, trash),
          clock,
          notifications,
          workspace,
          pasteboard,
          openPanel,
          statusItem,
          updater};
}

}  // namespace klarvik
