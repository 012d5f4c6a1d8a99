#include "systemdata/friendly_name.h"

#include <gtest/gtest.h>

namespace klarvik {
namespace {

TEST(FriendlyName, LosesTheVendorsPrefixAndBeginsWithACapital) {
  EXPECT_EQ(friendlyName("com.apple.mail"), "Mail");
  EXPECT_EQ(friendlyName("com.google.Chrome"), "Chrome");
  EXPECT_EQ(friendlyName("com.microsoft.teams2"), "Teams2");
  EXPECT_EQ(friendlyName("org.mozilla.firefox"), "Firefox");
  EXPECT_EQ(friendlyName("com.brave.Browser"), "Browser");
  EXPECT_EQ(friendlyName("com.acme.writer"), "Acme.writer");
  EXPECT_EQ(friendlyName("Adobe"), "Adobe");
}

TEST(FriendlyName, ADockerContainerReadsDockerDocker) {
  EXPECT_EQ(friendlyName("com.docker.docker"), "Docker.docker");
  EXPECT_EQ(friendlyName("com.docker.helper"), "Helper");
  EXPECT_EQ(friendlyName("group.com.docker"), "Docker");
}

TEST(FriendlyName, LosesOnePrefixOfTheListOnly) {
  EXPECT_EQ(friendlyName("group.com.apple.notes"), "Apple.notes");
  EXPECT_EQ(friendlyName("group.group.acme"), "Group.acme");
  EXPECT_EQ(friendlyName("com.apple.com.acme"), "Acme");
}

TEST(FriendlyName, OfAnEmptyTextOrAMerePrefixIsEmpty) {
  EXPECT_EQ(friendlyName(""), "");
  EXPECT_EQ(friendlyName("com.apple."), "");
  EXPECT_EQ(friendlyName("group.com."), "");
}

TEST(FriendlyName, ANameThatIsNotUtf8KeepsItsBytes) {
  EXPECT_EQ(friendlyName("com.apple.\xff\xfe"), "\xff\xfe");
  EXPECT_EQ(friendlyName("a\nb\xc3"), "A\nb\xc3");
}

}  // namespace
}  // namespace klarvik
