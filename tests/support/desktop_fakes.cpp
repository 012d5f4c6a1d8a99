#include "support/desktop_fakes.h"

namespace klarvik {

Desktop DesktopFakes::around(FileSystem& files, Trash& trash, Clock& clock) {
  return {{files, trash, commands, defaults, volume, formatting, info, recentDocuments},
          clock,
          notifications,
          workspace,
          pasteboard,
          openPanel};
}

}  // namespace klarvik
