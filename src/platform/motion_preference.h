#pragma once

#include <functional>

namespace klarvik {

/// Whether the user asks for less motion. Main thread only.
class MotionPreference {
 public:
  virtual ~MotionPreference() = default;
  [[nodiscard]] virtual bool isReduced() const = 0;
  /// Called after each change from now on, in place of whoever listened before; an empty one ends
  /// that.
  virtual void onChange(std::function<void()> listener) = 0;
};

}  // namespace klarvik
