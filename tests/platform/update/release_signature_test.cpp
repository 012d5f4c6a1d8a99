#include "platform/update/archive_signature.h"

#include <gtest/gtest.h>

#include "platform/base64.h"
#include "test_keys.h"

namespace klarvik {
namespace {

class ArchiveSignature : public ::testing::Test {
 protected:
  [[nodiscard]] bool isSigned(std::string_view content, const std::string& given) const {
    return isSignedBy(publicKey, std::as_bytes(std::span(content)), given);
  }

  SigningKey key;
  std::string publicKey = bytesOfBase64(key.publicKey()).value();
  std::string signature = bytesOfBase64(key.sign("archive")).value();
};

TEST_F(ArchiveSignature, OfTheHolderOfTheKeyIsGood) {
  EXPECT_TRUE(isSigned("archive", signature));
  EXPECT_TRUE(isSigned("", bytesOfBase64(key.sign("")).value()));
}

TEST_F(ArchiveSignature, OfAnotherTextOrAnotherKeyIsNot) {
  EXPECT_FALSE(isSigned("Archive", signature));
  EXPECT_FALSE(isSigned("archive ", signature));
  EXPECT_FALSE(isSigned("", signature));
  EXPECT_FALSE(isSigned("archive", bytesOfBase64(SigningKey().sign("archive")).value()));
}

TEST_F(ArchiveSignature, WithAnyBitTurnedIsNot) {
  for (std::size_t at = 0; at < signature.size(); ++at) {
    std::string turned = signature;
    turned[at] = static_cast<char>(turned[at] ^ 1);
    EXPECT_FALSE(isSigned("archive", turned)) << at;
  }
}

TEST_F(ArchiveSignature, OfTheWrongLengthOrUnderAKeyOfTheWrongLengthIsNot) {
  EXPECT_FALSE(isSigned("archive", ""));
  EXPECT_FALSE(isSigned("archive", signature.substr(1)));
  EXPECT_FALSE(isSigned("archive", signature + "x"));
  publicKey.pop_back();
  EXPECT_FALSE(isSigned("archive", signature));
  publicKey.clear();
  EXPECT_FALSE(isSigned("archive", signature));
}

}  // namespace
}  // namespace klarvik
