#include "test_keys.h"

#include <openssl/pem.h>
#include <openssl/x509v3.h>

#include <QByteArray>
#include <array>
#include <functional>

#include "platform/base64.h"

namespace klarvik {
namespace {

constexpr long dayInSeconds = 24 * 60 * 60;

QByteArray asPem(const std::function<void(BIO*)>& write) {
  const std::unique_ptr<BIO, void (*)(BIO*)> memory(BIO_new(BIO_s_mem()), BIO_free_all);
  write(memory.get());
  char* text = nullptr;
  const long length = BIO_get_mem_data(memory.get(), &text);
  return {text, length};
}

void extend(X509* certificate, int what, const char* value) {
  X509V3_CTX context;
  X509V3_set_ctx(&context, certificate, certificate, nullptr, nullptr, 0);
  X509_EXTENSION* const extension = X509V3_EXT_conf_nid(nullptr, &context, what, value);
  X509_add_ext(certificate, extension, -1);
  X509_EXTENSION_free(extension);
}

}  // namespace

SigningKey::SigningKey() : _key(EVP_PKEY_Q_keygen(nullptr, nullptr, "ED25519")) {}

std::string SigningKey::publicKey() const {
  std::array<unsigned char, 32> raw{};
  std::size_t length = raw.size();
  EVP_PKEY_get_raw_public_key(_key.get(), raw.data(), &length);
  return base64({reinterpret_cast<const char*>(raw.data()), length});
}

std::string SigningKey::sign(std::string_view content) const {
  const std::unique_ptr<EVP_MD_CTX, void (*)(EVP_MD_CTX*)> context(EVP_MD_CTX_new(),
                                                                   EVP_MD_CTX_free);
  std::array<unsigned char, 64> raw{};
  std::size_t length = raw.size();
  EVP_DigestSignInit(context.get(), nullptr, nullptr, nullptr, _key.get());
  EVP_DigestSign(context.get(), raw.data(), &length,
                 reinterpret_cast<const unsigned char*>(content.data()), content.size());
  return base64({reinterpret_cast<const char*>(raw.data()), length});
}

ServerIdentity ServerIdentity::fresh() {
  const KeyPair key(EVP_PKEY_Q_keygen(nullptr, nullptr, "EC", "P-256"));
  const std::unique_ptr<X509, void (*)(X509*)> certificate(X509_new(), X509_free);
  X509_set_version(certificate.get(), 2);
  ASN1_INTEGER_set(X509_get_serialNumber(certificate.get()), 1);
  X509_gmtime_adj(X509_getm_notBefore(certificate.get()), -dayInSeconds);
  X509_gmtime_adj(X509_getm_notAfter(certificate.get()), dayInSeconds);
  X509_NAME* const name = X509_get_subject_name(certificate.get());
  X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_ASC,
                             reinterpret_cast<const unsigned char*>("127.0.0.1"), -1, -1, 0);
  X509_set_issuer_name(certificate.get(), name);
  X509_set_pubkey(certificate.get(), key.get());
  extend(certificate.get(), NID_basic_constraints, "critical,CA:TRUE");
  extend(certificate.get(), NID_subject_alt_name, "IP:127.0.0.1");
  X509_sign(certificate.get(), key.get(), EVP_sha256());

  const QByteArray keyText = asPem([&](BIO* out) {
    PEM_write_bio_PrivateKey(out, key.get(), nullptr, nullptr, 0, nullptr, nullptr);
  });
  const QByteArray certificateText =
      asPem([&](BIO* out) { PEM_write_bio_X509(out, certificate.get()); });
  return {QSslKey(keyText, QSsl::Ec), QSslCertificate(certificateText)};
}

}  // namespace klarvik
