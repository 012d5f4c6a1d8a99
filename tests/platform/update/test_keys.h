#pragma once

#include <openssl/evp.h>

#include <QSslCertificate>
#include <QSslKey>
#include <memory>
#include <string>
#include <string_view>

namespace klarvik {

struct ReleaseKey {
  void operator()(EVP_PKEY* key) const { EVP_PKEY_free(key); }
};
using KeyPair = std::unique_ptr<EVP_PKEY, ReleaseKey>;

/// Who signs updates: a fresh Ed25519 key.
class SigningKey {
 public:
  SigningKey();
  /// Both in base64.
  [[nodiscard]] std::string publicKey() const;
  [[nodiscard]] std::string sign(std::string_view content) const;

 private:
  KeyPair _key;
};

/// What a server on 127.0.0.1 shows to those who have been told to trust it, and to nobody else.
struct ServerIdentity {
  QSslKey key;
  QSslCertificate certificate;

  [[nodiscard]] static ServerIdentity fresh();
};

}  // namespace klarvik
