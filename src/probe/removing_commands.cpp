// Commands that change the disk.

#include <iostream>

#include "platform/file_system.h"
#include "probe/command.h"
#include "probe/report.h"

namespace klarvik::probe {

namespace {

void printProgress(const DeletionProgress& progress) {
  print(progressReport(progress));
}

std::vector<JunkItem> selection(const std::vector<CleanCategory>& found, bool onlySafe) {
  std::vector<JunkItem> items;
  for (const CleanCategory& category : found) {
    if (onlySafe && safety(category.type) != SafetyLevel::safe) continue;
    items.insert(items.end(), category.items.begin(), category.items.end());
  }
  return items;
}

}  // namespace

int clean(const Invocation& call) {
  ScannerEngine engine(call.platform);
  const auto found =
      engine.scanAll(call.stop, [](const ScanUpdate& update) { print(updateReport(update)); }, {});
  const auto outcomes = engine.deleteItems(selection(found, call.has(onlySafe)), !call.has(noTrash),
                                           call.stop, printProgress);
  for (const DeletionOutcome& outcome : outcomes) print(outcomeReport(outcome));
  return 0;
}

int trashFiles(const Invocation& call) {
  std::vector<PickedFile> files;
  for (const std::string& entry : readEntries(std::cin, call)) {
    const Path path = entry;
    const auto attributes = call.platform.files.attributes(path);
    files.push_back({.url = path,
                     .name = path.filename().native(),
                     .size = attributes ? attributes->logicalBytes : 0,
                     .identity = attributes ? entryIdentity(*attributes) : std::nullopt});
  }
  const auto moved = ScannerEngine(call.platform).trashFiles(files, call.stop, printProgress);
  for (const Path& path : moved) print({{"event", "moved"}, {"path", pathReport(path)}});
  return 0;
}

int restore(const Invocation& call) {
  const auto entries = readEntries(std::cin, call);
  if (entries.size() % 2 != 0) {
    std::cerr << "klarvik-probe: restore: a trashed path without an original path\n";
    return usageError;
  }
  ScannerEngine engine(call.platform);
  for (std::size_t at = 0; at < entries.size() && !call.stop.stop_requested(); at += 2) {
    const Path trashed = entries[at];
    const Path original = entries[at + 1];
    const bool restored = engine.restoreItem(trashed, original);
    print({{"trashed", pathReport(trashed)},
           {"original", pathReport(original)},
           {"restored", restored}});
  }
  return 0;
}

int emptyTrash(const Invocation& call) {
  const auto reclaimed = ScannerEngine(call.platform).emptyTrash(call.stop, printProgress);
  print({{"event", "result"}, {"reclaimed", reclaimed}});
  return 0;
}

}  // namespace klarvik::probe
