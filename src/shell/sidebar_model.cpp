#include "shell/sidebar_model.h"

#include <algorithm>
#include <string>

#include "places/disk_layout.h"
#include "shell/sidebar_texts.h"
#include "translation/translation.h"

namespace klarvik {
namespace {

QString text(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

}  // namespace

SidebarModel::SidebarModel(const std::vector<PaneEntry>& panes, const AppState& appState,
                           const ScanCoordinator& coordinator, const ToolActivity& activity,
                           Navigator& navigator, const Formatting& formatting, QObject* parent)
    : QAbstractListModel(parent),
      _appState(appState),
      _coordinator(coordinator),
      _activity(activity),
      _navigator(navigator),
      _formatting(formatting) {
  std::string_view group;
  for (const Tool& tool : tools()) {
    if (std::ranges::find(panes, tool.section, &PaneEntry::section) == panes.end()) {
      continue;
    }
    if (tool.group != group) {
      group = tool.group;
      _rows.push_back(heading(group));
    }
    _rows.push_back(row(tool.section));
  }
  connect(&appState, &AppState::scanStateChanged, this, &SidebarModel::update);
  connect(&coordinator, &ScanCoordinator::totalsChanged, this, &SidebarModel::update);
  connect(&activity, &ToolActivity::statesChanged, this, &SidebarModel::update);
  connect(&navigator, &Navigator::sectionChanged, this, &SidebarModel::update);
}

void SidebarModel::select(int row) {
  if (!hasIndex(row, 0)) {
    return;
  }
  if (const auto section = _rows[static_cast<std::size_t>(row)].section) {
    _navigator.setSection(*section);
  }
}

int SidebarModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(_rows.size());
}

QVariant SidebarModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
    return {};
  }
  const Row& row = _rows[static_cast<std::size_t>(index.row())];
  switch (role) {
    case IsHeadingRole:
      return !row.section.has_value();
    case LabelRole:
      return row.title;
    case SymbolRole:
      return row.symbol;
    case HelpRole:
      return row.help;
    case RightHandRole:
      return row.rightHand;
    case HasCheckmarkRole:
      return row.hasCheckmark;
    case IsWorkingRole:
      return row.isWorking;
    case IsSelectedRole:
      return row.isSelected;
    case DescriptionRole:
      return row.rightHand.isEmpty() ? row.title : row.title + QStringLiteral(", ") + row.rightHand;
    default:
      return {};
  }
}

QHash<int, QByteArray> SidebarModel::roleNames() const {
  return {{IsHeadingRole, "isHeading"},    {LabelRole, "label"},
          {SymbolRole, "symbol"},          {HelpRole, "toolHelp"},
          {RightHandRole, "rightHand"},    {HasCheckmarkRole, "hasCheckmark"},
          {IsWorkingRole, "isWorking"},    {IsSelectedRole, "isSelected"},
          {DescriptionRole, "description"}};
}

void SidebarModel::update() {
  for (std::size_t at = 0; at < _rows.size(); ++at) {
    if (!_rows[at].section) {
      continue;
    }
    Row current = row(*_rows[at].section);
    if (_rows[at] != current) {
      _rows[at] = std::move(current);
      const QModelIndex changed = index(static_cast<int>(at));
      emit dataChanged(changed, changed);
    }
  }
}

SidebarModel::Row SidebarModel::heading(std::string_view group) const {
  Row row;
  row.title = translated(group);
  return row;
}

SidebarModel::Row SidebarModel::row(Section section) const {
  const std::string key = toolKey(section);
  const ToolActivity::State activity = _activity.state(key);
  const sidebar::RightHand rightHand = sidebar::rightHand(
      activity,
      sidebar::trailing(section, _appState.scanState(), _coordinator.totals(), _formatting));
  const auto help =
      sidebar::help(section, _coordinator.totals(), _appState.layout().words, _formatting);
  Row row;
  row.title = translated(tool(section).title);
  row.section = section;
  row.symbol = text(tool(section).symbol);
  row.help = help ? QString::fromStdString(*help) : row.title;
  row.rightHand = QString::fromStdString(rightHand.text);
  row.hasCheckmark = rightHand.hasCheckmark;
  row.isWorking = sidebar::isWorking(activity);
  row.isSelected = _navigator.section() == section;
  return row;
}

}  // namespace klarvik
