#include "platform/update/archive_signature.h"

#include <openssl/evp.h>

#include <memory>

namespace klarvik {
namespace {

struct Release {
  void operator()(EVP_PKEY* key) const { EVP_PKEY_free(key); }
  void operator()(EVP_MD_CTX* context) const { EVP_MD_CTX_free(context); }
};

const unsigned char* bytesOf(std::string_view text) {
  return reinterpret_cast<const unsigned char*>(text.data());
}

}  // namespace

bool isSignedBy(std::string_view publicKey, std::span<const std::byte> archive,
                std::string_view signature) {
  const std::unique_ptr<EVP_PKEY, Release> key(
      EVP_PKEY_new_raw_public_key(EVP_PKEY_ED25519, nullptr, bytesOf(publicKey), publicKey.size()));
  const std::unique_ptr<EVP_MD_CTX, Release> context(EVP_MD_CTX_new());
  return key && context &&
         EVP_DigestVerifyInit(context.get(), nullptr, nullptr, nullptr, key.get()) == 1 &&
         EVP_DigestVerify(context.get(), bytesOf(signature), signature.size(),
                          reinterpret_cast<const unsigned char*>(archive.data()),
                          archive.size()) == 1;
}

}  // namespace klarvik
