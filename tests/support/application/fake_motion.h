#pragma once

#include <QAbstractEventDispatcher>
#include <QAnimationDriver>
#include <QCoreApplication>
#include <QVariantAnimation>
#include <chrono>

namespace klarvik {

/// Animations that stand still until a test moves them, and windows that draw at once. To be there
/// before the first window.
class FakeMotion final : private QAnimationDriver {
 public:
  FakeMotion() {
    // Else a timer holds every frame back by 5 milliseconds.
    qputenv("QT_QPA_UPDATE_IDLE_TIME", "0");
    // Where nothing but pauses run, Qt waits for their end by a timer of its own. Something that
    // always runs leaves the time to this driver.
    _always.setLoopCount(-1);
    install();
    _always.start();
    QCoreApplication::processEvents();
  }
  ~FakeMotion() override {
    _always.stop();
    QCoreApplication::processEvents();
    uninstall();
  }
  FakeMotion(const FakeMotion&) = delete;
  FakeMotion& operator=(const FakeMotion&) = delete;

  void moveOn(std::chrono::milliseconds duration) {
    _elapsed += duration.count();
    advanceAnimation();
  }

  /// Delivers whatever has been posted, and what that posts in its turn, and has every window draw
  /// what has changed, until nothing is left to do. What a timer does again and again is not waited
  /// for to end: a loader turns for ever, on a slow machine faster than it is drawn.
  static void turnUntilStill() {
    constexpr int mostTurns = 40;
    for (int turn = 0; turn < mostTurns; ++turn) {
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
      if (!QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents)) return;
    }
  }

 private:
  [[nodiscard]] qint64 elapsed() const override { return _elapsed; }

  qint64 _elapsed = 0;
  QVariantAnimation _always;
};

}  // namespace klarvik
