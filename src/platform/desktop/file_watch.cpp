#include "platform/desktop/file_watch.h"

#include <QFile>
#include <QFileInfo>
#include <utility>

namespace klarvik {

FileWatch::FileWatch(const Path& file, std::function<void()> changed)
    : _file(QFile::decodeName(file.c_str())), _changed(std::move(changed)) {
  const auto tell = [this] {
    // What has been replaced or moved away is no longer watched under its name. Looking first and
    // telling then leaves no moment in which a change would go unseen.
    lookAgain();
    _changed();
  };
  QObject::connect(&_watcher, &QFileSystemWatcher::fileChanged, &_watcher, tell);
  QObject::connect(&_watcher, &QFileSystemWatcher::directoryChanged, &_watcher, tell);
  lookAgain();
}

void FileWatch::lookAgain() {
  const QStringList watched = _watcher.files() + _watcher.directories();
  if (!watched.isEmpty()) _watcher.removePaths(watched);
  _watcher.addPaths(placesToWatch());
}

/// The file, its folder, and the folder above, which tells that the folder itself was moved; or the
/// nearest three that are there.
QStringList FileWatch::placesToWatch() const {
  QStringList places;
  QString place = _file;
  while (places.size() < 3) {
    if (QFileInfo::exists(place)) places << place;
    const QString above = QFileInfo(place).path();
    if (above == place) break;
    place = above;
  }
  return places;
}

}  // namespace klarvik
