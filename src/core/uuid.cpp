#include "core/uuid.h"

#include <sys/random.h>
#include <uuid/uuid.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <span>

namespace klarvik {

namespace {

/// Random bytes of the system. A scan makes an identifier for every item, and asking the system
/// takes longer than all the rest: they are drawn in advance.
class RandomBytes {
 public:
  void take(std::span<std::uint8_t> into) {
    if (_bytes.size() - _taken < into.size()) draw();
    std::memcpy(into.data(), _bytes.data() + _taken, into.size());
    _taken += into.size();
  }

 private:
  void draw() {
    for (std::span<std::uint8_t> left = _bytes; !left.empty();) {
      const ssize_t drawn = getrandom(left.data(), left.size(), 0);
      if (drawn < 0 && errno != EINTR) std::abort();
      left = left.subspan(static_cast<std::size_t>(std::max<ssize_t>(drawn, 0)));
    }
    _taken = 0;
  }

  std::array<std::uint8_t, 4096> _bytes{};
  std::size_t _taken = _bytes.size();
};

}  // namespace

Uuid Uuid::random() {
  thread_local RandomBytes bytes;
  Uuid id;
  bytes.take(id._bytes);
  id._bytes[6] = static_cast<std::uint8_t>((id._bytes[6] & 0x0F) | 0x40);  // version 4, random
  id._bytes[8] = static_cast<std::uint8_t>((id._bytes[8] & 0x3F) | 0x80);  // of the usual variant
  return id;
}

std::optional<Uuid> Uuid::fromText(const std::string& text) {
  Uuid id;
  if (uuid_parse(text.c_str(), id._bytes.data()) != 0 || text.size() != UUID_STR_LEN - 1) {
    return std::nullopt;
  }
  return id;
}

std::string Uuid::text() const {
  std::array<char, UUID_STR_LEN> text{};
  uuid_unparse_upper(_bytes.data(), text.data());
  return text.data();
}

}  // namespace klarvik

std::size_t std::hash<klarvik::Uuid>::operator()(const klarvik::Uuid& id) const noexcept {
  // The bytes are random, so that any of them are as good as a hash of all.
  std::size_t value = 0;
  std::memcpy(&value, id._bytes.data(), sizeof value);
  return value;
}
