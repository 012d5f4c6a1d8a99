#pragma once

#include "folder_trash.h"
#include "hooked_file_system.h"
#include "platform/linux/linux_file_system.h"
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

/// A real disk in a temporary folder, and around it a desktop that a test moves by hand.
struct StateDesktop {
  TemporaryFolder disk;
  LinuxFileSystem linuxFiles{disk.path(), "/Users/ann"};
  HookedFileSystem files{linuxFiles};
  FolderTrash trash{files};
  CannedCommandRunner commands;
  MemoryDefaults defaults;
  FixedVolume volume;
  Formatting formatting{"en_US"};
  ApplicationInfo info;
  RecordingRecentDocuments recentDocuments;
  HandMovedClock clock;
  NotificationCenter notifications;
  RecordingWorkspace workspace;
  MemoryPasteboard pasteboard;
  ScriptedOpenPanel openPanel;
  Desktop desktop{{files, trash, commands, defaults, volume, formatting, info, recentDocuments},
                  clock,
                  notifications,
                  workspace,
                  pasteboard,
                  openPanel};
};

}  // namespace klarvik
