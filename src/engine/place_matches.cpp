#include "engine/place_matches.h"

#include <utility>

#include "base/paths.h"
#include "places/path_pattern.h"
#include "platform/file_system.h"

namespace klarvik {
namespace {

bool hasKind(FileKind kind, PlaceKinds wanted) {
  return kind == FileKind::directory ||
         (wanted == PlaceKinds::all && kind != FileKind::symbolicLink);
}

/// The things of these kinds in `folder` that `piece` stands for. Where the folder is a link, what
/// it leads to is listed.
std::vector<Path> listed(const FileSystem& files, const Path& folder, std::string_view piece,
                         PlaceKinds kinds) {
  std::vector<Path> found;
  // A walk tells the kinds without asking for the attributes of each thing.
  const auto outcome = files.walk(folder, {.stayOnMount = true}, [&](const WalkEntry& entry) {
    if (nameMatches(piece, entry.name()) && hasKind(entry.kind(), kinds)) {
      found.push_back(folder / entry.name());
    }
    return WalkStep::skipDescendants;
  });
  if (outcome == WalkOutcome::refused) {
    found = files.list(folder).value_or(std::vector<Path>{});
    std::erase_if(found, [&](const Path& child) {
      if (!nameMatches(piece, child.filename().native()) || files.isMountPoint(child)) return true;
      const auto attributes = files.attributes(child);
      return !attributes || !hasKind(attributes->kind, kinds);
    });
  }
  return found;
}

}  // namespace

std::vector<PlaceMatch> matchesBelow(const FileSystem& files, std::vector<PlaceMatch> starts,
                                     std::string_view pattern, PlaceKinds kinds) {
  const auto pieces = splitPath(pattern);
  for (const std::string_view& piece : pieces) {
    const PlaceKinds wanted = &piece == &pieces.back() ? kinds : PlaceKinds::folders;
    std::vector<PlaceMatch> next;
    for (const PlaceMatch& start : starts) {
      const bool isPattern = piece.find('*') != std::string_view::npos;
      const auto places =
          isPattern ? listed(files, start.path, piece, wanted) : std::vector{start.path / piece};
      for (const Path& place : places) {
        // Not even a name is looked up on a volume that may not answer.
        if (files.isMountPoint(place)) continue;
        next.push_back({.path = place, .stars = start.stars});
        if (isPattern) next.back().stars.push_back(place.filename().native());
      }
    }
    starts = std::move(next);
  }
  return starts;
}

/// The mount is looked at first, because what is mounted at a place may not answer.
bool isElsewhere(const FileSystem& files, const Path& path) {
  if (files.isMountPoint(path)) return true;
  const auto attributes = files.attributes(path);
  return attributes && attributes->kind == FileKind::symbolicLink;
}

}  // namespace klarvik
