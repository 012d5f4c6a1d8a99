#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>
#include <functional>

namespace klarvik {

/// Delivers what has been posted to the main thread by now.
inline void turnMainLoop() {
  QCoreApplication::sendPostedEvents();
  QCoreApplication::processEvents();
}

/// Turns the main loop until `reached` holds, with `afterEachTurn` in between. False when it never
/// does: the minute only keeps a broken test from hanging.
///
/// While nothing happens the thread sleeps, and leaves the processor to those that are waited for;
/// whatever reaches the main loop wakes it. A file or a gate that has changed tells nobody, and so
/// the loop is woken every other millisecond as well.
[[nodiscard]] inline bool turnMainLoopUntil(
    const std::function<bool()>& reached, const std::function<void()>& afterEachTurn = [] {}) {
  const QDeadlineTimer giveUp(60'000);
  QTimer wake;
  wake.setTimerType(Qt::PreciseTimer);
  wake.start(2);
  while (!reached()) {
    if (giveUp.hasExpired()) return false;
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    afterEachTurn();
  }
  return true;
}

}  // namespace klarvik
