#include "platform/base64.h"

#include <openssl/evp.h>

namespace klarvik {
namespace {

const unsigned char* data(std::string_view text) {
  return reinterpret_cast<const unsigned char*>(text.data());
}

unsigned char* data(std::string& text) {
  return reinterpret_cast<unsigned char*>(text.data());
}

}  // namespace

std::string base64(std::string_view bytes) {
  std::string text((bytes.size() + 2) / 3 * 4 + 1, '\0');  // OpenSSL ends it with a NUL
  const int length = EVP_EncodeBlock(data(text), data(bytes), static_cast<int>(bytes.size()));
  text.resize(static_cast<std::size_t>(length));
  return text;
}

std::optional<std::string> bytesOfBase64(std::string_view text) {
  std::string bytes(text.size() / 4 * 3, '\0');
  const int length = EVP_DecodeBlock(data(bytes), data(text), static_cast<int>(text.size()));
  const std::size_t padding = text.ends_with("==") ? 2 : text.ends_with("=") ? 1 : 0;
  if (length < static_cast<int>(padding)) return std::nullopt;
  bytes.resize(static_cast<std::size_t>(length) - padding);
  // OpenSSL passes over blanks at the ends and over bits that stand for nothing.
  if (base64(bytes) != text) return std::nullopt;
  return bytes;
}

}  // namespace klarvik
