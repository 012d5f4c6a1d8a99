#pragma once

#include "platform/login_item.h"

namespace klarvik {

/// A login item of nothing; a test says what it answers.
class FakeLoginItem final : public LoginItem {
 public:
  [[nodiscard]] Status status() const override { return current; }
  bool registerProgram() override { return changeTo(Status::enabled); }
  bool unregisterProgram() override { return changeTo(Status::notRegistered); }

  Status current = Status::notRegistered;
  bool canChange = true;
  int changes = 0;  ///< tried, whatever came of it

 private:
  bool changeTo(Status wanted) {
    ++changes;
    if (canChange) current = wanted;
    return canChange;
  }
};

}  // namespace klarvik
