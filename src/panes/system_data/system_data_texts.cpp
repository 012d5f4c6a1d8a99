#include "panes/system_data/system_data_texts.h"

#include "base/paths.h"

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

std::string kindDetail(std::size_t items, SystemDataSubCategory kind, const DiskLayout& layout) {
  const std::string count = counted(static_cast<std::int64_t>(items));
  if (!layout.ledger.empty()) {
    std::string_view sentence = description(kind, layout);
    sentence = sentence.substr(0, sentence.find(". "));
    if (sentence.ends_with('.')) sentence.remove_suffix(1);
    return count + " · " + std::string(sentence);
  }
  return defaultSafety(kind) == ItemSafety::protected_
             ? filledIn(layout.words.itemsOfProtectedKind, count)
             : count;
}

std::string itemDetail(const SystemDataItem& item, const Path& home) {
  std::string place = item.path.native();
  if (isBelow(place, home.native())) place.replace(0, home.native().size(), "~");
  if (item.path.is_relative()) place.clear();
  if (item.sentence.empty()) return place;
  return std::string(item.sentence) + (place.empty() ? "" : " · " + place);
}

std::string ledgerNote(const LedgerSum& sum, const Words& words, const Formatting& formatting) {
  // What changes while the disk is read is no surprise.
  const bool isNear = sum.exceedsBy < sum.usedBytes / 200;
  return isNear ? filledIn(words.ledgerAddsUp, formatting.byteText(sum.usedBytes))
                : filledIn(words.ledgerExceeds, formatting.byteText(sum.exceedsBy));
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
