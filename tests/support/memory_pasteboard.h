#pragma once

#include <atomic>

#include "platform/pasteboard.h"

namespace klarvik {

/// A clipboard that only knows whether there is something on it. Empty at first; may be used from
/// any thread.
class MemoryPasteboard final : public Pasteboard {
 public:
  [[nodiscard]] bool holdsTextOrImage() override { return isFilled; }
  void clear() override {
    isFilled = false;
    ++clearings;
  }

  std::atomic<bool> isFilled = false;
  std::atomic<int> clearings = 0;
};

}  // namespace klarvik
