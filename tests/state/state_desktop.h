#pragma once

#include "folder_trash.h"
#include "hooked_file_system.h"
#include "platform/linux/linux_file_system.h"
#include "support/desktop_fakes.h"
#include "support/hand_moved_clock.h"
#include "support/temporary_folder.h"

namespace klarvik {

/// A real disk in a temporary folder, and around it a desktop that a test moves by hand.
struct StateDesktop : DesktopFakes {
  TemporaryFolder disk;
  LinuxFileSystem linuxFiles{disk.path(), "/Users/ann"};
  HookedFileSystem files{linuxFiles};
  FolderTrash trash{files};
  HandMovedClock clock;
  Desktop desktop = around(files, trash, clock);
};

}  // namespace klarvik
