// How smoothly the real window is drawn while a scan reports 200,000 items: the time between two
// frames, without what the thread waited for a processor that others had.

#include <QGuiApplication>
#include <QQuickWindow>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <numeric>
#include <vector>

#include "platform/desktop/qt_clock.h"
#include "shell/klarvik_app.h"
#include "state/shared_state.h"
#include "support/canned_command_runner.h"
#include "support/fixed_volume.h"
#include "support/memory_defaults.h"
#include "support/memory_file_system.h"
#include "support/memory_pasteboard.h"
#include "support/recording_recent_documents.h"
#include "support/recording_workspace.h"

namespace {

using namespace klarvik;

constexpr int itemCount = 200'000;

/// Nanoseconds that the calling thread has spent ready to run while others ran.
std::int64_t waitedForProcessor() {
  std::ifstream statistics("/proc/thread-self/schedstat");
  std::int64_t ran = 0;
  std::int64_t waited = 0;
  statistics >> ran >> waited;
  return waited;
}

class FrameTimes {
 public:
  void drawn() {
    const auto now = std::chrono::steady_clock::now();
    const std::int64_t waited = waitedForProcessor();
    if (_hasFirst) {
      const std::chrono::duration<double, std::milli> gap = now - _last;
      _gaps.push_back(gap.count() - static_cast<double>(waited - _waited) / 1e6);
    }
    _hasFirst = true;
    _last = now;
    _waited = waited;
  }

  void print() const {
    const double sum = std::accumulate(_gaps.begin(), _gaps.end(), 0.0);
    std::printf("frames longest %.1f mean %.1f count %zu\n", *std::ranges::max_element(_gaps),
                sum / static_cast<double>(_gaps.size()), _gaps.size());
  }
  [[nodiscard]] bool isEmpty() const { return _gaps.empty(); }

 private:
  std::chrono::steady_clock::time_point _last;
  std::int64_t _waited = 0;
  bool _hasFirst = false;
  std::vector<double> _gaps;
};

void furnish(MemoryFileSystem& files) {
  files.addFolder("/Users/ann");
  for (int number = 0; number < itemCount; ++number) {
    files.addFile("/Users/ann/Library/Caches/com.example.cache-" + std::to_string(number),
                  2'000'000 + number);
  }
}

}  // namespace

int main(int argumentCount, char** arguments) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_QUICK_BACKEND", "software");
  QGuiApplication application(argumentCount, arguments);

  MemoryFileSystem files;
  furnish(files);
  MemoryTrash trash(files);
  CannedCommandRunner commands;
  MemoryDefaults defaults;
  defaults.set("backgroundScanOnLaunch", false);
  FixedVolume volume;
  Formatting formatting("en_US");
  const ApplicationInfo info;
  RecordingRecentDocuments recentDocuments;
  QtClock clock;
  NotificationCenter notifications;
  RecordingWorkspace workspace;
  MemoryPasteboard pasteboard;
  const Desktop desktop{
      {files, trash, commands, defaults, volume, formatting, info, recentDocuments},
      clock,
      notifications,
      workspace,
      pasteboard};
  SharedState shared(desktop);
  KlarvikApp app(desktop, shared);
  if (!app.openMainWindow()) {
    return 1;
  }

  FrameTimes times;
  bool isScanning = false;
  QObject::connect(app.mainWindow(), &QQuickWindow::frameSwapped, &application, [&] {
    if (isScanning) {
      times.drawn();
    }
    app.mainWindow()->requestUpdate();
  });
  QObject::connect(&app.appState(), &AppState::scanStateChanged, &application, [&] {
    const auto& state = app.appState().scanState();
    isScanning = std::holds_alternative<AppState::Scanning>(state);
    if (std::holds_alternative<AppState::Done>(state)) {
      QCoreApplication::exit(0);
    }
  });
  QMetaObject::invokeMethod(
      &application, [&] { app.appState().startScan(); }, Qt::QueuedConnection);
  QGuiApplication::exec();
  if (times.isEmpty()) {
    std::fputs("frames: the scan ended before a frame was drawn\n", stderr);
    return 1;
  }
  times.print();
  return 0;
}
