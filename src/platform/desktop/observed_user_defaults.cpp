#include "platform/desktop/observed_user_defaults.h"

#include <QFile>
#include <QFileInfo>
#include <utility>

#include "platform/notification_center.h"

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

ObservedUserDefaults::ObservedUserDefaults(UserDefaults& stored, const Path& file,
                                           NotificationCenter& notifications)
    : _stored(stored),
      _notifications(notifications),
      _outsideChanges(file, [this] { _notifications.post(defaultsChangedNotification); }) {}

std::optional<DefaultsValue> ObservedUserDefaults::object(const std::string& key) const {
  const std::scoped_lock lock(_mutex);
  const auto waiting = _notStored.find(key);
  return waiting != _notStored.end() ? waiting->second : _stored.object(key);
}

bool ObservedUserDefaults::set(const std::string& key, const DefaultsValue& value) {
  return change(key, value);
}

bool ObservedUserDefaults::remove(const std::string& key) {
  return change(key, std::nullopt);
}

bool ObservedUserDefaults::change(const std::string& key, const Wish& wish) {
  const std::scoped_lock lock(_mutex);
  const bool stored = isStored(key, wish);
  if (stored) {
    _notStored.erase(key);
    storeWhatWaits();
  } else {
    _notStored[key] = wish;
    if (!_hasToldOfIt) postLater(defaultsNotSavedNotification);
    _hasToldOfIt = true;
  }
  // The watch would see a stored change as well, but a system may have no watches left.
  postLater(defaultsChangedNotification);
  return stored;
}

bool ObservedUserDefaults::isStored(const std::string& key, const Wish& wish) {
  return wish ? _stored.set(key, *wish) : _stored.remove(key);
}

void ObservedUserDefaults::storeWhatWaits() {
  std::erase_if(_notStored,
                [this](const auto& waiting) { return isStored(waiting.first, waiting.second); });
}

void ObservedUserDefaults::postLater(const char* notification) {
  QMetaObject::invokeMethod(
      this, [this, notification] { _notifications.post(notification); }, Qt::QueuedConnection);
}

}  // namespace klarvik
