#include "tools/package_removal.h"

#include <algorithm>
#include <chrono>
#include <optional>

#include "base/message.h"
#include "base/text.h"
#include "places/disk_layout.h"
#include "places/path_pattern.h"
#include "places/words.h"
#include "platform/command_runners.h"
#include "platform/file_system.h"
#include "tools/installed_applications.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;
using Command = std::vector<std::string>;

constexpr auto mostTimeForAnAnswer = 20s;
// A person may have to find a password meanwhile.
constexpr auto mostTimeForARemoval = 10min;
constexpr std::size_t longestMessage = 160;  // characters
constexpr std::string_view removalMark = "Remv ";

/// The names that a package manager takes hold no other characters, and a tool takes what begins
/// with "-" for an option.
bool isPlainName(std::string_view name, std::string_view others) {
  const auto isLetterOrDigit = [](char each) {
    return (each >= 'a' && each <= 'z') || (each >= 'A' && each <= 'Z') ||
           (each >= '0' && each <= '9');
  };
  return !name.empty() && isLetterOrDigit(name.front()) &&
         std::ranges::all_of(name, [&](char each) {
           return isLetterOrDigit(each) || others.find(each) != std::string_view::npos;
         });
}

bool hasPlainName(const AppInfo& app) {
  switch (app.kind) {
    case AppKind::flatpak:
      return isPlainName(app.package, "._-/") && app.package.starts_with("app/");
    case AppKind::snap:
      return isPlainName(app.package, "-_");
    case AppKind::debianPackage:
      return isPlainName(app.package, "+-.");
    case AppKind::bundle:
    case AppKind::appImage:
    case AppKind::byHand:
    case AppKind::foreign:
      break;
  }
  return false;
}

const Words& wordsOf(const Platform& platform) {
  return layoutFor(platform.files.home()).words;
}

void askApt(const Platform& platform, const AppInfo& app, RemovalPlan& plan) {
  const Command command{"apt-get", "--simulate", "remove", app.package};
  const ToolResult answer = platform.tools.run(command, {.time = mostTimeForAnAnswer});
  if (!answer.isWhole()) return;
  std::vector<std::string> removed = simulatedRemovals(answer.output);
  const auto own = std::ranges::find(removed, app.package);
  if (own == removed.end()) return;
  removed.erase(own);
  plan.isSimulated = true;
  const auto isNeeded = [&](const std::string& each) {
    const auto* places = layoutFor(platform.files.home()).applications.desktop;
    return places != nullptr && nameMatchesAny(places->neededPackages, each);
  };
  const auto needed = std::ranges::find_if(removed, isNeeded);
  if (needed != removed.end() || isNeeded(app.package)) {
    const std::string& which = needed != removed.end() ? *needed : app.package;
    plan.command.clear();
    plan.keptBecause = {wordsOf(platform).removalTakesNeeded, {which}};
  }
  plan.alsoRemoved = std::move(removed);
}

std::optional<Command> removalBy(const AppInfo& app) {
  if (!hasPlainName(app) || !app.keptBecause.empty()) return std::nullopt;
  if (app.kind == AppKind::flatpak) {
    // Without "--delete-data": what the application has stored is the user's to remove.
    return Command{"flatpak", "uninstall", "--noninteractive",
                   app.isForAllUsers ? "--system" : "--user", app.package};
  }
  // Without "--purge": snapd keeps a snapshot of the application's data.
  if (app.kind == AppKind::snap) return Command{"snap", "remove", app.package};
  return std::nullopt;
}

/// "snap" waits for as long as a service takes that may not be there.
bool isServiceThere(const Platform& platform, const AppInfo& app, const std::stop_token& stop) {
  if (app.kind != AppKind::snap) return true;
  const Command command{"systemctl", "is-active", "snapd.socket"};
  return platform.tools.run(command, {.time = mostTimeForAnAnswer, .stop = stop}).isWhole();
}

std::string firstLineOf(std::string_view text) {
  const std::string_view line = trimmed(takeLine(text));
  return printable(firstCharacters(line, longestMessage));
}

bool isStillInstalled(const Platform& platform, const AppInfo& app) {
  return std::ranges::any_of(InstalledApplications(platform).all(),
                             [&](const AppInfo& each) { return isSameApplication(each, app); });
}

Message whyItStayed(const Words& words, const ToolResult& result, const std::string& tool) {
  switch (result.end) {
    case ToolResult::End::notStarted:
      return {words.toolNotStarted, {tool}};
    case ToolResult::End::timedOut:
      return {words.toolTookTooLong, {tool}};
    case ToolResult::End::stopped:
    case ToolResult::End::signalled:
      return {words.toolWasStopped, {tool}};
    case ToolResult::End::exited:
      break;
  }
  const std::string said = firstLineOf(result.errors);
  if (said.empty()) return {words.toolDidNotRemove, {tool}};
  return {words.toolDidNotRemoveAndSaid, {tool, said}};
}

}  // namespace

RemovalPlan planRemoval(const Platform& platform, const AppInfo& app) {
  RemovalPlan plan{.keptBecause = app.keptBecause};
  if (!hasPlainName(app) || !app.keptBecause.empty()) return plan;
  plan.command = app.removalCommand();
  if (app.kind == AppKind::debianPackage) askApt(platform, app, plan);
  return plan;
}

std::vector<std::string> simulatedRemovals(std::string_view output) {
  std::vector<std::string> packages;
  while (!output.empty()) {
    std::string_view line = takeLine(output);
    if (!line.starts_with(removalMark)) continue;
    line.remove_prefix(removalMark.size());
    std::string_view name = line.substr(0, line.find(' '));
    name = name.substr(0, name.find(':'));
    if (isPlainName(name, "+-.")) packages.emplace_back(name);
  }
  return packages;
}

bool isRemovedByTool(const AppInfo& app) {
  return removalBy(app).has_value();
}

Message removeByTool(const Platform& platform, const AppInfo& app, const std::stop_token& stop) {
  const auto command = removalBy(app);
  const Words& words = wordsOf(platform);
  if (!command) return words.appIsNotRemoved;
  if (!isServiceThere(platform, app, stop)) return {words.serviceIsNotRunning, {"snapd"}};
  const ToolResult result =
      platform.tools.run(*command, {.time = mostTimeForARemoval, .stop = stop});
  if (!isStillInstalled(platform, app)) return {};
  return whyItStayed(words, result, command->front());
}

}  // namespace klarvik
