#pragma once

#include "platform/desktop/qt_clock.h"
#include "support/desktop_fakes.h"
#include "support/memory_file_system.h"

namespace klarvik {

/// A desktop around a disk that is only remembered, and that moves with the time of day.
struct RememberedDesktop : DesktopFakes {
  MemoryFileSystem files;
  MemoryTrash trash{files};
  QtClock clock;
  Desktop desktop = around(files, trash, clock);
};

}  // namespace klarvik
