#include "platform/application_info.h"

#include <string_view>

namespace klarvik {

namespace {

constexpr const char* signingIdentityKey = "KlarvikHasSigningIdentity";

}  // namespace

ApplicationInfo builtInApplicationInfo() {
  ApplicationInfo info{
      {"CFBundleShortVersionString", std::string(KLARVIK_VERSION)},
      {"CFBundleVersion", std::string(KLARVIK_BUILD_NUMBER)},
  };
  if (KLARVIK_IS_RELEASED) info[signingIdentityKey] = true;
  constexpr std::string_view feed = KLARVIK_FEED_URL;
  if (!feed.empty()) info["SUFeedURL"] = std::string(feed);
  constexpr std::string_view updateKey = KLARVIK_UPDATE_KEY;
  if (!updateKey.empty()) info["SUPublicEDKey"] = std::string(updateKey);
  return info;
}

bool hasSigningIdentity(const ApplicationInfo& info) {
  const auto found = info.find(signingIdentityKey);
  if (found == info.end()) return false;
  const bool* const has = std::get_if<bool>(&found->second);
  return has != nullptr && *has;
}

std::optional<std::string> informationText(const ApplicationInfo& info, const std::string& key) {
  const auto found = info.find(key);
  const auto* const text = found != info.end() ? std::get_if<std::string>(&found->second) : nullptr;
  return text != nullptr ? std::optional(*text) : std::nullopt;
}

}  // namespace klarvik
