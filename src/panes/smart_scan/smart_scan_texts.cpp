#include "panes/smart_scan/smart_scan_texts.h"

#include <algorithm>

#include "panes/kit/row_text.h"

namespace klarvik::smart_scan {

std::string paneTitle(const AppState::ScanState& state, std::int64_t totalSpaceFreeable,
                      const Formatting& formatting) {
  if (std::holds_alternative<AppState::Scanning>(state)) {
    return "Scanning";
  }
  if (std::holds_alternative<AppState::Idle>(state) || totalSpaceFreeable < 1) {
    return "Smart Scan";
  }
  return formatting.byteText(totalSpaceFreeable) + " found";
}

std::string scanningSubtitle(const AppState::ScanActivity& activity, const Path& home) {
  const std::string name = printable(activity.categoryName);
  return activity.currentPath
             ? name + " · " + abbreviated(*activity.currentPath, home).toStdString()
             : name;
}

std::string idleSubtitle(std::optional<Date> lastCleanDate, Date now,
                         const Formatting& formatting) {
  return lastCleanDate ? "Last clean " + formatting.relative(*lastCleanDate, now)
                       : "Nothing scanned yet";
}

std::string resultSubtitle(const std::vector<CleanCategory>& results) {
  std::size_t items = 0;
  for (const CleanCategory& category : results) {
    items += category.items.size();
  }
  const auto categories = std::ranges::count_if(results, &CleanCategory::hasItems);
  return std::to_string(categories) + " categories · " + std::to_string(items) + " items";
}

std::string scanningHeadline(const AppState::ScanActivity& activity) {
  if (activity.totalCategories < 1) {
    return "Starting scan";
  }
  const auto current = std::min(activity.totalCategories, activity.completedCategories + 1);
  return "Scanning " + std::to_string(current) + " of " + std::to_string(activity.totalCategories) +
         " categories";
}

std::string showMoreTitle(std::int64_t hidden) {
  return "Show " + std::to_string(hidden) + " more";
}

std::string selectionSummary(std::int64_t selectedSize, std::int64_t selectedCount,
                             const Formatting& formatting) {
  return formatting.byteText(selectedSize) + " selected · " + std::to_string(selectedCount) +
         " items";
}

std::string selectionHint(std::int64_t selectedCount, bool selectionIsAllSafe,
                          std::string_view fate) {
  if (selectedCount == 0) {
    return "Select something to clean.";
  }
  const std::string verdict = selectionIsAllSafe ? "Everything selected is marked Safe."
                                                 : "Your selection includes Review items.";
  return verdict + " " + std::string(fate);
}

std::string fateOf(const ItemSum& selected, bool useTrash, const Formatting& formatting) {
  const std::int64_t forGood = useTrash ? selected.forGood : selected.size;
  if (forGood == 0) return "Items move to the Trash.";
  if (forGood == selected.size) return "Items are removed for good.";
  return formatting.byteText(selected.size - forGood) + " moves to the Trash, " +
         formatting.byteText(forGood) + " is removed for good.";
}

std::string itemNote(const JunkItem& item) {
  std::string note = item.wasJustUsed ? "Used within the last day. " : "";
  if (!item.closeFirst.empty()) note += "Close " + item.closeFirst + " first. ";
  return note + item.reason;
}

std::string hintsOnlyNote() {
  return "Klarvik removes none of this itself.";
}

std::string hintNote(const Hint& hint) {
  return hint.command.empty() ? hint.reason : hint.reason + " Run: " + hint.command;
}

std::string cleanTitle(std::int64_t selectedSize, const Formatting& formatting) {
  return "Clean " + formatting.byteText(selectedSize);
}

std::string removingLine(const DeletionProgress& progress, const Formatting& formatting) {
  return "Removing " + std::to_string(progress.completed) + " of " +
         std::to_string(progress.total) + " · " + formatting.byteText(progress.freed) + " so far";
}

std::string cleanedApartHeadline(const AppState::CleanSummary& summary,
                                 const Formatting& formatting) {
  const auto inTrash = static_cast<std::int64_t>(summary.restorable.size());
  return formatting.byteText(summary.freed) + " · " + std::to_string(inTrash) +
         " items moved to Trash, " + std::to_string(summary.itemCount - inTrash) +
         " removed for good";
}

std::string cleanedApartDetail(std::int64_t freeBytes, const Formatting& formatting) {
  return formatting.byteText(freeBytes) +
         " free on disk — what went to the Trash takes its space until you empty it";
}

std::string cleanedHeadline(const AppState::CleanSummary& summary, const Formatting& formatting) {
  return formatting.byteText(summary.freed) + " · " + std::to_string(summary.itemCount) +
         " items " + (summary.restorable.empty() ? "removed" : "moved to Trash");
}

std::string cleanedDetail(const AppState::CleanSummary& summary, std::int64_t freeBytes,
                          const Formatting& formatting) {
  const std::string free = formatting.byteText(freeBytes) + " free on disk";
  return summary.restorable.empty()
             ? free
             : free + " — the Trash still holds this space until you empty it";
}

}  // namespace klarvik::smart_scan
