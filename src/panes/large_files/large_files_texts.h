#pragma once

#include <QString>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "panes/kit/tool_rules.h"
#include "places/words.h"
#include "platform/formatting.h"
#include "tools/large_file_walker.h"

/// Every text of the Large Files pane that follows a rule.
namespace klarvik::large_files {

[[nodiscard]] QString scanningSubtitle(std::string_view currentName);
[[nodiscard]] QString foundSubtitle(std::size_t files, double thresholdMB);
[[nodiscard]] QString unscannedSubtitle();

/// What stands in the place of the rows.
[[nodiscard]] Placeholder measuring(const Words& words);
[[nodiscard]] Placeholder notScanned(bool hasFullDiskAccess);
[[nodiscard]] Placeholder nothingFound(double thresholdMB);

[[nodiscard]] QString thresholdText(double thresholdMB);

[[nodiscard]] QString selectionSummary(std::int64_t bytes, std::size_t files,
                                       const Formatting& formatting);
[[nodiscard]] QString trashButtonTitle(std::int64_t bytes, const Formatting& formatting);
[[nodiscard]] QString footerHint();

/// What the sidebar says of a finished scan.
[[nodiscard]] std::string finishedSummary(std::size_t files);
/// What a screen reader says of a row.
[[nodiscard]] QString description(const LargeFile& file, const Formatting& formatting, Date now);

}  // namespace klarvik::large_files
