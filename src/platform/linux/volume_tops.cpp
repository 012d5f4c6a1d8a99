#include "platform/linux/volume_tops.h"

#include <algorithm>

#include "base/paths.h"

namespace klarvik {
namespace {

/// A folder of the file system, and where the machine shows it.
struct View {
  Path place;
  Path top;
  bool holdsHome = false;
};

bool isAtOrBelow(const Path& path, const Path& folder) {
  return path == folder || isBelow(path.native(), folder.native());
}

/// `folder` with what leads from `above` to `below` added.
Path movedBelow(const Path& folder, const Path& below, const Path& above) {
  const Path rest = below.lexically_relative(above);
  return rest == "." ? folder : folder / rest;
}

/// Whether the way to `mount` leads through a file system that may not answer.
bool isBehindOther(const MountPoint& mount, const std::vector<MountPoint>& mounts) {
  return std::ranges::any_of(mounts, [&](const MountPoint& above) {
    return above.volume != mount.volume && !above.isLocal && above.place != "/" &&
           isAtOrBelow(mount.place, above.place);
  });
}

std::vector<View> viewsOf(std::uint64_t volume, const std::vector<MountPoint>& mounts,
                          const RootFolder& root, std::uint64_t homeMount) {
  std::vector<View> views;
  for (const MountPoint& mount : mounts) {
    if (mount.volume != volume) continue;
    const bool holdsHome = mount.id == homeMount;
    if (mount.id == root.mount) {
      views.push_back({root.place, movedBelow(mount.top, root.place, mount.place), holdsHome});
    } else if (isBelow(mount.place.native(), root.place.native()) &&
               (holdsHome || !isBehindOther(mount, mounts))) {
      views.push_back({mount.place, mount.top, holdsHome});
    }
  }
  return views;
}

}  // namespace

VolumeTops volumeTopsFrom(const std::vector<MountPoint>& mounts, const RootFolder& root,
                          std::uint64_t homeMount) {
  const auto home = std::ranges::find(mounts, homeMount, &MountPoint::id);
  if (home == mounts.end()) return {};
  std::vector<View> views = viewsOf(home->volume, mounts, root, homeMount);
  // What the home lies in counts under its own name, and else what shows most.
  std::ranges::stable_sort(views, [](const View& left, const View& right) {
    if (left.holdsHome != right.holdsHome) return left.holdsHome;
    return left.top.native().size() < right.top.native().size();
  });
  std::vector<View> chosen;
  VolumeTops tops;
  for (const View& view : views) {
    const auto shows = [&](const View& other) { return isAtOrBelow(view.top, other.top); };
    if (std::ranges::any_of(chosen, shows)) continue;
    for (const View& other : chosen) {
      if (!isAtOrBelow(other.top, view.top)) continue;
      tops.seenElsewhere.push_back(movedBelow(view.place, other.top, view.top));
    }
    tops.folders.push_back(view.place);
    chosen.push_back(view);
  }
  return tops;
}

}  // namespace klarvik
