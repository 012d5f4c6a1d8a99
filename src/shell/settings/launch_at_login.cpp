#include "shell/settings/launch_at_login.h"

#include "state/set_if_changed.h"

namespace klarvik {

LaunchAtLogin::LaunchAtLogin(LoginItem& loginItem, QObject* parent)
    : QObject(parent), _loginItem(loginItem), _status(loginItem.status()) {}

void LaunchAtLogin::toggle() {
  const bool wanted = !isOn();
  const bool isEnabled = _loginItem.status() == LoginItem::Status::enabled;
  if (wanted && !isEnabled) _loginItem.registerProgram();
  if (!wanted && isEnabled) _loginItem.unregisterProgram();
  if (setIfChanged(_status, _loginItem.status())) emit changed();
}

}  // namespace klarvik
