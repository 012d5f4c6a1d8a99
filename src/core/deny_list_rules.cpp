#include "base/paths.h"

#include "base/message.h"
#include "base/text.h"
#include "core/deletion_rules.h"
#include "places/disk_layout.h"
#include "places/path_pattern.h"

namespace klarvik {
namespace {

Refusal residualRefusal(std::string_view path, const DeletionQuestion& question) {
  const auto identifiers = distinctiveIdentifiers(question.scope.identifiers);
  if (identifiers.empty())
    return refuse(
        QT_TRANSLATE_NOOP("Engine", "App identifier is too short to match residuals safely."));

  const auto roots = question.layout.guard.residualRoots;
  const auto root =
      std::ranges::find_if(roots, [&](const auto& entry) { return isBelow(path, entry.pattern); });
  if (root == roots.end())
    return refuse(QT_TRANSLATE_NOOP("Engine", "%1 is not a place apps leave residual files."),
                  path);

  const std::string_view rest = path.substr(root->pattern.size() + 1);
  const std::vector<std::string_view> restPieces = splitPath(rest);
  const std::string_view folder = restPieces.empty() ? rest : restPieces.front();
  const std::string lowerFolder = comparableName(folder);
  const bool belongs = std::ranges::any_of(identifiers, [&](const std::string& id) {
    return lowerFolder.find(id) != std::string::npos;
  });
  if (belongs) return allowed;
  return refuse(QT_TRANSLATE_NOOP("Engine", "%1 does not belong to the app being removed."),
                folder);
}

Refusal refusalInHome(std::string_view relative, const DeletionQuestion& question) {
  const bool deepEnough = splitPath(relative).size() >= 2;
  switch (question.scope.kind) {
    case DeletionScope::Kind::residual:
      return residualRefusal(relative, question);
    case DeletionScope::Kind::pickedFile:
      if (deepEnough) return allowed;
      return refuse(QT_TRANSLATE_NOOP("Engine", "~/%1 is a whole folder, not a file you picked."),
                    relative);
    case DeletionScope::Kind::database:
    case DeletionScope::Kind::origin:
      return refuse(QT_TRANSLATE_NOOP("Engine", "~/%1 is no trail that Klarvik clears."), relative);
    case DeletionScope::Kind::general:
    case DeletionScope::Kind::trail:
    case DeletionScope::Kind::application:
    case DeletionScope::Kind::trashed:
      break;
  }
  for (const auto& [base, entry] : question.layout.guard.ownPlaces) {
    if (relative == entry || isBelow(relative, entry)) {
      return refuse(QT_TRANSLATE_NOOP("Engine", "~/%1 holds your own files, not junk."), entry);
    }
  }
  if (deepEnough) return allowed;
  return refuse(QT_TRANSLATE_NOOP("Engine", "~/%1 is too broad to delete safely."), relative);
}

Refusal refusalOutsideHome(const DeletionQuestion& question) {
  const std::string_view path = question.path;
  const GuardRules& rules = question.layout.guard;
  const bool isAnothers = std::ranges::any_of(
      rules.otherHomes, [&](std::string_view homes) { return isBelow(path, homes); });
  if (isAnothers)
    return refuse(QT_TRANSLATE_NOOP("Engine", "Refusing to touch another user account."));
  if (isInTrashOfAVolume(question)) return allowed;
  // Ahead of the cleanable places: a residual in /Library/Caches must still belong to the app.
  const bool isResidual = question.scope.kind == DeletionScope::Kind::residual;
  if (isResidual && path.starts_with("/Library/")) {
    return residualRefusal(path.substr(1), question);
  }
  if (firstPrefixOf(path, rules.cleanableOutsideHome) != nullptr) return allowed;
  return refuse(QT_TRANSLATE_NOOP("Engine", "%1 is outside the locations Klarvik cleans."), path);
}

}  // namespace

Refusal refusalByDenyList(const DeletionQuestion& question) {
  const std::string_view path = question.path;
  const GuardRules& rules = question.layout.guard;
  if (isSystemDirectory(question))
    return refuse(QT_TRANSLATE_NOOP("Engine", "%1 is a system directory."), path);
  if (const auto* entry = firstPrefixOf(path, rules.protectedPrefixes)) {
    return refuse(rules.protectedReason, *entry);
  }
  if (const auto* entry = firstPrefixOf(path, rules.managedPrefixes)) {
    return refuse(rules.managedReason, *entry);
  }
  if (isSomeonesHome(question)) {
    if (path == question.home)
      return refuse(QT_TRANSLATE_NOOP("Engine", "Refusing to delete the home directory."));
    if (isBelow(path, question.home)) {
      return refusalInHome(path.substr(question.home.size() + 1), question);
    }
  }
  return refusalOutsideHome(question);
}

}  // namespace klarvik
