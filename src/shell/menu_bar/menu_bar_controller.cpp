#include "shell/menu_bar/menu_bar_controller.h"

#include <QGuiApplication>
#include <utility>

#include "platform/user_defaults.h"
#include "shell/menu_bar/menu_bar_rules.h"
#include "shell/menu_bar/window_activation.h"
#include "state/set_if_changed.h"

namespace klarvik {
namespace {

constexpr const char* showMenuBarKey = "showMenuBar";

}  // namespace

MenuBarController::MenuBarController(const Desktop& desktop, TrashMonitor& trash,
                                     MakePopover makePopover, QObject* parent)
    : QObject(parent),
      _desktop(desktop),
      _trash(trash),
      _makePopover(std::move(makePopover)),
      _isEnabled(storedWish()) {
  _desktop.statusItem.setHandlers({
      .activated = [this](const StatusItem::Place& icon) { togglePopover(icon); },
      .chosen =
          [this](std::size_t entry) {
            if (_view) _view->perform(static_cast<int>(entry));
          },
      .trayChanged = [this] { updateReachable(); },
  });
}

MenuBarController::~MenuBarController() {
  _desktop.statusItem.setHandlers({});
  removeItem();
}

void MenuBarController::setup(AppState& appState) {
  _appState = &appState;
  _view = std::make_unique<MenuBarModel>(appState, _trash, _desktop.formatting);
  apply();
  _defaultsObservation =
      _desktop.notifications.observe(defaultsChangedNotification, [this] { followDefaults(); });
  connect(_appState, &AppState::scanStateChanged, this, &MenuBarController::updateItem);
  connect(_view.get(), &MenuBarModel::actionsChanged, this, &MenuBarController::updateItem);
  connect(_view.get(), &MenuBarModel::leaving, this, &MenuBarController::closePopover);
}

bool MenuBarController::storedWish() const {
  return _desktop.defaults.boolean(showMenuBarKey, true);
}

/// What is stored as it should be is left alone: a document that somebody edits at this moment, and
/// that reads as the default for now, is theirs.
void MenuBarController::setEnabled(bool enabled) {
  if (!setIfChanged(_isEnabled, enabled)) return;
  if (storedWish() != enabled) _desktop.defaults.set(showMenuBarKey, enabled);
  apply();
  emit isEnabledChanged();
}

void MenuBarController::followDefaults() {
  setEnabled(storedWish());
}

void MenuBarController::apply() {
  _isEnabled ? showItem() : removeItem();
  updateReachable();
}

void MenuBarController::showItem() {
  _statusItem = &_desktop.statusItem;
  updateItem();
}

void MenuBarController::removeItem() {
  if (_statusItem == nullptr) return;
  closePopover();
  _popover.reset();
  _statusItem->remove();
  _statusItem = nullptr;
}

void MenuBarController::updateItem() {
  if (_statusItem != nullptr) _statusItem->show(look());
}

StatusItem::Look MenuBarController::look() const {
  StatusItem::Look look{.icon = menu_bar::statusIcon,
                        .themeIcon = "klarvik-symbolic",
                        .title = {},
                        .toolTip = "Klarvik",
                        .menu = {}};
  if (_appState == nullptr) return look;
  look.title = menu_bar::title(_appState->scanState(), _desktop.formatting);
  for (const MenuBarAction& action : _view->actions()) {
    look.menu.push_back({action.label.toStdString(), action.isEnabled, action.startsGroup});
  }
  return look;
}

void MenuBarController::updateReachable() {
  const bool reachable = _statusItem != nullptr && _statusItem->hasTray();
  if (!setIfChanged(_isReachable, reachable)) return;
  emit isReachableChanged();
  if (!reachable) closePopover();
}

void MenuBarController::togglePopover(const StatusItem::Place& icon) {
  if (_statusItem == nullptr) return;
  if (_popover && _popover->isShown()) {
    _popover->close();
    return;
  }
  if (_appState == nullptr || (_popover && _popover->hasJustClosed())) return;
  if (!_popover) _popover = _makePopover();
  _popover->show(*_view, icon);
}

void MenuBarController::closePopover() {
  if (_popover) _popover->close();
}

QuitPolicy::QuitPolicy(MenuBarController& menuBar, QObject* parent)
    : QObject(parent), _menuBar(menuBar) {
  connect(&_menuBar, &MenuBarController::isReachableChanged, this, &QuitPolicy::follow);
  QGuiApplication::setQuitOnLastWindowClosed(!_menuBar.isReachable());
}

void QuitPolicy::follow() {
  QGuiApplication::setQuitOnLastWindowClosed(!_menuBar.isReachable());
  if (!_menuBar.isReachable() && !hasOpenWindow()) activateWindow("main");
}

}  // namespace klarvik
