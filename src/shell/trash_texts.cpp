#include "shell/trash_texts.h"

#include <algorithm>

namespace klarvik::sidebar {
namespace {

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

std::string_view trashSymbol(const TrashMonitor::Figures& trash) {
  return trash.itemCount > 0 ? "trash.fill" : "trash";
}

std::string trashSubtitle(const TrashMonitor::Figures& trash, const Words& words,
                          const Formatting& formatting) {
  if (trash.isEmptying) {
    return emptyingText(trash.emptyProgress);
  }
  if (!trash.isReadable) {
    return std::string(words.trashUnreadable);
  }
  if (trash.itemCount == 0) {
    return "Empty";
  }
  const std::string count = itemCountText(trash.itemCount);
  return trash.isMeasuring ? count + " · measuring…"
                           : formatting.byteText(trash.bytes) + " · " + count;
}

TrashBlockModel::Control trashControl(const TrashMonitor::Figures& trash,
                                      const DiskLayout& layout) {
  if (trash.isEmptying) {
    return TrashBlockModel::Control::Progress;
  }
  if (!trash.isReadable) {
    return layout.asksForFullDiskAccess() ? TrashBlockModel::Control::Grant
                                          : TrashBlockModel::Control::None;
  }
  return trash.itemCount == 0 ? TrashBlockModel::Control::None : TrashBlockModel::Control::Empty;
}

std::string trashControlHelp(const TrashMonitor::Figures& trash, const DiskLayout& layout,
                             const Formatting& formatting) {
  switch (trashControl(trash, layout)) {
    case TrashBlockModel::Control::Grant:
      return "macOS keeps the Trash behind Full Disk Access";
    case TrashBlockModel::Control::Empty:
      return "Delete everything in the Trash and reclaim " + formatting.byteText(trash.bytes);
    case TrashBlockModel::Control::None:
    case TrashBlockModel::Control::Progress:
      return "";
  }
  return "";
}

std::string emptyTrashMessage(const TrashMonitor::Figures& trash, const Formatting& formatting) {
  return itemCountText(trash.itemCount) + " · " + formatting.byteText(trash.bytes) +
         ". This cannot be undone.";
}

}  // namespace klarvik::sidebar
