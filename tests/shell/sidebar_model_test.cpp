#include "shell/sidebar_model.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QSignalSpy>

#include "shell/app_shell_model.h"
#include "state/shared_state.h"
#include "support/fake_desktop.h"

namespace klarvik {
namespace {

class SidebarRows : public ::testing::Test {
 protected:
  [[nodiscard]] std::vector<PaneEntry> landed(const std::vector<Section>& sections) {
    std::vector<PaneEntry> panes;
    for (const Section section : sections) {
      panes.push_back({section, QUrl("qrc:/none.qml"), std::make_shared<ToolPane>()});
    }
    return panes;
  }
  [[nodiscard]] std::unique_ptr<AppShellModel> shellWith(const std::vector<Section>& sections) {
    return std::make_unique<AppShellModel>(landed(sections), appState, shared, commands,
                                           desk.desktop);
  }
  [[nodiscard]] std::unique_ptr<AppShellModel> shellWithAll() {
    std::vector<Section> sections;
    for (const Tool& tool : tools()) sections.push_back(tool.section);
    return shellWith(sections);
  }
  static QVariant row(AppShellModel& shell, int at, SidebarModel::Role role) {
    return shell.sidebar()->index(at).data(role);
  }
  static QStringList labels(AppShellModel& shell) {
    QStringList labels;
    for (int at = 0; at < shell.sidebar()->rowCount(); ++at) {
      labels << row(shell, at, SidebarModel::LabelRole).toString();
    }
    return labels;
  }

  FakeDesktopOnDisk desk;
  AppCommandsModel commands{std::vector<AppCommand>{}};
  SharedState shared{desk.desktop};
  AppState appState{desk.desktop, shared.toolActivity(), shared.scanCoordinator(),
                    shared.scanHistory(), shared.removalNotice()};
};

TEST_F(SidebarRows, StandInTheirOrderBelowTheHeadingsOfTheirGroups) {
  EXPECT_EQ(labels(*shellWithAll()),
            (QStringList{"Smart Scan", "STORAGE", "Storage", "Duplicates", "Large Files",
                         "System Data", "APPS", "Uninstaller", "Privacy"}));
}

TEST_F(SidebarRows, LeaveOutSectionsWithoutAPaneAndHeadingsWithoutASection) {
  EXPECT_EQ(labels(*shellWith({Section::smartScan})), QStringList{"Smart Scan"});
  EXPECT_EQ(labels(*shellWith({Section::privacy, Section::smartScan})),
            (QStringList{"Smart Scan", "APPS", "Privacy"}));
}

TEST_F(SidebarRows, SelectASectionButNeverAHeading) {
  const auto shell = shellWithAll();
  EXPECT_TRUE(row(*shell, 0, SidebarModel::IsSelectedRole).toBool());
  shell->sidebar()->select(1);
  EXPECT_EQ(shared.navigator().section(), Section::smartScan);
  shell->sidebar()->select(3);
  EXPECT_EQ(shared.navigator().section(), Section::duplicates);
  EXPECT_FALSE(row(*shell, 0, SidebarModel::IsSelectedRole).toBool());
  EXPECT_TRUE(row(*shell, 3, SidebarModel::IsSelectedRole).toBool());
  shell->sidebar()->select(-1);
  shell->sidebar()->select(99);
  EXPECT_EQ(shared.navigator().section(), Section::duplicates);
}

TEST_F(SidebarRows, ShowTheTotalOfAToolAndItsSentence) {
  const auto shell = shellWithAll();
  EXPECT_EQ(row(*shell, 8, SidebarModel::RightHandRole), "");
  EXPECT_EQ(row(*shell, 8, SidebarModel::HelpRole), "Privacy");
  shared.scanCoordinator().setTotal("privacy", {12'000, 3, Date{}});
  EXPECT_EQ(row(*shell, 8, SidebarModel::RightHandRole), "12 KB");
  EXPECT_EQ(row(*shell, 8, SidebarModel::HelpRole), "3 trails, 12 KB");
  EXPECT_EQ(row(*shell, 8, SidebarModel::DescriptionRole), "Privacy, 12 KB");
  shared.scanCoordinator().setTotal("privacy", {0, 0, Date{}});
  EXPECT_EQ(row(*shell, 8, SidebarModel::RightHandRole), "");
  EXPECT_EQ(row(*shell, 8, SidebarModel::HelpRole), "Privacy");
}

TEST_F(SidebarRows, ShowWhatAToolIsDoingAndItsSummaryForSixSeconds) {
  const auto shell = shellWithAll();
  shared.scanCoordinator().setTotal("privacy", {12'000, 3, Date{}});
  shared.toolActivity().start("privacy");
  EXPECT_TRUE(row(*shell, 8, SidebarModel::IsWorkingRole).toBool());
  EXPECT_EQ(row(*shell, 8, SidebarModel::RightHandRole), "12 KB");
  shared.toolActivity().setProgress("privacy", 0.239);
  EXPECT_EQ(row(*shell, 8, SidebarModel::RightHandRole), "23%");
  shared.toolActivity().finish("privacy", "9 MB");
  EXPECT_FALSE(row(*shell, 8, SidebarModel::IsWorkingRole).toBool());
  EXPECT_TRUE(row(*shell, 8, SidebarModel::HasCheckmarkRole).toBool());
  EXPECT_EQ(row(*shell, 8, SidebarModel::RightHandRole), "9 MB");
  desk.clock.advance(std::chrono::seconds(6));
  EXPECT_FALSE(row(*shell, 8, SidebarModel::HasCheckmarkRole).toBool());
  EXPECT_EQ(row(*shell, 8, SidebarModel::RightHandRole), "12 KB");
}

TEST_F(SidebarRows, TellTheViewOnlyOfWhatHasReallyChanged) {
  const auto shell = shellWithAll();
  shared.toolActivity().setProgress("privacy", 0.231);
  QSignalSpy changed(shell->sidebar(), &SidebarModel::dataChanged);
  shared.toolActivity().setProgress("privacy", 0.232);
  EXPECT_EQ(changed.count(), 0);
  shared.toolActivity().setProgress("privacy", 0.241);
  EXPECT_EQ(changed.count(), 1);
}

TEST_F(SidebarRows, KeepEveryPaneAliveAndShowTheSelectedOne) {
  const auto shell = shellWithAll();
  PaneStackModel& panes = *shell->panes();
  ASSERT_EQ(panes.rowCount(), static_cast<int>(tools().size()));
  QSignalSpy removed(&panes, &PaneStackModel::rowsRemoved);
  const auto isSelected = [&](int at) {
    return panes.index(at).data(PaneStackModel::IsSelectedRole).toBool();
  };
  EXPECT_TRUE(isSelected(0));
  shared.navigator().setSection(Section::largeFiles);
  EXPECT_FALSE(isSelected(0));
  EXPECT_TRUE(isSelected(3));
  EXPECT_EQ(removed.count(), 0);
}

TEST_F(SidebarRows, CallTheDiskByItsNameOrByTheUsualOne) {
  const auto shell = shellWithAll();
  EXPECT_EQ(shell->disk()->volumeName(), "Macintosh HD");
  desk.volume.setName("Data\xff");
  EXPECT_EQ(shell->disk()->volumeName(), QStringLiteral("Data\uFFFD"));
  desk.volume.setName(std::nullopt);
  EXPECT_EQ(shell->disk()->volumeName(), "Macintosh HD");
}

}  // namespace
}  // namespace klarvik
