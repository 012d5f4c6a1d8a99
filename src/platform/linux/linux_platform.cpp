#include "platform/linux/linux_platform.h"

#include <fcntl.h>
#include <sys/stat.h>

#include "base/posix_io.h"
#include "platform/application_info.h"

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

LinuxPlatform::LinuxPlatform(const Path& root, const UserFolders& folders)
    : _files(root, withChosenFolders(root, folders)),
      _trash(root, folders.home, folders.data),
      _defaults(_files.diskPath(folders.configuration) / "klarvik"),
      _volume(homeOrRoot(root, _files)),
      _info(builtInApplicationInfo()),
      _recentDocuments(_files.diskPath(folders.data) / "recently-used.xbel") {}

Platform LinuxPlatform::platform() {
  return {_files,      _trash, _commands,        _defaults, _volume,
          _formatting, _info,  _recentDocuments, _programs};
}

}  // namespace klarvik
