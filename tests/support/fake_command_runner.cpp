#include "support/fake_command_runner.h"

namespace klarvik {

void FakeCommandRunner::answer(const std::string& commandLine, const std::string& output) {
  const std::lock_guard lock(_mutex);
  _answers[commandLine] = output;
}

void FakeCommandRunner::failToStart(const std::string& commandLine) {
  const std::lock_guard lock(_mutex);
  _answers[commandLine] = std::nullopt;
}

std::vector<std::string> FakeCommandRunner::commandsRun() const {
  const std::lock_guard lock(_mutex);
  return _commandsRun;
}

void FakeCommandRunner::holdAt(const std::string& text, Gate& gate) {
  const std::lock_guard lock(_mutex);
  _heldText = text;
  _gate = &gate;
}

std::optional<std::string> FakeCommandRunner::run(const std::string& commandLine) {
  if (Gate* gate = gateOf(commandLine)) gate->pass();
  const std::lock_guard lock(_mutex);
  _commandsRun.push_back(commandLine);
  const auto found = _answers.find(commandLine);
  return found != _answers.end() ? found->second : "";
}

Gate* FakeCommandRunner::gateOf(const std::string& commandLine) const {
  const std::lock_guard lock(_mutex);
  return commandLine.find(_heldText) != std::string::npos ? _gate : nullptr;
}

}  // namespace klarvik
