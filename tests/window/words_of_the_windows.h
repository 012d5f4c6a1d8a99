#pragma once

#include <QAccessible>
#include <QMetaProperty>
#include <functional>
#include <set>
#include <string>

#include "places/disk_layout.h"
#include "systemdata/system_data_sub_category.h"
#include "window_fixture.h"

namespace klarvik {

/// Every text that an item has, shown or spoken.
inline QStringList textsOf(QQuickItem& item) {
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

inline void collectFrom(QQuickItem& item, QStringList& texts) {
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
    desk->disk.makeFile(home / ".config/chromium/Default/Cookies", 9'000);
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
    for (read(); !shows(said("Run first scan")); settleAndRead()) click(said("Continue"));
    click(said("Later"));
    settleAndRead();
  }
  void readSections() {
    readThrough([this] { click(said("Scan", "SmartScan")); },
                [this] { return is<AppState::Done>(); });
    for (const CleanCategory& category : app->appState().scanResults()) {
      app->appState().toggleCategoryExpansion(category.type);
    }
    settleAndRead();
    picture("words_scan_" + QString::fromStdString(home.parent_path().filename()));
    app->appState().setPendingCleanConfirmation(true);
    settleAndRead();
    app->appState().setPendingCleanConfirmation(false);
    settle();
    click(said("Storage", "Engine"));
    readThrough([this] { click(said("Measure")); }, [this] { return shows(said("Re-measure")); });
    click(said("Duplicates", "Engine"));
    settleAndRead();
    click(said("Large Files", "Engine"));
    readThrough([this] { clickMainButton(said("Rescan", "LargeFiles")); },
                [this] { return shows(said("Nothing that big")); });
    click(said("System Data", "Engine"));
    readThrough([this] { click(said("Analyse")); }, [this] { return shows(said("Re-analyse")); });
    const auto kind = label(SystemDataSubCategory::packageManagerCaches, layoutFor(home));
    click(said(std::string(kind).c_str(), "Engine"));
    settleAndRead();
    readThrough([this] { click(said("Uninstaller", "Engine")); },
                [this] { return shows("0 Apps · ") || shows("0 apps · "); });
    click(said("Privacy", "Engine"));
    readThrough([this] { clickMainButton(said("Rescan", "PrivacyCleanerView")); },
                [this] { return shows(said("Clipboard", "Engine") + ", "); });
    const QString cookies = said("Browser Cookies", "Engine") + " — ";
    if (!shows(cookies)) return;
    clickSelectionBox(cookies);
    click(said("Clear %1", "Privacy").arg(said("1 trail", "Privacy")));
    settleAndRead();
    press(Qt::Key_Escape);
    settle();
  }
  void readWhatIsAroundThem() {
    click(said("Klarvik menu"));
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
    click(said("Updates", "Settings"));
    settleAndRead();
    desk->updater.show(update_stage::Offered{"2.0", "Notes", "", 12'300'000});
    settleAndRead();
  }
  void readAll() {
    readFirstRun();
    readSections();
    readWhatIsAroundThem();
  }

  /// An English text as the windows say it, of this context where it is known in several.
  [[nodiscard]] virtual QString said(const char* english, const char* /*context*/ = "") const {
    return english;
  }

  std::set<QString> seen;
  int textsRead = 0;

 private:
  void remember(const QString& text) {
    if (!text.isEmpty()) ++textsRead;
    seen.insert(text);
  }
};

}  // namespace klarvik
