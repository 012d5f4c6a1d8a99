#include "platform/application_info.h"

#include <string_view>

namespace klarvik {

ApplicationInfo builtInApplicationInfo() {
  ApplicationInfo info{
      {"CFBundleShortVersionString", std::string(KLARVIK_VERSION)},
      {"CFBundleVersion", std::string(KLARVIK_BUILD_NUMBER)},
  };
  constexpr std::string_view feed = KLARVIK_FEED_URL;
  if (!feed.empty()) info["SUFeedURL"] = std::string(feed);
  return info;
}

}  // namespace klarvik
