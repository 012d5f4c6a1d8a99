#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <chrono>
#include <functional>
#include <memory>

namespace klarvik {

/// Gives a test program a main loop; including this header is enough.
class MainLoopEnvironment final : public ::testing::Environment {
 public:
  void SetUp() override { _application = std::make_unique<QCoreApplication>(_count, _arguments); }
  void TearDown() override { _application.reset(); }

 private:
  int _count = 1;
  char _name[6] = "tests";
  char* _arguments[2] = {_name, nullptr};
  std::unique_ptr<QCoreApplication> _application;
};

inline ::testing::Environment* const mainLoopEnvironment =
    ::testing::AddGlobalTestEnvironment(new MainLoopEnvironment);

/// Turns the main loop until `reached` holds. False when it never does: the minute only keeps a
/// broken test from hanging.
[[nodiscard]] inline bool turnMainLoopUntil(const std::function<bool()>& reached) {
  const auto giveUp = std::chrono::steady_clock::now() + std::chrono::minutes(1);
  while (!reached()) {
    if (std::chrono::steady_clock::now() > giveUp) return false;
    QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
  }
  return true;
}

/// Delivers what has been posted to the main thread by now.
inline void turnMainLoop() {
  QCoreApplication::sendPostedEvents();
  QCoreApplication::processEvents();
}

}  // namespace klarvik
