#include "engine/root_command.h"

#include <array>
#include <chrono>
#include <string_view>
#include <utility>

#include "base/text.h"
#include "platform/command_runners.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;

/// A user who is asked for a password may have to look for it.
constexpr auto timeToRun = 10min;
constexpr auto timeToAnswer = 5s;
constexpr std::size_t mostOutput = 64UL * 1024;

/// How pkexec says that it has run nothing, and why. A command that was run may end with the same
/// status, and prints none of this.
struct Refusal {
  int status;
  std::string_view said;  ///< how what it prints begins
  RootRun::End end;
};
constexpr std::array<Refusal, 7> refusals{{
    {126, "Error executing command as another user: ", RootRun::End::dismissed},
    {127, "Error executing command as another user: No authentication agent found",
     RootRun::End::noAgent},
    {127, "Error executing command as another user: ", RootRun::End::notAllowed},
    {127, "Error getting authority: ", RootRun::End::noService},
    {127, "Error checking for authorization ", RootRun::End::noService},
    {127, "Error accessing ", RootRun::End::notFound},
    {127, "pkexec must be setuid root", RootRun::End::notThere},
}};

/// Also where a line of somebody else's stands before.
bool hasLineThatBegins(std::string_view text, std::string_view start) {
  while (!text.empty()) {
    if (takeLine(text).starts_with(start)) return true;
  }
  return false;
}

RootRun::End endOfExited(const ToolResult& result) {
  if (result.status == 0) return RootRun::End::done;
  for (const Refusal& each : refusals) {
    if (each.status == result.status && hasLineThatBegins(result.errors, each.said)) {
      return each.end;
    }
  }
  return RootRun::End::failed;
}

RootRun::End endOf(const ToolResult& result) {
  switch (result.end) {
    case ToolResult::End::exited:
      return endOfExited(result);
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
