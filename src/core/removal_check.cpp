#include "core/removal_check.h"

#include "platform/file_system.h"

namespace klarvik {

bool mayRemove(const FileSystem& files, const Path& named, const DeletionScope& scope) {
  return !DeletionGuard::refusalReason(named, scope, files.home());
}

PlaceCheck placeCheck(const FileSystem& files, const Path& named, const DeletionScope& scope) {
  return [&files, named, scope](const Path& real) {
    return real == named || !DeletionGuard::refusalReason(real, scope, files.realHome());
  };
}

bool removeIfAllowed(FileSystem& files, const Path& path, const DeletionScope& scope) {
  const Path named = standardizedPath(path);
  return mayRemove(files, named, scope) && files.remove(named, placeCheck(files, named, scope));
}

}  // namespace klarvik
