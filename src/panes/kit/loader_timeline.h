#pragma once

#include <QtQml/qqmlregistration.h>
#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <chrono>
#include <memory>

#include "platform/clock.h"

namespace klarvik {

/// Raised once it has been running for 400 milliseconds without a break. Stopping it lowers it, and
/// what was still to come never comes.
class DelayedFlag : public QObject {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(bool running READ isRunning WRITE setRunning NOTIFY runningChanged)
  Q_PROPERTY(bool raised READ isRaised NOTIFY raisedChanged)

 public:
  static constexpr std::chrono::nanoseconds delay{400'000'000};

  using QObject::QObject;

  [[nodiscard]] bool isRunning() const { return _running; }
  void setRunning(bool running);
  [[nodiscard]] bool isRaised() const { return _raised; }

 signals:
  void runningChanged();
  void raisedChanged();

 private:
  void setRaised(bool raised);

  bool _running = false;
  bool _raised = false;
  std::unique_ptr<Clock::Alarm> _alarm;
};

/// The time that the loaders move by, in steps that draw at most 30 frames a second. Stands still
/// while it is not running, and goes on from there.
class LoaderTimeline : public QObject {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(bool running READ isRunning WRITE setRunning NOTIFY runningChanged)
  Q_PROPERTY(double seconds READ seconds NOTIFY secondsChanged)

 public:
  /// The shortest whole number of milliseconds that keeps to 30 frames.
  static constexpr std::chrono::milliseconds frame{34};

  explicit LoaderTimeline(QObject* parent = nullptr);

  [[nodiscard]] bool isRunning() const { return _timer.isActive(); }
  void setRunning(bool running);
  [[nodiscard]] double seconds() const { return _seconds; }

 signals:
  void runningChanged();
  void secondsChanged();

 private:
  void advance();

  QTimer _timer;
  QElapsedTimer _sinceFrame;
  double _seconds = 0;
};

/// Opacity of dot 0, 1 or 2 of the inline loader at a time in seconds.
[[nodiscard]] double inlineLoaderOpacity(int dot, double seconds, bool reduceMotion);

}  // namespace klarvik
