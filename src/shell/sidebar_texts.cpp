#include "shell/sidebar_texts.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace klarvik::sidebar {
namespace {

struct Look {
  std::string_view symbol;
  std::string_view group;
};

const Look& look(Section section) {
  static constexpr std::array<Look, sectionCount> table{{
      {"", ""},
      {"chart.bar.fill", "STORAGE"},
      {"doc.on.doc", "STORAGE"},
      {"doc.text.magnifyingglass", "STORAGE"},
      {"externaldrive", "STORAGE"},
      {"square.dashed", "APPS"},
      {"shield", "APPS"},
  }};
  return table[static_cast<std::size_t>(section)];
}

std::string percent(double fraction) {
  return std::to_string(static_cast<std::int64_t>(std::trunc(fraction * 100))) + "%";
}

/// The tool's total, when it has one that is worth a word.
const ScanCoordinator::Total* shownTotal(Section section, const Totals& totals) {
  const auto found = totals.find(toolKey(section));
  return found != totals.end() && found->second.bytes >= 1 ? &found->second : nullptr;
}

std::string itemCountText(std::int64_t count) {
  return std::to_string(count) + (count == 1 ? " item" : " items");
}

std::string emptyingText(const std::optional<DeletionProgress>& progress) {
  if (!progress || progress->total < 1) {
    return "Emptying…";
  }
  return "Emptying " + std::to_string(std::min(progress->total, progress->completed + 1)) + " of " +
         std::to_string(progress->total);
}

}  // namespace

std::string_view symbol(Section section) {
  return look(section).symbol;
}

std::string_view group(Section section) {
  return look(section).group;
}

std::optional<std::string> trailing(Section section, const AppState::ScanState& scanState,
                                    const Totals& totals, const Formatting& formatting) {
  if (section == Section::storage) {
    return std::nullopt;
  }
  const auto* scanning = std::get_if<AppState::Scanning>(&scanState);
  if (section == Section::smartScan && scanning != nullptr) {
    return percent(scanning->progress);
  }
  const ScanCoordinator::Total* total = shownTotal(section, totals);
  return total != nullptr ? std::optional(formatting.byteText(total->bytes)) : std::nullopt;
}

std::optional<std::string> help(Section section, const Totals& totals,
                                const Formatting& formatting) {
  const ScanCoordinator::Total* total = shownTotal(section, totals);
  if (total == nullptr) {
    return std::nullopt;
  }
  const std::string bytes = formatting.byteText(total->bytes);
  const std::string items = std::to_string(total->items);
  switch (section) {
    case Section::smartScan:
      return bytes + " of junk found in " + items + " items";
    case Section::storage:
      return std::nullopt;
    case Section::duplicates:
      return bytes + " reclaimable across " + items + " extra copies";
    case Section::largeFiles:
      return items + " files over the size threshold, " + bytes + " in total";
    case Section::systemData:
      return bytes + " Klarvik can remove from the folders macOS keeps out of Storage settings";
    case Section::uninstaller:
      return items + " apps installed, " + bytes + " on disk";
    case Section::privacy:
      return items + " trails, " + bytes;
  }
  return std::nullopt;
}

RightHand rightHand(const ToolActivity::State& activity,
                    const std::optional<std::string>& trailing) {
  if (const auto* progress = std::get_if<ToolActivity::Progress>(&activity)) {
    return {percent(progress->fraction), false};
  }
  if (const auto* finished = std::get_if<ToolActivity::Finished>(&activity)) {
    return {finished->summary, true};
  }
  return {trailing.value_or(""), false};
}

bool isWorking(const ToolActivity::State& activity) {
  return std::holds_alternative<ToolActivity::Running>(activity) ||
         std::holds_alternative<ToolActivity::Progress>(activity);
}

double usedFraction(const DiskStats& stats) {
  if (stats.totalBytes < 1) {
    return 0;
  }
  const double used = static_cast<double>(stats.usedBytes) / static_cast<double>(stats.totalBytes);
  return std::clamp(used, 0.0, 1.0);
}

bool isNearlyFull(const DiskStats& stats) {
  return usedFraction(stats) > 0.9;
}

std::string percentFull(const DiskStats& stats) {
  return percent(usedFraction(stats)) + " full";
}

std::string freeLine(const DiskStats& stats, const Formatting& formatting) {
  return formatting.byteText(stats.freeBytes) + " free of " + formatting.byteText(stats.totalBytes);
}

std::string_view trashSymbol(const TrashFigures& trash) {
  return trash.itemCount > 0 ? "trash.fill" : "trash";
}

std::string trashSubtitle(const TrashFigures& trash, const Formatting& formatting) {
  if (trash.isEmptying) {
    return emptyingText(trash.emptyProgress);
  }
  if (!trash.isReadable) {
    return "Needs Full Disk Access";
  }
  if (trash.itemCount == 0) {
    return "Empty";
  }
  const std::string count = itemCountText(trash.itemCount);
  return trash.isMeasuring ? count + " · measuring…"
                           : formatting.byteText(trash.bytes) + " · " + count;
}

TrashControl trashControl(const TrashFigures& trash) {
  if (trash.isEmptying) {
    return TrashControl::progress;
  }
  if (!trash.isReadable) {
    return TrashControl::grant;
  }
  return trash.itemCount == 0 ? TrashControl::none : TrashControl::empty;
}

std::string trashControlHelp(const TrashFigures& trash, const Formatting& formatting) {
  switch (trashControl(trash)) {
    case TrashControl::grant:
      return "macOS keeps the Trash behind Full Disk Access";
    case TrashControl::empty:
      return "Delete everything in the Trash and reclaim " + formatting.byteText(trash.bytes);
    case TrashControl::none:
    case TrashControl::progress:
      return "";
  }
  return "";
}

std::string emptyTrashMessage(const TrashFigures& trash, const Formatting& formatting) {
  return itemCountText(trash.itemCount) + " · " + formatting.byteText(trash.bytes) +
         ". This cannot be undone.";
}

}  // namespace klarvik::sidebar
