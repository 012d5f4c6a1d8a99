#pragma once

#include <QObject>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>

#include "platform/desktop_services.h"

namespace klarvik {

/// The clipboard of the desktop, which only the main thread may touch: a call from another one is
/// carried over to it and waits. It waits in vain neither for a main loop that ends meanwhile nor
/// for one that does not come to it for seconds: then nothing is found, or cleared.
///
/// Made and destroyed on the main thread, while a `QGuiApplication` lives. What is offered is not
/// fetched: a picture may be large, and the program that offers it slow.
class QtPasteboard final : public Pasteboard {
 public:
  QtPasteboard();
  ~QtPasteboard() override;
  QtPasteboard(const QtPasteboard&) = delete;
  QtPasteboard& operator=(const QtPasteboard&) = delete;

  [[nodiscard]] bool holdsTextOrImage() override;
  void clear() override;

 private:
  struct Turn;

  /// What `act` answers on the main thread; false when it does not get there.
  bool onMainThread(const std::function<bool()>& act);
  void close();

  QObject _onMainThread;
  std::shared_ptr<Turn> _turn;
};

}  // namespace klarvik
