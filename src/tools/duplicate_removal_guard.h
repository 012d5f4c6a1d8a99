#pragma once

#include <memory>
#include <stop_token>
#include <string>
#include <unordered_map>

#include "engine/scanner_engine.h"

namespace klarvik {

class Trash;

/// The copy of a group that stays.
struct KeptCopy {
  Path url;
  std::string hash;  ///< as in `DuplicateGroup`
};

/// Which copy stays in the place of which: by the path of the one that goes.
using KeptCopies = std::unordered_map<std::string, std::shared_ptr<const KeptCopy>>;

/// Asked right before a copy goes, on any of the removal's threads: it may only if the one that
/// stays was just now read whole, holds the same content, and is another file. One that waits in
/// the Trash does not stay. A copy that is kept for any group may not go. After a stop
/// request nothing may. `leftAlone`, where there is one, counts copies that are the very file that
/// stays. The answer must not outlive what it refers to.
[[nodiscard]] ScannerEngine::PickedFileCheck duplicateRemovalGuard(const FileSystem& files,
                                                                   const Trash& trash,
                                                                   KeptCopies keptCopies,
                                                                   std::stop_token stop,
                                                                   LeftAlone* leftAlone = nullptr);

}  // namespace klarvik
