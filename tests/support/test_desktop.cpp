#include "support/test_desktop.h"

namespace klarvik {

TestDesktop::TestDesktop() {
  disk.makeFolder("/Users/ann");
}

Desktop TestDesktop::desktop() {
  return {{files, trash, commands, defaults, volume, formatting, info, recentDocuments},
          clock,
          notifications,
          workspace,
          pasteboard,
          openPanel};
}

}  // namespace klarvik
