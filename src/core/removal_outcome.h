#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <optional>

#include "base/paths.h"
#include "platform/file_attributes.h"

namespace klarvik {

/// How many things removals and restores have left as they were, by the reasons that the user is
/// told. What the guard refuses, and most of what fails otherwise, is not told. Any thread.
struct LeftAlone {
  std::atomic<std::int64_t> replaced = 0;     ///< another thing has come to the name
  std::atomic<std::int64_t> keptCopies = 0;   ///< a copy is the very file that stays
  std::atomic<std::int64_t> notReturned = 0;  ///< another thing has come to the name in the Trash
  std::atomic<std::int64_t> toolsInVain = 0;  ///< the tool that removes it has not
  std::atomic<std::int64_t> notMoved = 0;     ///< the Trash has not taken the one thing picked
};

/// An item that a removal has put into the Trash: what the way back from it needs.
struct TrashedItem {
  Path original;
  Path trashed;
  std::optional<EntryIdentity> identity;
  std::int64_t bytes = 0;

  bool operator==(const TrashedItem&) const = default;
};

/// Sees each item right after it was moved, on the thread that runs the removal.
using TrashedSink = std::function<void(TrashedItem item)>;

}  // namespace klarvik
