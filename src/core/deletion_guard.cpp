#include "core/deletion_guard.h"

#include <string>
#include <string_view>
#include <vector>

#include "base/paths.h"
#include "core/deletion_rules.h"
#include "places/disk_layout.h"
#include "places/path_pattern.h"

namespace klarvik {

std::optional<Message> DeletionGuard::refusalReason(const Path& path, const DeletionScope& scope,
                                                    const Path& home) {
  const Path standardized = standardizedPath(home);
  return refusalReason(path, scope, UserFolders::in(standardized), layoutFor(standardized));
}

std::optional<Message> DeletionGuard::refusalReason(const Path& givenPath,
                                                    const DeletionScope& scope,
                                                    const UserFolders& folders,
                                                    const DiskLayout& layout) {
  const std::string path = standardizedPath(givenPath).native();
  // The disk would read such a path only as far as its NUL, which is another path than this one.
  const bool namesAPath = givenPath.native().find('\0') == std::string::npos;
  if (!path.starts_with('/') || !namesAPath)
    return refuse(QT_TRANSLATE_NOOP("Engine", "Path is not absolute."));
  // Any two dots in a row, also inside a name: wider than needed, and wanted so.
  if (path.find("..") != std::string::npos) {
    return refuse(QT_TRANSLATE_NOOP("Engine", "Path contains a parent-directory reference."));
  }
  const std::string home = standardizedPath(folders.home).native();
  const DeletionQuestion question{path, scope, folders, layout, home};
  return layout.guard.onlyListedPlaces ? refusalByAllowList(question) : refusalByDenyList(question);
}

}  // namespace klarvik
