#include "tools/duplicate_group.h"

#include <algorithm>

#include "base/bytes.h"

namespace klarvik {

std::int64_t DuplicateGroup::reclaimableBytes() const {
  if (files.empty()) return 0;
  std::int64_t largest = files.front().size;
  std::int64_t rest = 0;
  for (auto file = files.begin() + 1; file != files.end(); ++file) {
    rest = addBytes(rest, std::min(largest, file->size));
    largest = std::max(largest, file->size);
  }
  return rest;
}

}  // namespace klarvik
