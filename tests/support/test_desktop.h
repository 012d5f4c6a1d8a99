#pragma once

#include "platform/linux/linux_file_system.h"
#include "platform/linux/linux_trash.h"
#include "platform/platform.h"
#include "support/canned_command_runner.h"
#include "support/fixed_volume.h"
#include "support/hand_moved_clock.h"
#include "support/memory_defaults.h"
#include "support/memory_pasteboard.h"
#include "support/recording_recent_documents.h"
#include "support/recording_workspace.h"
#include "support/scripted_open_panel.h"
#include "support/temporary_folder.h"

namespace klarvik {

/// A whole world for a test: the real file system and the real Trash over a temporary disk, and
/// fakes for the rest. The home is /Users/ann, and it is there. Sizes and dates are written in the
/// English of the United States.
struct TestDesktop {
  TemporaryFolder disk;
  LinuxFileSystem files{disk.path(), "/Users/ann"};
  LinuxTrash trash{disk.path(), "/Users/ann"};
  CannedCommandRunner commands;
  MemoryDefaults defaults;
  FixedVolume volume;
  Formatting formatting{"en_US"};
  ApplicationInfo info{{"CFBundleShortVersionString", "1.2.3"}, {"CFBundleVersion", "45"}};
  RecordingRecentDocuments recentDocuments;
  HandMovedClock clock;
  NotificationCenter notifications;
  RecordingWorkspace workspace;
  MemoryPasteboard pasteboard;
  ScriptedOpenPanel openPanel;

  TestDesktop();
  /// Refers to this object.
  [[nodiscard]] Desktop desktop();
};

}  // namespace klarvik
