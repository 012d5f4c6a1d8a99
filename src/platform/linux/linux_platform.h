#pragma once

#include "platform/application_info.h"
#include "platform/formatting.h"
#include "platform/linux/json_user_defaults.h"
#include "platform/linux/linux_file_system.h"
#include "platform/linux/linux_trash.h"
#include "platform/linux/mounted_volume.h"
#include "platform/linux/process_table.h"
#include "platform/linux/recently_used_list.h"
#include "platform/linux/shell_command_runner.h"
#include "platform/platform.h"
#include "platform/user_folders.h"

namespace klarvik {

/// Owns the real thing of everything that the engines ask for. No Qt, no main loop.
class LinuxPlatform {
 public:
  /// `root` is where the logical "/" lies on the machine.
  LinuxPlatform(const Path& root, const UserFolders& folders);
  LinuxPlatform(const Path& root, const Path& home) : LinuxPlatform(root, UserFolders::in(home)) {}

  /// Refers to this object.
  [[nodiscard]] Platform platform();
  /// The document of the preferences, on the machine.
  [[nodiscard]] const Path& preferencesFile() const { return _defaults.file(); }

 private:
  LinuxFileSystem _files;
  LinuxTrash _trash;
  ShellCommandRunner _commands;
  JsonUserDefaults _defaults;
  MountedVolume _volume;
  Formatting _formatting;
  const ApplicationInfo _info;
  RecentlyUsedList _recentDocuments;
  ProcessTable _programs;
};

}  // namespace klarvik
