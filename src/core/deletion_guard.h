#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/message.h"
#include "base/paths.h"
#include "platform/user_folders.h"

namespace klarvik {

struct DiskLayout;

/// What kind of removal is being asked for.
struct DeletionScope {
  enum class Kind {
    general,      ///< an item that a scanner found
    pickedFile,   ///< a file that the user chose by hand
    residual,     ///< a file left behind by an application that is being uninstalled
    trail,        ///< a trail of what the user did
    database,     ///< a file from which entries are taken, and which stays
    origin,       ///< a file that says where it came from, and which stays
    application,  ///< what the user has installed by hand, and what goes along with it
    trashed,      ///< an entry of the user's Trash, on whatever volume
  };
  Kind kind = Kind::general;
  std::vector<std::string> identifiers;  ///< of that application; `residual` only

  static DeletionScope general() { return {Kind::general, {}}; }
  static DeletionScope pickedFile() { return {Kind::pickedFile, {}}; }
  static DeletionScope trail() { return {Kind::trail, {}}; }
  static DeletionScope database() { return {Kind::database, {}}; }
  static DeletionScope origin() { return {Kind::origin, {}}; }
  static DeletionScope application() { return {Kind::application, {}}; }
  static DeletionScope trashed() { return {Kind::trashed, {}}; }
  static DeletionScope residual(std::vector<std::string> identifiers) {
    return {Kind::residual, std::move(identifiers)};
  }
};

/// The one rule set that stands between any removal and the disk. A pure decision about the text of
/// a path: it touches no file, so a missing path gets the same answer as one that is there. May be
/// called from any thread.
class DeletionGuard {
 public:
  /// Nothing when `path` may be removed, else a sentence that says why not.
  [[nodiscard]] static std::optional<Message> refusalReason(const Path& path,
                                                            const DeletionScope& scope,
                                                            const Path& home);
  /// The same by the rules of `layout`, for a user whose folders lie elsewhere.
  [[nodiscard]] static std::optional<Message> refusalReason(const Path& path,
                                                            const DeletionScope& scope,
                                                            const UserFolders& folders,
                                                            const DiskLayout& layout);
};

}  // namespace klarvik
