#include "platform/desktop/desktop_platform.h"

namespace klarvik {

std::unique_ptr<DesktopPlatform> DesktopPlatform::ofThisUser() {
  const auto folders = UserFolders::ofThisUser();
  return folders ? std::make_unique<DesktopPlatform>("/", *folders) : nullptr;
}

DesktopPlatform::DesktopPlatform(const Path& root, const UserFolders& folders)
    : _system(root, folders),
      _defaults(_system.platform().defaults, _system.preferencesFile(), _notifications),
      _workspace(_system.platform().files),
      _openPanel(_system.platform().files) {}

Desktop DesktopPlatform::desktop() {
  const Platform system = _system.platform();
  return {{system.files, system.trash, system.commands, _defaults, system.volume, system.formatting,
           system.info, system.recentDocuments},
          _clock,
          _notifications,
          _workspace,
          _pasteboard,
          _openPanel,
          _statusItem};
}

}  // namespace klarvik
