#include "core/junk_model.h"

#include <string>
#include <tuple>

#include "base/bytes.h"
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

}  // namespace klarvik
