#include "panes/uninstaller/app_list_model.h"

#include <algorithm>
#include <string>
#include <unordered_map>
#include <utility>

#include "panes/kit/row_text.h"
#include "panes/uninstaller/application_icons.h"
#include "panes/uninstaller/uninstaller_texts.h"

namespace klarvik {
namespace {

bool isCalled(const AppInfo& app, const QString& searchText) {
  return printableText(app.name).contains(searchText, Qt::CaseInsensitive);
}

}  // namespace

AppListModel::AppListModel(const Formatting& formatting, QObject* parent)
    : KeyedListModel(parent), _formatting(formatting) {}

QVariant AppListModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const AppInfo& app = _apps[rows()[static_cast<std::size_t>(index.row())].itemPlace];
  switch (role) {
    case NameRole:
      return printableText(app.name);
    case BundleRole:
      return uninstaller::origin(app);
    case PathRole:
      return printableText(app.appURL.native());
    case UrlRole:
      return urlOfPath(app.appURL);
    case SizeRole:
      return byteText(app.appSize, _formatting);
    case DescriptionRole:
      return rowDescription(printableText(app.name), byteText(app.appSize, _formatting),
                            uninstaller::origin(app));
    case IconRole:
      return applicationIconUrl(app.icon);
    default:
      return {};
  }
}

QHash<int, QByteArray> AppListModel::roleNames() const {
  return {{NameRole, "name"}, {BundleRole, "bundle"}, {PathRole, "path"},
          {UrlRole, "url"},   {SizeRole, "size"},     {DescriptionRole, "description"},
          {IconRole, "icon"}};
}

void AppListModel::setApps(std::vector<AppInfo> apps) {
  std::ranges::stable_sort(apps, std::ranges::greater{}, &AppInfo::appSize);
  std::unordered_map<std::string, Uuid> known;
  for (const AppInfo& app : _apps) known.emplace(app.appURL.native(), app.id);
  for (AppInfo& app : apps) {
    if (const auto former = known.extract(app.appURL.native())) app.id = former.mapped();
  }
  const std::vector<Row> wanted = matching(apps);
  showRows(wanted, [&] { _apps = std::move(apps); });
}

void AppListModel::remove(const Path& appURL) {
  std::vector<AppInfo> others = _apps;
  std::erase_if(others, [&](const AppInfo& app) { return app.appURL == appURL; });
  setApps(std::move(others));
}

void AppListModel::setSearchText(const QString& searchText) {
  if (_searchText == searchText) return;
  _searchText = searchText;
  showRows(matching(_apps));
}

const AppInfo* AppListModel::appAt(int row) const {
  return hasIndex(row, 0) ? &_apps[rows()[static_cast<std::size_t>(row)].itemPlace] : nullptr;
}

std::vector<AppListModel::Row> AppListModel::matching(const std::vector<AppInfo>& apps) const {
  std::vector<Row> rows;
  for (std::size_t place = 0; place < apps.size(); ++place) {
    if (isCalled(apps[place], _searchText)) {
      rows.push_back({.item = apps[place].id, .itemPlace = place});
    }
  }
  return rows;
}

}  // namespace klarvik
