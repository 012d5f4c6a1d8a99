#include "panes/smart_scan/other_tools_bar_model.h"

#include <algorithm>

#include "panes/kit/row_text.h"
#include "translation/translation.h"

namespace klarvik {
namespace {

bool isMeasuring(const ToolActivity::State& state) {
  return std::holds_alternative<ToolActivity::Running>(state) ||
         std::holds_alternative<ToolActivity::Progress>(state);
}

std::vector<const Tool*> toolsElsewhere() {
  std::vector<const Tool*> shown;
  for (const Tool& tool : tools()) {
    if (!tool.elsewhere.note.empty()) shown.push_back(&tool);
  }
  std::ranges::sort(shown, {}, [](const Tool* tool) { return tool->elsewhere.place; });
  return shown;
}

}  // namespace

OtherToolsBarModel::OtherToolsBarModel(const ScanCoordinator& coordinator,
                                       const ToolActivity& activity, Navigator& navigator,
                                       const Formatting& formatting, QObject* parent)
    : QAbstractListModel(parent),
      _coordinator(coordinator),
      _activity(activity),
      _navigator(navigator),
      _formatting(formatting),
      _tools(toolsElsewhere()) {
  connect(&coordinator, &ScanCoordinator::totalsChanged, this, &OtherToolsBarModel::syncRows);
  connect(&activity, &ToolActivity::statesChanged, this, &OtherToolsBarModel::syncPending);
  syncRows();
  syncPending();
}

bool OtherToolsBarModel::isShown() const {
  return !_rows.empty() || _pending > 0;
}

QString OtherToolsBarModel::pendingText() const {
  return _pending > 0 ? translate("SmartScan", "%n still measuring", nullptr, plural(_pending))
                      : QString();
}

void OtherToolsBarModel::open(int row) {
  if (hasIndex(row, 0)) {
    _navigator.setSection(_rows[static_cast<std::size_t>(row)].tool->section);
  }
}

int OtherToolsBarModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(_rows.size());
}

QVariant OtherToolsBarModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
    return {};
  }
  const Row& row = _rows[static_cast<std::size_t>(index.row())];
  switch (role) {
    case SizeRole:
      return byteText(row.bytes, _formatting);
    case NoteRole:
      return translated(row.tool->elsewhere.note);
    case HelpRole:
      return translate("SmartScan", "Open %1").arg(translated(row.tool->title));
    default:
      return {};
  }
}

QHash<int, QByteArray> OtherToolsBarModel::roleNames() const {
  return {{SizeRole, "size"}, {NoteRole, "note"}, {HelpRole, "toolHelp"}};
}

void OtherToolsBarModel::syncRows() {
  const std::vector<Row> current = currentRows();
  for (std::size_t at = 0; at < _rows.size();) {
    const bool stays = std::ranges::find(current, _rows[at].tool, &Row::tool) != current.end();
    if (stays) {
      ++at;
      continue;
    }
    const int row = static_cast<int>(at);
    beginRemoveRows({}, row, row);
    _rows.erase(_rows.begin() + row);
    endRemoveRows();
  }
  for (std::size_t at = 0; at < current.size(); ++at) {
    const int row = static_cast<int>(at);
    if (at == _rows.size() || _rows[at].tool != current[at].tool) {
      beginInsertRows({}, row, row);
      _rows.insert(_rows.begin() + row, current[at]);
      endInsertRows();
    } else if (_rows[at] != current[at]) {
      _rows[at] = current[at];
      emit dataChanged(index(row), index(row));
    }
  }
  emit changed();
}

void OtherToolsBarModel::syncPending() {
  const auto pending = std::ranges::count_if(_tools, [this](const Tool* tool) {
    return isMeasuring(_activity.state(toolKey(tool->section)));
  });
  if (_pending != pending) {
    _pending = pending;
    emit changed();
  }
}

std::vector<OtherToolsBarModel::Row> OtherToolsBarModel::currentRows() const {
  std::vector<Row> rows;
  for (const Tool* tool : _tools) {
    const auto total = _coordinator.totals().find(toolKey(tool->section));
    if (total != _coordinator.totals().end() && total->second.bytes >= 1) {
      rows.push_back({tool, total->second.bytes});
    }
  }
  return rows;
}

}  // namespace klarvik
