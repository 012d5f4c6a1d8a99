#include "panes/smart_scan/review_table_model.h"

#include <QUrl>
#include <algorithm>
#include <numeric>
#include <ranges>
#include <span>
#include <utility>

#include "panes/kit/row_ranges.h"
#include "panes/kit/row_text.h"
#include "panes/smart_scan/smart_scan_texts.h"
#include "places/disk_layout.h"
#include "state/set_if_changed.h"
#include "translation/translation.h"

namespace klarvik {
namespace {

/// What a row says that has nothing to say: a view binds every role of every row.
QVariant nothing(int role) {
  switch (role) {
    case ReviewTableModel::ColorRole:
    case ReviewTableModel::SafetyRole:
    case ReviewTableModel::SelectionRole:
      return 0;
    case ReviewTableModel::IsExpandedRole:
    case ReviewTableModel::IsInUseRole:
    case ReviewTableModel::CanSelectRole:
    case ReviewTableModel::IsCopiedRole:
    case ReviewTableModel::CanRunRole:
      return false;
    case ReviewTableModel::UrlRole:
      return QUrl();
    default:
      return QString();
  }
}

bool isAmong(std::span<const CleanCategory> results, CategoryType type) {
  return std::ranges::find(results, type, &CleanCategory::type) != results.end();
}

}  // namespace

ReviewTableModel::ReviewTableModel(AppState& appState, const Formatting& formatting,
                                   Pasteboard& pasteboard, QObject* parent)
    : QAbstractListModel(parent),
      _appState(appState),
      _formatting(formatting),
      _pasteboard(pasteboard) {
  connect(&appState, &AppState::scanStateChanged, this, &ReviewTableModel::syncResults);
  connect(&appState, &AppState::scanResultsChanged, this, &ReviewTableModel::syncResults);
  connect(&appState, &AppState::expandedCategoriesChanged, this, &ReviewTableModel::syncExpansion);
  connect(&appState, &AppState::selectedItemsChanged, this, &ReviewTableModel::syncSelection);
  syncResults();
}

int ReviewTableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(firstRow(_shown.size()));
}

QVariant ReviewTableModel::data(const QModelIndex& index, int role) const {
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
    case RowKind::Hint:
      return rowDataOfHint(at, role);
    case RowKind::Command:
      return rowDataOfCommand(at, role);
  }
  return {};
}

QHash<int, QByteArray> ReviewTableModel::roleNames() const {
  return {{KindRole, "kind"},
          {NameRole, "name"},
          {PathRole, "pathText"},
          {UrlRole, "url"},
          {SymbolRole, "symbol"},
          {ColorRole, "color"},
          {SafetyRole, "safety"},
          {SelectionRole, "selection"},
          {ItemsRole, "items"},
          {SizeRole, "size"},
          {IsExpandedRole, "isExpanded"},
          {DescriptionRole, "description"},
          {NoteRole, "note"},
          {IsInUseRole, "isInUse"},
          {CanSelectRole, "canSelect"},
          {IsCopiedRole, "isCopied"},
          {CanRunRole, "canRun"}};
}

void ReviewTableModel::activate(int row) {
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
    case RowKind::Hint:
      return;
    case RowKind::Command:
      copyCommand(row);
      return;
  }
}

void ReviewTableModel::toggleSelection(int row) {
  if (!hasIndex(row, 0)) {
    return;
  }
  const Place at = place(row);
  const ShownCategory& shown = _shown[at.category];
  if (at.kind == RowKind::Category) {
    if (const CleanCategory* category = find(shown.type)) {
      _appState.setSelection(category->items, selection(*category) != Selection::All);
    }
  } else if (const JunkItem* found = item(at)) {
    _appState.toggleItem(found->id);
  }
}

void ReviewTableModel::copyCommand(int row) {
  if (!hasIndex(row, 0)) {
    return;
  }
  const Place at = place(row);
  const Hint* told = at.kind == RowKind::Command ? hint(at) : nullptr;
  if (told == nullptr) {
    return;
  }
  _pasteboard.copy(told->command);
  setCopied(told->command);
}

void ReviewTableModel::runCommand(int row) {
  if (!hasIndex(row, 0)) {
    return;
  }
  const Place at = place(row);
  const Hint* told = at.kind == RowKind::Command ? hint(at) : nullptr;
  if (told != nullptr && told->runAsRoot != nullptr) {
    emit runAsked(*told->runAsRoot);
  }
}

void ReviewTableModel::windowActivated() {
  if (_copied.empty()) {
    return;
  }
  setCopied({});
  _appState.measureHintsAgain();
}

void ReviewTableModel::setCopied(std::string command) {
  _copied = std::move(command);
  emit dataChanged(index(0), index(rowCount() - 1), {IsCopiedRole});
}

QString ReviewTableModel::commandsNote() const {
  return showsCommands() ? QString::fromStdString(smart_scan::commandsNote()) : QString();
}

bool ReviewTableModel::showsCommands() const {
  return std::ranges::any_of(_shown, [](const ShownCategory& shown) {
    return shown.hintRowCount > shown.hintRows.size();
  });
}

void ReviewTableModel::syncResults() {
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

void ReviewTableModel::syncExpansion() {
  for (std::size_t at = 0; at < _shown.size(); ++at) {
    setExpanded(at, _appState.expandedCategories().contains(_shown[at].type));
  }
}

void ReviewTableModel::syncSelection() {
  for (std::size_t at = 0; at < _shown.size(); ++at) {
    const int first = static_cast<int>(firstRow(at));
    const int last = first + static_cast<int>(_shown[at].ranks.size());
    emit dataChanged(index(first), index(last), {SelectionRole});
  }
}

void ReviewTableModel::insertCategory(std::size_t at, const CleanCategory& category) {
  const int row = static_cast<int>(firstRow(at));
  ShownCategory shown;
  shown.type = category.type;
  beginInsertRows({}, row, row);
  _shown.insert(_shown.begin() + static_cast<std::ptrdiff_t>(at), std::move(shown));
  endInsertRows();
  setExpanded(at, _appState.expandedCategories().contains(category.type));
}

void ReviewTableModel::removeCategory(std::size_t at) {
  const int first = static_cast<int>(firstRow(at));
  const int last = first + static_cast<int>(_shown[at].rowCount()) - 1;
  beginRemoveRows({}, first, last);
  _shown.erase(_shown.begin() + static_cast<std::ptrdiff_t>(at));
  endRemoveRows();
  tellOfCommands();
}

void ReviewTableModel::updateCategory(std::size_t at) {
  rowChanged(firstRow(at));
  syncItems(at);
}

void ReviewTableModel::setExpanded(std::size_t at, bool expanded) {
  ShownCategory& shown = _shown[at];
  if (shown.isExpanded == expanded) {
    return;
  }
  shown.isExpanded = expanded;
  shown.showsAll = false;
  rowChanged(firstRow(at), {IsExpandedRole});
  syncItems(at);
}

void ReviewTableModel::showAll(std::size_t at) {
  ShownCategory& shown = _shown[at];
  shown.showsAll = true;
  if (shown.hiddenCount == 0) return;
  // The row becomes the first of those that it hid: a list stays at the row that is current.
  shown.hiddenCount = 0;
  shown.ranks.push_back(shown.ranks.size());
  rowChanged(firstRow(at) + shown.ranks.size());
  syncItems(at);
}

void ReviewTableModel::syncItems(std::size_t at) {
  const ShownCategory& shown = _shown[at];
  const CleanCategory* category = find(shown.type);
  if (category == nullptr || !shown.isExpanded) {
    replaceItems(at, nullptr, 0);
    setHiddenCount(at, 0);
    setHints(at, {});
    return;
  }
  const std::size_t count = category->items.size();
  const std::size_t shownCount = shown.showsAll ? count : std::min(count, firstItems);
  replaceItems(at, _appState.selectedItems().items(category->id), shownCount);
  setHiddenCount(at, count - shownCount);
  setHints(at, category->hints);
}

/// The first `count` of `items` take the place of those shown. Items keep their order from one
/// result to the next, so whatever is met out of turn is gone, and what is left over at the end is
/// new.
void ReviewTableModel::replaceItems(std::size_t at, ItemSelection::Items items, std::size_t count) {
  ShownCategory& shown = _shown[at];
  std::size_t kept = 0;
  std::vector<RowRange> runs = rangesOf(shown.ranks.size(), [&](std::size_t old) {
    const bool stays = kept < count && (*shown.items)[shown.ranks[old]].id == (*items)[kept].id;
    if (stays) ++kept;
    return !stays;
  });
  if (runs.size() > mostRuns) {
    runs = {RowRange{0, shown.ranks.size()}};
    kept = 0;
  }
  for (const RowRange& run : std::views::reverse(runs)) {
    removeItems(at, run.first, run.count);
  }
  shown.items = std::move(items);
  std::iota(shown.ranks.begin(), shown.ranks.end(), std::size_t{0});
  if (kept == count) {
    return;
  }
  const std::size_t first = firstRow(at) + 1;
  beginInsertRows({}, static_cast<int>(first + kept), static_cast<int>(first + count - 1));
  shown.ranks.resize(count);
  std::iota(shown.ranks.begin(), shown.ranks.end(), std::size_t{0});
  endInsertRows();
}

void ReviewTableModel::removeItems(std::size_t at, std::size_t first, std::size_t count) {
  std::vector<std::size_t>& ranks = _shown[at].ranks;
  const std::size_t row = firstRow(at) + 1 + first;
  const auto begin = ranks.begin() + static_cast<std::ptrdiff_t>(first);
  beginRemoveRows({}, static_cast<int>(row), static_cast<int>(row + count - 1));
  ranks.erase(begin, begin + static_cast<std::ptrdiff_t>(count));
  endRemoveRows();
}

void ReviewTableModel::setHiddenCount(std::size_t at, std::size_t hiddenCount) {
  ShownCategory& shown = _shown[at];
  const std::size_t before = shown.hiddenCount;
  if (before == hiddenCount) {
    return;
  }
  const std::size_t row = firstRow(at) + 1 + shown.ranks.size();
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

void ReviewTableModel::setHints(std::size_t at, std::span<const Hint> hints) {
  std::vector<std::size_t> rows;
  std::size_t count = 0;
  for (const Hint& each : hints) {
    rows.push_back(count);
    count += each.command.empty() ? 1 : 2;
  }
  ShownCategory& shown = _shown[at];
  const std::size_t before = shown.hintRowCount;
  const std::size_t first = firstRow(at) + shown.hintsBegin();
  const auto row = [&](std::size_t hint) { return static_cast<int>(first + hint); };
  if (before < count) {
    beginInsertRows({}, row(before), row(count - 1));
  } else if (before > count) {
    beginRemoveRows({}, row(count), row(before - 1));
  }
  shown.hintRows = std::move(rows);
  shown.hintRowCount = count;
  if (before < count) {
    endInsertRows();
  } else if (before > count) {
    endRemoveRows();
  }
  if (const std::size_t kept = std::min(before, count); kept > 0) {
    emit dataChanged(index(row(0)), index(row(kept - 1)));
  }
  tellOfCommands();
}

void ReviewTableModel::tellOfCommands() {
  if (setIfChanged(_showedCommands, showsCommands())) {
    emit commandsNoteChanged();
  }
}

void ReviewTableModel::rowChanged(std::size_t row, const QList<int>& roles) {
  const QModelIndex changed = index(static_cast<int>(row));
  emit dataChanged(changed, changed, roles);
}

const std::vector<CleanCategory>& ReviewTableModel::results() const {
  static const std::vector<CleanCategory> none;
  const AppState::ScanState& state = _appState.scanState();
  const bool isReviewed = !std::holds_alternative<AppState::Idle>(state) &&
                          !std::holds_alternative<AppState::Scanning>(state);
  return isReviewed ? _appState.scanResults() : none;
}

const CleanCategory* ReviewTableModel::find(CategoryType type) const {
  const auto found = std::ranges::find(results(), type, &CleanCategory::type);
  return found != results().end() ? &*found : nullptr;
}

std::size_t ReviewTableModel::firstRow(std::size_t at) const {
  return std::accumulate(
      _shown.begin(), _shown.begin() + static_cast<std::ptrdiff_t>(at), std::size_t{0},
      [](std::size_t rows, const ShownCategory& shown) { return rows + shown.rowCount(); });
}

int ReviewTableModel::categoryRow(int row) const {
  return static_cast<int>(firstRow(place(row).category));
}

ReviewTableModel::Place ReviewTableModel::place(int row) const {
  auto rest = static_cast<std::size_t>(row);
  std::size_t at = 0;
  while (rest >= _shown[at].rowCount()) {
    rest -= _shown[at].rowCount();
    ++at;
  }
  if (rest == 0) {
    return {at, RowKind::Category, 0};
  }
  if (rest >= _shown[at].hintsBegin()) {
    const std::vector<std::size_t>& starts = _shown[at].hintRows;
    const std::size_t hintRow = rest - _shown[at].hintsBegin();
    const auto after = std::ranges::upper_bound(starts, hintRow);
    const auto hint = static_cast<std::size_t>(after - starts.begin()) - 1;
    return {at, starts[hint] == hintRow ? RowKind::Hint : RowKind::Command, hint};
  }
  const std::size_t item = rest - 1;
  return {at, item < _shown[at].ranks.size() ? RowKind::Item : RowKind::ShowMore, item};
}

/// Nothing while the rows are being brought in line with new results that lack the item.
const JunkItem* ReviewTableModel::item(const Place& at) const {
  const ShownCategory& shown = _shown[at.category];
  const CleanCategory* category = find(shown.type);
  if (category == nullptr || at.kind != RowKind::Item) {
    return nullptr;
  }
  const SortedItems::Item& ranked = (*shown.items)[shown.ranks[at.item]];
  const bool isThere =
      ranked.place < category->items.size() && category->items[ranked.place].id == ranked.id;
  return isThere ? &category->items[ranked.place] : nullptr;
}

/// Nothing while the rows are being brought in line with new results that lack the hint.
const Hint* ReviewTableModel::hint(const Place& at) const {
  const CleanCategory* category = find(_shown[at.category].type);
  const bool isThere = category != nullptr && at.item < category->hints.size();
  return isThere ? &category->hints[at.item] : nullptr;
}

ReviewTableModel::Selection ReviewTableModel::selection(const CleanCategory& category) const {
  const auto selected =
      static_cast<std::size_t>(_appState.selectedItems().selected(category.id).count);
  if (selected == 0) {
    return Selection::None;
  }
  return selected == category.items.size() ? Selection::All : Selection::Partial;
}

QVariant ReviewTableModel::rowDataOfCategory(const ShownCategory& shown, int role) const {
  const CleanCategory* category = find(shown.type);
  if (category == nullptr) {
    return nothing(role);
  }
  const QString name = translated(_appState.layout().label(shown.type));
  const QString size = byteText(_appState.selectedItems().total(category->id).size, _formatting);
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
      return static_cast<int>(selection(*category));
    case ItemsRole:
      return category->hasItems() ? QString::number(category->items.size()) : QString();
    case SizeRole:
      return category->hasItems() ? size : QString();
    case NoteRole:
      return category->hasItems() ? QString() : QString::fromStdString(smart_scan::hintsOnlyNote());
    case CanSelectRole:
      return category->hasItems();
    case IsExpandedRole:
      return shown.isExpanded;
    case DescriptionRole:
      return rowDescription(name, size, verdictText(safety(shown.type)));
    default:
      return nothing(role);
  }
}

QVariant ReviewTableModel::rowDataOfHint(const Place& place, int role) const {
  const Hint* told = hint(place);
  if (told == nullptr) {
    return nothing(role);
  }
  const QString name = shownName(told->name, told->nameText);
  const QString note = translated(told->reason);
  switch (role) {
    case NameRole:
      return name;
    case PathRole:
      return printableText(told->path.native());
    case UrlRole:
      return urlOfPath(told->path);
    case SymbolRole:
      return QStringLiteral("info.circle");
    case SizeRole:
      return byteText(told->size, _formatting);
    case NoteRole:
      return note;
    case DescriptionRole:
      return rowDescription(name, byteText(told->size, _formatting), note);
    default:
      return nothing(role);
  }
}

QVariant ReviewTableModel::rowDataOfCommand(const Place& place, int role) const {
  const Hint* told = hint(place);
  if (told == nullptr) {
    return nothing(role);
  }
  const QString command = printableText(told->command);
  switch (role) {
    case NameRole:
      return command;
    case IsCopiedRole:
      return told->command == _copied;
    case CanRunRole:
      return told->runAsRoot != nullptr;
    case DescriptionRole:
      return translate("SmartScan", "Copy the command: %1").arg(command);
    default:
      return nothing(role);
  }
}

QVariant ReviewTableModel::rowDataOfItem(const JunkItem& item, CategoryType type, int role) const {
  const QString name = shownName(item.name, item.nameText);
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
    case NoteRole:
      return printableText(smart_scan::itemNote(item, _formatting));
    case IsInUseRole:
      return !item.closeFirst.empty();
    case CanSelectRole:
      return true;
    case DescriptionRole: {
      const QString note = printableText(smart_scan::itemNote(item, _formatting));
      const QString verdict = verdictText(safety(type));
      return rowDescription(name, byteText(item.size, _formatting),
                            note.isEmpty() ? verdict : verdict + ", " + note);
    }
    default:
      return nothing(role);
  }
}

}  // namespace klarvik
