#include "platform/desktop/desktop_platform.h"

namespace klarvik {

std::unique_ptr<DesktopPlatform> DesktopPlatform::ofThisUser() {
  const auto folders = UserFolders::ofThisUser();
  return folders ? std::make_unique<DesktopPlatform>("/", *folders) : nullptr;
}

DesktopPlatform::DesktopPlatform(const Path& root, const UserFolders& folders)
    : _system(root, folders),
      _workspace(_system.platform().files),
      _openPanel(_system.platform().files) {}

Desktop DesktopPlatform::desktop() {
  return {_system.platform(), _clock, _notifications, _workspace, _pasteboard, _openPanel};
}

}  // namespace klarvik
