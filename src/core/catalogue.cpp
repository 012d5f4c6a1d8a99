#include "core/catalogue.h"

#include <algorithm>

#include "base/paths.h"
#include "base/text.h"
#include "places/path_pattern.h"

namespace klarvik {
namespace {

constexpr std::string_view usualFolder(Base base) {
  switch (base) {
    case Base::cache:
      return ".cache";
    case Base::config:
      return ".config";
    case Base::data:
      return ".local/share";
    case Base::state:
      return ".local/state";
    case Base::root:
    case Base::home:
      break;
  }
  return {};
}

bool isAtOrBelow(Relation relation) {
  return relation == Relation::at || relation == Relation::below;
}

bool hasExceptedStar(const Place& place, const PatternMatch& match) {
  return std::ranges::any_of(match.stars, [&](std::string_view name) {
    return nameMatchesAny(place.details.except, name);
  });
}

/// Only the whole thing where its condition has been looked at, and all that is in it elsewhere.
bool isNamed(const Place& place, const PatternMatch& match) {
  const bool isWhole = match.relation == Relation::at;
  const bool isPart = match.relation == Relation::below;
  return (isWhole || (isPart && place.details.condition == Condition::none)) &&
         !hasExceptedStar(place, match);
}

}  // namespace

Catalogue::Catalogue(const DiskLayout& layout, const UserFolders& folders)
    : _layout(layout),
      _cache(usualFolder(Base::cache)),
      _config(usualFolder(Base::config)),
      _data(usualFolder(Base::data)),
      _state(usualFolder(Base::state)) {
  const auto choose = [&](std::string& folder, const Path& chosen) {
    const std::string below = chosen.lexically_relative(folders.home).native();
    if (below != folder && mayHoldBase(below)) folder = below;
  };
  choose(_cache, folders.cache);
  choose(_config, folders.configuration);
  choose(_data, folders.data);
  choose(_state, folders.state);
}

bool Catalogue::mayHoldBase(const std::string& folder) const {
  if (!folder.starts_with('.') || folder.find("..") != std::string::npos || folder == ".") {
    return false;
  }
  const auto pieces = splitPath(folder);
  const auto touches = [&](const PlacePattern& place) {
    return match(pieces, place).relation != Relation::apart;
  };
  const auto touchesPlace = [&](const Place& place) {
    return place.base != Base::root && touches({place.base, place.pattern});
  };
  return std::ranges::none_of(_layout.guard.secrets, touches) &&
         std::ranges::none_of(_layout.guard.ownPlaces, touches) &&
         std::ranges::none_of(_layout.places, touchesPlace);
}

std::optional<std::string_view> Catalogue::folder(Base base) const {
  switch (base) {
    case Base::root:
      return std::nullopt;
    case Base::home:
      return "";
    case Base::cache:
      return _cache;
    case Base::config:
      return _config;
    case Base::data:
      return _data;
    case Base::state:
      return _state;
  }
  return std::nullopt;
}

PatternMatch Catalogue::match(std::span<const std::string_view> path,
                              const PlacePattern& place) const {
  const auto chosen = folder(place.base).value_or("");
  PatternMatch found = matchPattern(path, {chosen, place.pattern});
  const auto usual = usualFolder(place.base);
  if (found.relation != Relation::apart || chosen == usual) return found;
  return matchPattern(path, {usual, place.pattern});
}

std::vector<const Place*> Catalogue::placesOf(std::span<const std::string_view> path,
                                              bool inHome) const {
  std::vector<const Place*> found;
  for (const Place& place : _layout.places) {
    const bool isOffered = (place.base != Base::root) == inHome &&
                           place.details.removal != Removal::byTool && isOfPlace(place, path);
    if (isOffered) found.push_back(&place);
  }
  return found;
}

bool Catalogue::isOfPlace(const Place& place, std::span<const std::string_view> path) const {
  const std::string_view base = folder(place.base).value_or("");
  const auto names = [&](std::string_view inside) {
    return isNamed(place, matchPattern(path, {base, place.pattern, inside}));
  };
  switch (place.unit) {
    case Unit::whole:
    case Unit::match:
      return place.details.only.empty() ? names("")
                                        : std::ranges::any_of(place.details.only, names);
    case Unit::children:
      return names("*");
    case Unit::unknown: {
      const PatternMatch match = matchPattern(path, {base, place.pattern, "*"});
      return isNamed(place, match) && !hasRowOfItsOwn(place.base, match.stars.back());
    }
  }
  return false;
}

bool Catalogue::hasRowOfItsOwn(Base base, std::string_view name) const {
  return std::ranges::any_of(_layout.places, [&](const Place& place) {
    if (place.base != base || place.unit == Unit::unknown) return false;
    if (!place.pattern.empty()) return nameMatches(splitPath(place.pattern).front(), name);
    return nameMatchesAny(place.details.only, name);
  });
}

bool Catalogue::isNamedLikeArtifact(std::span<const std::string_view> path) const {
  const bool isHidden =
      std::ranges::any_of(path.first(path.empty() ? 0 : path.size() - 1),
                          [](std::string_view piece) { return piece.starts_with('.'); });
  if (path.size() < 2 || isHidden) return false;
  return std::ranges::any_of(_layout.artifacts, [&](const ProjectArtifact& artifact) {
    return nameMatchesAny(artifact.names, path.back());
  });
}

bool Catalogue::isTrail(std::span<const std::string_view> path) const {
  return isNamedByTrail(path, [](TrailClearing clearing) {
    return clearing != TrailClearing::told && clearing != TrailClearing::firefoxHistory &&
           clearing != TrailClearing::originRemoved;
  });
}

bool Catalogue::isDatabaseOfTrails(std::span<const std::string_view> path) const {
  return isNamedByTrail(
      path, [](TrailClearing clearing) { return clearing == TrailClearing::firefoxHistory; });
}

bool Catalogue::isNamedByTrail(std::span<const std::string_view> path,
                               bool (*isMeant)(TrailClearing)) const {
  return std::ranges::any_of(_layout.trails.trails, [&](const Trail& trail) {
    const std::string_view base = folder(trail.base).value_or("");
    return isMeant(trail.clearing) &&
           std::ranges::any_of(trail.inside, [&](std::string_view inside) {
             return matchPattern(path, {base, trail.folder, inside}).relation == Relation::at;
           });
  });
}

bool Catalogue::reachesSecret(std::span<const std::string_view> path) const {
  // A file system may take capitals and small letters for the same name.
  std::vector<std::string> lower;
  for (const std::string_view piece : path) lower.push_back(lowercased(piece));
  const std::vector<std::string_view> lowerPath(lower.begin(), lower.end());
  const bool isLower = std::ranges::equal(path, lowerPath);
  const auto touches = [&](const PlacePattern& secret) {
    const auto reaches = [&](std::span<const std::string_view> spelling) {
      return match(spelling, secret).relation != Relation::apart;
    };
    return reaches(path) || (!isLower && reaches(lowerPath));
  };
  return std::ranges::any_of(_layout.guard.secrets, touches) ||
         std::ranges::any_of(lowerPath, [&](std::string_view piece) {
           return nameMatchesAny(_layout.guard.secretNames, piece);
         });
}

bool Catalogue::reachesUnsavedWork(std::span<const std::string_view> path) const {
  return std::ranges::any_of(_layout.guard.ownPlaces, [&](const PlacePattern& own) {
    return own.base == Base::cache && match(path, own).relation != Relation::apart;
  });
}

std::optional<std::string> Catalogue::ownPlaceOf(std::span<const std::string_view> path) const {
  for (const PlacePattern& own : _layout.guard.ownPlaces) {
    const PatternMatch found = match(path, own);
    if (!isAtOrBelow(found.relation)) continue;
    std::string named;
    for (const std::string_view piece : path.first(found.length)) {
      if (!named.empty()) named += '/';
      named += piece;
    }
    return named;
  }
  return std::nullopt;
}

}  // namespace klarvik
