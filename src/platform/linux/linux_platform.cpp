#include "platform/linux/linux_platform.h"

#include "platform/application_info.h"

namespace klarvik {

LinuxPlatform::LinuxPlatform(const Path& root, const UserFolders& folders)
    : _files(root, folders.home),
      _trash(root, folders.home, folders.data),
      _defaults(_files.diskPath(folders.configuration) / "klarvik"),
      _volume(root),
      _info(builtInApplicationInfo()),
      _recentDocuments(_files.diskPath(folders.data) / "recently-used.xbel") {}

Platform LinuxPlatform::platform() {
  return {_files, _trash, _commands, _defaults, _volume, _formatting, _info, _recentDocuments};
}

}  // namespace klarvik
