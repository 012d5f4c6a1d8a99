#include "platform/desktop/observed_user_defaults.h"

#include "platform/notification_center.h"

namespace klarvik {

ObservedUserDefaults::ObservedUserDefaults(UserDefaults& stored, const Path& file,
                                           NotificationCenter& notifications)
    : _stored(stored),
      _notifications(notifications),
      _outsideChanges(file, [this] { _notifications.post(defaultsChangedNotification); }) {}

std::optional<DefaultsValue> ObservedUserDefaults::object(const std::string& key) const {
  return _stored.object(key);
}

bool ObservedUserDefaults::set(const std::string& key, const DefaultsValue& value) {
  return tellLater(_stored.set(key, value));
}

bool ObservedUserDefaults::remove(const std::string& key) {
  return tellLater(_stored.remove(key));
}

/// The watch would see this change as well, but a system may have no watches left.
bool ObservedUserDefaults::tellLater(bool hasChanged) {
  if (hasChanged) {
    QMetaObject::invokeMethod(
        this, [this] { _notifications.post(defaultsChangedNotification); }, Qt::QueuedConnection);
  }
  return hasChanged;
}

}  // namespace klarvik
