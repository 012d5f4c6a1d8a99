#include "panes/storage/folder_browser.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QUrl>
#include <filesystem>

#include "panes/storage/storage_analytics_model.h"
#include "state/shared_state.h"
#include "support/application/main_loop.h"
#include "support/fake_desktop.h"

namespace klarvik {
namespace {

constexpr std::int64_t mebibyte = 1'048'576;

/// A Linux home on a real disk with a real Trash.
class FolderBrowserTest : public testing::Test {
 protected:
  FolderBrowserTest() {
    makeFile("Documents/films/long", 8);
    makeFile("Documents/films/short", 2);
    makeFile("Documents/letters/a", 1);
    makeFile("Documents/music/a", 4);
  }
  ~FolderBrowserTest() override { browser.finishRemovals(); }

  void makeFile(const Path& place, std::int64_t mebibytes) const {
    desk.disk.makeFile(linuxHome / place, mebibytes * mebibyte);
  }
  [[nodiscard]] bool turnUntil(const std::function<bool()>& reached) {
    return turnMainLoopUntil(reached,
                             [this] { desk.clock.advance(std::chrono::milliseconds(20)); });
  }
  [[nodiscard]] bool open(FolderBrowser::Area area) {
    browser.open(std::move(area));
    return turnUntil([this] { return !browser.isMeasuring(); });
  }
  [[nodiscard]] bool openDocuments() {
    return open({.name = "Documents", .places = {linuxHome / "Documents"}});
  }
  [[nodiscard]] QString textOf(int row, int role) const {
    return browser.data(browser.index(row), role).toString();
  }
  [[nodiscard]] QStringList names() const {
    QStringList all;
    for (int row = 0; row < browser.rowCount(); ++row) {
      all << textOf(row, FolderBrowser::NameRole);
    }
    return all;
  }
  [[nodiscard]] bool isThere(const Path& place) const {
    return std::filesystem::exists(desk.disk.onDisk(linuxHome / place));
  }

  FakeDesktopOnDisk desk{std::nullopt, linuxHome};
  SharedState shared{desk.desktop};
  FolderBrowser browser{shared, desk.desktop};
};

TEST_F(FolderBrowserTest, ShowsWhatLiesInAnAreaLargestFirst) {
  EXPECT_FALSE(browser.isOpen());
  ASSERT_TRUE(openDocuments());
  EXPECT_TRUE(browser.isOpen());
  EXPECT_EQ(names(), (QStringList{"films", "music", "letters"}));
  EXPECT_EQ(browser.crumbs(), QStringList{"Documents"});
  EXPECT_EQ(textOf(0, FolderBrowser::PathRole), "/home/ann/Documents/films");
  EXPECT_TRUE(browser.data(browser.index(0), FolderBrowser::CanOpenRole).toBool());
  EXPECT_NEAR(browser.data(browser.index(0), FolderBrowser::ShareRole).toDouble(), 10.0 / 15, 0.01);
}

TEST_F(FolderBrowserTest, GoesDownToFilesAndBackByTheNames) {
  ASSERT_TRUE(openDocuments());
  browser.activate(0);
  EXPECT_EQ(names(), (QStringList{"long", "short"}));
  EXPECT_EQ(browser.crumbs(), (QStringList{"Documents", "films"}));
  browser.activate(0);
  EXPECT_EQ(browser.crumbs(), (QStringList{"Documents", "films"}));
  browser.goTo(0);
  EXPECT_EQ(browser.crumbs(), QStringList{"Documents"});
  browser.activate(1);
  browser.goUp();
  EXPECT_EQ(names(), (QStringList{"films", "music", "letters"}));
  browser.goUp();
  EXPECT_FALSE(browser.isOpen());
  EXPECT_EQ(browser.rowCount(), 0);
}

TEST_F(FolderBrowserTest, AnAreaOfSeveralFoldersBeginsWithThem) {
  makeFile("Pictures/a", 3);
  ASSERT_TRUE(open({.name = "Mine", .places = {linuxHome / "Documents", linuxHome / "Pictures"}}));
  EXPECT_EQ(names(), (QStringList{"~/Documents", "~/Pictures"}));
  browser.activate(1);
  EXPECT_EQ(browser.crumbs(), (QStringList{"Mine", "~/Pictures"}));
  browser.goTo(0);
  EXPECT_EQ(browser.crumbs(), QStringList{"Mine"});
}

TEST_F(FolderBrowserTest, MovesARowToTheTrashOnceItIsConfirmed) {
  ASSERT_TRUE(openDocuments());
  browser.activate(0);
  browser.requestTrash(0);
  ASSERT_TRUE(browser.isConfirming());
  EXPECT_EQ(browser.confirmationTitle(), QString::fromUtf8("Move “long” to Trash?"));
  browser.cancelTrash();
  EXPECT_FALSE(browser.isConfirming());
  EXPECT_TRUE(isThere("Documents/films/long"));
  const QPersistentModelIndex shorter = browser.index(1);
  browser.requestTrash(0);
  browser.confirmTrash();
  ASSERT_TRUE(turnUntil([this] { return !browser.isDeleting() && browser.rowCount() == 1; }));
  EXPECT_EQ(shorter.row(), 0) << "the list begins anew";
  EXPECT_GT(shorter.data(FolderBrowser::ShareRole).toDouble(), 0.7);
  EXPECT_EQ(names(), QStringList{"short"});
  EXPECT_FALSE(isThere("Documents/films/long"));
  EXPECT_EQ(desk.desktop.trash.list().value_or(std::vector<Path>{}).size(), 1U);
  browser.goUp();
  EXPECT_EQ(names().first(), "music");
}

TEST_F(FolderBrowserTest, StaysInTheFolderThatIsOpenWhenSomethingIsPutBack) {
  makeFile("Documents/films/old/a", 1);
  ASSERT_TRUE(openDocuments());
  browser.activate(0);
  const auto putBack = [&] {
    shared.lastRemoval().restore();
    return turnUntil([this] {
      const auto& told = shared.lastRemoval().summary();
      return told && told->restoredCount == 1 && !browser.isMeasuring();
    });
  };
  const auto trashFirst = [&] {
    browser.requestTrash(0);
    browser.confirmTrash();
    return turnUntil([this] { return !browser.isDeleting() && shared.lastRemoval().canRestore(); });
  };
  ASSERT_TRUE(trashFirst());
  browser.activate(1);
  EXPECT_EQ(browser.crumbs(), (QStringList{"Documents", "films", "old"}));
  ASSERT_TRUE(putBack());
  EXPECT_EQ(browser.crumbs(), (QStringList{"Documents", "films", "old"}));
  EXPECT_EQ(names(), QStringList{"a"});
  browser.goUp();
  EXPECT_EQ(names(), (QStringList{"long", "short", "old"}));

  // The folder is gone by then: the nearest above it is shown.
  ASSERT_TRUE(trashFirst());
  browser.activate(1);
  std::filesystem::remove_all(desk.disk.onDisk(linuxHome / "Documents/films/old"));
  ASSERT_TRUE(putBack());
  EXPECT_EQ(browser.crumbs(), (QStringList{"Documents", "films"}));

  ASSERT_TRUE(openDocuments());
  EXPECT_EQ(browser.crumbs(), QStringList{"Documents"}) << "opened anew";
}

TEST_F(FolderBrowserTest, AnotherThingUnderTheNameStays) {
  ASSERT_TRUE(openDocuments());
  browser.activate(0);
  const Path films = desk.disk.onDisk(linuxHome / "Documents/films");
  std::filesystem::rename(films / "short", films / "aside");
  std::filesystem::rename(films / "long", films / "short");
  ASSERT_EQ(textOf(1, FolderBrowser::NameRole), "short");
  browser.requestTrash(1);
  browser.confirmTrash();
  ASSERT_TRUE(turnUntil([this] { return !browser.isDeleting(); }));
  EXPECT_TRUE(isThere("Documents/films/short"));
  EXPECT_EQ(browser.rowCount(), 2);
}

TEST_F(FolderBrowserTest, AFolderThatIsEmptyByNowIsNotCalledUnreadable) {
  ASSERT_TRUE(openDocuments());
  browser.activate(2);
  ASSERT_EQ(names(), QStringList{"a"});
  browser.requestTrash(0);
  browser.confirmTrash();
  ASSERT_TRUE(turnUntil([this] { return !browser.isDeleting() && browser.rowCount() == 0; }));
  EXPECT_EQ(browser.status(), "Nothing in here takes space, as far as you may look.");
}

TEST_F(FolderBrowserTest, PromisesNoMoreThanUpToWhatHasNamesElsewhere) {
  std::filesystem::create_hard_link(desk.disk.onDisk(linuxHome / "Documents/films/long"),
                                    desk.disk.onDisk(linuxHome / "long"));
  ASSERT_TRUE(openDocuments());
  const auto promise = [this](int row) {
    browser.requestTrash(row);
    const QString text = browser.confirmationMessage();
    browser.cancelTrash();
    return text;
  };
  EXPECT_TRUE(promise(0).startsWith("This frees up to 10")) << promise(0).toStdString();
  EXPECT_TRUE(promise(1).startsWith("This frees 4")) << promise(1).toStdString();
  browser.activate(0);
  EXPECT_TRUE(promise(0).startsWith("This frees up to 8"));
  EXPECT_TRUE(promise(1).startsWith("This frees 2"));
}

TEST_F(FolderBrowserTest, WhatTheTrashCannotTakeStaysAndTheUserIsTold) {
  const Path trash = linuxHome / ".local/share/Trash";
  std::filesystem::remove_all(desk.disk.onDisk(trash));
  desk.disk.makeFile(trash, 1);
  ASSERT_TRUE(openDocuments());
  browser.requestTrash(1);
  browser.confirmTrash();
  ASSERT_TRUE(turnUntil([this] { return !browser.isDeleting(); }));
  EXPECT_TRUE(isThere("Documents/music/a"));
  EXPECT_EQ(browser.rowCount(), 3);
  EXPECT_EQ(shared.removalNotice().text(), "1 item was not moved: the Trash could not take it.");
}

TEST_F(FolderBrowserTest, OffersNothingThatTheRulesKeep) {
  makeFile(".ssh/id", 1);
  makeFile(".config/writer/a", 2);
  desk.disk.makeFile("/usr/bin/program", mebibyte);
  ASSERT_TRUE(open({.name = "All", .places = {"/"}, .isWholeVolume = true}));
  const auto offered = [&] {
    QStringList paths;
    for (int row = 0; row < browser.rowCount(); ++row) {
      if (browser.data(browser.index(row), FolderBrowser::CanTrashRole).toBool()) {
        paths << textOf(row, FolderBrowser::PathRole);
      }
    }
    return paths;
  };
  const auto enter = [&](const QString& name) {
    browser.activate(static_cast<int>(names().indexOf(name)));
  };
  EXPECT_EQ(offered(), QStringList());
  enter("home");
  EXPECT_EQ(offered(), QStringList());
  enter("ann");
  EXPECT_EQ(offered(), QStringList());
  enter("Documents");
  EXPECT_EQ(offered().size(), 3);
  browser.goUp();
  enter(".ssh");
  EXPECT_EQ(offered(), QStringList());
  browser.goUp();
  enter(".config");
  EXPECT_EQ(offered(), QStringList());
}

TEST_F(FolderBrowserTest, AFolderThatHoldsWhatCountsElsewhereIsNotOffered) {
  ASSERT_TRUE(open({.name = "Home",
                    .places = {linuxHome / "Documents"},
                    .leftOut = {linuxHome / "Documents/films/long"}}));
  EXPECT_EQ(names(), (QStringList{"music", "films", "letters"}));
  EXPECT_TRUE(browser.data(browser.index(0), FolderBrowser::CanTrashRole).toBool());
  EXPECT_FALSE(browser.data(browser.index(1), FolderBrowser::CanTrashRole).toBool());
}

TEST_F(FolderBrowserTest, AShareOfTheDiskOpensTheFoldersInIt) {
  makeFile(".local/share/writer/a", 5);
  makeFile(".cache/writer/a", 6);
  StorageAnalyticsModel pane(shared, desk.desktop);
  pane.openBucket("documents");
  EXPECT_FALSE(pane.browser()->isOpen());
  pane.performAction();
  ASSERT_TRUE(turnUntil([&] { return pane.isMeasured(); }));
  pane.openBucket("no such share");
  EXPECT_FALSE(pane.browser()->isOpen());
  pane.openBucket("documents");
  EXPECT_TRUE(pane.browser()->isOpen());
  ASSERT_TRUE(turnUntil([&] { return !pane.browser()->isMeasuring(); }));
  EXPECT_EQ(pane.browser()->rowCount(), 3);
  pane.openBucket("appSupport");
  ASSERT_TRUE(turnUntil([&] { return !pane.browser()->isMeasuring(); }));
  EXPECT_EQ(pane.browser()->rows().front().bytes / mebibyte, 5);
}

}  // namespace
}  // namespace klarvik
