#include "engine/root_command.h"

#include <array>
#include <chrono>
#include <utility>

#include "platform/command_runners.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;

/// A user who is asked for a password may have to look for it.
constexpr auto timeToRun = 10min;
constexpr auto timeToAnswer = 5s;
constexpr std::size_t mostOutput = 64UL * 1024;

// What pkexec ends with when it has run nothing.
constexpr int dismissedStatus = 126;
constexpr int notAllowedStatus = 127;

RootRun::End endOf(const ToolResult& result) {
  switch (result.end) {
    case ToolResult::End::exited:
      if (result.status == 0) return RootRun::End::done;
      if (result.status == dismissedStatus) return RootRun::End::dismissed;
      if (result.status == notAllowedStatus) return RootRun::End::notAllowed;
      return RootRun::End::failed;
    case ToolResult::End::signalled:
      return RootRun::End::killed;
    case ToolResult::End::timedOut:
    case ToolResult::End::stopped:
      return RootRun::End::leftAlone;
    case ToolResult::End::notStarted:
      break;
  }
  return RootRun::End::notThere;
}

}  // namespace

bool canRunAsRoot(ToolRunner& tools, const std::stop_token& stop) {
  const std::array<std::string, 2> command{"pkexec", "--version"};
  return tools.run(command, {.time = timeToAnswer, .stop = stop}).isWhole();
}

std::vector<std::string> rootCommand(const CleaningTool& tool) {
  // It must not ask on a terminal that Klarvik happens to have been started from.
  std::vector<std::string> command{"pkexec", "--disable-internal-agent"};
  command.insert(command.end(), tool.asRoot.begin(), tool.asRoot.end());
  return command;
}

RootRun runAsRoot(ToolRunner& tools, const CleaningTool& tool, const std::stop_token& stop) {
  if (tool.asRoot.empty()) return {};
  ToolResult result =
      tools.run(rootCommand(tool), {.time = timeToRun, .output = mostOutput, .stop = stop});
  const bool needsLine = !result.output.empty() && !result.output.ends_with('\n');
  return {.end = endOf(result),
          .status = result.status,
          .output = std::move(result.output) + (needsLine ? "\n" : "") + result.errors,
          .isCut = result.isCut};
}

}  // namespace klarvik
