#include "base/paths.h"
#include "base/text.h"
#include "core/deletion_rules.h"
#include "places/disk_layout.h"
#include "places/path_pattern.h"

namespace klarvik {
namespace {

Refusal residualRefusal(std::string_view path, const DeletionQuestion& question) {
  const auto identifiers = distinctiveIdentifiers(question.scope.identifiers);
  if (identifiers.empty()) return refuse("App identifier is too short to match residuals safely.");

  const auto roots = question.layout.guard.residualRoots;
  const auto root =
      std::ranges::find_if(roots, [&](const auto& entry) { return isBelow(path, entry.pattern); });
  if (root == roots.end()) return refuse(path, " is not a place apps leave residual files.");

  const std::string_view rest = path.substr(root->pattern.size() + 1);
  const std::vector<std::string_view> restPieces = splitPath(rest);
  const std::string_view folder = restPieces.empty() ? rest : restPieces.front();
  const std::string lowerFolder = lowercased(folder);
  const bool belongs = std::ranges::any_of(identifiers, [&](const std::string& id) {
    return lowerFolder.find(id) != std::string::npos;
  });
  if (belongs) return allowed;
  return refuse(folder, " does not belong to the app being removed.");
}

Refusal refusalInHome(std::string_view relative, const DeletionQuestion& question) {
  const bool deepEnough = splitPath(relative).size() >= 2;
  switch (question.scope.kind) {
    case DeletionScope::Kind::residual:
      return residualRefusal(relative, question);
    case DeletionScope::Kind::pickedFile:
      if (deepEnough) return allowed;
      return refuse("~/", relative, " is a whole folder, not a file you picked.");
    case DeletionScope::Kind::general:
    case DeletionScope::Kind::trail:
    case DeletionScope::Kind::application:
    case DeletionScope::Kind::trashed:
      break;
  }
  for (const auto& [base, entry] : question.layout.guard.ownPlaces) {
    if (relative == entry || isBelow(relative, entry)) {
      return refuse("~/", entry, " holds your own files, not junk.");
    }
  }
  if (deepEnough) return allowed;
  return refuse("~/", relative, " is too broad to delete safely.");
}

Refusal refusalOutsideHome(const DeletionQuestion& question) {
  const std::string_view path = question.path;
  const GuardRules& rules = question.layout.guard;
  const bool isAnothers = std::ranges::any_of(
      rules.otherHomes, [&](std::string_view homes) { return isBelow(path, homes); });
  if (isAnothers) return refuse("Refusing to touch another user account.");
  if (isInTrashOfAVolume(question)) return allowed;
  // Ahead of the cleanable places: a residual in /Library/Caches must still belong to the app.
  const bool isResidual = question.scope.kind == DeletionScope::Kind::residual;
  if (isResidual && path.starts_with("/Library/")) {
    return residualRefusal(path.substr(1), question);
  }
  if (firstPrefixOf(path, rules.cleanableOutsideHome) != nullptr) return allowed;
  return refuse(path, " is outside the locations Klarvik cleans.");
}

}  // namespace

Refusal refusalByDenyList(const DeletionQuestion& question) {
  const std::string_view path = question.path;
  const GuardRules& rules = question.layout.guard;
  if (isSystemDirectory(question)) return refuse(path, " is a system directory.");
  if (const auto* entry = firstPrefixOf(path, rules.protectedPrefixes)) {
    return refuse(*entry, rules.protectedReason);
  }
  if (const auto* entry = firstPrefixOf(path, rules.managedPrefixes)) {
    return refuse(*entry, rules.managedReason);
  }
  if (isSomeonesHome(question)) {
    if (path == question.home) return refuse("Refusing to delete the home directory.");
    if (isBelow(path, question.home)) {
      return refusalInHome(path.substr(question.home.size() + 1), question);
    }
  }
  return refusalOutsideHome(question);
}

}  // namespace klarvik
