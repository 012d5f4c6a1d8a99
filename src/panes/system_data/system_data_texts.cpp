#include "panes/system_data/system_data_texts.h"

namespace klarvik::system_data {
namespace {

std::string counted(std::int64_t items) {
  return std::to_string(items) + (items == 1 ? " item" : " items");
}

}  // namespace

std::string paneTitle(std::optional<std::int64_t> total, const Formatting& formatting) {
  return total ? "System Data · " + formatting.byteText(*total) : "System Data";
}

std::string subtitle(std::optional<std::int64_t> removableBytes, const Words& words,
                     const Formatting& formatting) {
  return removableBytes ? filledIn(words.systemDataAnalysed, formatting.byteText(*removableBytes))
                        : std::string(words.systemDataUnanalysed);
}

std::string actionTitle(bool isScanning, bool hasResult) {
  if (isScanning) return "Stop";
  return hasResult ? "Re-analyse" : "Analyse";
}

std::string removableSummary(std::int64_t removableBytes, const Formatting& formatting) {
  return formatting.byteText(removableBytes) + " Klarvik can remove";
}

std::string protectedSummary(std::int64_t protectedBytes, const Formatting& formatting) {
  return formatting.byteText(protectedBytes) + " shown, never offered";
}

std::string kindDetail(std::size_t items, SystemDataSubCategory kind, const Words& words) {
  const std::string count = counted(static_cast<std::int64_t>(items));
  return defaultSafety(kind) == ItemSafety::protected_ ? filledIn(words.itemsOfProtectedKind, count)
                                                       : count;
}

std::string selectionHelp(SystemDataSubCategory kind, const DiskLayout& layout) {
  return "Select everything in " + std::string(label(kind, layout));
}

std::string safetyText(ItemSafety safety) {
  switch (safety) {
    case ItemSafety::safe:
      return "Safe to remove";
    case ItemSafety::review:
      return "Review first";
    case ItemSafety::protected_:
      return "Shown, not offered";
  }
  return {};
}

std::string selectionSummary(std::int64_t selected) {
  return selected == 0 ? "Nothing selected" : std::to_string(selected) + " items";
}

std::string removalTitle(std::int64_t selectedBytes, const Formatting& formatting) {
  return formatting.byteText(selectedBytes) + " to Trash";
}

std::string confirmationTitle(std::int64_t selected) {
  return "Move " + counted(selected) + " to Trash?";
}

std::string confirmationMessage(std::int64_t selectedBytes, const Formatting& formatting) {
  return "This frees " + formatting.byteText(selectedBytes) +
         " once the Trash is emptied. Nothing is removed permanently.";
}

std::string removedHeadline(std::int64_t items, std::int64_t bytes, const Formatting& formatting) {
  return counted(items) + " moved to Trash · " + formatting.byteText(bytes);
}

std::string removedDetail(bool trashHoldsIt) {
  return trashHoldsIt ? "The Trash still holds this space until you empty it."
                      : "The space is back.";
}

}  // namespace klarvik::system_data
