#pragma once

#include <QString>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "places/words.h"
#include "platform/formatting.h"
#include "tools/privacy_item.h"
#include "tools/privacy_scanner.h"

/// The texts of the Privacy pane that follow a rule.
namespace klarvik::privacy {

/// The name of the kind, as it is called on this disk.
[[nodiscard]] std::string_view label(PrivacyCategory category, const Words& words);
/// The trail by its kind and its program.
[[nodiscard]] QString name(const PrivacyItem& item, const Words& words);
/// What clearing a trail of this kind costs the user.
[[nodiscard]] QString cost(PrivacyCategory category);
/// How many entries a trail has; a dash where they are not counted.
[[nodiscard]] QString entryCount(const PrivacyItem& item);

/// Why the trail cannot be cleared now; empty when it can.
[[nodiscard]] QString obstacle(const PrivacyItem& item);
[[nodiscard]] QString clearedSubtitle(const PrivacyClearance& result, const Formatting& formatting);
[[nodiscard]] QString selectionSummary(std::size_t selectedCount, std::int64_t selectedBytes,
                                       const Formatting& formatting);
[[nodiscard]] QString selectionHint(bool signsOut, bool forgetsCommands);
/// Whether sites forget who the user is once the trail is cleared. One that is only told as
/// cleared, and stays, signs nobody out.
[[nodiscard]] bool signsOut(const PrivacyItem& item);
/// What is asked before such trails are cleared, by their names.
[[nodiscard]] QString signOutQuestion(const std::vector<PrivacyItem>& items, const Words& words);
[[nodiscard]] QString clearTitle(std::size_t selectedCount);

}  // namespace klarvik::privacy
