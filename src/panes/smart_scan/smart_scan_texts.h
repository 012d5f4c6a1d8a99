#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "engine/root_command.h"
#include "platform/formatting.h"
#include "state/app_state.h"

/// Every sentence of the Smart Scan pane that follows a rule, as plain functions of what it tells
/// of. All answers are UTF-8: names of the disk have been made printable.
namespace klarvik::smart_scan {

[[nodiscard]] std::string paneTitle(const AppState::ScanState& state,
                                    std::int64_t totalSpaceFreeable, const Formatting& formatting);

[[nodiscard]] std::string scanningSubtitle(const AppState::ScanActivity& activity,
                                           const Path& home);
[[nodiscard]] std::string idleSubtitle(std::optional<Date> lastCleanDate, Date now,
                                       const Formatting& formatting);
[[nodiscard]] std::string resultSubtitle(const std::vector<CleanCategory>& results);

[[nodiscard]] std::string scanningHeadline(const AppState::ScanActivity& activity);

/// The button that shows what an expanded category holds back; `hidden` is at least 1.
[[nodiscard]] std::string showMoreTitle(std::int64_t hidden);

[[nodiscard]] std::string selectionSummary(std::int64_t selectedSize, std::int64_t selectedCount,
                                           const Formatting& formatting);
/// `fate` says what becomes of the selection.
[[nodiscard]] std::string selectionHint(std::int64_t selectedCount, bool selectionIsAllSafe,
                                        std::string_view fate);
/// What of the selection goes to the Trash, and what for good.
[[nodiscard]] std::string fateOf(const ItemSum& selected, bool useTrash,
                                 const Formatting& formatting);
/// What an item's row says below its name; may be empty.
[[nodiscard]] std::string itemNote(const JunkItem& item, const Formatting& formatting);
/// What has come of a command that was run with the rights of root.
[[nodiscard]] std::string rootRunTitle(const RootRun& run);
[[nodiscard]] std::string rootRunSentence(const RootRun& run);
/// Of a category with nothing but hints.
[[nodiscard]] std::string hintsOnlyNote();
/// Below the commands that the user may run.
[[nodiscard]] std::string commandsNote();
[[nodiscard]] std::string cleanTitle(std::int64_t selectedSize, const Formatting& formatting);
[[nodiscard]] std::string removingLine(const DeletionProgress& progress,
                                       const Formatting& formatting);

/// Where some of the items went to the Trash and some for good: how many of each.
[[nodiscard]] std::string cleanedApartHeadline(const AppState::CleanSummary& summary,
                                               const Formatting& formatting);
[[nodiscard]] std::string cleanedApartDetail(std::int64_t freeBytes, const Formatting& formatting);
[[nodiscard]] std::string cleanedHeadline(const AppState::CleanSummary& summary,
                                          const Formatting& formatting);
[[nodiscard]] std::string cleanedDetail(const AppState::CleanSummary& summary,
                                        std::int64_t freeBytes, const Formatting& formatting);

}  // namespace klarvik::smart_scan
