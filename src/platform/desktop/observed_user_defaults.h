#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <string>

#include "base/paths.h"
#include "platform/user_defaults.h"

namespace klarvik {

/// Tells, from the main loop, that a file may have been written, replaced, made or removed, also
/// while its folder is not there. It may tell more often than that. Main thread only.
class FileWatch {
 public:
  /// `file` is a path on the machine.
  FileWatch(const Path& file, std::function<void()> changed);

 private:
  void lookAgain();
  [[nodiscard]] QStringList placesToWatch() const;

  const QString _file;
  std::function<void()> _changed;
  QFileSystemWatcher _watcher;
};

class NotificationCenter;

/// Preferences that are kept in a file, with `defaultsChangedNotification` posted after each change
/// to them. One that cannot be stored holds for the rest of the run, or until it can. Made and
/// destroyed on the main thread.
class ObservedUserDefaults final : public QObject, public UserDefaults {
 public:
  /// `file`, on the machine, is where `stored` keeps them. What is handed in must outlive this.
  ObservedUserDefaults(UserDefaults& stored, const Path& file, NotificationCenter& notifications);

  [[nodiscard]] std::optional<DefaultsValue> object(const std::string& key) const override;
  bool set(const std::string& key, const DefaultsValue& value) override;
  bool remove(const std::string& key) override;

 private:
  using Wish = std::optional<DefaultsValue>;  ///< nothing: removed

  bool change(const std::string& key, const Wish& wish);
  [[nodiscard]] bool isStored(const std::string& key, const Wish& wish);
  void storeWhatWaits();
  void postLater(const char* notification);

  UserDefaults& _stored;
  NotificationCenter& _notifications;
  FileWatch _outsideChanges;
  mutable std::mutex _mutex;  // guards what follows
  std::map<std::string, Wish> _notStored;
  bool _hasToldOfIt = false;
};

}  // namespace klarvik
