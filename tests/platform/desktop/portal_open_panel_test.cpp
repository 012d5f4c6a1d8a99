#include "platform/desktop/open_panel.h"

#include <gmock/gmock.h>

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QUrl>
#include <optional>

#include "platform/linux/linux_file_system.h"
#include "private_bus.h"
#include "support/application/main_loop.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto service = "org.freedesktop.portal.Desktop";

/// Stands for the portal of a desktop.
class Portal : public QDBusVirtualObject {
 public:
  Portal(const QString& bus, uint version)
      : _connection(QDBusConnection::connectToBus(bus, "portal")), _version(version) {
    _connection.registerVirtualObject("/org/freedesktop/portal/desktop", this);
    isReady = _connection.registerService(service);
  }
  ~Portal() override { QDBusConnection::disconnectFromBus("portal"); }
  Portal(const Portal&) = delete;
  Portal& operator=(const Portal&) = delete;

  [[nodiscard]] QString introspect(const QString&) const override { return {}; }
  bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
    if (message.member() == "Get") {
      const QVariant version = QVariant::fromValue(QDBusVariant(_version));
      return connection.send(message.createReply(version));
    }
    if (message.member() != "OpenFile") return false;
    options = qdbus_cast<QVariantMap>(message.arguments().value(2));
    title = message.arguments().value(1).toString();
    const QString sender = message.service().mid(1).replace('.', '_');
    _dialog = answersElsewhere ? QStringLiteral("/org/freedesktop/portal/desktop/request/old")
                               : "/org/freedesktop/portal/desktop/request/" + sender + "/" +
                                     options.value("handle_token").toString();
    ++opened;
    return connection.send(message.createReply(QVariant::fromValue(QDBusObjectPath(_dialog))));
  }
  void respond(uint code, const QStringList& addresses) {
    auto signal = QDBusMessage::createSignal(_dialog, "org.freedesktop.portal.Request", "Response");
    signal << code << QVariantMap{{"uris", addresses}};
    _connection.send(signal);
  }
  void leave() { _connection.unregisterService(service); }

  bool isReady = false;
  bool answersElsewhere = false;
  int opened = 0;
  QString title;
  QVariantMap options;

 private:
  QDBusConnection _connection;
  uint _version;
  QString _dialog;
};

class OtherPanel final : public OpenPanel {
 public:
  void chooseFolders(const Request& request, Answer answer) override {
    asked.push_back(request.prompt);
    answer({"/Users/ann/Music"});
  }
  std::vector<std::string> asked;
};

class PortalOpenPanelTest : public testing::Test {
 protected:
  PortalOpenPanelTest() {
    disk.makeFolder("/Users/ann/Docs \xc3\xa9");
    disk.makeFolder("/Users/ann/Music");
    disk.makeFile("/Users/ann/note.txt");
  }
  ~PortalOpenPanelTest() override { QDBusConnection::disconnectFromBus("client"); }

  void ask() {
    panel.chooseFolders({"Scan This Folder", "Only these.", "/Users/ann"},
                        [this](const std::vector<Path>& folders) { answer = folders; });
  }
  [[nodiscard]] bool opens(const Portal& portal, int count = 1) const {
    return turnMainLoopUntil([&] { return portal.opened == count; });
  }
  [[nodiscard]] bool isAnswered() const {
    return turnMainLoopUntil([this] { return answer.has_value(); });
  }
  [[nodiscard]] QString address(const Path& path) const {
    return QString::fromUtf8(
        QUrl::fromLocalFile(QString::fromStdString(disk.onDisk(path).native())).toEncoded());
  }

  PrivateBus bus;
  TemporaryFolder disk;
  LinuxFileSystem files{disk.path(), "/Users/ann"};
  OtherPanel other;
  PortalOpenPanel panel{files, other, QDBusConnection::connectToBus(bus.address, "client")};
  std::optional<std::vector<Path>> answer;
};

TEST_F(PortalOpenPanelTest, AsksTheDesktopForSeveralFolders) {
  Portal portal(bus.address, 4);
  ASSERT_TRUE(portal.isReady);
  ask();
  ASSERT_TRUE(opens(portal));
  EXPECT_EQ(portal.title, "Only these.");
  EXPECT_EQ(portal.options.value("accept_label").toString(), "Scan This Folder");
  EXPECT_TRUE(portal.options.value("directory").toBool());
  EXPECT_TRUE(portal.options.value("multiple").toBool());
  EXPECT_EQ(portal.options.value("current_folder").toByteArray().toStdString(),
            disk.onDisk("/Users/ann").native() + '\0');
  ask();
  portal.respond(0, {address("/Users/ann/Music"), address("/Users/ann/Docs \xc3\xa9")});
  ASSERT_TRUE(isAnswered());
  EXPECT_THAT(*answer, ElementsAre("/Users/ann/Music", "/Users/ann/Docs \xc3\xa9"));
  EXPECT_EQ(portal.opened, 1) << "one dialog at a time";
  EXPECT_THAT(other.asked, IsEmpty());
}

TEST_F(PortalOpenPanelTest, TakesNothingThatIsNoFolderOfThisDisk) {
  Portal portal(bus.address, 4);
  ask();
  ASSERT_TRUE(opens(portal));
  portal.respond(0, {"https://example.org/", "", "file://", "file:///somewhere%00else",
                     address("/Users/ann/note.txt"), address("/Users/ann/gone")});
  ASSERT_TRUE(isAnswered());
  EXPECT_THAT(*answer, IsEmpty());
}

TEST_F(PortalOpenPanelTest, AnswersNothingWhenTheUserLeavesItAndCanBeOpenedAgain) {
  Portal portal(bus.address, 3);
  ask();
  ASSERT_TRUE(opens(portal));
  portal.respond(1, {address("/Users/ann/Music")});
  ASSERT_TRUE(isAnswered());
  EXPECT_THAT(*answer, IsEmpty());
  ask();
  EXPECT_TRUE(opens(portal, 2));
}

TEST_F(PortalOpenPanelTest, ListensWhereAnOldPortalAnswers) {
  Portal portal(bus.address, 3);
  portal.answersElsewhere = true;
  ask();
  ASSERT_TRUE(opens(portal));
  // The reply that names the dialog is on its way.
  ASSERT_TRUE(turnMainLoopUntil([&] {
    portal.respond(0, {address("/Users/ann/Music")});
    return answer.has_value();
  }));
  EXPECT_THAT(*answer, ElementsAre("/Users/ann/Music"));
}

TEST_F(PortalOpenPanelTest, APortalThatEndsAnswersNothing) {
  Portal portal(bus.address, 4);
  ask();
  ASSERT_TRUE(opens(portal));
  portal.leave();
  ASSERT_TRUE(isAnswered());
  EXPECT_THAT(*answer, IsEmpty());
}

TEST_F(PortalOpenPanelTest, WithoutAPortalTheOtherPanelIsAsked) {
  ask();
  ASSERT_TRUE(isAnswered());
  EXPECT_THAT(other.asked, ElementsAre("Scan This Folder"));
  EXPECT_THAT(*answer, ElementsAre("/Users/ann/Music"));
}

TEST_F(PortalOpenPanelTest, APortalThatChoosesFilesOnlyIsNotAsked) {
  const Portal portal(bus.address, 2);
  ask();
  ASSERT_TRUE(isAnswered());
  EXPECT_EQ(portal.opened, 0);
  EXPECT_THAT(other.asked, ElementsAre("Scan This Folder"));
}

}  // namespace
}  // namespace klarvik
