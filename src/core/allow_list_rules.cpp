#include "base/paths.h"

#include "base/message.h"
#include "base/text.h"
#include "core/catalogue.h"
#include "core/deletion_rules.h"
#include "places/path_pattern.h"

namespace klarvik {
namespace {

using Pieces = std::vector<std::string_view>;

/// The name by which a thing in `folder` is known; nothing where it is none of that kind.
std::optional<std::string_view> knownName(const LeftoverFolder& folder, const Pieces& path,
                                          std::size_t length) {
  std::string_view name = path[length];
  switch (folder.name) {
    case LeftoverName::whole:
      return name;
    case LeftoverName::hidden:
      if (!name.starts_with('.')) return std::nullopt;
      return name.substr(1);
    case LeftoverName::stem:
      if (path.size() != length + 1) return std::nullopt;
      return name.substr(0, name.rfind('.'));
  }
  return std::nullopt;
}

/// Whether the thing in which `path` lies, the first below a folder of leftovers, bears one of the
/// identifiers.
Refusal residualRefusal(const Pieces& path, std::string_view relative, const Catalogue& catalogue,
                        const DeletionQuestion& question) {
  const auto identifiers = distinctiveIdentifiers(question.scope.identifiers);
  if (identifiers.empty())
    return refuse(
        QT_TRANSLATE_NOOP("Engine", "App identifier is too short to match residuals safely."));
  const auto belongs = [&](std::string_view name) {
    return std::ranges::find(identifiers, name) != identifiers.end();
  };
  const auto isIn = [&](const PlacePattern& place) {
    const Relation relation = catalogue.match(path, place).relation;
    return relation == Relation::at || relation == Relation::below;
  };
  if (catalogue.reachesUnsavedWork(path)) {
    return refuse(QT_TRANSLATE_NOOP("Engine", "~/%1 holds your own files, not junk."), relative);
  }

  const DesktopApplications& places = *question.layout.applications.desktop;
  const bool isKnown = std::ranges::any_of(places.knownLeftovers, [&](const KnownLeftover& known) {
    return belongs(known.identifier) && isIn(known.place);
  });
  if (isKnown) return allowed;

  const LeftoverFolder* folder = nullptr;
  std::size_t length = 0;
  for (const LeftoverFolder& each : places.leftovers) {
    const PatternMatch match = catalogue.match(path, each.folder);
    if (match.relation == Relation::at || match.relation == Relation::above) {
      return refuse(QT_TRANSLATE_NOOP("Engine", "%1 is not a place apps leave residual files."),
                    relative);
    }
    const bool isNearer = folder == nullptr || match.length > length;
    if (match.relation != Relation::below || !isNearer) continue;
    folder = &each;
    length = match.length;
  }
  const auto name = folder ? knownName(*folder, path, length) : std::nullopt;
  if (!name)
    return refuse(QT_TRANSLATE_NOOP("Engine", "%1 is not a place apps leave residual files."),
                  relative);
  const std::string lower = comparableName(*name);
  if (nameMatchesAny(places.sharedNames, lower)) {
    return refuse(QT_TRANSLATE_NOOP("Engine", "%1 is shared by several apps."), path[length]);
  }
  const bool isCommon = std::ranges::find(places.commonWords, lower) != places.commonWords.end();
  if (belongs(lower) && !isCommon) return allowed;
  return refuse(QT_TRANSLATE_NOOP("Engine", "%1 does not belong to the app being removed."),
                path[length]);
}

/// What a user has installed by hand, and its entry and icons.
Refusal applicationRefusal(const Pieces& path, std::string_view relative,
                           const Catalogue& catalogue, const DeletionQuestion& question) {
  const DesktopApplications& places = *question.layout.applications.desktop;
  const auto isNamed = [&](const PlacePattern& place) {
    return catalogue.match(path, place).relation == Relation::at;
  };
  if (std::ranges::any_of(places.byHand, isNamed)) return allowed;
  if (std::ranges::any_of(places.alongside, isNamed)) return allowed;
  const bool isHidden =
      std::ranges::any_of(path, [](std::string_view piece) { return piece.starts_with('.'); });
  if (!isHidden && lowercased(path.back()).ends_with(".appimage")) return allowed;
  return refuse(QT_TRANSLATE_NOOP("Engine", "~/%1 is no app that Klarvik removes."), relative);
}

/// Lies in a download folder of its own; a home in which all downloads lie is none.
bool isDownloaded(const DeletionQuestion& question) {
  const std::string& downloads = question.folders.downloads.native();
  return isBelow(downloads, question.home) && isBelow(question.path, downloads);
}

Refusal refusalInHome(std::string_view relative, const DeletionQuestion& question) {
  const Pieces path = splitPath(relative);
  const Catalogue catalogue(question.layout, question.folders);
  if (catalogue.reachesSecret(path))
    return refuse(QT_TRANSLATE_NOOP("Engine", "~/%1 holds keys and passwords."), relative);
  if (question.scope.kind == DeletionScope::Kind::residual) {
    return residualRefusal(path, relative, catalogue, question);
  }
  if (question.scope.kind == DeletionScope::Kind::application) {
    return applicationRefusal(path, relative, catalogue, question);
  }

  const bool staysInPlace = question.scope.kind == DeletionScope::Kind::database ||
                            question.scope.kind == DeletionScope::Kind::origin;
  if (staysInPlace) {
    const bool isMeant = question.scope.kind == DeletionScope::Kind::database
                             ? catalogue.isDatabaseOfTrails(path)
                             : isDownloaded(question);
    if (isMeant) return allowed;
    return refuse(QT_TRANSLATE_NOOP("Engine", "~/%1 is no trail that Klarvik clears."), relative);
  }
  if (!catalogue.placesOf(path, /*inHome=*/true).empty()) return allowed;
  if (question.scope.kind == DeletionScope::Kind::trail) {
    if (catalogue.isTrail(path)) return allowed;
    return refuse(QT_TRANSLATE_NOOP("Engine", "~/%1 is no trail that Klarvik clears."), relative);
  }
  // What waits in the Trash was put there to go, wherever the user keeps the Trash.
  const Path trash =
      question.folders.data.lexically_relative(question.folders.home) / "Trash/files";
  if (isBelow(relative, trash.lexically_normal().native())) return allowed;
  if (isInTrashOfAVolume(question)) return allowed;
  if (const auto own = catalogue.ownPlaceOf(path)) {
    return refuse(QT_TRANSLATE_NOOP("Engine", "~/%1 holds your own files, not junk."), *own);
  }
  if (question.scope.kind == DeletionScope::Kind::pickedFile) {
    if (path.front().starts_with('.')) {
      return refuse(QT_TRANSLATE_NOOP("Engine", "~/%1 is no place that Klarvik cleans."), relative);
    }
    if (path.size() >= 2) return allowed;
    return refuse(QT_TRANSLATE_NOOP("Engine", "~/%1 is a whole folder, not a file you picked."),
                  relative);
  }
  if (catalogue.isNamedLikeArtifact(path)) return allowed;
  return refuse(QT_TRANSLATE_NOOP("Engine", "~/%1 is no place that Klarvik cleans."), relative);
}

Refusal refusalOutsideHome(const DeletionQuestion& question) {
  const std::string_view path = question.path;
  const bool isAnothers =
      std::ranges::any_of(question.layout.guard.otherHomes,
                          [&](std::string_view homes) { return isBelow(path, homes); });
  if (isAnothers)
    return refuse(QT_TRANSLATE_NOOP("Engine", "Refusing to touch another user account."));
  const auto pieces = splitPath(path);
  const bool isKeys = std::ranges::any_of(pieces, [&](std::string_view piece) {
    return nameMatchesAny(question.layout.guard.secretNames, lowercased(piece));
  });
  if (isKeys) return refuse(QT_TRANSLATE_NOOP("Engine", "%1 holds keys and passwords."), path);
  if (isInTrashOfAVolume(question)) return allowed;
  const Catalogue catalogue(question.layout, question.folders);
  const bool isOfAnApplication = question.scope.kind == DeletionScope::Kind::residual ||
                                 question.scope.kind == DeletionScope::Kind::application;
  const bool staysInPlace = question.scope.kind == DeletionScope::Kind::database ||
                            question.scope.kind == DeletionScope::Kind::origin;
  const bool isListed =
      !isOfAnApplication && !staysInPlace && !catalogue.placesOf(pieces, /*inHome=*/false).empty();
  if (isListed) return allowed;
  if (const auto* entry = firstPrefixOf(path, question.layout.guard.protectedPrefixes)) {
    return refuse(question.layout.guard.protectedReason, *entry);
  }
  return refuse(QT_TRANSLATE_NOOP("Engine", "%1 is outside the locations Klarvik cleans."), path);
}

}  // namespace

Refusal refusalByAllowList(const DeletionQuestion& question) {
  const std::string_view path = question.path;
  const std::string_view home = question.home;
  const bool hasHome = isSomeonesHome(question);
  if (hasHome && path == home)
    return refuse(QT_TRANSLATE_NOOP("Engine", "Refusing to delete the home directory."));
  if (isSystemDirectory(question))
    return refuse(QT_TRANSLATE_NOOP("Engine", "%1 is a system directory."), path);
  if (hasHome) {
    if (isBelow(path, home)) return refusalInHome(path.substr(home.size() + 1), question);
    if (isBelow(home, path))
      return refuse(QT_TRANSLATE_NOOP("Engine", "%1 holds your home."), path);
  }
  return refusalOutsideHome(question);
}

}  // namespace klarvik
