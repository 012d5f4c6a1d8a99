#include "panes/smart_scan/review_table.h"

#include <QUrl>
#include <algorithm>
#include <numeric>
#include <span>
#include <utility>

#include "panes/kit/file_url.h"
#include "panes/kit/row_text.h"
#include "panes/smart_scan/smart_scan_texts.h"

namespace klarvik {
namespace {

/// Above this many separate gaps it is cheaper, also for the view, to list the items anew.
constexpr std::size_t mostGaps = 64;

/// The places of the items in `sortItemsBySize` order; only the first `count` are put in order.
std::vector<std::size_t> largestFirst(const std::vector<JunkItem>& items, std::size_t count) {
  std::vector<std::pair<std::int64_t, std::size_t>> keys;
  keys.reserve(items.size());
  for (std::size_t at = 0; at < items.size(); ++at) {
    keys.emplace_back(items[at].size, at);
  }
  const auto comesFirst = [](const auto& left, const auto& right) {
    return left.first != right.first ? left.first > right.first : left.second < right.second;
  };
  const auto end = keys.begin() + static_cast<std::ptrdiff_t>(count);
  std::nth_element(keys.begin(), end, keys.end(), comesFirst);
  std::sort(keys.begin(), end, comesFirst);

  std::vector<std::size_t> places;
  places.reserve(count);
  std::transform(keys.begin(), end, std::back_inserter(places),
                 [](const auto& key) { return key.second; });
  return places;
}

/// What a row says that has nothing to say: a view binds every role of every row.
QVariant nothing(int role) {
  switch (role) {
    case ReviewTable::ColorRole:
    case ReviewTable::SafetyRole:
    case ReviewTable::SelectionRole:
      return 0;
    case ReviewTable::IsExpandedRole:
      return false;
    case ReviewTable::UrlRole:
      return QUrl();
    default:
      return QString();
  }
}

bool isAmong(std::span<const CleanCategory> results, CategoryType type) {
  return std::ranges::find(results, type, &CleanCategory::type) != results.end();
}

}  // namespace

ReviewTable::ReviewTable(AppState& appState, const Formatting& formatting, QObject* parent)
    : QAbstractListModel(parent), _appState(appState), _formatting(formatting) {
  connect(&appState, &AppState::scanStateChanged, this, &ReviewTable::syncResults);
  connect(&appState, &AppState::scanResultsChanged, this, &ReviewTable::syncResults);
  connect(&appState, &AppState::expandedCategoriesChanged, this, &ReviewTable::syncExpansion);
  connect(&appState, &AppState::selectedItemsChanged, this, &ReviewTable::syncSelection);
  syncResults();
}

int ReviewTable::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(firstRow(_shown.size()));
}

QVariant ReviewTable::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid) || role < KindRole) {
    return {};
  }
  const Place at = place(index.row());
  const ShownCategory& shown = _shown[at.category];
  if (role == KindRole) {
    return static_cast<int>(at.kind);
  }
  switch (at.kind) {
    case RowKind::Category:
      return rowDataOfCategory(shown, role);
    case RowKind::Item: {
      const JunkItem* found = item(at);
      return found != nullptr ? rowDataOfItem(*found, shown.type, role) : nothing(role);
    }
    case RowKind::ShowMore:
      return role == NameRole || role == DescriptionRole
                 ? QString::fromStdString(
                       smart_scan::showMoreTitle(static_cast<std::int64_t>(shown.hiddenCount)))
                 : nothing(role);
  }
  return {};
}

QHash<int, QByteArray> ReviewTable::roleNames() const {
  return {{KindRole, "kind"},
          {NameRole, "name"},
          {PathRole, "path"},
          {UrlRole, "url"},
          {SymbolRole, "symbol"},
          {ColorRole, "color"},
          {SafetyRole, "safety"},
          {SelectionRole, "selection"},
          {ItemsRole, "items"},
          {SizeRole, "size"},
          {IsExpandedRole, "isExpanded"},
          {DescriptionRole, "description"}};
}

void ReviewTable::activate(int row) {
  if (!hasIndex(row, 0)) {
    return;
  }
  const Place at = place(row);
  switch (at.kind) {
    case RowKind::Category:
      _appState.toggleCategoryExpansion(_shown[at.category].type);
      return;
    case RowKind::Item:
      toggleSelection(row);
      return;
    case RowKind::ShowMore:
      showAll(at.category);
      return;
  }
}

void ReviewTable::toggleSelection(int row) {
  if (!hasIndex(row, 0)) {
    return;
  }
  const Place at = place(row);
  const ShownCategory& shown = _shown[at.category];
  if (at.kind == RowKind::Category) {
    if (const CleanCategory* category = find(shown.type)) {
      _appState.setSelection(category->items, selection(shown) != Selection::All);
    }
  } else if (const JunkItem* found = item(at)) {
    _appState.toggleItem(found->id);
  }
}

void ReviewTable::syncResults() {
  std::size_t at = 0;
  for (const CleanCategory& category : results()) {
    const auto rest = std::span(&category, results().data() + results().size());
    while (at < _shown.size() && !isAmong(rest, _shown[at].type)) {
      removeCategory(at);
    }
    if (at < _shown.size() && _shown[at].type == category.type) {
      updateCategory(at);
    } else {
      insertCategory(at, category);
    }
    ++at;
  }
  while (_shown.size() > at) {
    removeCategory(_shown.size() - 1);
  }
}

void ReviewTable::syncExpansion() {
  for (std::size_t at = 0; at < _shown.size(); ++at) {
    setExpanded(at, _appState.expandedCategories().contains(_shown[at].type));
  }
}

void ReviewTable::syncSelection() {
  for (std::size_t at = 0; at < _shown.size(); ++at) {
    ShownCategory& shown = _shown[at];
    shown.selectedCount = countSelected(shown.type);
    const int first = static_cast<int>(firstRow(at));
    const int last = first + static_cast<int>(shown.items.size());
    emit dataChanged(index(first), index(last), {SelectionRole});
  }
}

void ReviewTable::insertCategory(std::size_t at, const CleanCategory& category) {
  const int row = static_cast<int>(firstRow(at));
  ShownCategory shown;
  shown.type = category.type;
  shown.selectedCount = countSelected(category.type);
  beginInsertRows({}, row, row);
  _shown.insert(_shown.begin() + static_cast<std::ptrdiff_t>(at), std::move(shown));
  endInsertRows();
  setExpanded(at, _appState.expandedCategories().contains(category.type));
}

void ReviewTable::removeCategory(std::size_t at) {
  const int first = static_cast<int>(firstRow(at));
  const int last = first + static_cast<int>(_shown[at].rowCount()) - 1;
  beginRemoveRows({}, first, last);
  _shown.erase(_shown.begin() + static_cast<std::ptrdiff_t>(at));
  endRemoveRows();
}

void ReviewTable::updateCategory(std::size_t at) {
  _shown[at].selectedCount = countSelected(_shown[at].type);
  rowChanged(firstRow(at));
  syncItems(at);
}

void ReviewTable::setExpanded(std::size_t at, bool expanded) {
  ShownCategory& shown = _shown[at];
  if (shown.isExpanded == expanded) {
    return;
  }
  shown.isExpanded = expanded;
  shown.showsAll = false;
  rowChanged(firstRow(at), {IsExpandedRole});
  syncItems(at);
}

void ReviewTable::showAll(std::size_t at) {
  _shown[at].showsAll = true;
  syncItems(at);
}

void ReviewTable::syncItems(std::size_t at) {
  const ShownCategory& shown = _shown[at];
  const CleanCategory* category = find(shown.type);
  replaceItems(at, itemsToShow(shown));
  setHiddenCount(at, shown.isExpanded && category != nullptr
                         ? category->items.size() - shown.items.size()
                         : 0);
}

/// Items keep their order from one result to the next, so whatever is met out of turn is gone, and
/// what is left over at the end is new.
void ReviewTable::replaceItems(std::size_t at, std::vector<ShownItem> items) {
  ShownCategory& shown = _shown[at];
  std::vector<std::pair<std::size_t, std::size_t>> gaps;  // first, count
  std::size_t kept = 0;
  for (std::size_t old = 0; old < shown.items.size(); ++old) {
    if (kept < items.size() && shown.items[old].id == items[kept].id) {
      ++kept;
    } else if (!gaps.empty() && gaps.back().first + gaps.back().second == old) {
      ++gaps.back().second;
    } else {
      gaps.emplace_back(old, 1);
    }
  }
  if (gaps.size() > mostGaps) {
    gaps = {{0, shown.items.size()}};
    kept = 0;
  }
  for (auto gap = gaps.rbegin(); gap != gaps.rend(); ++gap) {
    removeItems(at, gap->first, gap->second);
  }
  if (kept == items.size()) {
    shown.items = std::move(items);
    return;
  }
  const std::size_t first = firstRow(at) + 1;
  beginInsertRows({}, static_cast<int>(first + kept), static_cast<int>(first + items.size() - 1));
  shown.items = std::move(items);
  endInsertRows();
}

void ReviewTable::removeItems(std::size_t at, std::size_t first, std::size_t count) {
  std::vector<ShownItem>& items = _shown[at].items;
  const std::size_t row = firstRow(at) + 1 + first;
  const auto begin = items.begin() + static_cast<std::ptrdiff_t>(first);
  beginRemoveRows({}, static_cast<int>(row), static_cast<int>(row + count - 1));
  items.erase(begin, begin + static_cast<std::ptrdiff_t>(count));
  endRemoveRows();
}

void ReviewTable::setHiddenCount(std::size_t at, std::size_t hiddenCount) {
  ShownCategory& shown = _shown[at];
  const std::size_t before = shown.hiddenCount;
  if (before == hiddenCount) {
    return;
  }
  const std::size_t row = firstRow(at) + 1 + shown.items.size();
  const int modelRow = static_cast<int>(row);
  if (before == 0) {
    beginInsertRows({}, modelRow, modelRow);
    shown.hiddenCount = hiddenCount;
    endInsertRows();
  } else if (hiddenCount == 0) {
    beginRemoveRows({}, modelRow, modelRow);
    shown.hiddenCount = 0;
    endRemoveRows();
  } else {
    shown.hiddenCount = hiddenCount;
    rowChanged(row);
  }
}

void ReviewTable::rowChanged(std::size_t row, const QList<int>& roles) {
  const QModelIndex changed = index(static_cast<int>(row));
  emit dataChanged(changed, changed, roles);
}

const std::vector<CleanCategory>& ReviewTable::results() const {
  static const std::vector<CleanCategory> none;
  const AppState::ScanState& state = _appState.scanState();
  const bool isReviewed = !std::holds_alternative<AppState::Idle>(state) &&
                          !std::holds_alternative<AppState::Scanning>(state);
  return isReviewed ? _appState.scanResults() : none;
}

const CleanCategory* ReviewTable::find(CategoryType type) const {
  const auto found = std::ranges::find(results(), type, &CleanCategory::type);
  return found != results().end() ? &*found : nullptr;
}

std::vector<ReviewTable::ShownItem> ReviewTable::itemsToShow(const ShownCategory& shown) const {
  const CleanCategory* category = find(shown.type);
  if (category == nullptr || !shown.isExpanded) {
    return {};
  }
  const std::vector<JunkItem>& items = category->items;
  const std::size_t count = shown.showsAll ? items.size() : std::min(items.size(), firstItems);
  std::vector<ShownItem> shownItems;
  shownItems.reserve(count);
  for (const std::size_t index : largestFirst(items, count)) {
    shownItems.push_back({items[index].id, index});
  }
  return shownItems;
}

std::size_t ReviewTable::countSelected(CategoryType type) const {
  const CleanCategory* category = find(type);
  const std::unordered_set<Uuid>& selected = _appState.selectedItems();
  if (category == nullptr || selected.empty()) {
    return 0;
  }
  return static_cast<std::size_t>(std::ranges::count_if(
      category->items, [&](const JunkItem& item) { return selected.contains(item.id); }));
}

std::size_t ReviewTable::firstRow(std::size_t at) const {
  return std::accumulate(
      _shown.begin(), _shown.begin() + static_cast<std::ptrdiff_t>(at), std::size_t{0},
      [](std::size_t rows, const ShownCategory& shown) { return rows + shown.rowCount(); });
}

ReviewTable::Place ReviewTable::place(int row) const {
  auto rest = static_cast<std::size_t>(row);
  std::size_t at = 0;
  while (rest >= _shown[at].rowCount()) {
    rest -= _shown[at].rowCount();
    ++at;
  }
  if (rest == 0) {
    return {at, RowKind::Category, 0};
  }
  const std::size_t item = rest - 1;
  return {at, item < _shown[at].items.size() ? RowKind::Item : RowKind::ShowMore, item};
}

/// Nothing while the rows are being brought in line with new results that lack the item.
const JunkItem* ReviewTable::item(const Place& at) const {
  const ShownCategory& shown = _shown[at.category];
  const CleanCategory* category = find(shown.type);
  if (category == nullptr || at.kind != RowKind::Item) {
    return nullptr;
  }
  const ShownItem& shownItem = shown.items[at.item];
  const bool isThere = shownItem.index < category->items.size() &&
                       category->items[shownItem.index].id == shownItem.id;
  return isThere ? &category->items[shownItem.index] : nullptr;
}

ReviewTable::Selection ReviewTable::selection(const ShownCategory& shown) const {
  const CleanCategory* category = find(shown.type);
  if (category == nullptr || shown.selectedCount == 0) {
    return Selection::None;
  }
  return shown.selectedCount == category->items.size() ? Selection::All : Selection::Partial;
}

QVariant ReviewTable::rowDataOfCategory(const ShownCategory& shown, int role) const {
  const CleanCategory* category = find(shown.type);
  if (category == nullptr) {
    return nothing(role);
  }
  const QString name = printableText(rawValue(shown.type));
  const QString size = QString::fromStdString(category->formattedSize(_formatting));
  switch (role) {
    case NameRole:
      return name;
    case SymbolRole:
      return printableText(icon(shown.type));
    case ColorRole:
      return static_cast<int>(color(shown.type));
    case SafetyRole:
      return static_cast<int>(safety(shown.type));
    case SelectionRole:
      return static_cast<int>(selection(shown));
    case ItemsRole:
      return QString::number(category->items.size());
    case SizeRole:
      return size;
    case IsExpandedRole:
      return shown.isExpanded;
    case DescriptionRole:
      return rowDescription(name, size, verdictText(safety(shown.type)));
    default:
      return nothing(role);
  }
}

QVariant ReviewTable::rowDataOfItem(const JunkItem& item, CategoryType type, int role) const {
  const QString name = printableText(item.name);
  switch (role) {
    case NameRole:
      return name;
    case PathRole:
      return printableText(item.path.native());
    case UrlRole:
      return urlOfPath(item.path);
    case SymbolRole:
      return QStringLiteral("folder");
    case SafetyRole:
      return static_cast<int>(safety(type));
    case SelectionRole:
      return static_cast<int>(_appState.selectedItems().contains(item.id) ? Selection::All
                                                                          : Selection::None);
    case SizeRole:
      return byteText(item.size, _formatting);
    case DescriptionRole:
      return rowDescription(name, byteText(item.size, _formatting), verdictText(safety(type)));
    default:
      return nothing(role);
  }
}

}  // namespace klarvik
