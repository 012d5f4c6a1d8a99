#pragma once

#include <algorithm>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/message.h"
#include "core/deletion_guard.h"

namespace klarvik {

/// Why something may not be removed, as a sentence; nothing when it may.
using Refusal = std::optional<Message>;
inline constexpr std::nullopt_t allowed = std::nullopt;

/// `what`: the "%1" of the sentence.
[[nodiscard]] inline Refusal refuse(std::string_view sentence, std::string_view what = {}) {
  return Message(sentence, {std::string(what)});
}

[[nodiscard]] inline const std::string_view* firstPrefixOf(
    std::string_view path, std::span<const std::string_view> prefixes) {
  const auto found =
      std::ranges::find_if(prefixes, [&](auto prefix) { return path.starts_with(prefix); });
  return found != prefixes.end() ? &*found : nullptr;
}

/// A removal that is to be judged. Paths are absolute and standardized.
struct DeletionQuestion {
  std::string_view path;
  const DeletionScope& scope;
  const UserFolders& folders;
  const DiskLayout& layout;
  std::string_view home;
};

/// Lets go all that no rule keeps.
[[nodiscard]] Refusal refusalByDenyList(const DeletionQuestion& question);
/// Lets go only what a table of the layout names.
[[nodiscard]] Refusal refusalByAllowList(const DeletionQuestion& question);

/// What both say alike.
[[nodiscard]] bool isSystemDirectory(const DeletionQuestion& question);
/// Whether it asks for an entry of a Trash at the top of a volume, as its path tells.
[[nodiscard]] bool isInTrashOfAVolume(const DeletionQuestion& question);
/// Whether the home is one that a person has. An account without one is often given "/" or another
/// system directory; what lies there belongs to everybody.
[[nodiscard]] bool isSomeonesHome(const DeletionQuestion& question);
/// In lower case; those that are too short to tell anything are left out.
[[nodiscard]] std::vector<std::string> distinctiveIdentifiers(
    const std::vector<std::string>& identifiers);

}  // namespace klarvik
