#pragma once

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickWindow>
#include <QStringList>
#include <QTest>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "shell/klarvik_app.h"
#include "state/shared_state.h"
#include "support/application/fake_motion.h"
#include "support/desktop_fakes.h"
#include "support/fake_desktop.h"

namespace klarvik {

/// The program's real windows, drawn without a display, over a real disk; used with real events.
/// Any warning that Qt or a QML file gives fails the test.
class WindowFixture : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  /// The first run is through, automatic scans are off, and the permission is not asked for, unless
  /// a test changes that before this.
  void openWindow();
  void closeWindow();

  /// Turns the main loop, and moves the clock on, until `reached` holds. False when it never does.
  [[nodiscard]] bool turnUntil(const std::function<bool()>& reached);
  /// The same for what a tool does in its turn after launch: the tools before it keep the turn for
  /// minutes, for as long as what they found is looked at.
  [[nodiscard]] bool turnUntilItsTurn(const std::function<bool()>& reached);
  /// Lets every animation that ends come to its end, and everything be drawn. Takes no time but
  /// the clock's and the animations' own, and does not wait for other threads.
  void settle();

  /// The item on the screen that is called so: its title, its text or its spoken description
  /// begins with `name`. Null when there is none.
  [[nodiscard]] QQuickItem* find(const QString& name) const;
  /// What `find` answers, once it answers anything.
  [[nodiscard]] QQuickItem* waitFor(const QString& name);
  [[nodiscard]] bool shows(const QString& name) const { return find(name) != nullptr; }
  void click(const QString& name);
  void clickAt(QQuickItem& item, QPointF place);
  /// The button of that title that does what the pane, its placeholder or its footer is for; other
  /// texts may begin with the same words.
  void clickMainButton(const QString& title);
  /// The box in front of the row that is called so.
  void clickSelectionBox(const QString& row);
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  /// Tab until the item called so has the focus. False when it never gets it.
  [[nodiscard]] bool tabTo(const QString& name);
  [[nodiscard]] QString focused() const;
  /// The row that has the focus, counted from the top of its list; -1 when none has it.
  [[nodiscard]] int focusedRow() const;
  /// In the list that the Tab key enters at the row of this name, and which has more rows than two.
  void expectPageKeysToMoveThroughTheRowsFrom(const QString& row);

  /// Draws the window into build/screenshots.
  void picture(const QString& name);

  template <typename State>
  [[nodiscard]] bool is() {
    return std::holds_alternative<State>(app->appState().scanState());
  }
  [[nodiscard]] bool scanToTheEnd();
  /// From now on another window than the main one is looked at and used; null ends that.
  void lookAt(QQuickWindow* window) { _lookedAt = window; }
  [[nodiscard]] QQuickWindow& window() const {
    return _lookedAt != nullptr ? *_lookedAt : *app->window(mainWindowId);
  }
  [[nodiscard]] bool homeHolds(const std::string& place) const {
    return desk->disk.holds(desk->files.home() / place);
  }
  [[nodiscard]] std::size_t trashCount() const {
    return desk->desktop.trash.list().value_or(std::vector<Path>{}).size();
  }

  /// Everything below a folder of the disk, with the size of what is a file. The sample disk holds
  /// files of many gigabytes, most of it holes, whose content no test could read through.
  using Listing = std::map<std::string, std::uintmax_t>;
  [[nodiscard]] Listing listing(const Path& folder = "/") const;

  /// What the disk under the window is furnished with; to be set before SetUp is through.
  std::optional<SampleDiskOptions> diskOptions = SampleDiskOptions{};
  Path home = macHome;

  std::optional<FakeMotion> motion;
  std::unique_ptr<FakeDesktopOnDisk> desk;
  FakeLoginItem loginItem;
  std::unique_ptr<SharedState> shared;
  std::unique_ptr<KlarvikApp> app;

 private:
  QQuickWindow* _lookedAt = nullptr;
};

/// The same over an empty home.
class EmptyHomeWindowFixture : public WindowFixture {
 protected:
  EmptyHomeWindowFixture() { diskOptions.reset(); }
};

}  // namespace klarvik
