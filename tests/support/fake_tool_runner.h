#pragma once

#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/command_runners.h"

namespace klarvik {

/// Answers commands with what was laid down for them, and remembers what it was asked to run. Tools
/// that nobody has laid anything down for are not there. May be used from any thread.
class FakeToolRunner final : public ToolRunner {
 public:
  using Act = std::function<ToolResult()>;
  using LimitedAct = std::function<ToolResult(const ToolLimits&)>;

  /// `line` is the command with a space between its arguments.
  void answer(const std::string& line, const std::string& output) {
    act(line, [output] { return printed(output); });
  }
  void end(const std::string& line, ToolResult::End end, int status = 0) {
    act(line, [end, status] { return ToolResult{.end = end, .status = status}; });
  }
  /// `act` runs on the thread of whoever runs the command.
  void act(const std::string& line, Act act) {
    actWithin(line, [act = std::move(act)](const ToolLimits&) { return act(); });
  }
  /// The same, for one that looks at what it may.
  void actWithin(const std::string& line, LimitedAct act) {
    const std::lock_guard lock(_mutex);
    _acts[line] = std::move(act);
  }

  /// Every command so far, in the order in which they came.
  [[nodiscard]] std::vector<std::string> commandsRun() const {
    const std::lock_guard lock(_mutex);
    return _commandsRun;
  }

  [[nodiscard]] static ToolResult printed(const std::string& output) {
    return {.end = ToolResult::End::exited, .output = output};
  }

  [[nodiscard]] ToolResult run(std::span<const std::string> command,
                               const ToolLimits& limits) override {
    std::string line;
    for (const std::string& argument : command) line += (line.empty() ? "" : " ") + argument;
    LimitedAct found;
    {
      const std::lock_guard lock(_mutex);
      _commandsRun.push_back(line);
      if (const auto at = _acts.find(line); at != _acts.end()) found = at->second;
    }
    return found ? found(limits) : ToolResult{};
  }

 private:
  mutable std::mutex _mutex;
  std::map<std::string, LimitedAct> _acts;
  std::vector<std::string> _commandsRun;
};

}  // namespace klarvik
