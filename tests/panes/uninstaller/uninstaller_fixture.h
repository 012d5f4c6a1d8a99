#pragma once

#include <optional>
#include <string>

#include "../pane_fixture.h"
#include "panes/uninstaller/app_uninstaller_model.h"

namespace klarvik {

/// An Uninstaller pane over a real disk, in a program of its own with a main loop. The engine can
/// be held up at any folder that it lists.
class UninstallerFixture : public PaneFixture {
 protected:
  explicit UninstallerFixture(const Path& home = macHome) : PaneFixture(home) {
    view.emplace(shared, desktop);
  }

  void addApp(const std::string& name, const std::string& bundleID, std::int64_t bytes,
              const Path& folder = "/Applications") const {
    const Path contents = folder / (name + ".app") / "Contents";
    desk.disk.makeFile(contents / "Info.plist",
                       "<plist version=\"1.0\"><dict><key>CFBundleIdentifier</key><string>" +
                           bundleID + "</string></dict></plist>");
    desk.disk.makeFile(contents / "MacOS/program", bytes);
  }
  /// Below the Library folder of the home.
  void addLeftover(const std::string& place, std::int64_t bytes) const {
    desk.disk.makeFile(desk.files.home() / "Library" / place, bytes);
  }
  [[nodiscard]] bool libraryHolds(const std::string& place) const {
    return desk.disk.holds(desk.files.home() / "Library" / place);
  }

  /// Whoever lists the folder next waits until the gate opens.
  void holdAt(const Path& folder) {
    gate.close();
    files.before(Operation::list, folder, [this] { waitAtGate(); });
  }
  [[nodiscard]] bool isHeld() {
    return turnUntil([this] { return gate.waiting() == 1; });
  }

  void navigateTo(Section section) { shared.navigator().setSection(section); }
  void comeBack() {
    navigateTo(Section::smartScan);
    navigateTo(Section::uninstaller);
  }
  [[nodiscard]] bool readByNavigating() {
    navigateTo(Section::uninstaller);
    return turnUntil([this] { return view->hasLoaded(); });
  }
  [[nodiscard]] bool open(const std::string& name) {
    for (int row = 0; row < view->appList()->rowCount(); ++row) {
      if (view->appList()->appAt(row)->name != name) continue;
      view->open(row);
      return turnUntil([this] { return !view->isFindingResiduals(); });
    }
    return false;
  }
  [[nodiscard]] bool uninstall() {
    view->uninstall();
    return turnUntil([this] { return !view->isUninstalling(); });
  }

  QStringList names() {
    QStringList shown;
    for (int row = 0; row < view->appList()->rowCount(); ++row) {
      shown << view->appList()->index(row).data(AppListModel::NameRole).toString();
    }
    return shown;
  }
  QVariant leftover(int row, LeftoverListModel::Role role) {
    return view->leftoverList()->index(row).data(role);
  }
  /// Headings stand between brackets.
  QStringList leftoverNames() {
    QStringList shown;
    for (int row = 0; row < view->leftoverList()->rowCount(); ++row) {
      const QString name = leftover(row, LeftoverListModel::NameRole).toString();
      const bool isHeading = leftover(row, LeftoverListModel::KindRole).toInt() ==
                             static_cast<int>(LeftoverListModel::RowKind::Heading);
      shown << (isHeading ? "[" + name + "]" : name);
    }
    return shown;
  }
  [[nodiscard]] int leftoverRow(const QString& name) {
    return static_cast<int>(leftoverNames().indexOf(name));
  }

 protected:
  std::optional<AppUninstallerModel> view;
};

}  // namespace klarvik
