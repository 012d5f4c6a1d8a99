#include "places/trail_places.h"

namespace klarvik {

const std::array<PrivacyCategory, privacyCategoryCount>& allPrivacyCategories() {
  using enum PrivacyCategory;
  static constexpr std::array<PrivacyCategory, privacyCategoryCount> all{
      browserHistory, browserCookies, browserCache, recentFiles,     recentApps,   downloadsList,
      clipboard,      quarantine,     trashHistory, locationHistory, shellHistory, thumbnails};
  return all;
}

std::string_view rawValue(PrivacyCategory category) {
  switch (category) {
    case PrivacyCategory::browserHistory:
      return "Browser History";
    case PrivacyCategory::browserCookies:
      return "Browser Cookies";
    case PrivacyCategory::browserCache:
      return "Browser Cache";
    case PrivacyCategory::recentFiles:
      return "Recent Files";
    case PrivacyCategory::recentApps:
      return "Recent Apps";
    case PrivacyCategory::downloadsList:
      return "Downloads List";
    case PrivacyCategory::clipboard:
      return "Clipboard";
    case PrivacyCategory::quarantine:
      return "Quarantine DB";
    case PrivacyCategory::trashHistory:
      return "Trash History";
    case PrivacyCategory::locationHistory:
      return "Location Cache";
    case PrivacyCategory::shellHistory:
      return "Shell History";
    case PrivacyCategory::thumbnails:
      return "Thumbnails";
  }
  return {};
}

}  // namespace klarvik
