#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/paths.h"
#include "core/uuid.h"
#include "places/trail_places.h"
#include "platform/file_attributes.h"

namespace klarvik {

/// One of the things that a trail consists of.
struct TrailPart {
  Path path;
  std::int64_t size = 0;  ///< bytes that its clearing gives back
  /// As it was found. Another thing that comes to its name later is not cleared instead.
  std::optional<EntryIdentity> identity = std::nullopt;
  TrailClearing clearing = TrailClearing::removed;

  bool operator==(const TrailPart&) const = default;
};

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

  std::vector<TrailPart> parts{};  ///< where the trail is several things; cleared when all are gone
  std::string program{};  ///< whose trail it is, as the user calls it; empty where nobody's
  std::string_view closedFirst{};  ///< the program without which it is cleared, by its own name
  std::string closeFirst{};        ///< the same as the user calls it, while it runs
  bool stayed = false;             ///< a clearing left something of it, for another reason
  std::string_view told{};         ///< how the user clears it; empty for what Klarvik clears

  /// Whether it can be cleared as things are.
  [[nodiscard]] bool canBeCleared() const { return closeFirst.empty() && told.empty() && !stayed; }

  bool operator==(const PrivacyItem&) const = default;
};

}  // namespace klarvik
