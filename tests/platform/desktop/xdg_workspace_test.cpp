#include "platform/desktop/xdg_workspace.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QDesktopServices>
#include <QProcess>
#include <QUrl>
#include <string>
#include <vector>

#include "platform/linux/linux_file_system.h"
#include "private_bus.h"
#include "support/application/main_loop.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Stands for the programs that a desktop opens addresses with.
class Opener : public QObject {
  Q_OBJECT
 public:
  Opener() {
    for (const auto* scheme : {"file", "https"}) {
      QDesktopServices::setUrlHandler(scheme, this, "open");
    }
  }
  ~Opener() override {
    for (const auto* scheme : {"file", "https"}) QDesktopServices::unsetUrlHandler(scheme);
  }
  Opener(const Opener&) = delete;
  Opener& operator=(const Opener&) = delete;

  Q_INVOKABLE void open(const QUrl& url) { opened.push_back(url.toEncoded().toStdString()); }
  std::vector<std::string> opened;
};

class FileManager : public QDBusVirtualObject {
 public:
  explicit FileManager(const QString& bus)
      : _connection(QDBusConnection::connectToBus(bus, "file manager")) {
    _connection.registerVirtualObject("/org/freedesktop/FileManager1", this);
    isReady = _connection.registerService("org.freedesktop.FileManager1");
  }
  ~FileManager() override {
    _connection.unregisterService("org.freedesktop.FileManager1");
    QDBusConnection::disconnectFromBus("file manager");
  }
  FileManager(const FileManager&) = delete;
  FileManager& operator=(const FileManager&) = delete;

  [[nodiscard]] QString introspect(const QString&) const override { return {}; }
  bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
    const QStringList items = message.arguments().value(0).toStringList();
    if (message.member() == "ShowItems") shown.push_back(items.join('|').toStdString());
    return connection.send(message.createReply());
  }

  bool isReady = false;
  std::vector<std::string> shown;

 private:
  QDBusConnection _connection;
};

class XdgWorkspaceTest : public testing::Test {
 protected:
  static PrivateBus& bus() {
    static PrivateBus bus;
    return bus;
  }

  XdgWorkspaceTest() { bus(); }

  [[nodiscard]] std::string address(const std::string& below) const {
    return "file://" + disk.path().native() + below;
  }

  TemporaryFolder disk;
  LinuxFileSystem files{disk.path(), "/Users/ann"};
  XdgWorkspace workspace{files};
  Opener opener;
};

TEST_F(XdgWorkspaceTest, OpensAnAddress) {
  EXPECT_TRUE(workspace.openUrl("https://example.org/a?b=c%20d"));
  EXPECT_THAT(opener.opened, ElementsAre("https://example.org/a?b=c%20d"));
}

TEST_F(XdgWorkspaceTest, SaysWhenThereIsNothingToOpenAnAddressWith) {
  for (const std::string url : {"", "no address", "/Users/ann", "http://[", "klarvik-nothing:x"}) {
    EXPECT_FALSE(workspace.openUrl(url)) << url;
  }
  EXPECT_THAT(opener.opened, IsEmpty());
}

TEST_F(XdgWorkspaceTest, OpensAFolderWhereItIsOnTheMachine) {
  EXPECT_TRUE(workspace.openFolder("/Users/ann/.Trash"));
  EXPECT_THAT(opener.opened, ElementsAre(address("/Users/ann/.Trash")));
}

TEST_F(XdgWorkspaceTest, OpensAFolderWithOddBytesInItsName) {
  EXPECT_TRUE(workspace.openFolder("/a b#?%\xff\n"));
  EXPECT_THAT(opener.opened, ElementsAre(address("/a%20b%23%3F%25%FF%0A")));
}

TEST_F(XdgWorkspaceTest, RevealsAnItemThroughTheFileManager) {
  FileManager fileManager(bus().address);
  ASSERT_TRUE(fileManager.isReady);
  workspace.reveal("/Users/ann/a b\xff.txt");
  ASSERT_TRUE(turnMainLoopUntil([&] { return !fileManager.shown.empty(); }));
  EXPECT_THAT(fileManager.shown, ElementsAre(address("/Users/ann/a%20b%FF.txt")));
  EXPECT_THAT(opener.opened, IsEmpty());
}

TEST_F(XdgWorkspaceTest, OpensTheFolderOfAnItemWhereNoFileManagerCanRevealIt) {
  workspace.reveal("/Users/ann/notes.txt");
  ASSERT_TRUE(turnMainLoopUntil([&] { return !opener.opened.empty(); }));
  EXPECT_THAT(opener.opened, ElementsAre(address("/Users/ann")));
}

TEST_F(XdgWorkspaceTest, MayGoBeforeTheFileManagerHasAnswered) {
  std::make_unique<XdgWorkspace>(files)->reveal("/Users/ann/notes.txt");
  ASSERT_TRUE(turnMainLoopUntil([&] { return !opener.opened.empty(); }));
}

class PrivacySettings : public XdgWorkspaceTest {
 protected:
  PrivacySettings() {
    qputenv("PATH", disk.onDisk("bin").c_str());
    disk.makeFolder("bin");
  }
  ~PrivacySettings() override { qputenv("PATH", _usualPath); }

  // A program that leaves its arguments in a file of its own name.
  void install(const std::string& program) {
    const Path script = disk.makeFile(
        "bin/" + program,
        std::string_view("#!/bin/sh\necho \"$@\" > \"$0.new\"\n/bin/mv \"$0.new\" \"$0.out\"\n"));
    ::chmod(script.c_str(), 0755);
  }

  bool openPage() {
    return workspace.openUrl(
        "x-apple.systempreferences:com.apple.settings.PrivacySecurity.extension"
        "?Privacy_AllFilesAccess");
  }

  void expectPage(const std::string& desktop, const std::string& program, const std::string& page) {
    install(program);
    qputenv("XDG_CURRENT_DESKTOP", desktop.c_str());
    EXPECT_TRUE(openPage());
    ASSERT_TRUE(turnMainLoopUntil([&] { return disk.holds("bin/" + program + ".out"); }));
    EXPECT_EQ(disk.contentOf("bin/" + program + ".out"), page + "\n");
  }

 private:
  const QByteArray _usualPath = qgetenv("PATH");
};

TEST_F(PrivacySettings, OpenOnGnome) {
  expectPage("ubuntu:GNOME", "gnome-control-center", "applications");
}

TEST_F(PrivacySettings, OpenOnKde) {
  expectPage("KDE", "systemsettings", "kcm_flatpak");
}

TEST_F(PrivacySettings, DoNotOpenOnADesktopThatHasNone) {
  install("gnome-control-center");
  qputenv("XDG_CURRENT_DESKTOP", "sway");
  EXPECT_FALSE(openPage());
  qunsetenv("XDG_CURRENT_DESKTOP");
  EXPECT_FALSE(openPage());
}

TEST_F(PrivacySettings, DoNotOpenWhereTheirProgramIsMissing) {
  qputenv("XDG_CURRENT_DESKTOP", "GNOME");
  EXPECT_FALSE(openPage());
}

TEST(XdgWorkspaceRelaunch, StartsANewInstanceAndEndsThisOne) {
  const TemporaryFolder folder;
  const Path file = folder.makeFile("instances");
  QProcess first;
  first.start(RELAUNCHING_PROGRAM, {QString::fromStdString(file.native())});
  ASSERT_TRUE(first.waitForStarted());
  const auto firstId = std::to_string(first.processId());
  ASSERT_TRUE(first.waitForFinished());
  EXPECT_EQ(first.exitCode(), 0);

  const auto lines = [&] {
    return QString::fromStdString(folder.contentOf("instances")).split('\n');
  };
  ASSERT_TRUE(turnMainLoopUntil([&] { return lines().size() == 3; }));
  EXPECT_EQ(lines().at(0).toStdString(), firstId);
  EXPECT_NE(lines().at(1).toStdString(), firstId);
}

}  // namespace
}  // namespace klarvik

#include "xdg_workspace_test.moc"
