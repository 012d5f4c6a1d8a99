#pragma once

#include <QObject>

namespace klarvik {

/// How often a signal has fired since this was made.
class SignalCount {
 public:
  template <typename Sender, typename Signal>
  SignalCount(const Sender& sender, Signal signal) {
    QObject::connect(&sender, signal, &_context, [this] { ++_count; });
  }

  [[nodiscard]] int get() const { return _count; }

 private:
  QObject _context;
  int _count = 0;
};

}  // namespace klarvik
