#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
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

}  // namespace klarvik
