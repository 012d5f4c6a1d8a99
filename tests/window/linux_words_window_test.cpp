#include <gmock/gmock.h>

#include <QAccessible>
#include <QMetaProperty>
#include <QRegularExpression>
#include <array>
#include <map>
#include <set>
#include <vector>

#include "places/disk_layout.h"
#include "systemdata/system_data_sub_category.h"
#include "window_fixture.h"

namespace klarvik {
namespace {

/// What only a Mac has, and a text of a Linux disk never names.
constexpr std::array macNames{"macOS",           "Mac",
                              "Finder",          "Xcode",
                              "iPhone",          "iPad",
                              "Safari",          "Time Machine",
                              "iCloud",          "Spotlight",
                              "System Settings", "menu bar",
                              "Macintosh HD",    "Full Disk Access"};

/// A whole word, as it is written or in capitals.
bool holds(const QString& text, const QString& name) {
  const QRegularExpression word("\\b(" + name + "|" + name.toUpper() + ")\\b");
  return word.match(text).hasMatch();
}

/// Every text that an item has, shown or spoken.
QStringList textsOf(QQuickItem& item) {
  QStringList texts;
  const QMetaObject& type = *item.metaObject();
  for (int at = 0; at < type.propertyCount(); ++at) {
    const QMetaProperty property = type.property(at);
    if (property.metaType() == QMetaType::fromType<QString>() ||
        property.metaType() == QMetaType::fromType<QStringList>()) {
      texts << property.read(&item).toStringList();
    }
  }
  if (QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&item)) {
    for (const auto kind : {QAccessible::Name, QAccessible::Description, QAccessible::Help}) {
      texts << spoken->text(kind);
    }
  }
  return texts;
}

void collectFrom(QQuickItem& item, QStringList& texts) {
  if (!item.isVisible()) return;
  texts << textsOf(item);
  for (QQuickItem* child : item.childItems()) collectFrom(*child, texts);
}

/// The whole program from its first run on, whose every text is read.
class WordsOfTheWindows : public EmptyHomeWindowFixture {
 protected:
  explicit WordsOfTheWindows(const Path& disksHome) { home = disksHome; }

  void SetUp() override {
    EmptyHomeWindowFixture::SetUp();
    QAccessible::setActive(true);
    desk->defaults.remove("onboarding_complete");
    desk->volume.setName(std::nullopt);
    desk->pasteboard.isFilled = true;
    loginItem.current = LoginItem::Status::notFound;
    desk->disk.makeFile(home / ".npm/_cacache/index", 18'000'000);
    desk->disk.makeFile(home / ".cache/mozilla/firefox/a.default/page", 2'000'000);
    desk->disk.makeFile(home / "go/pkg/mod/module/file", 12'000'000);
    desk->disk.makeFile(home / ".local/share/Trash/files/old/film", 2'000'000);
    desk->programs.running = {"firefox"};
    desk->disk.makeFile(home / "Documents/letter", 1'000'000);
  }

  /// Reads what is on the screen now.
  void read() {
    QStringList texts;
    for (QWindow* each : QGuiApplication::topLevelWindows()) {
      auto* shown = qobject_cast<QQuickWindow*>(each);
      if (shown == nullptr || !shown->isVisible()) continue;
      texts << shown->title();
      collectFrom(*shown->contentItem(), texts);
    }
    if (desk->statusItem.shown) {
      const StatusItem::Look& tray = *desk->statusItem.shown;
      texts << QString::fromStdString(tray.title) << QString::fromStdString(tray.toolTip);
      for (const auto& entry : tray.menu) texts << QString::fromStdString(entry.title);
    }
    for (const QString& text : texts) remember(text);
  }
  void settleAndRead() {
    settle();
    read();
  }
  /// Reads before something is started, again and again while it runs, and after it.
  void readThrough(const std::function<void()>& start, const std::function<bool()>& isDone) {
    settleAndRead();
    desk->walkGate.close();
    start();
    ASSERT_TRUE(turnUntil([&] {
      read();
      return desk->walkGate.waiting() > 0 || isDone();
    }));
    settleAndRead();
    desk->walkGate.open();
    ASSERT_TRUE(turnUntil([&] {
      read();
      return isDone();
    }));
    settleAndRead();
  }

  void readFirstRun() {
    openWindow();
    for (read(); !shows("Run first scan"); settleAndRead()) click("Continue");
    click("Later");
    settleAndRead();
  }
  void readSections() {
    readThrough([this] { click("Scan"); }, [this] { return is<AppState::Done>(); });
    for (const CleanCategory& category : app->appState().scanResults()) {
      app->appState().toggleCategoryExpansion(category.type);
    }
    settleAndRead();
    picture("words_scan_" + QString::fromStdString(home.parent_path().filename()));
    app->appState().setPendingCleanConfirmation(true);
    settleAndRead();
    app->appState().setPendingCleanConfirmation(false);
    settle();
    click("Storage");
    readThrough([this] { click("Measure"); }, [this] { return shows("Re-measure"); });
    click("Duplicates");
    settleAndRead();
    click("Large Files");
    readThrough([this] { clickMainButton("Rescan"); },
                [this] { return shows("Nothing that big"); });
    click("System Data");
    readThrough([this] { click("Analyse"); }, [this] { return shows("Re-analyse"); });
    const auto kind = label(SystemDataSubCategory::packageManagerCaches, layoutFor(home));
    click(QString::fromStdString(std::string(kind)));
    settleAndRead();
    readThrough([this] { click("Uninstaller"); }, [this] { return shows("0 apps · "); });
    click("Privacy");
    readThrough([this] { clickMainButton("Rescan"); }, [this] { return shows("Clipboard, "); });
  }
  void readWhatIsAroundThem() {
    click("Klarvik menu");
    settleAndRead();
    press(Qt::Key_Escape);
    desk->trash.readable = false;
    shared->trashMonitor().refresh(true);
    settleAndRead();
    desk->statusItem.press();
    settleAndRead();
    desk->statusItem.press();
    press(Qt::Key_Comma, Qt::ControlModifier);
    lookAt(app->window(settingsWindowId));
    settleAndRead();
    picture("words_settings_" + QString::fromStdString(home.parent_path().filename()));
    click("Updates");
    settleAndRead();
    desk->updater.show(update_stage::Offered{"2.0", "Notes", "", 12'300'000});
    settleAndRead();
  }
  void readAll() {
    readFirstRun();
    readSections();
    readWhatIsAroundThem();
  }

  /// A text for each of a Mac's names that was read in one.
  std::map<std::string, std::string> found;
  int textsRead = 0;

 private:
  void remember(const QString& text) {
    if (!text.isEmpty()) ++textsRead;
    if (!_seen.insert(text).second) return;
    for (const char* name : macNames) {
      if (holds(text, name)) found.emplace(name, text.toStdString());
    }
  }

  std::set<QString> _seen;
};

class WordsOfALinuxDisk : public WordsOfTheWindows {
 protected:
  WordsOfALinuxDisk() : WordsOfTheWindows(linuxHome) {}
};

class WordsOfAMacsDisk : public WordsOfTheWindows {
 protected:
  WordsOfAMacsDisk() : WordsOfTheWindows(macHome) {}
};

TEST_F(WordsOfALinuxDisk, NameNothingThatOnlyAMacHas) {
  readAll();
  EXPECT_THAT(found, testing::IsEmpty());
  EXPECT_GT(textsRead, 1000);
}

TEST_F(WordsOfAMacsDisk, NameWhatAMacHas) {
  readAll();
  std::vector<std::string> names;
  for (const auto& [name, text] : found) names.push_back(name);
  EXPECT_THAT(names, testing::IsSupersetOf({"Finder", "Full Disk Access", "Mac", "Macintosh HD",
                                            "System Settings", "Time Machine", "Xcode", "iCloud",
                                            "iPhone", "macOS", "menu bar"}));
}

TEST_F(WordsOfALinuxDisk, CallThingsAsTheyAreCalledThere) {
  openWindow();
  EXPECT_TRUE(shows("Klarvik finds what file managers hide"));
  EXPECT_TRUE(shows("Nothing leaves this computer. No account, no telemetry."));
  picture("words_welcome");
  click("Continue");
  settle();
  EXPECT_TRUE(shows("Ready when you are"));
  EXPECT_TRUE(shows("your home folder, and what everybody may read"));
  EXPECT_TRUE(shows("Keep Klarvik in the system tray"));
  picture("words_ready");
  click("Later");
  settle();
  EXPECT_TRUE(shows("System"));
  for (const ScanRow& row : layoutFor(home).scanRows) {
    EXPECT_TRUE(shows(QString::fromStdString(std::string(row.name)))) << row.name;
  }
  picture("words_smart_scan");
  press(Qt::Key_Comma, Qt::ControlModifier);
  lookAt(app->window(settingsWindowId));
  settle();
  EXPECT_TRUE(shows("Show in the system tray"));
  EXPECT_TRUE(shows("Unavailable until Klarvik is installed."));
  EXPECT_FALSE(shows("Reopen Klarvik"));
}

}  // namespace
}  // namespace klarvik
