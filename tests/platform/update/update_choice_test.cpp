#include "platform/update/update_choice.h"

#include <gtest/gtest.h>

#include "base/text.h"
#include "platform/base64.h"
#include "platform/update/release_signature.h"
#include "test_keys.h"

namespace klarvik {
namespace {

constexpr std::int64_t mostBytes = 1000;

AppcastItem item(const std::string& version) {
  AppcastItem item;
  item.version = version;
  item.address = "https://example.com/klarvik-" + version + ".deb";
  item.length = "100";
  return item;
}

/// Signed as it stands, over an archive of the digest "ddd…".
AppcastItem signedItem(AppcastItem item, const SigningKey& key) {
  const std::string digest(32, 'd');
  item.digest = base64(digest);
  const auto statement =
      releaseStatement({item.version, item.displayVersion,
                        wholeNumber<std::int64_t>(item.length).value_or(0), digest});
  item.signature = statement ? key.sign(*statement) : "";
  return item;
}

RunningProgram running(const SigningKey& key) {
  return {.build = "1.9",
          .displayVersion = "1.9",
          .publicKey = bytesOfBase64(key.publicKey()),
          .systemVersion = "6.1.0-13-amd64"};
}

class UpdateChoice : public ::testing::Test {
 protected:
  /// The version that is offered; "" for nothing newer, and what is said where newer ones are
  /// refused.
  std::string chosen(std::vector<AppcastItem> items) const {
    for (AppcastItem& item : items) {
      if (item.signature.empty()) item = signedItem(std::move(item), key);
    }
    return chosenAsTheyAre(items);
  }
  std::string chosenAsTheyAre(const std::vector<AppcastItem>& items) const {
    const auto choice = chooseUpdate(items, program, mostBytes);
    if (const auto* error = std::get_if<UpdaterError>(&choice)) return error->description.english();
    const auto* offer = std::get_if<UpdateOffer>(&choice);
    return offer != nullptr ? offer->version : "";
  }

  SigningKey key;
  RunningProgram program = running(key);
};

TEST_F(UpdateChoice, IsTheNewestWhereverItStands) {
  EXPECT_EQ(chosen({item("1.8"), item("1.10"), item("1.11"), item("1.9.5")}), "1.11");
  EXPECT_EQ(chosen({item("2.0-beta"), item("2.0"), item("2.0-rc1")}), "2.0");
}

TEST_F(UpdateChoice, IsNothingThatIsOlderOrTheSame) {
  EXPECT_EQ(chosen({item("1.9"), item("1.9.0"), item("1.8"), item("1.9-beta"), item("0.10")}), "");
  EXPECT_EQ(chosen({}), "");
}

TEST_F(UpdateChoice, TextThatIsNotAVersionIsNeverNewer) {
  EXPECT_EQ(chosen({item("latest"), item(""), item("v3.0"), item("9.9 (best)")}), "");
}

TEST_F(UpdateChoice, ComparesBuildsWherePeopleSeeTheSameVersion) {
  program.build = "45";
  AppcastItem rebuilt = item("46");
  rebuilt.displayVersion = "1.9";
  EXPECT_EQ(chosen({rebuilt}), "1.9");
  rebuilt.version = "45";
  EXPECT_EQ(chosen({rebuilt}), "");
}

TEST_F(UpdateChoice, NeverTakesTheUserBackToAnOlderReleaseWithAHigherBuild) {
  AppcastItem older = item("200");
  older.displayVersion = "1.8";
  EXPECT_EQ(chosen({older}), "");
}

TEST_F(UpdateChoice, ShowsNothingAsAVersionThatIsNone) {
  AppcastItem boastful = item("2.0");
  boastful.displayVersion = "Best\u202E ever";
  EXPECT_EQ(chosen({boastful}), "2.0");
}

TEST_F(UpdateChoice, ShowsNothingOfHowAVersionWasBuilt) {
  AppcastItem built = item("2.0");
  built.version = "2.0+../../built here";
  EXPECT_EQ(chosen({built}), "2.0");
  built.displayVersion = "2.0-beta+\u202E/etc";
  EXPECT_EQ(chosen({built}), "2.0-beta");
}

TEST_F(UpdateChoice, PassesOverOtherSystemsAndTestChannels) {
  AppcastItem other = item("3.0");
  other.system = "windows";
  AppcastItem test = item("3.1");
  test.channel = "beta";
  AppcastItem ours = item("2.0");
  ours.system = "linux";
  EXPECT_EQ(chosen({other, test, ours}), "2.0");
}

TEST_F(UpdateChoice, PassesOverWhatNeedsANewerOrAnOlderSystem) {
  AppcastItem tooNew = item("3.0");
  tooNew.minimumSystem = "6.2";
  AppcastItem tooOld = item("2.9");
  tooOld.maximumSystem = "5.99";
  AppcastItem unclear = item("2.8");
  unclear.minimumSystem = "any";
  AppcastItem fits = item("2.0");
  fits.minimumSystem = "5.10";
  fits.maximumSystem = "7";
  program.systemVersion = "6.1";
  EXPECT_EQ(chosen({tooNew, tooOld, unclear, fits}), "2.0");
}

TEST_F(UpdateChoice, IsTheNewestThatCanBeAccepted) {
  AppcastItem insecure = item("3.0");
  insecure.address = "http://example.com/k.deb";
  EXPECT_EQ(chosenAsTheyAre({item("4.0"), insecure, signedItem(item("2.0"), key)}), "2.0");
}

TEST_F(UpdateChoice, SaysWhyNoneCanBeAccepted) {
  const std::string unsignedVersion = "Version 2.0 is not signed, so Klarvik leaves it alone.";
  EXPECT_EQ(chosenAsTheyAre({item("2.0")}), unsignedVersion);
  for (const std::string& broken : {base64("short"), std::string("!!!")}) {
    AppcastItem item = signedItem(klarvik::item("2.0"), key);
    item.signature = broken;
    EXPECT_EQ(chosenAsTheyAre({item}), unsignedVersion);
    item = signedItem(klarvik::item("2.0"), key);
    item.digest = broken;
    EXPECT_EQ(chosenAsTheyAre({item}), unsignedVersion);
  }
}

TEST_F(UpdateChoice, TakesNothingThatClaimsOtherThanWhatWasSigned) {
  const std::string refused =
      " is not signed by the makers of Klarvik, so Klarvik leaves it alone.";
  const AppcastItem genuine = signedItem(item("2.0"), key);
  EXPECT_EQ(chosenAsTheyAre({genuine}), "2.0");
  AppcastItem renumbered = genuine;
  renumbered.version = "3.0";
  EXPECT_EQ(chosenAsTheyAre({renumbered}), "Version 3.0" + refused);
  AppcastItem renamed = genuine;
  renamed.displayVersion = "3.0";
  EXPECT_EQ(chosenAsTheyAre({renamed}), "Version 3.0" + refused);
  AppcastItem longer = genuine;
  longer.length = "101";
  EXPECT_EQ(chosenAsTheyAre({longer}), "Version 2.0" + refused);
  AppcastItem another = genuine;
  another.digest = base64(std::string(32, 'e'));
  EXPECT_EQ(chosenAsTheyAre({another}), "Version 2.0" + refused);
  EXPECT_EQ(chosenAsTheyAre({signedItem(item("2.0"), SigningKey())}), "Version 2.0" + refused);
  AppcastItem twoLines = item("2.0");
  twoLines.version = "2.0+\nlength 1";
  twoLines.signature = key.sign("klarvik release 1");
  twoLines.digest = genuine.digest;
  EXPECT_EQ(chosenAsTheyAre({twoLines}), "Version 2.0" + refused);
}

TEST_F(UpdateChoice, TakesArchivesFromSecureAddressesOnly) {
  for (const char* const address : {"", "http://example.com/k", "ftp://example.com/k", "https://",
                                    "k.deb", "file:///etc/passwd", "https:///k", "javascript:x"}) {
    AppcastItem broken = item("2.0");
    broken.address = address;
    EXPECT_EQ(chosen({broken}),
              "Version 2.0 is not offered over a secure connection, so Klarvik leaves it alone.")
        << address;
  }
}

TEST_F(UpdateChoice, TakesNoArchiveWhoseLengthIsMissingOrBeyondAllBounds) {
  for (const char* const length : {"", "0", "-1", "1e3", "12 ", "1001", "99999999999999999999"}) {
    AppcastItem broken = item("2.0");
    broken.length = length;
    EXPECT_EQ(chosen({broken}),
              "Version 2.0 does not say how long it is, so Klarvik leaves it alone.")
        << length;
  }
}

TEST_F(UpdateChoice, WithoutAKeyIsNothingAndSaysWhy) {
  program.publicKey.reset();
  EXPECT_EQ(chosen({item("2.0")}),
            "There is a newer version, but this copy of Klarvik has no key to check it with.");
  EXPECT_EQ(chosen({item("1.8")}), "");
}

TEST_F(UpdateChoice, LinksToNotesOnSecureAddressesOnly) {
  AppcastItem linked = item("2.0");
  linked.notesLink = "javascript:alert(1)";
  const auto notesLink = [&] {
    return std::get<UpdateOffer>(chooseUpdate({signedItem(linked, key)}, program, mostBytes))
        .notesLink;
  };
  EXPECT_EQ(notesLink(), "");
  linked.notesLink = "https://example.com/notes";
  EXPECT_EQ(notesLink(), "https://example.com/notes");
}

}  // namespace
}  // namespace klarvik
