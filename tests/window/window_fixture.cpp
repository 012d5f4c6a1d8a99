#include "window_fixture.h"

#include <QDir>
#include <QImage>
#include <QMutex>
#include <QStorageInfo>
#include <filesystem>

#include "support/application/main_loop.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;

/// What settling takes of the animations' time: the longest of those that end takes 1.6 seconds.
constexpr auto animationTime = 2000ms;
/// And of the clock's: a loader appears within it, and no message goes that stands for seconds.
constexpr auto clockTime = 600ms;

QStringList warnings;
QMutex warningsMutex;

/// Without a display there is no front to bring a window to, and nobody who resizes one.
bool isForWantOfADisplay(const QString& message) {
  return message == "This plugin does not support raise()" ||
         message == "This plugin does not support propagateSizeHints()";
}

void rememberWarning(QtMsgType type, const QMessageLogContext&, const QString& message) {
  if (type != QtDebugMsg && type != QtInfoMsg && !isForWantOfADisplay(message)) {
    const QMutexLocker lock(&warningsMutex);
    warnings << message;
  }
}

/// A sample disk comes and goes with nearly every test: some seconds each on many a real disk, and
/// next to nothing in memory.
void keepDisksInMemory() {
  const QStorageInfo memory("/dev/shm");
  constexpr qint64 enough = 2'000'000'000;
  if (qEnvironmentVariableIsSet("TMPDIR") || memory.fileSystemType() != "tmpfs") return;
  if (memory.bytesAvailable() > enough) qputenv("TMPDIR", memory.rootPath().toUtf8());
}

bool isOnScreen(const QQuickItem& item) {
  if (!item.isVisible() || item.width() <= 0 || item.height() <= 0) {
    return false;
  }
  for (const QQuickItem* at = &item; at != nullptr; at = at->parentItem()) {
    if (at->opacity() == 0) {
      return false;
    }
  }
  const QRectF place = item.mapRectToScene(item.boundingRect());
  return QRectF(QPointF(), item.window()->size()).intersects(place);
}

bool isCalled(const QQuickItem& item, const QString& name) {
  for (const char* property : {"title", "description", "text"}) {
    QString text = item.property(property).toString();
    if (text.replace(QChar::Nbsp, QChar::Space).startsWith(name)) return true;
  }
  return false;
}

/// The last one that is drawn, and so the one on top.
QQuickItem* findIn(QQuickItem& item, const std::function<bool(const QQuickItem&)>& matches) {
  QQuickItem* found = matches(item) && isOnScreen(item) ? &item : nullptr;
  for (QQuickItem* child : item.childItems()) {
    if (QQuickItem* inside = findIn(*child, matches)) {
      found = found != nullptr && found == &item ? found : inside;
    }
  }
  return found;
}

}  // namespace

void WindowFixture::SetUp() {
  warnings.clear();
  qInstallMessageHandler(rememberWarning);
  motion.emplace();
  keepDisksInMemory();
  desk = std::make_unique<FakeDesktopOnDisk>(diskOptions, home);
  shared = std::make_unique<SharedState>(desk->desktop);
  desk->defaults.set("backgroundScanOnLaunch", false);
  desk->defaults.set("onboarding_complete", true);
  desk->defaults.set("fda_prompt_shown", true);
}

void WindowFixture::TearDown() {
  closeWindow();
  shared.reset();
  motion.reset();
  qInstallMessageHandler(nullptr);
  const QMutexLocker lock(&warningsMutex);
  EXPECT_TRUE(warnings.isEmpty()) << warnings.join('\n').toStdString();
}

void WindowFixture::openWindow() {
  app = std::make_unique<KlarvikApp>(desk->desktop, *shared, loginItem);
  ASSERT_TRUE(app->openWindow(mainWindowId)) << warnings.join('\n').toStdString();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window()));
  window().requestActivate();
  settle();
}

void WindowFixture::closeWindow() {
  desk->commandGate.open();
  desk->trashGate.open();
  desk->walkGate.open();
  lookAt(nullptr);
  app.reset();
}

bool WindowFixture::turnUntil(const std::function<bool()>& reached) {
  return turnMainLoopUntil(reached, [this] {
    motion->moveOn(20ms);
    desk->clock.advance(20ms);
  });
}

bool WindowFixture::turnUntilItsTurn(const std::function<bool()>& reached) {
  return turnMainLoopUntil(reached, [this] {
    motion->moveOn(20ms);
    desk->clock.advance(1min);
  });
}

void WindowFixture::settle() {
  constexpr int steps = 6;
  FakeMotion::turnUntilStill();
  for (int step = 0; step < steps; ++step) {
    desk->clock.advance(clockTime / steps);
    motion->moveOn(animationTime / steps);
    FakeMotion::turnUntilStill();
  }
}

QQuickItem* WindowFixture::find(const QString& name) const {
  return findIn(*window().contentItem(),
                [&](const QQuickItem& item) { return isCalled(item, name); });
}

QQuickItem* WindowFixture::waitFor(const QString& name) {
  QQuickItem* item = nullptr;
  const bool came = turnUntil([&] { return (item = find(name)) != nullptr; });
  return came ? item : nullptr;
}

void WindowFixture::click(const QString& name) {
  QQuickItem* item = waitFor(name);
  ASSERT_NE(item, nullptr) << name.toStdString() << " is not on the screen";
  clickAt(*item, item->boundingRect().center());
}

void WindowFixture::clickMainButton(const QString& title) {
  QQuickItem* button = findIn(*window().contentItem(), [&](const QQuickItem& item) {
    return item.objectName() == "mainButton" && item.property("title").toString().startsWith(title);
  });
  ASSERT_NE(button, nullptr) << title.toStdString() << " is no button on the screen";
  clickAt(*button, button->boundingRect().center());
}

void WindowFixture::clickAt(QQuickItem& item, QPointF place) {
  QTest::mouseClick(&window(), Qt::LeftButton, {}, item.mapToScene(place).toPoint());
  QCoreApplication::processEvents();
}

void WindowFixture::clickSelectionBox(const QString& row) {
  settle();
  QQuickItem* item = waitFor(row);
  ASSERT_NE(item, nullptr) << row.toStdString() << " is not on the screen";
  QQuickItem* box =
      findIn(*item, [](const QQuickItem& part) { return part.property("canToggle").toBool(); });
  ASSERT_NE(box, nullptr);
  clickAt(*box, box->boundingRect().center());
}

void WindowFixture::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(&window(), key, modifiers);
  QCoreApplication::processEvents();
}

bool WindowFixture::tabTo(const QString& name) {
  for (int step = 0; step < 60; ++step) {
    if (focused().startsWith(name)) {
      return true;
    }
    press(Qt::Key_Tab);
  }
  return false;
}

QString WindowFixture::focused() const {
  const QQuickItem* item = window().activeFocusItem();
  if (item == nullptr) {
    return {};
  }
  const QString description = item->property("description").toString();
  return description.isEmpty() ? item->property("title").toString() : description;
}

int WindowFixture::focusedRow() const {
  const QQuickItem* item = window().activeFocusItem();
  const QVariant index = item != nullptr ? item->property("index") : QVariant();
  return index.isValid() ? index.toInt() : -1;
}

void WindowFixture::expectPageKeysToMoveThroughTheRowsFrom(const QString& row) {
  window().resize(920, 640);
  settle();
  ASSERT_TRUE(tabTo(row));
  ASSERT_GE(focusedRow(), 0);
  const int rowCount =
      window().activeFocusItem()->parentItem()->parentItem()->property("count").toInt();
  press(Qt::Key_End);
  EXPECT_EQ(focusedRow(), rowCount - 1);
  press(Qt::Key_Home);
  EXPECT_EQ(focusedRow(), 0);
  press(Qt::Key_PageDown);
  EXPECT_GT(focusedRow(), 1);
  press(Qt::Key_PageUp);
  EXPECT_EQ(focusedRow(), 0);
}

WindowFixture::Listing WindowFixture::listing(const Path& folder) const {
  Listing found;
  const Path start = desk->disk.onDisk(folder);
  for (const auto& entry : std::filesystem::recursive_directory_iterator(start)) {
    const bool isFile = !entry.is_symlink() && entry.is_regular_file();
    found[entry.path().lexically_relative(start).native()] = isFile ? entry.file_size() : 0;
  }
  return found;
}

void WindowFixture::picture(const QString& name) {
  settle();
  QDir().mkpath(KLARVIK_SCREENSHOTS);
  // Pressed together less than usual, which takes a tenth of the time.
  constexpr int quality = 90;
  const QString file = QString(KLARVIK_SCREENSHOTS "/%1.png").arg(name);
  ASSERT_TRUE(window().grabWindow().save(file, "PNG", quality)) << file.toStdString();
}

bool WindowFixture::scanToTheEnd() {
  click("Scan");
  const bool isDone = turnUntil([this] { return is<AppState::Done>(); });
  settle();
  return isDone;
}

}  // namespace klarvik
