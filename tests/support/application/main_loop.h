#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>
#include <functional>

namespace klarvik {

/// Delivers what has been posted to the main thread by now.
inline void turnMainLoop() {
  QCoreApplication::sendPostedEvents();
  QCoreApplication::processEvents();
}

/// Turns the main loop until `reached` holds. False when it never does: the minute only keeps a
/// broken test from hanging.
[[nodiscard]] inline bool turnMainLoopUntil(const std::function<bool()>& reached) {
  const QDeadlineTimer giveUp(60'000);
  while (!reached()) {
    if (giveUp.hasExpired()) return false;
    QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    QThread::usleep(200);  // the processor belongs to the threads that are waited for
  }
  return true;
}

}  // namespace klarvik
