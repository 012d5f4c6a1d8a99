// What 100,000 large files cost: the longest time that the main thread is held while they are
// found, filtered and ordered, first by the model alone and then with the real window drawing them;
// the memory of a row; and the time between two frames while they are scrolled through. Time that
// the thread waited for a processor that others had does not count.

#include <malloc.h>

#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTimer>
#include <algorithm>
#include <array>
#include <cstdio>
#include <functional>
#include <optional>
#include <utility>

#include "own_time.h"
#include "panes/large_files/large_file_finder_model.h"
#include "platform/desktop/qt_clock.h"
#include "platform/own_process.h"
#include "shell/klarvik_app.h"
#include "state/shared_state.h"
#include "support/desktop_fakes.h"
#include "support/fake_desktop.h"

namespace {

using namespace klarvik;

constexpr std::uint32_t fileCount = 100'000;

/// The time from one moment to the next, in milliseconds.
class Gaps {
 public:
  void moment() {
    const OwnMoment now;
    if (_last) {
      const double mine = now.since(*_last);
      _longest = std::max(_longest, mine);
      _sum += mine;
      ++_count;
    }
    _last = now;
  }
  void print(const char* what) const {
    std::printf("large_rows %-22s longest %.1f ms mean %.2f ms count %zu\n", what, _longest,
                _count > 0 ? _sum / static_cast<double>(_count) : 0, _count);
    std::fflush(stdout);
  }

 private:
  std::optional<OwnMoment> _last;
  double _longest = 0;
  double _sum = 0;
  std::size_t _count = 0;
};

/// Files of all kinds and sizes, in no order.
void furnish(FakeFileSystem& disk) {
  constexpr std::array extensions{"mov", "zip", "dmg", "pdf", "mp3", "bin"};
  disk.addFolder("/Users/ann");
  std::uint32_t scattered = 1;
  for (std::uint32_t number = 0; number < fileCount; ++number) {
    scattered = scattered * 1'664'525 + 1'013'904'223;
    const std::string name = std::to_string(scattered) + " recording " + std::to_string(number);
    disk.addFile("/Users/ann/Documents/Projects/" + std::to_string(number % 100) + "/" + name +
                     "." + extensions[number % extensions.size()],
                 std::int64_t{200'000'000} + scattered);
  }
}

/// Lets the main loop run as fast as it can until `isOver`, and keeps the time of its turns.
Gaps turnsUntil(const std::function<bool()>& isOver) {
  Gaps gaps;
  while (!isOver()) {
    QCoreApplication::processEvents();
    gaps.moment();
  }
  return gaps;
}

Gaps turnsUntilRows(LargeFileFinderModel& pane, std::size_t rows) {
  return turnsUntil(
      [&] { return !pane.isScanning() && pane.rows()->rowCount() == static_cast<int>(rows); });
}

void measureModel(const Desktop& desktop) {
  SharedState shared(desktop);
  LargeFileFinderModel pane(shared, desktop);
  const std::size_t before = mallinfo2().uordblks;
  pane.performAction();
  turnsUntilRows(pane, fileCount).print("model, while found");
  const std::size_t rows = mallinfo2().uordblks - before;

  bool isOrdered = false;
  QObject::connect(&pane, &LargeFileFinderModel::viewChanged, &pane, [&] { isOrdered = true; });
  pane.chooseSort(2);
  turnsUntil([&] { return isOrdered; }).print("model, by name");
  isOrdered = false;
  pane.toggleKind("Video");
  turnsUntil([&] { return isOrdered; }).print("model, one kind");
  std::printf("large_rows memory %.0f bytes a row\n", static_cast<double>(rows) / fileCount);
}

/// What an item below `item` is handed as its model, and the item itself.
template <typename Model>
std::pair<QQuickItem*, Model*> drawnFrom(QQuickItem& item) {
  if (auto* model = item.property("model").value<Model*>()) return {&item, model};
  for (QQuickItem* child : item.childItems()) {
    const auto found = drawnFrom<Model>(*child);
    if (found.first != nullptr) return found;
  }
  return {};
}

bool measureWindow(const Desktop& desktop) {
  SharedState shared(desktop);
  FakeLoginItem loginItem;
  KlarvikApp app(desktop, shared, loginItem);
  if (!app.openWindow(mainWindowId)) return false;
  shared.navigator().setSection(Section::largeFiles);
  QQuickWindow& window = *app.window(mainWindowId);
  LargeFileFinderModel* const shown = drawnFrom<LargeFileFinderModel>(*window.contentItem()).second;
  if (shown == nullptr) return false;
  LargeFileFinderModel& pane = *shown;

  Gaps frames;
  bool isMeasuring = false;
  QObject::connect(&window, &QQuickWindow::frameSwapped, &window, [&] {
    if (isMeasuring) frames.moment();
    window.update();
  });
  pane.performAction();
  isMeasuring = true;
  turnsUntilRows(pane, fileCount).print("window, while found");
  isMeasuring = false;
  std::exchange(frames, {}).print("frames, while found");

  QQuickItem* const list = drawnFrom<LargeFileRowsModel>(*window.contentItem()).first;
  if (list == nullptr) return false;
  const double height = list->property("contentHeight").toReal() - list->height();
  int step = 0;
  QObject::connect(&window, &QQuickWindow::frameSwapped, list, [&] {
    // Three rows a frame, with a leap now and then.
    const double origin = list->property("originY").toReal();
    list->setProperty("contentY",
                      origin + (step % 50 == 0 ? height * step / 500 : 0) + (step % 50) * 138.0);
    ++step;
  });
  isMeasuring = true;
  turnsUntil([&] { return step >= 500; });
  frames.print("frames, scrolling");
  return true;
}

}  // namespace

int main(int argumentCount, char** arguments) {
  disableFastBins();
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_QUICK_BACKEND", "software");
  const QGuiApplication application(argumentCount, arguments);
  FakeDesktopInMemory around;
  QtClock clock;
  const Desktop desktop = around.with(clock);
  around.defaults.set("onboarding_complete", true);
  around.defaults.set("backgroundScanOnLaunch", false);
  furnish(around.disk);
  measureModel(desktop);
  if (!measureWindow(desktop)) {
    std::fputs("large_rows: the rows were not drawn\n", stderr);
    return 1;
  }
  return 0;
}
