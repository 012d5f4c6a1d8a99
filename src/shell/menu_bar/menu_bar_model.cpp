#include "shell/menu_bar/menu_bar_model.h"

#include <QCoreApplication>
#include <algorithm>

#include "panes/kit/palette.h"
#include "places/disk_layout.h"
#include "shell/menu_bar/menu_bar_rules.h"
#include "shell/menu_bar/window_activation.h"
#include "state/set_if_changed.h"
#include "translation/translation.h"

namespace klarvik {
namespace {

QString text(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

}  // namespace

MenuBarModel::MenuBarModel(AppState& appState, TrashMonitor& trash, const Formatting& formatting,
                           QObject* parent)
    : QObject(parent),
      _appState(appState),
      _trash(trash),
      _formatting(formatting),
      _actions(currentActions()) {
  connect(&_appState, &AppState::scanResultsChanged, this, &MenuBarModel::resultsChanged);
  connect(&_appState, &AppState::totalSpaceFreeableChanged, this, &MenuBarModel::resultsChanged);
  connect(&_trash, &TrashMonitor::changed, this, &MenuBarModel::syncActions);
}

QList<MenuBarCategory> MenuBarModel::categories() const {
  QList<MenuBarCategory> lines;
  for (const CleanCategory& category : _appState.scanResults()) {
    if (!category.hasItems()) continue;
    if (lines.size() == menu_bar::shownCategories) break;
    lines.push_back({text(icon(category.type)), Palette::systemColor(color(category.type)),
                     translated(_appState.layout().label(category.type)),
                     text(category.formattedSize(_formatting))});
  }
  return lines;
}

QString MenuBarModel::moreCategories() const {
  const auto count = std::ranges::count_if(_appState.scanResults(), &CleanCategory::hasItems);
  return text(menu_bar::moreCategories(static_cast<std::size_t>(count)));
}

QString MenuBarModel::totalFound() const {
  return text(_formatting.byteText(_appState.totalSpaceFreeable()));
}

QList<MenuBarAction> MenuBarModel::currentActions() const {
  const TrashMonitor::Figures& trash = _trash.figures();
  return {
      {"magnifyingglass", translate("Tray", "Scan Now")},
      {text(menu_bar::trashSymbol(trash)),
       text(menu_bar::trashLabel(trash, _appState.layout().words, _formatting)),
       menu_bar::canEmpty(trash)},
      {"macwindow", translate("Tray", "Open Klarvik"), true, true},
      {"gear", translate("Tray", "Preferences")},
      {"xmark.circle", translate("Kit", "Quit")},
  };
}

void MenuBarModel::syncActions() {
  if (setIfChanged(_actions, currentActions())) emit actionsChanged();
}

void MenuBarModel::perform(int action) {
  if (action < 0 || action >= _actions.size() || !_actions[action].isEnabled) return;
  const bool staysHere = action == EmptyTrash && !_trash.asksBeforeEmptying();
  if (!staysHere) emit leaving();
  switch (action) {
    case ScanNow:
      _appState.startScan();
      activateWindow("main");
      return;
    case EmptyTrash:
      if (!staysHere) activateWindow("main");
      _trash.requestEmptying();
      return;
    case OpenKlarvik:
      activateWindow("main");
      return;
    case Preferences:
      activateWindow("settings");
      return;
    case Quit:
      QCoreApplication::quit();
      return;
  }
}

}  // namespace klarvik
