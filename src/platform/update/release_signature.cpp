#include "platform/update/release_signature.h"

#include <openssl/evp.h>

#include <algorithm>
#include <memory>

namespace klarvik {
namespace {

constexpr std::size_t digestBytes = 32;
constexpr std::string_view hexDigits = "0123456789abcdef";

struct Free {
  void operator()(EVP_PKEY* key) const { EVP_PKEY_free(key); }
  void operator()(EVP_MD_CTX* context) const { EVP_MD_CTX_free(context); }
};

const unsigned char* bytesOf(std::string_view text) {
  return reinterpret_cast<const unsigned char*>(text.data());
}

bool isOneLine(std::string_view text) {
  return std::ranges::none_of(text, [](char c) { return static_cast<unsigned char>(c) < ' '; });
}

std::string hexadecimal(std::string_view bytes) {
  std::string text;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    text += {hexDigits[byte >> 4], hexDigits[byte & 15]};
  }
  return text;
}

}  // namespace

std::optional<std::string> releaseStatement(const Release& release) {
  if (!isOneLine(release.version) || !isOneLine(release.displayVersion)) return std::nullopt;
  std::string text = "klarvik release 1\n";
  text.append("version ").append(release.version).append("\n");
  text.append("shown ").append(release.displayVersion).append("\n");
  text.append("length ").append(std::to_string(release.length)).append("\n");
  text.append("sha256 ").append(hexadecimal(release.digest)).append("\n");
  return text;
}

bool isSignedBy(std::string_view publicKey, std::string_view statement,
                std::string_view signature) {
  const std::unique_ptr<EVP_PKEY, Free> key(
      EVP_PKEY_new_raw_public_key(EVP_PKEY_ED25519, nullptr, bytesOf(publicKey), publicKey.size()));
  const std::unique_ptr<EVP_MD_CTX, Free> context(EVP_MD_CTX_new());
  return key && context &&
         EVP_DigestVerifyInit(context.get(), nullptr, nullptr, nullptr, key.get()) == 1 &&
         EVP_DigestVerify(context.get(), bytesOf(signature), signature.size(), bytesOf(statement),
                          statement.size()) == 1;
}

std::string digestOf(std::span<const std::byte> archive) {
  std::string digest(digestBytes, '\0');
  auto* const out = reinterpret_cast<unsigned char*>(digest.data());
  const bool done =
      EVP_Digest(archive.data(), archive.size(), out, nullptr, EVP_sha256(), nullptr) == 1;
  return done ? digest : std::string();
}

}  // namespace klarvik
