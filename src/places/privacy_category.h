#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace klarvik {

/// The kinds of trails that a machine keeps of what its user did.
enum class PrivacyCategory {
  browserHistory,
  browserCookies,
  browserCache,
  recentFiles,
  recentApps,
  downloadsList,
  clipboard,
  quarantine,
  trashHistory,
  locationHistory,
  // On a Linux disk only.
  shellHistory,
  thumbnails,
};

inline constexpr std::size_t privacyCategoryCount = 12;
[[nodiscard]] const std::array<PrivacyCategory, privacyCategoryCount>& allPrivacyCategories();

/// "Browser History": the name of the kind, which is also its label.
[[nodiscard]] std::string_view rawValue(PrivacyCategory category);

}  // namespace klarvik
