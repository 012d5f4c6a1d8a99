#pragma once

#include <atomic>

#include "platform/recent_documents.h"

namespace klarvik {

/// Counts how often it was asked to empty the list. May be used from any thread.
class RecordingRecentDocuments final : public RecentDocuments {
 public:
  bool clear() override {
    ++clearings;
    return canClear;
  }

  std::atomic<bool> canClear = true;
  std::atomic<int> clearings = 0;
};

}  // namespace klarvik
