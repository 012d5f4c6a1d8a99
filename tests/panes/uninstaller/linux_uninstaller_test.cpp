// The pane over a Linux disk.

#include <filesystem>

#include "../pane_fixture.h"
#include "panes/uninstaller/app_uninstaller_model.h"

namespace klarvik {
namespace {

class LinuxUninstaller : public PaneFixture {
 protected:
  LinuxUninstaller() : PaneFixture(linuxHome) { view.emplace(shared, desktop); }

  void entry(const Path& place, const std::string& name, const Path& program) const {
    desk.disk.makeFile(place, "[Desktop Entry]\nType=Application\nName=" + name +
                                  "\nExec=" + program.native() + "\n");
  }

  void installByHand() const {
    const Path program = inHome(".local/opt/inkpot/inkpot");
    desk.disk.makeFile(program, 40 * kilobyte);
    entry(inHome(".local/share/applications/inkpot.desktop"), "Inkpot", program);
  }

  void installPackage() const {
    desk.disk.makeFile("/usr/bin/sheets", 10);
    entry("/usr/share/applications/sheets.desktop", "Sheets", "/usr/bin/sheets");
    desk.disk.makeFile("/var/lib/dpkg/status",
                       "Package: sheets\nStatus: install ok installed\nInstalled-Size: 90\n");
    desk.disk.makeFile("/var/lib/dpkg/info/sheets.list",
                       "/usr/share/applications/sheets.desktop\n");
  }

  [[nodiscard]] bool read() {
    shared.navigator().setSection(Section::uninstaller);
    return turnUntil([this] { return view->hasLoaded(); });
  }
  [[nodiscard]] bool openFirst() {
    view->open(0);
    return turnUntil([this] { return !view->isFindingResiduals(); });
  }
  [[nodiscard]] bool uninstall() {
    view->uninstall();
    return turnUntil([this] { return !view->isUninstalling() && !view->isFindingResiduals(); });
  }
  QVariant firstRow(AppListModel::Role role) { return view->appList()->index(0).data(role); }

  std::optional<AppUninstallerModel> view;
};

TEST_F(LinuxUninstaller, SaysWhereItLooks) {
  ASSERT_TRUE(read());
  EXPECT_EQ(view->placeholder().detail,
            "No app with an entry in the menu of this computer was found.");
}

TEST_F(LinuxUninstaller, ListsAnApplicationWithItsKindAndIcon) {
  installPackage();
  ASSERT_TRUE(read());
  EXPECT_EQ(firstRow(AppListModel::NameRole), "Sheets");
  EXPECT_EQ(firstRow(AppListModel::BundleRole), "Package · sheets");
  EXPECT_EQ(firstRow(AppListModel::IconRole), QUrl());
  EXPECT_EQ(view->subtitle(), "1 apps · removing one leaves its settings and caches behind");
}

TEST_F(LinuxUninstaller, MovesWhatWasInstalledByHandToTheTrash) {
  installByHand();
  desk.disk.makeFile(inHome(".cache/inkpot/data"), 5 * kilobyte);
  ASSERT_TRUE(read() && openFirst());
  EXPECT_EQ(view->actionTitle(), "Uninstall Inkpot");
  EXPECT_EQ(view->removalExplanation(), "");
  EXPECT_EQ(view->residuals().size(), 1U);
  EXPECT_TRUE(view->selectedResiduals().empty()) << "what somebody installed by hand is reviewed";
  EXPECT_TRUE(view->canUninstall());
  ASSERT_TRUE(uninstall());
  EXPECT_FALSE(view->isDetail());
  EXPECT_EQ(view->appList()->rowCount(), 0);
  EXPECT_FALSE(desk.disk.holds(inHome(".local/opt/inkpot")));
  EXPECT_TRUE(desk.disk.holds(inHome(".cache/inkpot/data")));
  EXPECT_EQ(trashCount(), 2U);
}

TEST_F(LinuxUninstaller, TellsTheCommandForAPackageAndTakesOnlyItsLeftovers) {
  installPackage();
  desk.disk.makeFile(inHome(".cache/sheets/data"), 5 * kilobyte);
  desk.tools.answer("apt-get --simulate remove sheets", "Remv sheets [1]\nRemv sheets-data [1]\n");
  ASSERT_TRUE(read() && openFirst());
  EXPECT_EQ(view->removalCommand(), "sudo apt remove sheets");
  EXPECT_EQ(
      view->removalExplanation(),
      "Klarvik does not remove packages. Run this in a terminal if you agree with it. It also "
      "removes sheets-data.");
  EXPECT_EQ(view->actionTitle(), "Move Leftovers to Trash");
  EXPECT_FALSE(view->canUninstall()) << "nothing is selected";
  view->toggleLeftover(1);
  EXPECT_TRUE(view->canUninstall());
  ASSERT_TRUE(uninstall());
  EXPECT_TRUE(view->isDetail());
  EXPECT_EQ(view->appList()->rowCount(), 1) << "it is still installed";
  EXPECT_TRUE(view->residuals().empty());
  EXPECT_FALSE(desk.disk.holds(inHome(".cache/sheets")));
  EXPECT_EQ(trashCount(), 1U);
  EXPECT_EQ(view->removalCommand(), "sudo apt remove sheets");
}

TEST_F(LinuxUninstaller, SaysWhyAnApplicationStayed) {
  installByHand();
  ASSERT_TRUE(read() && openFirst());
  desk.programs.running.insert("inkpot");
  ASSERT_TRUE(uninstall());
  EXPECT_TRUE(view->isDetail());
  EXPECT_EQ(view->selectionHint(), "Inkpot is running. Close it first.");
  EXPECT_TRUE(desk.disk.holds(inHome(".local/opt/inkpot/inkpot")));
  desk.programs.running.clear();
  ASSERT_TRUE(uninstall());
  EXPECT_FALSE(view->isDetail());
}

}  // namespace
}  // namespace klarvik
