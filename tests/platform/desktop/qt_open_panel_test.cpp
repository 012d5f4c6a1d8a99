#include "platform/desktop/open_panel.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QSettings>
#include <optional>

#include "platform/linux/linux_file_system.h"
#include "support/application/main_loop.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

class QtOpenPanelTest : public testing::Test {
 protected:
  QtOpenPanelTest() {
    // Where Qt remembers how the dialog looked.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                       QString::fromStdString(settings.path()));
    disk.makeFolder("/Users/ann/Documents");
    disk.makeFolder("/Users/ann/Music");
    disk.makeFile("/Users/ann/note.txt");
  }

  void ask() {
    panel.chooseFolders(
        {"Scan This Folder", "Klarvik reads only the folders listed here.", "/Users/ann"},
        [this](const std::vector<Path>& folders) { answer = folders; });
  }
  [[nodiscard]] static std::vector<QFileDialog*> dialogs() {
    std::vector<QFileDialog*> open;
    for (QWidget* window : QApplication::topLevelWidgets()) {
      auto* dialog = qobject_cast<QFileDialog*>(window);
      if (dialog != nullptr && dialog->isVisible()) open.push_back(dialog);
    }
    return open;
  }
  [[nodiscard]] static QAbstractItemView& list() {
    return *dialogs().front()->findChild<QAbstractItemView*>("listView");
  }
  [[nodiscard]] static QModelIndex row(const QString& name) {
    const QAbstractItemView& view = list();
    for (int at = 0; at < view.model()->rowCount(view.rootIndex()); ++at) {
      const QModelIndex index = view.model()->index(at, 0, view.rootIndex());
      if (index.data().toString() == name) return index;
    }
    return {};
  }
  void select(const QString& name) const {
    ASSERT_TRUE(turnMainLoopUntil([&] { return row(name).isValid(); }));
    list().selectionModel()->select(row(name),
                                    QItemSelectionModel::Select | QItemSelectionModel::Rows);
  }
  [[nodiscard]] static QPushButton& button(QDialogButtonBox::StandardButton which) {
    return *dialogs().front()->findChild<QDialogButtonBox*>("buttonBox")->button(which);
  }

  TemporaryFolder settings;
  TemporaryFolder disk;
  LinuxFileSystem files{disk.path(), "/Users/ann"};
  QtOpenPanel panel{files};
  std::optional<std::vector<Path>> answer;
};

TEST_F(QtOpenPanelTest, LetsSeveralFoldersBeChosenAtOnce) {
  ask();
  ASSERT_EQ(dialogs().size(), 1U);
  EXPECT_EQ(dialogs().front()->windowTitle(), "Klarvik reads only the folders listed here.");
  EXPECT_EQ(dialogs().front()->directory().path().toStdString(), disk.onDisk("/Users/ann"));
  select("Documents");
  select("Music");
  QPushButton& accept = button(QDialogButtonBox::Open);
  EXPECT_EQ(accept.text().remove('&'), "Scan This Folder");
  EXPECT_FALSE(answer);
  accept.click();
  ASSERT_TRUE(turnMainLoopUntil([this] { return answer.has_value(); }));
  EXPECT_EQ(*answer, (std::vector<Path>{"/Users/ann/Documents", "/Users/ann/Music"}));
  EXPECT_TRUE(dialogs().empty());
}

TEST_F(QtOpenPanelTest, ShowsFoldersOnly) {
  ask();
  ASSERT_TRUE(turnMainLoopUntil([] { return row("Music").isValid(); }));
  EXPECT_FALSE(row("note.txt").isValid());
}

TEST_F(QtOpenPanelTest, AnswersNothingWhenTheUserLeavesIt) {
  ask();
  select("Documents");
  button(QDialogButtonBox::Cancel).click();
  ASSERT_TRUE(answer);
  EXPECT_TRUE(answer->empty());
}

TEST_F(QtOpenPanelTest, IsOpenOnceAtATimeAndCanBeOpenedAgain) {
  ask();
  ask();
  EXPECT_EQ(dialogs().size(), 1U);
  button(QDialogButtonBox::Cancel).click();
  EXPECT_TRUE(dialogs().empty());
  ask();
  EXPECT_EQ(dialogs().size(), 1U);
}

}  // namespace
}  // namespace klarvik
