#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "base/paths.h"

namespace klarvik {

/// What became of a question or of a change to the databases of a Firefox profile. Unless it is
/// `done`, nothing has been changed; only after `failed` may all of a change be on the disk, where
/// it could not be asked any more.
enum class HistoryOutcome {
  done,
  inUse,     ///< a program has the database open
  replaced,  ///< it is not the file any more that was meant
  tooLarge,  ///< larger than any history, or it takes longer than a user would wait
  unknown,   ///< its tables are not those of a history that Klarvik knows
  damaged,   ///< no database, or one whose content contradicts itself
  failed,    ///< the system refused, for want of space or of rights
};

/// The databases of one profile, as paths on the machine without a link among their folders.
struct FirefoxDatabases {
  Path places;                               ///< the pages visited, and the bookmarks
  std::optional<Path> icons = std::nullopt;  ///< of the pages; nothing where there are none
};

struct FirefoxHistory {
  HistoryOutcome outcome = HistoryOutcome::failed;
  std::int64_t pages = 0;    ///< that were visited, or that nothing but the history keeps
  bool mayHoldMore = false;  ///< Firefox has ended, or goes on, without writing all to the file
};

/// Counts what a history holds. Changes nothing, not even the files beside the database, and waits
/// for no other program. Nothing throws; any thread.
[[nodiscard]] FirefoxHistory readFirefoxHistory(const FirefoxDatabases& databases);

/// Takes the history out of a profile in one transaction: visits, what was typed to find a page,
/// downloads, and the pages that no bookmark, keyword or note keeps, with their icons. What is
/// taken out is overwritten in the file. Bookmarks and the pages that they lead to stay.
///
/// `isStillIt` is asked once nobody else can open the database any more, and before anything is
/// changed; false leaves everything as it is. Whatever fails on the way, the database is as it was,
/// or the whole history is gone.
/// Nothing throws; any thread.
[[nodiscard]] HistoryOutcome clearFirefoxHistory(const FirefoxDatabases& databases,
                                                 const std::function<bool()>& isStillIt);

}  // namespace klarvik
