#include "platform/desktop/qt_pasteboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QThread>
#include <algorithm>
#include <optional>

namespace klarvik {
namespace {

using namespace std::chrono_literals;

// A main loop that is not seen for so long is frozen, or waits for the very thread that asks.
constexpr auto patience = 2s;

bool isOffered(const QMimeData& data) {
  const QStringList formats = data.formats();
  return data.hasImage() || std::any_of(formats.begin(), formats.end(), [](const QString& format) {
           return format == QLatin1String("text/plain") || format.startsWith("image/");
         });
}

bool isFilled() {
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  return data != nullptr && isOffered(*data);
}

}  // namespace

/// What the threads that wait share with the main thread; outlives both.
struct QtPasteboard::Turn {
  std::mutex mutex;
  std::condition_variable changed;
  bool isClosed = false;
};

QtPasteboard::QtPasteboard() : _turn(std::make_shared<Turn>()) {
  QObject::connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, &_onMainThread,
                   [this] { close(); });
}

QtPasteboard::~QtPasteboard() {
  close();
}

bool QtPasteboard::holdsTextOrImage() {
  return onMainThread(isFilled);
}

void QtPasteboard::clear() {
  onMainThread([] {
    QGuiApplication::clipboard()->clear();
    return true;
  });
}

void QtPasteboard::copy(std::string_view text) {
  const auto size = static_cast<qsizetype>(text.size());
  onMainThread([copied = QString::fromUtf8(text.data(), size)] {
    QGuiApplication::clipboard()->setText(copied);
    return true;
  });
}

bool QtPasteboard::onMainThread(const std::function<bool()>& act) {
  if (QThread::currentThread() == _onMainThread.thread()) return act();
  struct Call {
    bool isWanted = true;
    std::optional<bool> answer;
  };
  const auto call = std::make_shared<Call>();
  QMetaObject::invokeMethod(
      &_onMainThread,
      [turn = _turn, call, act] {
        {
          const std::scoped_lock lock(turn->mutex);
          if (!call->isWanted) return;
        }
        const bool answer = act();
        const std::scoped_lock lock(turn->mutex);
        call->answer = answer;
        turn->changed.notify_all();
      },
      Qt::QueuedConnection);
  std::unique_lock lock(_turn->mutex);
  _turn->changed.wait_for(lock, patience, [&] { return call->answer || _turn->isClosed; });
  call->isWanted = false;
  return call->answer.value_or(false);
}

void QtPasteboard::close() {
  const std::scoped_lock lock(_turn->mutex);
  _turn->isClosed = true;
  _turn->changed.notify_all();
}

}  // namespace klarvik
