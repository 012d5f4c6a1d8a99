#include "tools/content_digest.h"

#include "platform/file_system.h"

namespace klarvik {

std::string hexadecimal(const Digest& digest) {
  constexpr std::string_view digits = "0123456789abcdef";
  std::string text;
  text.reserve(2 * digest.size());
  for (const unsigned char byte : digest) {
    text += digits[byte >> 4U];
    text += digits[byte & 0xFU];
  }
  return text;
}

// The method is fetched once: looking it up again for each file costs more than hashing a small
// one.
Sha256::Sha256() : _method(EVP_MD_fetch(nullptr, "SHA256", nullptr)), _context(EVP_MD_CTX_new()) {}

void Sha256::begin() {
  _works = _method && _context && EVP_DigestInit_ex2(_context.get(), _method.get(), nullptr) == 1;
}

void Sha256::add(std::span<const std::byte> bytes) {
  _works = _works && EVP_DigestUpdate(_context.get(), bytes.data(), bytes.size()) == 1;
}

std::optional<Digest> Sha256::finish() {
  Digest digest;
  const bool done = _works && EVP_DigestFinal_ex(_context.get(), digest.data(), nullptr) == 1;
  return done ? std::optional(digest) : std::nullopt;
}

std::optional<Digest> ContentHasher::digest(std::unique_ptr<FileReader> file) {
  if (!file) return std::nullopt;
  const std::span chunk(_chunk.get(), chunkBytes);
  _sha256.begin();
  for (std::size_t count = chunkBytes; count == chunkBytes;) {
    count = file->read(chunk).value_or(0);
    _sha256.add(chunk.first(count));
  }
  return _sha256.finish();
}

}  // namespace klarvik
