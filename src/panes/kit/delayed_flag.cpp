#include "panes/kit/delayed_flag.h"

#include <QtQml>

#include "panes/kit/kit.h"

namespace klarvik {

void DelayedFlag::setRunning(bool running) {
  if (running == _running) return;
  _running = running;
  if (running) {
    Clock& clock = Kit::of(*qmlEngine(this)).clock();
    _alarm = clock.wakeAfter(delay, [this] { setRaised(true); });
  } else {
    _alarm.reset();
    setRaised(false);
  }
  emit runningChanged();
}

void DelayedFlag::setRaised(bool raised) {
  if (raised == _raised) return;
  _raised = raised;
  emit raisedChanged();
}

}  // namespace klarvik
