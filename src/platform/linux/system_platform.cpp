#include "platform/system_platform.h"

#include <fcntl.h>
#include <sys/stat.h>

#include "base/posix_io.h"
#include "platform/application_info.h"
#include "platform/formatting.h"
#include "platform/linux/command_runners.h"
#include "platform/linux/json_user_defaults.h"
#include "platform/linux/linux_file_system.h"
#include "platform/linux/linux_trash.h"
#include "platform/linux/mounts.h"
#include "platform/linux/process_table.h"
#include "platform/linux/recently_used_list.h"

namespace klarvik {
namespace {

constexpr std::size_t longestUserDirs = 64UL * 1024;

/// With the visible folders that the desktop has set for this user. The file is often a link, to
/// where people keep their settings.
UserFolders withChosenFolders(const Path& root, const UserFolders& folders) {
  const Path file =
      LinuxFileSystem(root, folders).diskPath(folders.configuration) / "user-dirs.dirs";
  const UniqueFd opened(retryOnEintr(
      [&] { return ::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC); }));
  struct stat status {};
  const bool isFile = opened && ::fstat(opened.get(), &status) == 0 && S_ISREG(status.st_mode);
  const auto text = isFile ? readToEnd(opened.get(), longestUserDirs) : std::nullopt;
  return text ? folders.withVisibleFolders(*text) : folders;
}

/// A home that is not there lies nowhere yet.
Path homeOrRoot(const Path& root, const FileSystem& files) {
  return files.exists(files.home()) ? files.diskPath(files.home()) : root;
}

}  // namespace

struct SystemPlatform::Parts {
  Parts(const Path& root, const UserFolders& folders, FormattingLanguage language)
      : files(root, withChosenFolders(root, folders)),
        trash(root, folders.home, folders.data),
        defaults(files.diskPath(folders.configuration) / "klarvik"),
        volume(homeOrRoot(root, files)),
        formatting(std::move(language)),
        recentDocuments(files.diskPath(folders.data) / "recently-used.xbel"),
        tools(root, files.folders()) {}

  LinuxFileSystem files;
  LinuxTrash trash;
  ShellCommandRunner commands{};
  JsonUserDefaults defaults;
  MountedVolume volume;
  Formatting formatting;
  const ApplicationInfo info = builtInApplicationInfo();
  RecentlyUsedList recentDocuments;
  ProcessTable programs{};
  SystemTools tools;
};

SystemPlatform::SystemPlatform(const Path& root, const UserFolders& folders,
                               FormattingLanguage language)
    : _parts(std::make_unique<Parts>(root, folders, std::move(language))) {}

SystemPlatform::~SystemPlatform() = default;

Platform SystemPlatform::platform() {
  return {_parts->files,    _parts->trash,      _parts->commands, _parts->defaults,
          _parts->volume,   _parts->formatting, _parts->info,     _parts->recentDocuments,
          _parts->programs, _parts->tools};
}

const Path& SystemPlatform::preferencesFile() const {
  return _parts->defaults.file();
}

}  // namespace klarvik
