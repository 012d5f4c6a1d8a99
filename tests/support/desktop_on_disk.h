#pragma once

#include <optional>
#include <string>

#include "platform/linux/linux_file_system.h"
#include "platform/linux/linux_trash.h"
#include "platform/platform.h"
#include "support/canned_command_runner.h"
#include "support/fixed_volume.h"
#include "support/gate.h"
#include "support/hand_moved_clock.h"
#include "support/memory_defaults.h"
#include "support/memory_pasteboard.h"
#include "support/recording_recent_documents.h"
#include "support/recording_workspace.h"
#include "support/sample_disk.h"
#include "support/scripted_open_panel.h"
#include "support/temporary_folder.h"

namespace klarvik {

/// A whole desktop around a temporary disk: real files and a real Trash below `disk`, the home at
/// "/Users/ann", and for the rest what a test can steer. A test can hold a scan up at an outside
/// tool, and a removal before each move to the Trash.
class DesktopOnDisk {
 public:
  /// An empty home, or the sample disk where its options are given.
  explicit DesktopOnDisk(const std::optional<SampleDiskOptions>& options = std::nullopt);

  /// Commands that hold this text wait at `commandGate`.
  std::string gatedCommand;
  Gate commandGate;
  Gate trashGate;

  TemporaryFolder disk;
  std::optional<SampleDisk> sample;
  LinuxFileSystem files{disk.path(), "/Users/ann"};
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

 private:
  class GatedCommands final : public CommandRunner {
   public:
    explicit GatedCommands(DesktopOnDisk& owner) : _owner(owner) {}
    std::optional<std::string> run(const std::string& commandLine) override;

   private:
    DesktopOnDisk& _owner;
  };
  class GatedTrash final : public LinuxTrash {
   public:
    explicit GatedTrash(DesktopOnDisk& owner)
        : LinuxTrash(owner.disk.path(), owner.files.home()), _owner(owner) {}
    std::optional<Path> moveToTrash(const Path& item, const PlaceCheck& mayMove) override;

   private:
    DesktopOnDisk& _owner;
  };
  GatedCommands _gatedCommands{*this};
  GatedTrash _gatedTrash{*this};

 public:
  Desktop desktop{
      {files, _gatedTrash, _gatedCommands, defaults, volume, formatting, info, recentDocuments},
      clock,
      notifications,
      workspace,
      pasteboard,
      openPanel};
};

}  // namespace klarvik
