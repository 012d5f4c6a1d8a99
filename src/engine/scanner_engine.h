#pragma once

#include <cstdint>
#include <functional>
#include <mutex>
#include <optional>
#include <set>
#include <stop_token>
#include <string>
#include <vector>

#include "core/junk_model.h"
#include "core/removal_outcome.h"
#include "platform/platform.h"

namespace klarvik {

/// What a running Smart Scan reports.
struct ScanUpdate {
  double fraction = 0;
  std::string categoryName;
  std::optional<std::string> currentPath;  ///< path of the last item added; bytes of the disk
  std::int64_t partialItems = 0;
  std::int64_t partialBytes = 0;
  std::int64_t completedCategories = 0;
  std::int64_t totalCategories = 0;

  bool operator==(const ScanUpdate&) const = default;
};

/// What a running removal reports after each finished item, refused and failed ones included.
struct DeletionProgress {
  std::int64_t completed = 0;
  std::int64_t total = 0;
  std::string currentName;  ///< of the item that just finished
  std::int64_t freed = 0;   ///< bytes so far

  bool operator==(const DeletionProgress&) const = default;
};

struct DeletionOutcome {
  std::int64_t reclaimed = 0;  ///< bytes that this item counts for; 0 when it was not removed
  Path originalURL;
  /// Where the Trash put it; nothing when it is not there.
  std::optional<Path> trashedURL = std::nullopt;
  std::size_t item = 0;  ///< its number in the list that `deleteItems` was given
};

/// A file that the user chose by hand.
struct PickedFile {
  Path url;
  std::string name;
  std::int64_t size = 0;
  /// As it was found. Another file that comes to its name later is not moved in its place.
  std::optional<EntryIdentity> identity = std::nullopt;
};

struct PickedFileOutcome {
  Path url;
  std::int64_t bytes = 0;
  bool moved = false;
  std::optional<Path> trashedURL = std::nullopt;  ///< where the Trash put it
};

/// Scans the places where junk collects, and removes and restores what the user selected.
///
/// Owned by whoever started the work; cheap to make, and made afresh for each run. Operations are
/// synchronous and are meant to be called off the main thread. Scans of one engine run one after
/// the other; removals do not wait for them. Callbacks come on the calling thread (`scanAll`,
/// removals) and must not call back into the engine. Nothing throws: what fails counts as not found
/// or not done.
class ScannerEngine {
 public:
  using UpdateSink = std::function<void(const ScanUpdate&)>;
  using CategorySink = std::function<void(const CleanCategory&)>;
  using DeletionSink = std::function<void(const DeletionProgress&)>;
  /// Asked of each picked file right before it goes, on any of the removal's threads, several at a
  /// time; a file that gets a no stays.
  using PickedFileCheck = std::function<bool(const PickedFile&)>;

  /// No more removals than this are under way at any time.
  static constexpr std::size_t deletionWidth = 6;

  /// `leftAlone`, where there is one, counts what is left although it was selected; it must outlive
  /// the engine.
  explicit ScannerEngine(const Platform& platform, LeftAlone* leftAlone = nullptr);

  /// Goes through the scan table, and answers what it found, largest category first. A stop request
  /// is seen between two rows; what was found until then is answered.
  std::vector<CleanCategory> scanAll(std::stop_token stop, const UpdateSink& onUpdate,
                                     const CategorySink& onCategory);

  /// What a tool removes is handed to it, and never touched here; a stop ends the tool.
  DeletionOutcome deleteItem(const JunkItem& item, bool useTrash, const std::stop_token& stop = {});
  /// In order of finishing. After a stop request no further item is started; items under way are
  /// finished and are part of the answer, but no longer reported to `progress`.
  std::vector<DeletionOutcome> deleteItems(const std::vector<JunkItem>& items, bool useTrash,
                                           std::stop_token stop = {},
                                           const DeletionSink& progress = {});
  PickedFileOutcome trashFile(const PickedFile& file, const PickedFileCheck& check = {});
  /// The files that were really moved. Stopping is as in `deleteItems`.
  std::set<Path> trashFiles(const std::vector<PickedFile>& files, std::stop_token stop,
                            const DeletionSink& progress, const PickedFileCheck& check = {},
                            const TrashedSink& trashed = {});
  /// Puts items back, each where nothing stands: how many. A stop request is seen between two.
  std::int64_t restoreItems(std::vector<TrashedItem> items, const std::stop_token& stop);
  /// Nothing but what has the identity `trashed`, if it is told, goes back.
  bool restoreItem(const Path& trashedURL, const Path& originalURL,
                   const std::optional<EntryIdentity>& trashed = std::nullopt);
  /// Bytes reclaimed. Entries that come into the Trash meanwhile stay.
  std::int64_t emptyTrash(std::stop_token stop = {}, const DeletionSink& progress = {});

 private:
  DeletionOutcome deleteByTool(const JunkItem& item, const std::stop_token& stop);
  void begin(std::string name, double fraction);
  void countItem(const JunkItem& item);
  void publishUpdate() const;

  const Platform& _platform;
  LeftAlone* const _leftAlone;
  std::mutex _scanning;
  std::mutex _toolTurn;    ///< two runs of a tool would be in each other's way
  ScanUpdate _current;     ///< of the row being scanned; keeps its last values after the run
  UpdateSink _updateSink;  ///< only during a run
};

/// Largest first; items of one size keep their order.
void sortItemsBySize(std::vector<JunkItem>& items);

}  // namespace klarvik
