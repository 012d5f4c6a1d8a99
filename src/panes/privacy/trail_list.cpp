#include "panes/privacy/trail_list.h"

#include <QUrl>
#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "panes/kit/file_url.h"
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
      return 1;
    case PrivacyCategory::clipboard:
    case PrivacyCategory::quarantine:
    case PrivacyCategory::locationHistory:
      return 2;
  }
  return 2;
}

std::array<std::string_view, 3> sectionTitles(const Words& words) {
  return {words.browserTrails, words.recentTrails, "SYSTEM TRAILS"};
}

}  // namespace

bool hurts(PrivacyCategory category) {
  return category == PrivacyCategory::browserCookies || category == PrivacyCategory::clipboard;
}

TrailList::TrailList(const Formatting& formatting, const Words& words, QObject* parent)
    : QAbstractListModel(parent), _formatting(formatting), _words(words) {}

int TrailList::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(_rows.size());
}

QVariant TrailList::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const Row& row = _rows[static_cast<std::size_t>(index.row())];
  const auto* heading = std::get_if<Heading>(&row);
  return heading != nullptr ? headingData(*heading, role)
                            : trailData(item(std::get<Uuid>(row)), role);
}

QHash<int, QByteArray> TrailList::roleNames() const {
  return {{KindRole, "kind"},
          {NameRole, "name"},
          {PathRole, "pathText"},
          {UrlRole, "url"},
          {CostRole, "cost"},
          {CountRole, "count"},
          {SizeRole, "size"},
          {IsSelectedRole, "isSelected"},
          {DescriptionRole, "description"}};
}

std::vector<PrivacyItem> TrailList::selectedItems() const {
  std::vector<PrivacyItem> chosen;
  std::ranges::copy_if(_items, std::back_inserter(chosen),
                       [this](const PrivacyItem& item) { return _selected.contains(item.id); });
  return chosen;
}

void TrailList::show(std::vector<PrivacyItem> items) {
  clear();
  std::vector<Row> rows = rowsOf(items);
  if (rows.empty()) return;
  for (const PrivacyItem& item : items) {
    if (!hurts(item.category)) _selected.insert(item.id);
  }
  beginInsertRows({}, 0, static_cast<int>(rows.size()) - 1);
  _items = std::move(items);
  _rows = std::move(rows);
  endInsertRows();
  emit selectionChanged();
}

void TrailList::clear() {
  if (_rows.empty()) return;
  beginRemoveRows({}, 0, rowCount() - 1);
  _rows.clear();
  _items.clear();
  _selected.clear();
  endRemoveRows();
  emit selectionChanged();
}

void TrailList::remove(const std::vector<PrivacyItem>& items) {
  std::unordered_set<Uuid> leaving;
  for (const PrivacyItem& item : items) leaving.insert(item.id);

  bool sectionIsEmpty = true;
  for (std::size_t row = _rows.size(); row > 0; --row) {
    const auto* id = std::get_if<Uuid>(&_rows[row - 1]);
    const bool goes = id != nullptr ? leaving.contains(*id) : sectionIsEmpty;
    sectionIsEmpty = id == nullptr || (goes && sectionIsEmpty);
    if (goes) removeRow(row - 1);
  }
  std::erase_if(_items, [&](const PrivacyItem& item) { return leaving.contains(item.id); });
  for (const Uuid& id : leaving) _selected.erase(id);
  emit selectionChanged();
}

void TrailList::toggle(int row) {
  if (!hasIndex(row, 0)) return;
  const auto* id = std::get_if<Uuid>(&_rows[static_cast<std::size_t>(row)]);
  if (id == nullptr) return;
  if (_selected.erase(*id) == 0) _selected.insert(*id);
  emit dataChanged(index(row), index(row), {IsSelectedRole});
  emit selectionChanged();
}

std::vector<TrailList::Row> TrailList::rowsOf(const std::vector<PrivacyItem>& items) const {
  std::vector<PrivacyItem> bySize = items;
  std::ranges::stable_sort(bySize, std::ranges::greater{}, &PrivacyItem::size);
  const auto titles = sectionTitles(_words);
  std::vector<Row> rows;
  for (std::size_t section = 0; section < titles.size(); ++section) {
    bool hasHeading = false;
    for (const PrivacyItem& item : bySize) {
      if (sectionOf(item.category) != section) continue;
      if (!std::exchange(hasHeading, true)) rows.emplace_back(Heading{titles.at(section)});
      rows.emplace_back(item.id);
    }
  }
  return rows;
}

void TrailList::removeRow(std::size_t row) {
  beginRemoveRows({}, static_cast<int>(row), static_cast<int>(row));
  _rows.erase(_rows.begin() + static_cast<std::ptrdiff_t>(row));
  endRemoveRows();
}

/// Of one that is listed.
const PrivacyItem& TrailList::item(const Uuid& id) const {
  return *std::ranges::find(_items, id, &PrivacyItem::id);
}

QVariant TrailList::headingData(const Heading& heading, int role) {
  switch (role) {
    case KindRole:
      return static_cast<int>(RowKind::Heading);
    case NameRole:
    case DescriptionRole:
      return programText(heading.title);
    case UrlRole:
      return QUrl();
    case PathRole:
    case CostRole:
    case CountRole:
    case SizeRole:
      return QString();
    case IsSelectedRole:
      return false;
    default:
      return {};
  }
}

QVariant TrailList::trailData(const PrivacyItem& item, int role) const {
  const QString name = programText(privacy::label(item.category, _words));
  const QString size = byteText(item.size, _formatting);
  const Path path = item.path.value_or(Path());
  switch (role) {
    case KindRole:
      return static_cast<int>(RowKind::Trail);
    case NameRole:
      return name;
    case PathRole:
      return printableText(path.native());
    case UrlRole:
      return urlOfPath(path);
    case CostRole:
      return privacy::cost(item.category);
    case CountRole:
      return privacy::entryCount(item);
    case SizeRole:
      return size;
    case IsSelectedRole:
      return _selected.contains(item.id);
    case DescriptionRole:
      return rowDescription(name, size, privacy::cost(item.category));
    default:
      return {};
  }
}

}  // namespace klarvik
