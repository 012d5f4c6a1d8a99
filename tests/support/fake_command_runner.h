#pragma once

#include <map>
#include <mutex>
#include <vector>

#include "platform/command_runners.h"
#include "support/gate.h"

namespace klarvik {

/// Answers exact command lines with texts laid down beforehand, and remembers what it was asked to
/// run. An unknown command prints nothing. May be used from any thread.
class FakeCommandRunner final : public CommandRunner {
 public:
  void answer(const std::string& commandLine, const std::string& output);
  /// From now on this command cannot be started at all.
  void failToStart(const std::string& commandLine);
  /// From now on whoever runs a command that holds `text` waits at `gate` first.
  void holdAt(const std::string& text, Gate& gate);
  /// Every command line so far, in the order in which they came.
  [[nodiscard]] std::vector<std::string> commandsRun() const;

  [[nodiscard]] std::optional<std::string> run(const std::string& commandLine) override;

 private:
  [[nodiscard]] Gate* gateOf(const std::string& commandLine) const;

  mutable std::mutex _mutex;
  std::map<std::string, std::optional<std::string>> _answers;
  std::vector<std::string> _commandsRun;
  std::string _heldText;
  Gate* _gate = nullptr;
};

}  // namespace klarvik
