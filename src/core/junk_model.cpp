#include "core/junk_model.h"

#include <cstdlib>
#include <string>
#include <tuple>

#include "platform/formatting.h"

namespace klarvik {
bool JunkItem::operator==(const JunkItem& other) const {
  return std::tie(id, name, path, size, modifiedDate) ==
         std::tie(other.id, other.name, other.path, other.size, other.modifiedDate);
}

std::int64_t CleanCategory::totalSize() const {
  std::int64_t total = 0;
  for (const JunkItem& item : items) total = addBytes(total, item.size);
  return total;
}

std::string CleanCategory::formattedSize(const Formatting& formatting) const {
  return formatting.byteText(totalSize());
}

std::int64_t addBytes(std::int64_t left, std::int64_t right) {
  std::int64_t sum = 0;
  if (__builtin_add_overflow(left, right, &sum)) std::abort();
  return sum;
}

}  // namespace klarvik
