#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "platform/file_attributes.h"
#include "platform/path.h"

namespace klarvik {

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
