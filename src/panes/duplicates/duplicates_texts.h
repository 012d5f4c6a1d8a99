#pragma once

#include <QString>
#include <QStringList>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/message.h"
#include "panes/duplicates/duplicate_choice.h"
#include "panes/kit/kit_enums.h"
#include "panes/kit/tool_rules.h"
#include "platform/formatting.h"

/// Every text of the Duplicates pane that follows a rule.
namespace klarvik::duplicates {

[[nodiscard]] QString title(std::size_t groups, std::int64_t reclaimable,
                            const Formatting& formatting);
[[nodiscard]] QString scanningSubtitle(std::int64_t groupsFound, const Message& current,
                                       const Path& home);
[[nodiscard]] QString foundSubtitle(std::size_t groups, std::int64_t extraCopies);
[[nodiscard]] QString unscannedSubtitle();
[[nodiscard]] QString stoppedSubtitle(double fraction);
[[nodiscard]] QString remainingText(std::optional<std::chrono::seconds> remaining);

/// "Documents, Downloads and Desktop".
[[nodiscard]] QString folderList(const std::vector<Path>& folders);
[[nodiscard]] QStringList folderNames(const std::vector<Path>& folders);
/// What the tooltip of each folder's chip says.
[[nodiscard]] QStringList folderHelps(const std::vector<Path>& folders, const Path& home);

/// What stands in the place of the rows.
[[nodiscard]] Placeholder hashing();
[[nodiscard]] Placeholder notScanned(const std::vector<Path>& folders);
[[nodiscard]] Placeholder nothingFound();
/// After a stop, `fraction` (0 to 1) on the way: what the search would have found nobody knows.
[[nodiscard]] Placeholder stopped(double fraction);

[[nodiscard]] QString minSizeText(double megabytes);
[[nodiscard]] QString selectionSummary(std::int64_t bytes, std::size_t copies,
                                       const Formatting& formatting);
[[nodiscard]] QString deleteButtonTitle(std::int64_t bytes, const Formatting& formatting);
[[nodiscard]] QString footerHint();
/// What the sidebar says of a finished scan.
[[nodiscard]] std::string finishedSummary(std::size_t groups);

/// "Unknown" for a group without files.
[[nodiscard]] QString groupName(const DuplicateGroup& group);
/// The one entry of a copy's menu.
[[nodiscard]] QString menuEntry(bool isKeeper);
/// What a screen reader says of a row.
[[nodiscard]] QString groupDescription(const ChosenGroup& group, const Formatting& formatting);
[[nodiscard]] QString copyDescription(const DuplicateFile& file, KeepOrDelete::Value fate,
                                      const Path& home, const Formatting& formatting);

}  // namespace klarvik::duplicates
