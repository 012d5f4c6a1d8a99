#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/uuid.h"
#include "platform/date.h"
#include "platform/entry_identity.h"
#include "platform/path.h"

namespace klarvik {

class Formatting;

/// One file that a walk for large files listed.
struct LargeFile {
  Uuid id = Uuid::random();  ///< made afresh by each walk
  Path url;
  std::int64_t size = 0;  ///< bytes; the length of the content
  std::optional<Date> modifiedDate = std::nullopt;
  std::optional<Date> lastOpened = std::nullopt;  ///< when the file system last saw it read
  /// As it was found. Another thing that comes to its name later is not removed in its place.
  std::optional<EntryIdentity> identity = std::nullopt;

  /// What the user calls such a file: "Video", "Archive", "Other". By the extension alone.
  [[nodiscard]] std::string_view kind() const;
  /// "3 days ago", seen from `now`; "never" where the file system keeps no such date.
  [[nodiscard]] std::string lastOpenedText(const Formatting& formatting, Date now) const;

  bool operator==(const LargeFile&) const = default;
};

/// Files are never changed once they are listed, so that lists share them: a list is cheap to copy
/// and to hand to another thread, and a file is the same object in every list of one walk.
using LargeFileList = std::vector<std::shared_ptr<const LargeFile>>;

/// The orders in which a user may look at the files.
enum class LargeFileSort { size, date, name };

/// "Size", "Last opened", "Name".
[[nodiscard]] std::string_view label(LargeFileSort sort);

/// Stable. By size the largest come first; by date those never opened, then those not opened for
/// longest; by name as a user of the locale expects it, without regard to case.
void sortFiles(LargeFileList& files, LargeFileSort sort, const Formatting& formatting);

/// Brings more files into a list that is sorted by size, each behind those of its own size. Cheap
/// when few are new: the others are moved on as they stand.
void mergeBySize(LargeFileList& sorted, LargeFileList fresh);

}  // namespace klarvik
