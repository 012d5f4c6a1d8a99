#include "tools/rpm_packages.h"

#include <algorithm>
#include <chrono>
#include <iterator>
#include <vector>

#include "base/bytes.h"
#include "base/text.h"
#include "places/path_pattern.h"
#include "platform/command_runners.h"
#include "platform/file_system.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;
using Command = std::vector<std::string>;

constexpr auto mostTimeForAnAnswer = 20s;
// The lists of some hundred packages; the largest has some 100,000 files.
constexpr std::size_t longestAnswer = 128UL * 1024 * 1024;
constexpr std::size_t longestList = 64UL * 1024;
// A system takes some 2 MB of arguments, each of which is at most as long as a path.
constexpr std::size_t mostNamed = 200;
constexpr int mostSteps = 30;
constexpr std::int64_t largestSize = std::int64_t{1} << 50;
constexpr std::string_view nameMarks = "+-._";
constexpr std::string_view neededMark = " is needed by (installed) ";

Command query(const Platform& platform, const PackageManager& manager, const char* format) {
  Command command{"rpm", "--query", "--queryformat", format};
  std::ranges::move(databaseArguments(platform, manager), std::back_inserter(command));
  return command;
}

/// What rpm prints, whatever its status: that counts the files of no package.
std::optional<std::string> answered(const Platform& platform, const Command& command) {
  ToolResult answer =
      platform.tools.run(command, {.time = mostTimeForAnAnswer, .output = longestAnswer});
  if (answer.end != ToolResult::End::exited || answer.isCut) return std::nullopt;
  return std::move(answer.output);
}

/// Lines that are names of packages; others say that a file is of none.
PackageNames namesIn(std::string_view output) {
  PackageNames names;
  while (!output.empty()) {
    const std::string_view line = takeLine(output);
    if (isPlainName(line, nameMarks)) names.emplace(line);
  }
  return names;
}

/// What `command` answers when it is followed by each of `named`, some at a time.
template <typename Named, typename Take>
bool askInParts(const Platform& platform, const Command& command, const Named& named, Take take) {
  Command whole = command;
  for (auto each = named.begin(); each != named.end();) {
    whole.push_back(*each);
    const bool isLast = ++each == named.end();
    if (!isLast && whole.size() < command.size() + mostNamed) continue;
    const auto answer = answered(platform, whole);
    if (!answer) return false;
    take(*answer);
    whole = command;
  }
  return true;
}

/// The names that the package manager has been told never to remove.
PackageNames protectedNames(const FileSystem& files, std::string_view folder) {
  PackageNames names;
  if (folder.empty()) return names;
  for (const Path& list : files.list(Path(folder)).value_or(std::vector<Path>{})) {
    if (const auto text = textOfFile(files, list, longestList)) names.merge(namesIn(*text));
  }
  return names;
}

}  // namespace

std::map<std::string, RpmPackage> readRpmPackages(std::string_view output,
                                                  const std::set<Path>& wanted) {
  std::map<std::string, RpmPackage> packages;
  RpmPackage* current = nullptr;
  while (!output.empty()) {
    const std::string_view line = takeLine(output);
    if (line.starts_with('\t')) {
      const auto path = current != nullptr ? wanted.find(Path(line.substr(1))) : wanted.end();
      if (path != wanted.end()) current->owned.insert(*path);
      continue;
    }
    const auto tab = line.find('\t');
    const std::string_view name = line.substr(0, tab);
    current = nullptr;
    if (tab == std::string_view::npos || !isPlainName(name, nameMarks)) continue;
    current = &packages[std::string(name)];
    const auto bytes = decimalInteger(line.substr(tab + 1));
    if (bytes && *bytes > 0 && *bytes <= largestSize) {
      current->bytes = addBytes(current->bytes, *bytes);
    }
  }
  return packages;
}

PackageNames rpmDependents(std::string_view errors) {
  PackageNames names;
  while (!errors.empty()) {
    std::string_view line = takeLine(errors);
    const auto mark = line.find(neededMark);
    if (mark == std::string_view::npos) continue;
    line.remove_prefix(mark + neededMark.size());
    // "NAME-VERSION-RELEASE.ARCHITECTURE", where only the name may hold more hyphens.
    const auto release = line.rfind('-');
    if (release == std::string_view::npos || release == 0) continue;
    const auto version = line.rfind('-', release - 1);
    if (version == std::string_view::npos) continue;
    const std::string_view name = line.substr(0, version);
    if (isPlainName(name, nameMarks)) names.emplace(name);
  }
  return names;
}

std::optional<PackageNames> rpmDependentsOf(const Platform& platform, const PackageManager& manager,
                                            const std::string& package) {
  PackageNames removed{package};
  for (int step = 0; step < mostSteps; ++step) {
    Command command = removalQuestion(platform, manager);
    command.insert(command.end(), removed.begin(), removed.end());
    const ToolResult answer = platform.tools.run(command, {.time = mostTimeForAnAnswer});
    if (answer.end != ToolResult::End::exited || answer.isCut) return std::nullopt;
    if (answer.status == 0) {
      removed.erase(package);
      return removed;
    }
    PackageNames more = rpmDependents(answer.errors);
    const std::size_t before = removed.size();
    removed.merge(more);
    // It was refused for another reason.
    if (removed.size() == before) return std::nullopt;
  }
  return std::nullopt;
}

PackageOwners rpmOwners(const Platform& platform, const PackageManager& manager,
                        const std::set<Path>& paths) {
  PackageOwners owners;
  std::vector<std::string> there;
  for (const Path& path : paths) {
    const bool isOneLine = path.native().find('\n') == std::string::npos;
    if (isOneLine && platform.files.attributes(path)) there.push_back(path.native());
  }
  // Which answer is of which file this does not say: one of several packages has several lines.
  PackageNames names;
  Command whose = query(platform, manager, "%{NAME}\\n");
  whose.push_back("--file");
  if (!askInParts(platform, whose, there,
                  [&](std::string_view output) { names.merge(namesIn(output)); })) {
    return owners;
  }
  const PackageNames kept = protectedNames(platform.files, manager.protectedLists);
  const Command what = query(platform, manager, "%{NAME}\\t%{LONGSIZE}\\n[\\t%{FILENAMES}\\n]");
  const auto take = [&](std::string_view output) {
    for (const auto& [name, package] : readRpmPackages(output, paths)) {
      for (const Path& path : package.owned) {
        owners.emplace(path, SystemPackage{.name = name,
                                           .bytes = package.bytes,
                                           .isNeeded = kept.contains(name),
                                           .manager = &manager});
      }
    }
  };
  if (!askInParts(platform, what, names, take)) owners.clear();
  return owners;
}

std::optional<PackageNames> rpmNames(const Platform& platform, const PackageManager& manager) {
  Command all = query(platform, manager, "%{NAME}\\n");
  all.push_back("--all");
  const ToolResult answer =
      platform.tools.run(all, {.time = mostTimeForAnAnswer, .output = longestAnswer});
  // Some packages it may not have been able to read.
  if (!answer.isWhole() || answer.errors.find("error: ") != std::string::npos) return std::nullopt;
  return namesIn(answer.output);
}

}  // namespace klarvik
