#pragma once

#include <QObject>

#include "platform/desktop/file_watch.h"
#include "platform/user_defaults.h"

namespace klarvik {

class NotificationCenter;

/// Preferences that are kept in a file, with `defaultsChangedNotification` posted after each change
/// to them. Made and destroyed on the main thread.
class ObservedUserDefaults final : public QObject, public UserDefaults {
 public:
  /// `file`, on the machine, is where `stored` keeps them. What is handed in must outlive this.
  ObservedUserDefaults(UserDefaults& stored, const Path& file, NotificationCenter& notifications);

  [[nodiscard]] std::optional<DefaultsValue> object(const std::string& key) const override;
  bool set(const std::string& key, const DefaultsValue& value) override;
  bool remove(const std::string& key) override;

 private:
  bool tellLater(bool hasChanged);

  UserDefaults& _stored;
  NotificationCenter& _notifications;
  FileWatch _outsideChanges;
};

}  // namespace klarvik
