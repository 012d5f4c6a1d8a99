#include "panes/kit/stored_switch.h"

#include <utility>

#include "platform/user_defaults.h"

namespace klarvik {

StoredSwitch::StoredSwitch(UserDefaults& defaults, NotificationCenter& notifications,
                           std::string key, bool fallback, QObject* parent)
    : QObject(parent),
      _defaults(defaults),
      _key(std::move(key)),
      _fallback(fallback),
      _isOn(stored()),
      _changes(notifications.observe(defaultsChangedNotification, [this] { follow(); })) {}

void StoredSwitch::toggle() {
  _defaults.set(_key, !_isOn);
  follow();
}

void StoredSwitch::follow() {
  const bool now = stored();
  if (now == _isOn) return;
  _isOn = now;
  emit isOnChanged();
}

}  // namespace klarvik
