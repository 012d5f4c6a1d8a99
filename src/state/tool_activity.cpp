#include "state/tool_activity.h"

#include <algorithm>
#include <chrono>
#include <cmath>

namespace klarvik {

namespace {

constexpr std::chrono::seconds summaryStands{6};

}  // namespace

ToolActivity::ToolActivity(Clock& clock, QObject* parent) : QObject(parent), _clock(clock) {}

ToolActivity::State ToolActivity::state(const std::string& key) const {
  const auto found = _states.find(key);
  return found == _states.end() ? State(Idle{}) : found->second;
}

void ToolActivity::start(const std::string& key) {
  _clearTasks.erase(key);
  setState(key, Running{});
}

void ToolActivity::setProgress(const std::string& key, double fraction) {
  setState(key, Progress{std::isnan(fraction) ? 0 : std::clamp(fraction, 0.0, 1.0)});
}

void ToolActivity::finish(const std::string& key, const std::string& summary) {
  setState(key, Finished{summary});
  _clearTasks[key] = _clock.wakeAfter(summaryStands, [this, key] {
    if (std::holds_alternative<Finished>(state(key))) setState(key, Idle{});
  });
}

void ToolActivity::clear(const std::string& key) {
  _clearTasks.erase(key);
  setState(key, Idle{});
}

void ToolActivity::setState(const std::string& key, State newState) {
  const bool changed = state(key) != newState;
  _states[key] = std::move(newState);
  if (changed) emit statesChanged();
}

}  // namespace klarvik
