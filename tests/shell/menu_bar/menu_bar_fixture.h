#pragma once

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

#include "fake_app_state.h"
#include "shell/menu_bar/menu_bar_controller.h"
#include "support/application/main_loop.h"
#include "support/desktop_fakes.h"

namespace klarvik {

/// A popover that draws nothing.
class FakePopover final : public MenuBarPopover {
 public:
  /// `isOpen` outlives it.
  explicit FakePopover(bool& open) : isOpen(open) {}
  ~FakePopover() override { isOpen = false; }

  [[nodiscard]] bool isShown() const override { return isOpen; }
  [[nodiscard]] bool hasJustClosed() const override { return closedByItself; }
  void show(MenuBarModel& content, const StatusItem::Place& icon) override {
    isOpen = true;
    shown = &content;
    place = icon;
    ++shows;
  }
  void close() override { isOpen = false; }

  bool& isOpen;
  bool closedByItself = false;
  int shows = 0;
  MenuBarModel* shown = nullptr;
  StatusItem::Place place;
};

/// A controller on a desktop that a test moves by hand, and what it tells others to do.
class MenuBarFixture : public ::testing::Test, protected FakeAppState {
 protected:
  ~MenuBarFixture() override {
    MenuBarController::openWindowHandler = nullptr;
    controller.reset();
    state.reset();
  }

  void start() {
    controller.emplace(around.desktop, trash, [this] {
      auto made = std::make_unique<FakePopover>(popoverIsOpen);
      ++popoversMade;
      popover = made.get();
      return made;
    });
    controller->setup(*state);
    MenuBarController::openWindowHandler = [this](const QString& id) { opened << id; };
  }

  [[nodiscard]] bool scan(std::vector<CleanCategory> found) {
    const int run = scans.runsBegun();
    state->startScan();
    scans.finish(run, std::move(found));
    return turnMainLoopUntil(
        [this] { return state->scanState() == AppState::ScanState(AppState::Done{}); });
  }
  /// One item of `bytes` that is really there.
  [[nodiscard]] CleanCategory cacheOf(std::int64_t bytes) {
    const Path cache = "/Users/ann/Library/Caches/com.example";
    around.disk.makeFile(cache / "data", bytes);
    return {.type = CategoryType::appCaches,
            .items = {{.name = "com.example", .path = cache, .size = bytes}}};
  }
  [[nodiscard]] bool cleanAll() {
    state->performClean();
    return turnMainLoopUntil(
        [this] { return std::holds_alternative<AppState::CleanDone>(state->scanState()); });
  }

  [[nodiscard]] bool isShown() const { return around.statusItem.shown.has_value(); }
  [[nodiscard]] const StatusItem::Look& look() const { return *around.statusItem.shown; }

  TrashMonitor trash{around.desktop, notice};
  std::optional<MenuBarController> controller;
  bool popoverIsOpen = false;
  int popoversMade = 0;
  FakePopover* popover = nullptr;  ///< the one made last
  QStringList opened;              ///< windows that the handler was asked for
};

}  // namespace klarvik
