#pragma once

#include <QProcess>
#include <QString>

namespace klarvik {

/// A bus of its own, so that no program of whoever runs the tests is asked for anything.
class PrivateBus {
 public:
  PrivateBus() {
    _daemon.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
    if (_daemon.waitForStarted() && _daemon.waitForReadyRead()) {
      address = QString::fromUtf8(_daemon.readLine()).trimmed();
    }
    qputenv("DBUS_SESSION_BUS_ADDRESS", address.toUtf8());
  }
  ~PrivateBus() {
    _daemon.kill();
    _daemon.waitForFinished();
  }
  PrivateBus(const PrivateBus&) = delete;
  PrivateBus& operator=(const PrivateBus&) = delete;
  QString address;

 private:
  QProcess _daemon;
};

}  // namespace klarvik
