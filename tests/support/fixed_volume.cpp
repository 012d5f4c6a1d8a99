#include "support/fixed_volume.h"

namespace klarvik {

void FixedVolume::setTotalBytes(std::optional<std::int64_t> bytes) {
  const std::lock_guard lock(_mutex);
  _totalBytes = bytes;
}

void FixedVolume::setAvailableBytes(std::optional<std::int64_t> bytes) {
  const std::lock_guard lock(_mutex);
  _availableBytes = bytes;
}

void FixedVolume::setName(std::optional<std::string> name) {
  const std::lock_guard lock(_mutex);
  _name = std::move(name);
}

std::optional<std::int64_t> FixedVolume::totalBytes() const {
  const std::lock_guard lock(_mutex);
  return _totalBytes;
}

std::optional<std::int64_t> FixedVolume::availableBytes() const {
  const std::lock_guard lock(_mutex);
  return _availableBytes;
}

std::optional<std::string> FixedVolume::name() const {
  const std::lock_guard lock(_mutex);
  return _name;
}

}  // namespace klarvik
