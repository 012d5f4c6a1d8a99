#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace klarvik {

/// Lets one part of the program tell the others, by a name alone, that something happened. Main
/// thread only; observers are called before `post` returns, in the order in which they came.
class NotificationCenter {
 public:
  using Observer = std::function<void()>;
  /// Observing ends when this goes.
  using Subscription = std::shared_ptr<void>;

  [[nodiscard]] Subscription observe(const std::string& name, Observer observer);
  void post(const std::string& name);

 private:
  std::map<std::string, std::vector<std::weak_ptr<Observer>>> _observers;
};

}  // namespace klarvik
