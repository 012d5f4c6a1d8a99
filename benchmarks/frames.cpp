// frames [ITEMS]: how smoothly the real window is drawn while a scan finds 200,000 items, or as
// many as it is told, and while the user goes on to work with them: the time between two frames,
// without what the thread waited for a processor that others had.

#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickWindow>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <numeric>
#include <vector>

#include "own_time.h"
#include "panes/smart_scan/review_table_model.h"
#include "platform/desktop/qt_clock.h"
#include "platform/own_process.h"
#include "shell/klarvik_app.h"
#include "state/shared_state.h"
#include "support/desktop_fakes.h"
#include "support/fake_desktop.h"

namespace {

using namespace klarvik;

/// The frames of one window, which are asked for as fast as they can be drawn.
class Frames {
 public:
  explicit Frames(QQuickWindow& window) : _window(window) {
    QObject::connect(&window, &QQuickWindow::frameSwapped, &window, [this] {
      drawn();
      _window.update();
    });
  }

  /// Prints how long the frames took from `action` until `isOver` and a few more were drawn.
  void measure(
      const char* name, const std::function<void()>& action,
      const std::function<bool()>& isOver = [] { return true; }) {
    start();
    action();
    while (!isOver()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const std::size_t enough = _gaps.size() + 5;
    while (_gaps.size() < enough) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const double sum = std::accumulate(_gaps.begin(), _gaps.end(), 0.0);
    constexpr double goal = 16.7;
    std::printf("frames %-17s longest %5.1f mean %5.1f count %zu over %.1f: %td\n", name,
                *std::ranges::max_element(_gaps), sum / static_cast<double>(_gaps.size()),
                _gaps.size(), goal,
                std::ranges::count_if(_gaps, [](double gap) { return gap > goal; }));
    std::fflush(stdout);
  }

 private:
  void start() {
    _gaps.clear();
    _last = {};
    _window.update();
  }

  void drawn() {
    const OwnMoment now;
    _gaps.push_back(now.since(_last));
    _last = now;
  }

  QQuickWindow& _window;
  OwnMoment _last;
  std::vector<double> _gaps;
};

void furnish(FakeFileSystem& disk, int itemCount) {
  disk.addFolder("/Users/ann");
  for (int number = 0; number < itemCount; ++number) {
    disk.addFile("/Users/ann/Library/Caches/com.example.cache-" + std::to_string(number),
                 2'000'000 + number);
  }
}

/// The view of what a scan found.
QQuickItem* reviewList(QQuickItem& item) {
  if (qobject_cast<ReviewTableModel*>(item.property("model").value<QObject*>()) != nullptr) {
    if (item.property("contentY").isValid()) return &item;
  }
  for (QQuickItem* child : item.childItems()) {
    if (QQuickItem* found = reviewList(*child)) return found;
  }
  return nullptr;
}

void useTheWindow(KlarvikApp& app, Navigator& navigator) {
  AppState& state = app.appState();
  QQuickItem* list = reviewList(*app.window(mainWindowId)->contentItem());
  if (list == nullptr) {
    std::fputs("frames: the window has no table of results\n", stderr);
    std::exit(1);
  }
  auto& table = *qobject_cast<ReviewTableModel*>(list->property("model").value<QObject*>());
  const auto press = [&](int row) {
    QMetaObject::invokeMethod(list, "activated", Q_ARG(int, row));
  };
  const int moreRow = 1 + static_cast<int>(ReviewTableModel::firstItems);
  const auto isDone = [&] { return std::holds_alternative<AppState::Done>(state.scanState()); };
  const auto isCleanDone = [&] {
    return std::holds_alternative<AppState::CleanDone>(state.scanState());
  };

  Frames frames(*app.window(mainWindowId));
  frames.measure("first", [] {});
  frames.measure(
      "scan", [&] { state.startScan(); }, isDone);
  frames.measure("deselect all", [&] { table.toggleSelection(0); });
  frames.measure("select all", [&] { table.toggleSelection(0); });
  frames.measure("expand", [&] { press(0); });
  frames.measure("show all", [&] { press(moreRow); });
  frames.measure("scroll to the end", [&] {
    list->setProperty("contentY", list->property("contentHeight").toDouble() - list->height());
  });
  frames.measure("deselect one", [&] { table.toggleSelection(table.rowCount() - 1); });
  for (const bool isFirstVisit : {true, false}) {
    for (const Tool& tool : tools()) {
      frames.measure(isFirstVisit ? "section, first" : "section, again",
                     [&] { navigator.setSection(tool.section); });
    }
  }
  navigator.setSection(Section::smartScan);
  frames.measure("start of a clean", [&] { state.performClean(); });
  frames.measure(
      "rest of it", [] {}, isCleanDone);
  frames.measure(
      "scan again", [&] { state.startScan(); }, isDone);
}

}  // namespace

int main(int argumentCount, char** arguments) {
  disableFastBins();
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_QUICK_BACKEND", "software");
  QGuiApplication application(argumentCount, arguments);
  const int itemCount = argumentCount > 1 ? std::atoi(arguments[1]) : 200'000;

  FakeDesktopInMemory around;
  QtClock clock;
  const Desktop desktop = around.with(clock);
  furnish(around.disk, itemCount);
  around.defaults.set("onboarding_complete", true);
  around.defaults.set("backgroundScanOnLaunch", false);
  SharedState shared(desktop);
  FakeLoginItem loginItem;
  KlarvikApp app(desktop, shared, loginItem);
  if (!app.openWindow(mainWindowId)) {
    return 1;
  }

  useTheWindow(app, shared.navigator());
  return 0;
}
