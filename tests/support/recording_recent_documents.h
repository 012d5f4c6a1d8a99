#pragma once

#include <atomic>

#include "platform/recent_documents.h"
#include "support/gate.h"

namespace klarvik {

/// Counts how often it was asked to empty the list, and can be held up before it does. May be used
/// from any thread.
class RecordingRecentDocuments final : public RecentDocuments {
 public:
  bool clear() override {
    if (gate != nullptr) gate->pass();
    ++clearings;
    return canClear;
  }

  Gate* gate = nullptr;  ///< where it waits, to be set before it is asked
  std::atomic<bool> canClear = true;
  std::atomic<int> clearings = 0;
};

}  // namespace klarvik
