#include "panes/kit/loader_timeline.h"

#include <QtQml>
#include <cmath>
#include <numbers>

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

LoaderTimeline::LoaderTimeline(QObject* parent) : QObject(parent) {
  _timer.setInterval(frame);
  connect(&_timer, &QTimer::timeout, this, &LoaderTimeline::advance);
}

void LoaderTimeline::setRunning(bool running) {
  if (running == isRunning()) return;
  if (running) {
    _sinceFrame.start();
    _timer.start();
  } else {
    _timer.stop();
  }
  emit runningChanged();
}

void LoaderTimeline::advance() {
  _seconds += static_cast<double>(_sinceFrame.restart()) / 1000;
  emit secondsChanged();
}

double inlineLoaderOpacity(int dot, double seconds, bool reduceMotion) {
  if (reduceMotion) return 1;
  constexpr double period = 1.2;
  const double phase = std::fmod(seconds - 0.15 * dot, period) / period;
  return (0.5 - std::cos(2 * std::numbers::pi * phase) * 0.5) * 0.75 + 0.25;
}

}  // namespace klarvik
