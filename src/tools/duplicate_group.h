#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/paths.h"
#include "core/uuid.h"
#include "platform/clock.h"
#include "platform/file_attributes.h"
#include "tools/path_text.h"

namespace klarvik {

/// One copy of a content that the disk holds more than once.
struct DuplicateFile {
  Uuid id = Uuid::random();  ///< valid within one result: selections refer to it
  PathText url = {};
  std::int64_t size = 0;                            ///< bytes; 0 when the file could not be asked
  std::optional<Date> modifiedDate = std::nullopt;  ///< nothing when the file could not be asked
  /// As it was found. Another thing that comes to its name later is not removed in its place.
  std::optional<EntryIdentity> identity = std::nullopt;

  bool operator==(const DuplicateFile&) const = default;
};

/// All copies of one content.
struct DuplicateGroup {
  Uuid id = Uuid::random();          ///< valid within one result
  std::string hash;                  ///< SHA-256 of the content, 64 lower-case hexadecimal digits
  std::vector<DuplicateFile> files;  ///< as a scan answers it: two or more, newest first

  /// Sum in bytes of all sizes but the largest, whichever copy stays.
  [[nodiscard]] std::int64_t reclaimableBytes() const;

  bool operator==(const DuplicateGroup&) const = default;
};

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

template <>
struct std::hash<klarvik::DuplicateFile> {
  [[nodiscard]] std::size_t operator()(const klarvik::DuplicateFile& file) const noexcept {
    return std::hash<klarvik::Uuid>()(file.id);
  }
};
