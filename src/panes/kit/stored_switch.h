#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <string>

#include "platform/notification_center.h"
#include "platform/user_defaults.h"

namespace klarvik {

class UserDefaults;

/// A boolean preference as a box on the screen: written at once, and followed when anybody else
/// changes it. A value that cannot be stored leaves it as it was. Main thread only; what it is
/// handed must outlive it.
class StoredSwitch : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Models hand theirs out.")
  Q_PROPERTY(bool isOn READ isOn NOTIFY isOnChanged)

 public:
  /// `fallback` is what an absent value, or one of another type, counts as.
  StoredSwitch(UserDefaults& defaults, NotificationCenter& notifications, std::string key,
               bool fallback = true, QObject* parent = nullptr);

  [[nodiscard]] bool isOn() const { return _isOn; }
  Q_INVOKABLE void toggle();

 signals:
  void isOnChanged();

 private:
  [[nodiscard]] bool stored() const { return _defaults.boolean(_key, _fallback); }
  void follow();

  UserDefaults& _defaults;
  const std::string _key;
  const bool _fallback;
  bool _isOn;
  NotificationCenter::Subscription _changes;
};

}  // namespace klarvik
