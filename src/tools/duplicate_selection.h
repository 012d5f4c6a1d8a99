#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "tools/duplicate_group.h"

namespace klarvik {

/// Which copy of a group stays, and which may go. Pure functions; may be called from any thread.
struct DuplicateSelection {
  enum class KeepRule { newest, oldest, shallowest };

  static constexpr std::array allKeepRules{KeepRule::newest, KeepRule::oldest,
                                           KeepRule::shallowest};
  [[nodiscard]] static std::string_view rawValue(KeepRule rule);
  [[nodiscard]] static std::string_view label(KeepRule rule);

  /// The copy that stays: the one that `override` names, else the one that the rule prefers, and of
  /// several the earliest. Nothing for a group without files. A copy without a date is preferred by
  /// no rule of dates.
  [[nodiscard]] static std::optional<DuplicateFile> keeper(
      const DuplicateGroup& group, KeepRule rule,
      const std::optional<Uuid>& override = std::nullopt);
  /// Its place in `files`.
  [[nodiscard]] static std::optional<std::size_t> keeperPlace(
      const DuplicateGroup& group, KeepRule rule,
      const std::optional<Uuid>& override = std::nullopt);

  /// All other copies, in order of `files`.
  [[nodiscard]] static std::vector<DuplicateFile> removable(
      const DuplicateGroup& group, KeepRule rule,
      const std::optional<Uuid>& override = std::nullopt);
};

}  // namespace klarvik
