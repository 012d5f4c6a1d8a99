#include "panes/privacy/trail_list_model.h"

#include <algorithm>
#include <array>
#include <utility>

#include "panes/kit/row_text.h"
#include "panes/privacy/privacy_texts.h"

namespace klarvik {
namespace {

std::size_t sectionOf(PrivacyCategory category) {
  switch (category) {
    case PrivacyCategory::browserHistory:
    case PrivacyCategory::browserCookies:
    case PrivacyCategory::browserCache:
      return 0;
    case PrivacyCategory::recentFiles:
    case PrivacyCategory::recentApps:
    case PrivacyCategory::downloadsList:
    case PrivacyCategory::trashHistory:
    case PrivacyCategory::thumbnails:
      return 1;
    case PrivacyCategory::clipboard:
    case PrivacyCategory::quarantine:
    case PrivacyCategory::locationHistory:
    case PrivacyCategory::shellHistory:
      return 2;
  }
  return 2;
}

std::array<std::string_view, 3> sectionTitles(const Words& words) {
  return {words.browserTrails, words.recentTrails, QT_TRANSLATE_NOOP("Engine", "SYSTEM TRAILS")};
}

}  // namespace

bool needsReview(PrivacyCategory category) {
  return category == PrivacyCategory::browserCookies || category == PrivacyCategory::clipboard ||
         category == PrivacyCategory::shellHistory;
}

TrailListModel::TrailListModel(const Formatting& formatting, const Words& words, QObject* parent)
    : SectionedList(parent), _formatting(formatting), _words(words) {}

void TrailListModel::show(std::vector<PrivacyItem> items) {
  clear();
  std::unordered_set<Uuid> selected;
  for (const PrivacyItem& item : items) {
    if (!needsReview(item.category) && item.canBeCleared()) selected.insert(item.id);
  }
  _items = std::move(items);
  fill(shownRows(), std::move(selected));
}

void TrailListModel::clear() {
  _items.clear();
  empty();
}

void TrailListModel::takeOut(const std::vector<PrivacyItem>& items,
                             const std::vector<StayedTrail>& stayed) {
  std::unordered_set<Uuid> leaving;
  for (const PrivacyItem& item : items) leaving.insert(item.id);
  for (const StayedTrail& trail : stayed) {
    leaving.erase(trail.id);
    const auto found = std::ranges::find(_items, trail.id, &PrivacyItem::id);
    if (found == _items.end()) continue;
    found->closeFirst = trail.inUseBy;
    found->stayed = trail.inUseBy.empty();
    replace(row(*found));
  }
  std::erase_if(_items, [&](const PrivacyItem& item) { return leaving.contains(item.id); });
  SectionedList::remove(leaving);
}

std::vector<TrailListModel::ShownRow> TrailListModel::shownRows() const {
  std::vector<PrivacyItem> bySize = _items;
  std::ranges::stable_sort(bySize, std::ranges::greater{}, &PrivacyItem::size);
  const auto titles = sectionTitles(_words);
  std::vector<ShownRow> rows;
  for (std::size_t section = 0; section < titles.size(); ++section) {
    bool hasHeading = false;
    for (const PrivacyItem& item : bySize) {
      if (sectionOf(item.category) != section) continue;
      const QString title = programText(titles.at(section));
      if (!std::exchange(hasHeading, true)) rows.push_back({.name = title, .description = title});
      rows.push_back(row(item));
    }
  }
  return rows;
}

TrailListModel::ShownRow TrailListModel::row(const PrivacyItem& item) const {
  const QString name = privacy::name(item, _words);
  // What is taken out of a file that stays gives nothing back.
  const bool givesNothing = item.size == 0 && !item.parts.empty();
  const QString size = givesNothing ? QStringLiteral("—") : byteText(item.size, _formatting);
  const QString note = item.canBeCleared() ? privacy::cost(item.category) : privacy::obstacle(item);
  const Path path = item.path.value_or(Path());
  return {.item = item.id,
          .name = name,
          .path = printableText(path.native()),
          .url = urlOfPath(path),
          .note = note,
          .count = privacy::entryCount(item),
          .size = size,
          .description = rowDescription(name, size, note),
          .canSelect = item.canBeCleared()};
}

}  // namespace klarvik
