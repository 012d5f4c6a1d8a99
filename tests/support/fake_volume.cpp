#include "support/fake_volume.h"

namespace klarvik {

void FakeVolume::setTotalBytes(std::optional<std::int64_t> bytes) {
  const std::lock_guard lock(_mutex);
  _totalBytes = bytes;
}

void FakeVolume::setAvailableBytes(std::optional<std::int64_t> bytes) {
  const std::lock_guard lock(_mutex);
  _availableBytes = bytes;
}

void FakeVolume::setKeptForRootBytes(std::optional<std::int64_t> bytes) {
  const std::lock_guard lock(_mutex);
  _keptForRootBytes = bytes;
}

void FakeVolume::setName(std::optional<std::string> name) {
  const std::lock_guard lock(_mutex);
  _name = std::move(name);
}

std::optional<std::int64_t> FakeVolume::totalBytes() const {
  const std::lock_guard lock(_mutex);
  return _totalBytes;
}

std::optional<std::int64_t> FakeVolume::availableBytes() const {
  const std::lock_guard lock(_mutex);
  return _availableBytes;
}

std::optional<std::int64_t> FakeVolume::keptForRootBytes() const {
  const std::lock_guard lock(_mutex);
  return _keptForRootBytes;
}

std::optional<std::string> FakeVolume::name() const {
  const std::lock_guard lock(_mutex);
  return _name;
}

}  // namespace klarvik
