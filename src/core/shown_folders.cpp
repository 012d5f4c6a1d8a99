#include "core/shown_folders.h"

#include <algorithm>

#include "places/disk_layout.h"
#include "platform/file_system.h"

namespace klarvik {
namespace {

bool isAtOrBelow(const Path& path, const Path& folder) {
  const Path below = path.lexically_relative(folder);
  return !below.empty() && *below.begin() != "..";
}

/// A folder on a volume of its own counts as none: nothing is looked for there.
UserFolders ofTheHomesVolume(const FileSystem& files) {
  UserFolders folders = files.folders();
  for (const auto folder : {&UserFolders::desktop, &UserFolders::documents, &UserFolders::downloads,
                            &UserFolders::music, &UserFolders::pictures, &UserFolders::videos}) {
    if (files.isMountPoint(folders.*folder)) folders.*folder = folders.home;
  }
  return folders;
}

}  // namespace

UserFolders shownFolders(const FileSystem& files) {
  if (layoutFor(files.home()).desktopNamesFolders) return ofTheHomesVolume(files);
  UserFolders usual = UserFolders::in(files.home());
  usual.videos = files.home() / "Movies";
  return usual;
}

std::vector<Path> withoutNested(const std::vector<Path>& folders, const Path& home) {
  std::vector<Path> kept;
  for (const Path& folder : folders) {
    const bool isNested =
        isAtOrBelow(home, folder) || std::ranges::any_of(folders, [&](const Path& other) {
          return &other != &folder && isAtOrBelow(folder, other) &&
                 (other != folder || &other < &folder) && !isAtOrBelow(home, other);
        });
    if (!isNested) kept.push_back(folder);
  }
  return kept;
}

}  // namespace klarvik
