#include "platform/update/release_signature.h"

#include <gtest/gtest.h>

#include <span>

#include "platform/base64.h"
#include "platform/update/update_choice.h"
#include "support/program.h"
#include "support/temporary_folder.h"
#include "test_keys.h"

namespace klarvik {
namespace {

class ReleaseSignature : public ::testing::Test {
 protected:
  [[nodiscard]] bool isSigned(std::string_view content, const std::string& given) const {
    return isSignedBy(publicKey, content, given);
  }

  SigningKey key;
  std::string publicKey = bytesOfBase64(key.publicKey()).value();
  std::string signature = bytesOfBase64(key.sign("statement")).value();
};

TEST_F(ReleaseSignature, OfTheHolderOfTheKeyIsGood) {
  EXPECT_TRUE(isSigned("statement", signature));
  EXPECT_TRUE(isSigned("", bytesOfBase64(key.sign("")).value()));
}

TEST_F(ReleaseSignature, OfAnotherTextOrAnotherKeyIsNot) {
  EXPECT_FALSE(isSigned("Statement", signature));
  EXPECT_FALSE(isSigned("statement ", signature));
  EXPECT_FALSE(isSigned("", signature));
  EXPECT_FALSE(isSigned("statement", bytesOfBase64(SigningKey().sign("statement")).value()));
}

TEST_F(ReleaseSignature, WithAnyBitTurnedIsNot) {
  for (std::size_t at = 0; at < signature.size(); ++at) {
    std::string turned = signature;
    turned[at] = static_cast<char>(turned[at] ^ 1);
    EXPECT_FALSE(isSigned("statement", turned)) << at;
  }
}

TEST_F(ReleaseSignature, OfTheWrongLengthOrUnderAKeyOfTheWrongLengthIsNot) {
  EXPECT_FALSE(isSigned("statement", ""));
  EXPECT_FALSE(isSigned("statement", signature.substr(1)));
  EXPECT_FALSE(isSigned("statement", signature + "x"));
  publicKey.pop_back();
  EXPECT_FALSE(isSigned("statement", signature));
  publicKey.clear();
  EXPECT_FALSE(isSigned("statement", signature));
}

TEST(ReleaseStatement, NamesVersionLengthAndDigest) {
  EXPECT_EQ(releaseStatement({"200", "2.0", 12, std::string("\x01\xfe", 2)}),
            "klarvik release 1\nversion 200\nshown 2.0\nlength 12\nsha256 01fe\n");
}

TEST(ReleaseStatement, IsNoneWhereAVersionCouldPassForAnotherLine) {
  EXPECT_EQ(releaseStatement({"2.0+\nlength 1", "2.0", 12, "d"}), std::nullopt);
  EXPECT_EQ(releaseStatement({"2.0", "2.0\r", 12, "d"}), std::nullopt);
}

TEST(DigestOf, IsSha256) {
  const std::string_view text = "abc";
  const std::string digest = digestOf(std::as_bytes(std::span(text)));
  EXPECT_EQ(base64(digest), "ungWv48Bz+pBQUDeXa4iI7ADYaOWF3qctBD/YfIAFa0=");
}

/// What the script that signs a release prints is what an updater accepts.
TEST(SignUpdate, PrintsAnEnclosureThatIsOffered) {
  const TemporaryFolder folder;
  const Path key = folder.path() / "update.pem";
  const Path archive = folder.makeFile("klarvik-2.0.deb", "content");
  EXPECT_EQ(Program({"/usr/bin/openssl", "genpkey", "-algorithm", "ed25519", "-out", key}).wait(),
            0);
  Program publicKey(
      {"/bin/sh", "-c",
       "openssl pkey -in \"$0\" -pubout -outform DER | tail -c 32 | base64 -w 0; echo", key});
  const auto shownKey = publicKey.readLine();
  ASSERT_TRUE(shownKey);
  Program script({KLARVIK_SIGN_UPDATE, key, "200", "2.0", archive, "https://example.com/k.deb"});
  std::string item;
  for (const std::string& line : script.readToEnd()) item += line + "\n";
  ASSERT_EQ(script.wait(), 0);

  const auto items = parseAppcast("<rss><channel><item>" + item + "</item></channel></rss>");
  ASSERT_TRUE(items && items->size() == 1);
  const RunningProgram running{.build = "100",
                               .displayVersion = "1.0",
                               .publicKey = bytesOfBase64(*shownKey),
                               .systemVersion = "6.1"};
  const auto choice = chooseUpdate(*items, running, 1000);
  const auto* offer = std::get_if<UpdateOffer>(&choice);
  ASSERT_NE(offer, nullptr);
  EXPECT_EQ(offer->version, "2.0");
  EXPECT_EQ(offer->length, 7);
  const std::string_view content = "content";
  EXPECT_EQ(offer->digest, digestOf(std::as_bytes(std::span(content))));
}

}  // namespace
}  // namespace klarvik
