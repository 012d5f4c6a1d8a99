#include "tools/package_removal.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <optional>

#include "base/message.h"
#include "base/text.h"
#include "places/disk_layout.h"
#include "places/package_manager.h"
#include "places/path_pattern.h"
#include "places/words.h"
#include "platform/command_runners.h"
#include "platform/file_system.h"
#include "tools/installed_applications.h"
#include "tools/rpm_packages.h"
#include "tools/system_packages.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;
using Command = std::vector<std::string>;

constexpr auto mostTimeForAnAnswer = 20s;
// A person may have to find a password meanwhile.
constexpr auto mostTimeForARemoval = 10min;
constexpr std::size_t longestMessage = 160;  // characters
constexpr std::string_view removalMark = "Remv ";
constexpr std::string_view neederMark = "' required by ";

bool hasPlainName(const AppInfo& app) {
  switch (app.kind) {
    case AppKind::flatpak:
      return isPlainName(app.package, "._-/") && app.package.starts_with("app/");
    case AppKind::snap:
      return isPlainName(app.package, "-_");
    case AppKind::systemPackage:
      return app.manager != nullptr && isPackageName(app.package, *app.manager);
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

ToolResult ask(const Platform& platform, const AppInfo& app) {
  Command command = removalQuestion(platform, *app.manager);
  command.push_back(app.package);
  return platform.tools.run(command, {.time = mostTimeForAnAnswer});
}

/// What the package manager says would go, and why it would refuse.
struct Answer {
  bool isKnown = false;
  std::vector<std::string> removed{};  ///< with the package itself or without
  std::vector<std::string> needers{};  ///< for whose sake it is refused
  bool isHeld = false;                 ///< refused for what the user or the system has said
};

Answer askByMarks(const Platform& platform, const AppInfo& app) {
  const ToolResult result = ask(platform, app);
  if (!result.isWhole()) return {};
  return {.isKnown = true, .removed = simulatedRemovals(result.output)};
}

Answer askForNames(const Platform& platform, const AppInfo& app) {
  const ToolResult result = ask(platform, app);
  if (result.end != ToolResult::End::exited || result.isCut) return {};
  if (result.status == 0) {
    return {.isKnown = true, .removed = namedRemovals(result.output, *app.manager)};
  }
  std::string said = result.output;
  said.append("\n").append(result.errors);
  return {.needers = needersOf(said, *app.manager),
          .isHeld = said.find("HoldPkg") != std::string::npos};
}

Answer askForDependents(const Platform& platform, const AppInfo& app) {
  const auto dependents = rpmDependentsOf(platform, *app.manager, app.package);
  if (!dependents) return {};
  Answer answer{.isKnown = true, .removed = {dependents->begin(), dependents->end()}};
  answer.removed.push_back(app.package);
  return answer;
}

/// How each kind of answer is asked for.
struct Question {
  RemovalAnswer answer;
  Answer (*ask)(const Platform&, const AppInfo&);
};
constexpr std::array<Question, 3> questions{{
    {RemovalAnswer::marked, askByMarks},
    {RemovalAnswer::names, askForNames},
    {RemovalAnswer::dependents, askForDependents},
}};

void keep(RemovalPlan& plan, Message because) {
  plan.command.clear();
  plan.keptBecause = std::move(because);
}

void askManager(const Platform& platform, const AppInfo& app, RemovalPlan& plan) {
  const Words& words = wordsOf(platform);
  const auto isNeeded = [&](const std::string& each) {
    return nameMatchesAny(app.manager->needed, each);
  };
  Answer answer =
      std::ranges::find(questions, app.manager->answer, &Question::answer)->ask(platform, app);
  if (!answer.needers.empty()) {
    keep(plan, {words.packageIsNeededBy, {app.package, answer.needers.front()}});
    return;
  }
  if (answer.isHeld) {
    keep(plan, {words.packageIsOfSystem, {app.package}});
    return;
  }
  const auto own = std::ranges::find(answer.removed, app.package);
  plan.isSimulated = answer.isKnown && own != answer.removed.end();
  if (!plan.isSimulated) {
    if (isNeeded(app.package)) keep(plan, {words.removalTakesNeeded, {app.package}});
    return;
  }
  answer.removed.erase(own);
  plan.mayTakeMore = app.manager->mayTakeMore;
  const auto needed = std::ranges::find_if(answer.removed, isNeeded);
  if (needed != answer.removed.end() || isNeeded(app.package)) {
    const std::string& which = needed != answer.removed.end() ? *needed : app.package;
    keep(plan, {words.removalTakesNeeded, {which}});
  }
  plan.alsoRemoved = std::move(answer.removed);
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
  if (app.kind == AppKind::systemPackage) askManager(platform, app, plan);
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

std::vector<std::string> namedRemovals(std::string_view output, const PackageManager& manager) {
  std::vector<std::string> packages;
  while (!output.empty()) {
    const std::string_view line = takeLine(output);
    if (isPackageName(line, manager)) packages.emplace_back(line);
  }
  return packages;
}

std::vector<std::string> needersOf(std::string_view output, const PackageManager& manager) {
  std::vector<std::string> packages;
  while (!output.empty()) {
    std::string_view line = takeLine(output);
    const auto mark = line.find(neederMark);
    if (mark == std::string_view::npos) continue;
    line.remove_prefix(mark + neederMark.size());
    if (isPackageName(line, manager)) packages.emplace_back(line);
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
