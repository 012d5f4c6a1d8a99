#pragma once

#include <atomic>
#include <optional>
#include <string>

#include "../pane_fixture.h"
#include "panes/privacy/privacy_cleaner_model.h"
#include "support/desktop_fakes.h"

namespace klarvik {

/// A Privacy pane over a real disk, in a program of its own with a main loop. A
/// scan can be held up while it looks for the browser history, a clearing
/// before it removes the list of recent apps.
class PrivacyFixture : public PaneFixture {
 protected:
  explicit PrivacyFixture(const Path& home = macHome) : PaneFixture(home) {
    view.emplace(shared, desktop);
  }

  [[nodiscard]] Path inLibrary(const std::string& place) const {
    return desk.files.home() / "Library" / place;
  }
  void add(const std::string& place, std::int64_t bytes) const {
    desk.disk.makeFile(inLibrary(place), bytes);
  }
  void addHistory() const { add("Safari/History.db", 500 * kilobyte); }
  void addCookies() const {
    add("Application Support/Google/Chrome/Default/Cookies", 60 * kilobyte);
  }
  void addRecentApps() const { add("Preferences/com.apple.dock.plist", 8 * kilobyte); }
  void addRecentFiles() const {
    add("Application Support/com.apple.sharedfilelist/a.sfl2", 6 * kilobyte);
    add("Application Support/com.apple.sharedfilelist/b.sfl2", 4 * kilobyte);
  }
  /// A trail of every kind that a scan finds.
  void addEverything() {
    addHistory();
    addCookies();
    addRecentApps();
    add("Caches/Firefox/data", 900 * kilobyte);
    addRecentFiles();
    add("Preferences/com.apple.LaunchServices.QuarantineEventsV2", 90 * kilobyte);
    add("Caches/locationd/data", 20 * kilobyte);
    desk.pasteboard.isFilled = true;
  }

  void holdScan() {
    gate.close();
    files.before(Operation::exists, inLibrary("Safari/History.db"), [this] { waitAtGate(); });
  }
  /// There must be recent files to clear.
  void holdClearing() {
    gate.close();
    desk.recentDocuments.gate = &gate;
  }
  [[nodiscard]] bool isHeld() {
    return turnUntil([this] { return gate.waiting() == 1; });
  }

  [[nodiscard]] bool scan() {
    view->performAction();
    return turnUntil([this] { return !view->isScanning(); });
  }
  [[nodiscard]] bool clear() {
    view->clear();
    return turnUntil([this] { return !view->isCleaning(); });
  }

  QVariant row(int at, TrailListModel::Role role) {
    return view->trailList()->index(at).data(role);
  }
  /// Headings stand between brackets.
  QStringList names() {
    QStringList shown;
    for (int at = 0; at < view->trailList()->rowCount(); ++at) {
      const QString name = row(at, TrailListModel::NameRole).toString();
      const bool isHeading = row(at, TrailListModel::KindRole).toInt() ==
                             static_cast<int>(TrailListModel::RowKind::Heading);
      shown << (isHeading ? "[" + name + "]" : name);
    }
    return shown;
  }
  void toggle(const QString& name) { view->toggle(static_cast<int>(names().indexOf(name))); }
  [[nodiscard]] bool isSelected(const QString& name) {
    return row(static_cast<int>(names().indexOf(name)), TrailListModel::IsSelectedRole).toBool();
  }

 protected:
  std::optional<PrivacyCleanerModel> view;
};

}  // namespace klarvik
