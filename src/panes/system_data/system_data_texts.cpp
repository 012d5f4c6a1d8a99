#include "panes/system_data/system_data_texts.h"

#include "base/paths.h"
#include "translation/translation.h"

namespace klarvik::system_data {
namespace {

std::string counted(std::int64_t items) {
  return (items == 1 ? translate("SystemData", "1 item")
                     : translate("SystemData", "%n items", nullptr, plural(items)))
      .toStdString();
}

}  // namespace

std::string paneTitle(std::optional<std::int64_t> total, const Formatting& formatting) {
  const std::string name = translated("System Data").toStdString();
  return total ? name + " · " + formatting.byteText(*total) : name;
}

std::string subtitle(std::optional<std::int64_t> removableBytes, const Words& words,
                     const Formatting& formatting) {
  return removableBytes
             ? filled(translated(words.systemDataAnalysed), formatting.byteText(*removableBytes))
             : translated(words.systemDataUnanalysed).toStdString();
}

std::string actionTitle(bool isScanning, bool hasResult) {
  if (isScanning) return translate("Kit", "Stop").toStdString();
  return (hasResult ? translate("SystemData", "Re-analyse") : translate("SystemData", "Analyse"))
      .toStdString();
}

std::string removableSummary(std::int64_t removableBytes, const Formatting& formatting) {
  return filled(translate("SystemData", "%1 Klarvik can remove"),
                formatting.byteText(removableBytes));
}

std::string protectedSummary(std::int64_t protectedBytes, const Formatting& formatting) {
  return filled(translate("SystemData", "%1 shown, never offered"),
                formatting.byteText(protectedBytes));
}

std::string kindDetail(std::size_t items, SystemDataSubCategory kind, const DiskLayout& layout) {
  const std::string count = counted(static_cast<std::int64_t>(items));
  if (!layout.ledger.empty()) {
    const std::string whole = translated(description(kind, layout)).toStdString();
    std::string_view sentence = whole;
    sentence = sentence.substr(0, sentence.find(". "));
    if (sentence.ends_with('.')) sentence.remove_suffix(1);
    return count + " · " + std::string(sentence);
  }
  return defaultSafety(kind) == ItemSafety::protected_
             ? filled(translated(layout.words.itemsOfProtectedKind), count)
             : count;
}

std::string itemDetail(const SystemDataItem& item, const Path& home) {
  std::string place = item.path.native();
  if (isBelow(place, home.native())) place.replace(0, home.native().size(), "~");
  if (item.path.is_relative()) place.clear();
  if (item.sentence.empty()) return place;
  return translated(item.sentence).toStdString() + (place.empty() ? "" : " · " + place);
}

std::string ledgerNote(const LedgerSum& sum, const Words& words, const Formatting& formatting) {
  // What changes while the disk is read is no surprise.
  const bool isNear = sum.exceedsBy < sum.usedBytes / 200;
  return isNear ? filled(translated(words.ledgerAddsUp), formatting.byteText(sum.usedBytes))
                : filled(translated(words.ledgerExceeds), formatting.byteText(sum.exceedsBy));
}

std::string selectionHelp(SystemDataSubCategory kind, const DiskLayout& layout) {
  return filled(translate("SystemData", "Select everything in %1"),
                translated(label(kind, layout)).toStdString());
}

std::string safetyText(ItemSafety safety) {
  switch (safety) {
    case ItemSafety::safe:
      return translate("SystemData", "Safe to remove").toStdString();
    case ItemSafety::review:
      return translate("SystemData", "Review first").toStdString();
    case ItemSafety::protected_:
      return translate("SystemData", "Shown, not offered").toStdString();
  }
  return {};
}

std::string selectionSummary(std::int64_t selected) {
  return (selected == 0 ? translate("SystemData", "Nothing selected")
                        : translate("SystemData", "%n items", nullptr, plural(selected)))
      .toStdString();
}

std::string removalTitle(std::int64_t selectedBytes, const Formatting& formatting) {
  return filled(translate("SystemData", "%1 to Trash"), formatting.byteText(selectedBytes));
}

std::string confirmationTitle(std::int64_t selected) {
  return (selected == 1
              ? translate("SystemData", "Move 1 item to Trash?")
              : translate("SystemData", "Move %n items to Trash?", nullptr, plural(selected)))
      .toStdString();
}

std::string confirmationMessage(std::int64_t selectedBytes, const Formatting& formatting) {
  return filled(
      translate("Kit", "This frees %1 once the Trash is emptied. Nothing is removed permanently."),
      formatting.byteText(selectedBytes));
}

std::string removedHeadline(std::int64_t items, std::int64_t bytes, const Formatting& formatting) {
  const QString moved =
      items == 1 ? translate("SystemData", "1 item moved to Trash · %1")
                 : translate("SystemData", "%n items moved to Trash · %1", nullptr, plural(items));
  return filled(moved, formatting.byteText(bytes));
}

std::string removedDetail(bool trashHoldsIt) {
  return (trashHoldsIt
              ? translate("SystemData", "The Trash still holds this space until you empty it.")
              : translate("SystemData", "The space is back."))
      .toStdString();
}

}  // namespace klarvik::system_data
