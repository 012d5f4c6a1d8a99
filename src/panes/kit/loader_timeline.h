#pragma once

#include <QtQml/qqmlregistration.h>
#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <chrono>

namespace klarvik {

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
