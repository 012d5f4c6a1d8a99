#include "state/update_manager.h"

#include <gtest/gtest.h>

namespace klarvik {
namespace {

std::string textOfCode(std::int64_t code) {
  return updateErrorText({urlErrorDomain, code, "not shown"});
}

UpdaterError wrapping(UpdaterError cause) {
  return {updaterErrorDomain, 2001, "What the updater says.",
          std::make_shared<const UpdaterError>(std::move(cause))};
}

TEST(UpdateErrorText, FollowsTheCodeOfTheNetworksError) {
  EXPECT_EQ(textOfCode(-1001), "The update server timed out.");
  EXPECT_EQ(textOfCode(-1005), "No internet connection.");
  EXPECT_EQ(textOfCode(-1009), "No internet connection.");
  EXPECT_EQ(textOfCode(-1008), "The update feed is missing or malformed.");
  EXPECT_EQ(textOfCode(-1011), "The update feed is missing or malformed.");
  EXPECT_EQ(textOfCode(-1100), "The update feed is missing or malformed.");
  for (const std::int64_t other : {-1, -999, -1003, -1004, -1007, -1022, -1200, 0, 1001}) {
    EXPECT_EQ(textOfCode(other), "Could not reach the update server.") << other;
  }
}

TEST(UpdateErrorText, FindsTheNetworksErrorBelowTheUpdatersOwn) {
  EXPECT_EQ(updateErrorText(wrapping({urlErrorDomain, -1009, ""})), "No internet connection.");
}

TEST(UpdateErrorText, LooksNoFurtherThanOneBelow) {
  EXPECT_EQ(updateErrorText(wrapping(wrapping({urlErrorDomain, -1009, ""}))),
            "What the updater says.");
}

TEST(UpdateErrorText, TakesTheUppermostOfTwo) {
  UpdaterError error{urlErrorDomain, -1001, ""};
  error.underlying = std::make_shared<const UpdaterError>(UpdaterError{urlErrorDomain, -1009, ""});
  EXPECT_EQ(updateErrorText(error), "The update server timed out.");
}

TEST(UpdateErrorText, WithoutTheNetworkIsWhatTheUpdaterSaysWhateverItsCode) {
  EXPECT_EQ(updateErrorText({updaterErrorDomain, -1009, "It is not signed."}), "It is not signed.");
  EXPECT_EQ(updateErrorText(wrapping({"OtherDomain", -1001, "below"})), "What the updater says.");
}

}  // namespace
}  // namespace klarvik
