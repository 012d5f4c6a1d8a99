#include "platform/notification_center.h"

namespace klarvik {

NotificationCenter::Subscription NotificationCenter::observe(const std::string& name,
                                                             Observer observer) {
  auto subscription = std::make_shared<Observer>(std::move(observer));
  auto& observers = _observers[name];
  std::erase_if(observers, [](const auto& known) { return known.expired(); });
  observers.push_back(subscription);
  return subscription;
}

void NotificationCenter::post(const std::string& name) {
  const auto found = _observers.find(name);
  if (found == _observers.end()) return;
  // A copy: an observer may come or go while the others are being called.
  const auto observers = found->second;
  for (const auto& known : observers) {
    if (const auto observer = known.lock()) (*observer)();
  }
}

}  // namespace klarvik
