#include "platform/desktop/desktop_platform.h"

#include <QSysInfo>
#include <QVersionNumber>

#include "platform/file_system.h"

namespace klarvik {
namespace {

/// Without what a distribution adds to the number.
std::string systemVersion() {
  return QVersionNumber::fromString(QSysInfo::kernelVersion()).toString().toStdString();
}

}  // namespace

std::unique_ptr<DesktopPlatform> DesktopPlatform::ofThisUser(FormattingLanguage language) {
  const auto folders = UserFolders::ofThisUser();
  if (!folders) return nullptr;
  return std::make_unique<DesktopPlatform>("/", *folders, std::move(language));
}

DesktopPlatform::DesktopPlatform(const Path& root, const UserFolders& folders,
                                 FormattingLanguage language)
    : _system(root, folders, std::move(language)),
      _defaults(_system.platform().defaults, _system.preferencesFile(), _notifications),
      _workspace(_system.platform().files),
      _ownOpenPanel(_system.platform().files),
      _openPanel(_system.platform().files, _ownOpenPanel),
      _loginItem(XdgLoginItem::placesOfThisProgram(
          _system.platform().files.diskPath(folders.configuration))),
      _updater({_system.platform().info, _defaults, _system.platform().files, _clock, _workspace},
               {.downloads = _system.platform().files.folders().downloads,
                .systemVersion = systemVersion()}) {}

Desktop DesktopPlatform::desktop() {
  const Platform system = _system.platform();
  return {{system.files, system.trash, system.commands, _defaults, system.volume, system.formatting,
           system.info, system.recentDocuments, system.programs, system.tools},
          _clock,
          _notifications,
          _workspace,
          _motion,
          _pasteboard,
          _openPanel,
          _statusItem,
          _updater};
}

}  // namespace klarvik
