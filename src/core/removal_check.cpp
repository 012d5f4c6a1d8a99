#include "core/removal_check.h"

#include "platform/file_system.h"

namespace klarvik {

bool mayRemove(const FileSystem& files, const Path& named, const DeletionScope& scope) {
  return !DeletionGuard::refusalReason(named, scope, files.home());
}

ItemCheck itemCheck(const FileSystem& files, const Path& named, const DeletionScope& scope,
                    const std::optional<EntryIdentity>& shown) {
  return [&files, named, scope, shown](const Path& real, const FileAttributes& item) {
    return entryIdentity(item) == shown &&
           (real == named || !DeletionGuard::refusalReason(real, scope, files.realHome()));
  };
}

void countIfReplaced(const FileSystem& files, const Path& named,
                     const std::optional<EntryIdentity>& shown, LeftAlone* leftAlone) {
  const auto now = files.attributes(named);
  if (leftAlone && now && entryIdentity(*now) != shown) ++leftAlone->replaced;
}

bool removeIfAllowed(FileSystem& files, const Path& path, const DeletionScope& scope,
                     const std::optional<EntryIdentity>& shown, LeftAlone* leftAlone) {
  const Path named = standardizedPath(path);
  if (!mayRemove(files, named, scope)) return false;
  const bool removed = files.remove(named, itemCheck(files, named, scope, shown));
  if (!removed) countIfReplaced(files, named, shown, leftAlone);
  return removed;
}

}  // namespace klarvik
