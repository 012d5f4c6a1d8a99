#pragma once

#include "platform/linux/linux_file_system.h"
#include "platform/linux/linux_trash.h"
#include "support/desktop_fakes.h"
#include "support/hand_moved_clock.h"
#include "support/temporary_folder.h"

namespace klarvik {

/// A whole world for a test: the real file system and the real Trash over a temporary disk, and
/// fakes for the rest. The home is /Users/ann, and it is there.
struct TestDesktop : DesktopFakes {
  TemporaryFolder disk;
  LinuxFileSystem files{disk.path(), "/Users/ann"};
  LinuxTrash trash{disk.path(), "/Users/ann"};
  HandMovedClock clock;

  TestDesktop();
  /// Refers to this object.
  [[nodiscard]] Desktop desktop();
};

}  // namespace klarvik
