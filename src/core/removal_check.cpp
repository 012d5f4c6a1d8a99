#include "core/removal_check.h"

#include "base/paths.h"
#include "places/disk_layout.h"
#include "platform/file_system.h"

namespace klarvik {

bool mayRemove(const FileSystem& files, const Path& named, const DeletionScope& scope) {
  const Path home = standardizedPath(files.home());
  return !DeletionGuard::refusalReason(named, scope, files.folders(), layoutFor(home));
}

namespace {

/// The user's folders where they really lie, links on the way followed.
UserFolders realFolders(const FileSystem& files) {
  const UserFolders named = files.folders();
  UserFolders real = named.movedTo(files.realHome());
  for (Path UserFolders::*folder : {&UserFolders::cache, &UserFolders::configuration,
                                    &UserFolders::data, &UserFolders::state}) {
    if (const auto inside = files.realPath(named.*folder / "x")) {
      real.*folder = inside->parent_path();
    }
  }
  return real;
}

}  // namespace

bool mayRemoveReal(const FileSystem& files, const Path& real, const DeletionScope& scope) {
  const Path home = standardizedPath(files.home());
  return !DeletionGuard::refusalReason(real, scope, realFolders(files), layoutFor(home));
}

ItemCheck itemCheck(const FileSystem& files, const Path& named, const DeletionScope& scope,
                    const std::optional<EntryIdentity>& shown) {
  return [&files, named, scope, shown](const Path& real, const FileAttributes& item) {
    return entryIdentity(item) == shown && (real == named || mayRemoveReal(files, real, scope));
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
