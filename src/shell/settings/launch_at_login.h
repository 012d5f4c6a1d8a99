#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

#include "platform/login_item.h"

namespace klarvik {

/// Whether the program starts at login, as a box on the screen. Read when this is made, and after
/// each change by the box: one that fails snaps back. Main thread only.
class LaunchAtLogin : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The settings hand it out.")
  Q_PROPERTY(bool isOn READ isOn NOTIFY changed)
  Q_PROPERTY(bool isUnavailable READ isUnavailable NOTIFY changed)

 public:
  /// `loginItem` must outlive this.
  explicit LaunchAtLogin(LoginItem& loginItem, QObject* parent = nullptr);

  [[nodiscard]] bool isOn() const { return _status == LoginItem::Status::enabled; }
  /// This copy of the program is not one that can be started at login.
  [[nodiscard]] bool isUnavailable() const { return _status == LoginItem::Status::notFound; }
  Q_INVOKABLE void toggle();

 signals:
  void changed();

 private:
  LoginItem& _loginItem;
  LoginItem::Status _status;
};

}  // namespace klarvik
