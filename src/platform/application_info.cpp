#include "platform/application_info.h"

#include <string_view>

namespace klarvik {

namespace {

constexpr const char* signingIdentityKey = "KlarvikHasSigningIdentity";
constexpr const char* websiteKey = "KlarvikWebsite";
constexpr const char* supportAddressKey = "KlarvikSupportAddress";

void setUnlessEmpty(ApplicationInfo& info, const char* key, std::string_view text) {
  if (!text.empty()) info[key] = std::string(text);
}

}  // namespace

ApplicationInfo builtInApplicationInfo() {
  ApplicationInfo info{
      {"CFBundleShortVersionString", std::string(KLARVIK_VERSION)},
      {"CFBundleVersion", std::string(KLARVIK_BUILD_NUMBER)},
  };
  if (KLARVIK_IS_RELEASED) info[signingIdentityKey] = true;
  setUnlessEmpty(info, websiteKey, KLARVIK_WEBSITE);
  setUnlessEmpty(info, supportAddressKey, KLARVIK_SUPPORT_ADDRESS);
  setUnlessEmpty(info, "SUFeedURL", KLARVIK_FEED_URL);
  setUnlessEmpty(info, "SUPublicEDKey", KLARVIK_UPDATE_KEY);
  return info;
}

std::string appVersion(const ApplicationInfo& info) {
  return informationText(info, "CFBundleShortVersionString").value_or("0.0.0");
}

std::string buildNumber(const ApplicationInfo& info) {
  return informationText(info, "CFBundleVersion").value_or("0");
}

std::string websitePage(const ApplicationInfo& info, const std::string& page) {
  const std::string website = informationText(info, websiteKey).value_or("");
  if (website.empty() || page.empty()) return website;
  return website + (website.ends_with('/') ? "" : "/") + page;
}

std::string supportLink(const ApplicationInfo& info) {
  const std::string address = informationText(info, supportAddressKey).value_or("");
  return address.empty() ? address : "mailto:" + address;
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
