// Every removal of a found item or a picked file, and the way back.

#include <algorithm>

#include "base/bytes.h"
#include "base/parallel_for.h"
#include "base/paths.h"
#include "core/removal_check.h"
#include "engine/local_snapshots.h"
#include "engine/place_scanner.h"
#include "engine/scanner_engine.h"
#include "engine/shell.h"
#include "engine/sizes.h"
#include "engine/tool_removal.h"
#include "platform/file_system.h"
#include "platform/trash.h"

namespace klarvik {

namespace {

/// Counts what has finished, and tells it until a stop request has been noticed.
class ProgressCounter {
 public:
  ProgressCounter(std::size_t total, std::stop_token stop,
                  const ScannerEngine::DeletionSink& progress)
      : _stop(std::move(stop)), _progress(progress) {
    _told.total = static_cast<std::int64_t>(total);
  }

  void add(const std::string& name, std::int64_t bytes) {
    ++_told.completed;
    _told.freed = addBytes(_told.freed, bytes);
    _told.currentName = name;
    if (_progress && !_silent) _progress(_told);
    _silent = _silent || _stop.stop_requested();
  }

 private:
  std::stop_token _stop;
  const ScannerEngine::DeletionSink& _progress;
  DeletionProgress _told;
  bool _silent = false;
};

bool removeSnapshot(CommandRunner& commands, const Path& named) {
  const auto command = snapshotRemovalCommand(named);
  return command && !runShell(commands, *command).empty();
}

}  // namespace

DeletionOutcome ScannerEngine::deleteItem(const JunkItem& item, bool useTrash,
                                          const std::stop_token& stop) {
  if (item.tool != nullptr) return deleteByTool(item, stop);
  // What is removed is the very path that the guard judged, spelled without detours.
  const Path named = standardizedPath(item.path);
  DeletionOutcome outcome{.originalURL = item.path};
  const bool isInTrash = _platform.trash.contains(named);
  const auto scope = isInTrash ? DeletionScope::trashed() : DeletionScope::general();
  if (!mayRemove(_platform.files, named, scope)) return outcome;
  if (!isInTrash && !isStillOffered(_platform, named)) return outcome;

  const ItemCheck check = itemCheck(_platform.files, named, scope, item.identity);
  bool removed = false;
  if (isSnapshotPath(named)) {
    removed = removeSnapshot(_platform.commands, named);
  } else if (isInTrash) {
    removed = _platform.trash.remove(named, check);
  } else if (!useTrash || item.goesForGood) {
    removed = _platform.files.remove(named, check);
  } else {
    outcome.trashedURL = _platform.trash.moveToTrash(named, check);
    removed = outcome.trashedURL.has_value();
  }
  outcome.reclaimed = removed ? item.size : 0;
  if (!removed) countIfReplaced(_platform.files, named, item.identity, _leftAlone);
  return outcome;
}

DeletionOutcome ScannerEngine::deleteByTool(const JunkItem& item, const std::stop_token& stop) {
  const std::scoped_lock turn(_toolTurn);
  DeletionOutcome outcome{.originalURL = item.path};
  // It has not had its turn yet.
  if (stop.stop_requested()) return outcome;
  outcome.reclaimed = removeByTool(_platform, item, stop).reclaimed;
  if (outcome.reclaimed < 1 && _leftAlone != nullptr) ++_leftAlone->toolsInVain;
  return outcome;
}

std::vector<DeletionOutcome> ScannerEngine::deleteItems(const std::vector<JunkItem>& items,
                                                        bool useTrash, std::stop_token stop,
                                                        const DeletionSink& progress) {
  std::vector<DeletionOutcome> byNumber(items.size());
  std::vector<DeletionOutcome> outcomes;
  ProgressCounter tally(items.size(), stop, progress);
  parallelFor(
      {.count = items.size(), .width = deletionWidth, .stop = stop},
      [&](std::size_t number, std::size_t) {
        byNumber[number] = deleteItem(items[number], useTrash, stop);
      },
      [&](std::size_t number) {
        outcomes.push_back(std::move(byNumber[number]));
        outcomes.back().item = number;
        tally.add(items[number].name, outcomes.back().reclaimed);
      });
  return outcomes;
}

PickedFileOutcome ScannerEngine::trashFile(const PickedFile& file, const PickedFileCheck& check) {
  const Path named = standardizedPath(file.url);
  const auto scope = DeletionScope::pickedFile();
  const FileSystem& files = _platform.files;
  if (!mayRemove(files, named, scope)) return {.url = file.url};
  std::optional<Path> trashed;
  if (!check || check(file)) {
    trashed = _platform.trash.moveToTrash(named, itemCheck(files, named, scope, file.identity));
  }
  if (!trashed) countIfReplaced(files, named, file.identity, _leftAlone);
  const bool moved = trashed.has_value();
  return {.url = file.url, .bytes = moved ? file.size : 0, .moved = moved, .trashedURL = trashed};
}

std::set<Path> ScannerEngine::trashFiles(const std::vector<PickedFile>& files, std::stop_token stop,
                                         const DeletionSink& progress, const PickedFileCheck& check,
                                         const TrashedSink& trashed) {
  std::vector<PickedFileOutcome> byNumber(files.size());
  std::set<Path> moved;
  ProgressCounter tally(files.size(), stop, progress);
  parallelFor(
      {.count = files.size(), .width = deletionWidth, .stop = stop},
      [&](std::size_t number, std::size_t) { byNumber[number] = trashFile(files[number], check); },
      [&](std::size_t number) {
        const PickedFileOutcome& outcome = byNumber[number];
        if (outcome.moved) moved.insert(outcome.url);
        if (outcome.moved && trashed) {
          trashed({outcome.url, *outcome.trashedURL, files[number].identity, outcome.bytes});
        }
        tally.add(outcome.url.filename().native(), outcome.bytes);
      });
  return moved;
}

std::int64_t ScannerEngine::restoreItems(std::vector<TrashedItem> items,
                                         const std::stop_token& stop) {
  // A folder comes before what lay in it: what returns makes the folders above it again, and such a
  // folder would be in the way of the one that was there.
  std::ranges::sort(items, {}, &TrashedItem::original);
  std::int64_t count = 0;
  for (const TrashedItem& item : items) {
    if (stop.stop_requested()) break;
    if (restoreItem(item.trashed, item.original, item.identity)) ++count;
  }
  return count;
}

bool ScannerEngine::restoreItem(const Path& trashedURL, const Path& originalURL,
                                const std::optional<EntryIdentity>& trashed) {
  const auto isMeant = [&](const FileAttributes& item) {
    return !trashed || entryIdentity(item) == trashed;
  };
  const auto waiting = _platform.files.attributes(trashedURL);
  if (!waiting) return false;
  if (!isMeant(*waiting)) {
    if (_leftAlone) ++_leftAlone->notReturned;
    return false;
  }
  // A link that leads nowhere is somebody's file as well.
  if (_platform.files.attributes(originalURL)) return false;
  return _platform.trash.putBack(
      trashedURL, originalURL,
      [&](const Path&, const FileAttributes& item) { return isMeant(item); });
}

std::int64_t ScannerEngine::emptyTrash(std::stop_token stop, const DeletionSink& progress) {
  // All are told apart before the first is measured, which may take long: what comes to a name
  // meanwhile is not meant.
  std::vector<JunkItem> entries;
  for (const Path& entry : _platform.trash.list().value_or(std::vector<Path>{})) {
    if (!_platform.files.attributes(entry)) continue;
    entries.push_back({.name = entry.filename().native(),
                       .path = entry,
                       .identity = entryIdentity(_platform.files, entry)});
  }
  for (JunkItem& entry : entries) {
    if (stop.stop_requested()) break;
    entry.size = allocatedSize(_platform.files, entry.path);
  }
  std::int64_t reclaimed = 0;
  for (const DeletionOutcome& outcome :
       deleteItems(entries, /*useTrash=*/false, std::move(stop), progress)) {
    reclaimed = addBytes(reclaimed, outcome.reclaimed);
  }
  _platform.trash.dropRecordsOfNothing();
  return reclaimed;
}

}  // namespace klarvik
