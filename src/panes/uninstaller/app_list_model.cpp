#include "panes/uninstaller/app_list_model.h"

#include <algorithm>
#include <limits>
#include <ranges>
#include <string>
#include <unordered_map>
#include <utility>

#include "panes/kit/file_url.h"
#include "panes/kit/row_ranges.h"
#include "panes/kit/row_text.h"

namespace klarvik {
namespace {

constexpr std::size_t gone = std::numeric_limits<std::size_t>::max();

/// Marks as many places as can stay while they rise from row to row.
std::vector<bool> longestRise(const std::vector<std::size_t>& places) {
  std::vector<std::size_t> ends;  // row that ends the best rise of each length
  std::vector<std::size_t> before(places.size(), gone);  // the row before it in that rise
  for (std::size_t row = 0; row < places.size(); ++row) {
    if (places[row] == gone) continue;
    const auto end =
        std::ranges::lower_bound(ends, places[row], {}, [&](std::size_t at) { return places[at]; });
    if (end != ends.begin()) before[row] = *std::prev(end);
    if (end == ends.end()) {
      ends.push_back(row);
    } else {
      *end = row;
    }
  }
  std::vector<bool> stays(places.size(), false);
  for (std::size_t row = ends.empty() ? gone : ends.back(); row != gone; row = before[row]) {
    stays[row] = true;
  }
  return stays;
}

bool isCalled(const AppInfo& app, const QString& searchText) {
  return printableText(app.name).contains(searchText, Qt::CaseInsensitive);
}

}  // namespace

AppListModel::AppListModel(const Formatting& formatting, QObject* parent)
    : QAbstractListModel(parent), _formatting(formatting) {}

int AppListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(_shown.size());
}

QVariant AppListModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const AppInfo& app = _apps[_shown[static_cast<std::size_t>(index.row())]];
  switch (role) {
    case NameRole:
      return printableText(app.name);
    case BundleRole:
      return printableText(app.bundleID);
    case PathRole:
      return printableText(app.appURL.native());
    case UrlRole:
      return urlOfPath(app.appURL);
    case SizeRole:
      return byteText(app.appSize, _formatting);
    case DescriptionRole:
      return rowDescription(printableText(app.name), byteText(app.appSize, _formatting),
                            printableText(app.bundleID));
    default:
      return {};
  }
}

QHash<int, QByteArray> AppListModel::roleNames() const {
  return {{NameRole, "name"}, {BundleRole, "bundle"}, {PathRole, "path"},
          {UrlRole, "url"},   {SizeRole, "size"},     {DescriptionRole, "description"}};
}

void AppListModel::setApps(std::vector<AppInfo> apps) {
  std::ranges::stable_sort(apps, std::ranges::greater{}, &AppInfo::appSize);
  const Places newPlaces = placesIn(apps);
  const Places wanted = matching(apps);
  Places shown;
  shown.reserve(_shown.size());
  for (const std::size_t place : _shown) {
    const bool isWanted = std::ranges::binary_search(wanted, newPlaces[place]);
    shown.push_back(isWanted ? newPlaces[place] : gone);
  }
  removeRowsExcept(longestRise(shown));
  _apps = std::move(apps);
  for (std::size_t& place : _shown) place = newPlaces[place];
  if (!_shown.empty()) emit dataChanged(index(0), index(rowCount() - 1));
  insertMissing(wanted);
}

void AppListModel::remove(const Path& appURL) {
  std::vector<AppInfo> others = _apps;
  std::erase_if(others, [&](const AppInfo& app) { return app.appURL == appURL; });
  setApps(std::move(others));
}

void AppListModel::setSearchText(const QString& searchText) {
  if (_searchText == searchText) return;
  _searchText = searchText;
  const Places wanted = matching(_apps);
  std::vector<bool> stays;
  stays.reserve(_shown.size());
  for (const std::size_t place : _shown) {
    stays.push_back(std::ranges::binary_search(wanted, place));
  }
  removeRowsExcept(stays);
  insertMissing(wanted);
}

const AppInfo* AppListModel::appAt(int row) const {
  return hasIndex(row, 0) ? &_apps[_shown[static_cast<std::size_t>(row)]] : nullptr;
}

AppListModel::Places AppListModel::matching(const std::vector<AppInfo>& apps) const {
  Places places;
  for (std::size_t place = 0; place < apps.size(); ++place) {
    if (isCalled(apps[place], _searchText)) places.push_back(place);
  }
  return places;
}

AppListModel::Places AppListModel::placesIn(const std::vector<AppInfo>& apps) const {
  std::unordered_map<std::string, std::size_t> placeOf;
  for (std::size_t place = 0; place < apps.size(); ++place) {
    placeOf.emplace(apps[place].appURL.native(), place);
  }
  Places places;
  places.reserve(_apps.size());
  for (const AppInfo& app : _apps) {
    const auto found = placeOf.find(app.appURL.native());
    places.push_back(found != placeOf.end() ? found->second : gone);
  }
  return places;
}

void AppListModel::removeRowsExcept(const std::vector<bool>& stays) {
  std::vector<RowRange> runs = rangesOf(stays.size(), [&](std::size_t row) { return !stays[row]; });
  if (runs.size() > mostRuns) runs = {RowRange{0, stays.size()}};
  for (const auto& [first, count] : std::views::reverse(runs)) {
    const auto begin = _shown.begin() + static_cast<std::ptrdiff_t>(first);
    beginRemoveRows({}, static_cast<int>(first), static_cast<int>(first + count - 1));
    _shown.erase(begin, begin + static_cast<std::ptrdiff_t>(count));
    endRemoveRows();
  }
}

/// What is shown already is among the wanted, in their order.
void AppListModel::insertMissing(const Places& wanted) {
  std::size_t row = 0;
  while (row < wanted.size()) {
    std::size_t end = row;
    const std::size_t next = row < _shown.size() ? _shown[row] : gone;
    while (end < wanted.size() && wanted[end] != next) ++end;
    if (end > row) {
      beginInsertRows({}, static_cast<int>(row), static_cast<int>(end) - 1);
      _shown.insert(_shown.begin() + static_cast<std::ptrdiff_t>(row),
                    wanted.begin() + static_cast<std::ptrdiff_t>(row),
                    wanted.begin() + static_cast<std::ptrdiff_t>(end));
      endInsertRows();
    }
    row = end + 1;
  }
}

}  // namespace klarvik
