#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/uuid.h"
#include "platform/entry_identity.h"
#include "platform/path.h"

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
  trashHistory,  ///< no scan finds any
  locationHistory,
};

inline constexpr std::size_t privacyCategoryCount = 10;
[[nodiscard]] const std::array<PrivacyCategory, privacyCategoryCount>& allPrivacyCategories();

/// "Browser History": the name of the kind, which is also its label.
[[nodiscard]] std::string_view rawValue(PrivacyCategory category);

/// One trail that a scan found.
struct PrivacyItem {
  Uuid id = Uuid::random();  ///< of this scan only
  PrivacyCategory category = PrivacyCategory::browserHistory;
  std::string name;
  std::optional<Path> path = std::nullopt;  ///< where the trail is one thing that can be removed
  std::int64_t count = 0;                   ///< entries, where they are counted at all
  std::int64_t size = 0;                    ///< bytes
  bool isSelected = true;
  /// Of the path, as it was found. Another thing that comes to it later is not removed instead.
  std::optional<EntryIdentity> identity = std::nullopt;

  bool operator==(const PrivacyItem&) const = default;
};

}  // namespace klarvik
