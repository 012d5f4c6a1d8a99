#include "base/paths.h"
#include "base/text.h"
#include "core/catalogue.h"
#include "core/deletion_rules.h"
#include "places/path_pattern.h"

namespace klarvik {
namespace {

using Pieces = std::vector<std::string_view>;

/// Whether the folder in which `path` lies, the first below `root`, bears one of the identifiers.
Refusal residualRefusal(const Pieces& path, std::string_view relative, const Catalogue& catalogue,
                        const DeletionQuestion& question) {
  const auto identifiers = distinctiveIdentifiers(question.scope.identifiers);
  if (identifiers.empty()) return refuse("App identifier is too short to match residuals safely.");
  const auto belongs = [&](std::string_view folder) {
    return std::ranges::find(identifiers, lowercased(folder)) != identifiers.end();
  };

  bool isRoot = false;
  for (const PlacePattern& root : question.layout.guard.residualRoots) {
    const PatternMatch match = catalogue.match(path, root);
    if (match.relation == Relation::below) {
      if (belongs(path[match.length])) return allowed;
      return refuse(path[match.length], " does not belong to the app being removed.");
    }
    isRoot = isRoot || match.relation != Relation::apart;
  }
  const bool isDotFolder = !isRoot && path.front().starts_with('.');
  if (!isDotFolder) return refuse(relative, " is not a place apps leave residual files.");
  if (belongs(path.front().substr(1))) return allowed;
  return refuse(path.front(), " does not belong to the app being removed.");
}

Refusal refusalInHome(std::string_view relative, const DeletionQuestion& question) {
  const Pieces path = splitPath(relative);
  const Catalogue catalogue(question.layout, question.folders);
  if (catalogue.reachesSecret(path)) return refuse("~/", relative, " holds keys and passwords.");
  if (question.scope.kind == DeletionScope::Kind::residual) {
    return residualRefusal(path, relative, catalogue, question);
  }

  if (!catalogue.placesOf(path, /*inHome=*/true).empty()) return allowed;
  if (question.scope.kind == DeletionScope::Kind::trail) {
    if (catalogue.isTrail(path)) return allowed;
    return refuse("~/", relative, " is no trail that Klarvik clears.");
  }
  // What waits in the Trash was put there to go, wherever the user keeps the Trash.
  const Path trash =
      question.folders.data.lexically_relative(question.folders.home) / "Trash/files";
  if (isBelow(relative, trash.lexically_normal().native())) return allowed;
  if (isInTrashOfAVolume(question)) return allowed;
  if (const auto own = catalogue.ownPlaceOf(path)) {
    return refuse("~/", *own, " holds your own files, not junk.");
  }
  if (question.scope.kind == DeletionScope::Kind::pickedFile) {
    if (path.front().starts_with('.')) {
      return refuse("~/", relative, " is no place that Klarvik cleans.");
    }
    if (path.size() >= 2) return allowed;
    return refuse("~/", relative, " is a whole folder, not a file you picked.");
  }
  if (catalogue.isNamedLikeArtifact(path)) return allowed;
  return refuse("~/", relative, " is no place that Klarvik cleans.");
}

Refusal refusalOutsideHome(const DeletionQuestion& question) {
  const std::string_view path = question.path;
  const bool isAnothers =
      std::ranges::any_of(question.layout.guard.otherHomes,
                          [&](std::string_view homes) { return isBelow(path, homes); });
  if (isAnothers) return refuse("Refusing to touch another user account.");
  const auto pieces = splitPath(path);
  const bool isKeys = std::ranges::any_of(pieces, [&](std::string_view piece) {
    return nameMatchesAny(question.layout.guard.secretNames, lowercased(piece));
  });
  if (isKeys) return refuse(path, " holds keys and passwords.");
  if (isInTrashOfAVolume(question)) return allowed;
  const Catalogue catalogue(question.layout, question.folders);
  const bool isListed = question.scope.kind != DeletionScope::Kind::residual &&
                        !catalogue.placesOf(pieces, /*inHome=*/false).empty();
  if (isListed) return allowed;
  if (const auto* entry = firstPrefixOf(path, question.layout.guard.protectedPrefixes)) {
    return refuse(*entry, question.layout.guard.protectedReason);
  }
  return refuse(path, " is outside the locations Klarvik cleans.");
}

}  // namespace

Refusal refusalByAllowList(const DeletionQuestion& question) {
  const std::string_view path = question.path;
  const std::string_view home = question.home;
  const bool hasHome = isSomeonesHome(question);
  if (hasHome && path == home) return refuse("Refusing to delete the home directory.");
  if (isSystemDirectory(question)) return refuse(path, " is a system directory.");
  if (hasHome) {
    if (isBelow(path, home)) return refusalInHome(path.substr(home.size() + 1), question);
    if (isBelow(home, path)) return refuse(path, " holds your home.");
  }
  return refusalOutsideHome(question);
}

}  // namespace klarvik
