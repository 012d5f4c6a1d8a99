#include "core/uuid.h"

#include <uuid/uuid.h>

#include <cstring>

namespace klarvik {

Uuid Uuid::random() {
  Uuid id;
  uuid_generate_random(id._bytes.data());
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
