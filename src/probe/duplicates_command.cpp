#include <iostream>
#include <span>

#include "base/text.h"
#include "probe/command.h"
#include "probe/report.h"
#include "tools/duplicate_group.h"
#include "tools/duplicate_removal_guard.h"
#include "tools/duplicate_scanner.h"

namespace klarvik::probe {
namespace {

Report reportOf(const DuplicateProgress& progress) {
  return {{"event", "progress"},
          {"fraction", progress.fraction},
          {"groupsFound", progress.groupsFound},
          {"line", textReport(progress.line.english())}};
}

Report reportOf(const DuplicateGroup& group) {
  Report files = Report::array();
  for (const DuplicateFile& file : group.files) {
    files.push_back({{"path", pathReport(file.url)},
                     {"size", file.size},
                     {"modifiedNanoseconds", dateReport(file.modifiedDate)}});
  }
  return {{"event", "group"},
          {"hash", group.hash},
          {"reclaimableBytes", group.reclaimableBytes()},
          {"files", std::move(files)}};
}

/// Of `words`, a least size in bytes and folders. Nothing when the former is none, which it says.
std::optional<std::vector<DuplicateGroup>> scan(const Invocation& call,
                                                std::span<const std::string> words) {
  const auto minimumSize = decimalInteger(words[0]);
  if (!minimumSize) {
    std::cerr << "klarvik-probe: duplicates: the least size is a number of bytes\n";
    return std::nullopt;
  }
  const std::vector<Path> directories(words.begin() + 1, words.end());
  return DuplicateScanner(call.platform.files)
      .scan(directories, *minimumSize,
            [](const DuplicateProgress& progress) { print(reportOf(progress)); });
}

std::optional<DuplicateSelection::KeepRule> ruleNamed(std::string_view name) {
  using enum DuplicateSelection::KeepRule;
  if (name == "newest") return newest;
  if (name == "oldest") return oldest;
  if (name == "shallowest") return shallowest;
  return std::nullopt;
}

}  // namespace

int duplicates(const Invocation& call) {
  const auto groups = scan(call, call.arguments);
  if (!groups) return usageError;
  for (const DuplicateGroup& group : *groups) std::cout << reportOf(group) << '\n';
  return 0;
}

int trashDuplicates(const Invocation& call) {
  const auto rule = ruleNamed(call.arguments[0]);
  if (!rule) {
    std::cerr << "klarvik-probe: trash-duplicates: no such rule\n";
    return usageError;
  }
  const auto groups = scan(call, std::span(call.arguments).subspan(1));
  if (!groups) return usageError;
  std::vector<PickedFile> files;
  KeptCopies kept;
  for (const DuplicateGroup& group : *groups) {
    const auto stays = std::make_shared<const KeptCopy>(
        KeptCopy{DuplicateSelection::keeper(group, *rule)->url, group.hash});
    for (const DuplicateFile& file : DuplicateSelection::removable(group, *rule)) {
      kept.try_emplace(file.url.native(), stays);
      files.push_back({file.url, file.url.filename().native(), file.size, file.identity});
    }
  }
  const auto& platform = call.platform;
  const auto moved = ScannerEngine(platform).trashFiles(
      files, call.stop, [](const DeletionProgress& progress) { print(progressReport(progress)); },
      duplicateRemovalGuard(platform.files, platform.trash, std::move(kept), call.stop));
  for (const Path& path : moved) print({{"event", "moved"}, {"path", pathReport(path)}});
  return 0;
}

}  // namespace klarvik::probe
