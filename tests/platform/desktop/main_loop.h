#pragma once

#include <QApplication>
#include <QDeadlineTimer>
#include <functional>

namespace klarvik {

/// The application object that what is tested here needs; made at first use.
inline void needApplication() {
  static int argumentCount = 1;
  static char name[] = "desktop_tests";
  static char* arguments[] = {name, nullptr};
  static QApplication application(argumentCount, arguments);
}

/// Runs the main loop until `condition` holds; false when it still does not after a minute.
inline bool runUntil(const std::function<bool()>& condition) {
  needApplication();
  const QDeadlineTimer patience(60'000);
  while (!condition() && !patience.hasExpired()) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 20);
  }
  return condition();
}

}  // namespace klarvik
