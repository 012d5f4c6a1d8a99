#include "platform/application_info.h"

#include <gtest/gtest.h>

#include <regex>

namespace klarvik {
namespace {

TEST(ApplicationInfo, SaysVersionAndBuildAsNumbersWithDots) {
  const ApplicationInfo info = builtInApplicationInfo();
  for (const auto* key : {"CFBundleShortVersionString", "CFBundleVersion"}) {
    const auto text = std::get<std::string>(info.at(key));
    EXPECT_TRUE(std::regex_match(text, std::regex(R"(\d+(\.\d+)*)"))) << key << ": " << text;
  }
}

}  // namespace
}  // namespace klarvik
