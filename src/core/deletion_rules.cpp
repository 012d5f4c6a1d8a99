#include "core/deletion_rules.h"

#include "base/paths.h"
#include "base/text.h"
#include "places/disk_layout.h"
#include "places/path_pattern.h"

namespace klarvik {

bool isSystemDirectory(const DeletionQuestion& question) {
  const auto directories = question.layout.guard.systemDirectories;
  return std::ranges::find(directories, question.path) != directories.end();
}

bool isInTrashOfAVolume(const DeletionQuestion& question) {
  if (question.scope.kind != DeletionScope::Kind::trashed) return false;
  const auto pieces = splitPath(question.path);
  const std::size_t count = pieces.size();
  const auto isUser = [](std::string_view text) { return wholeNumber<unsigned>(text).has_value(); };
  if (count < 3 || pieces[count - 2] != "files") return false;
  constexpr std::string_view ownPrefix = ".Trash-";
  const std::string_view folder = pieces[count - 3];
  if (folder.starts_with(ownPrefix)) return isUser(folder.substr(ownPrefix.size()));
  return count >= 4 && isUser(folder) && pieces[count - 4] == ".Trash";
}

bool isSomeonesHome(const DeletionQuestion& question) {
  const GuardRules& rules = question.layout.guard;
  const std::string_view home = question.home;
  if (!home.starts_with('/')) return false;
  const auto pieces = splitPath(home);
  const auto liesIn = [&](std::string_view pattern) {
    const Relation relation = matchPattern(pieces, {pattern}).relation;
    return relation == Relation::at || relation == Relation::below;
  };
  if (std::ranges::any_of(rules.homesAllTheSame, liesIn)) return true;
  return std::ranges::find(rules.systemDirectories, home) == rules.systemDirectories.end() &&
         std::ranges::none_of(rules.nobodysHomes, liesIn);
}

std::vector<std::string> distinctiveIdentifiers(const std::vector<std::string>& identifiers) {
  std::vector<std::string> kept;
  for (const std::string& identifier : identifiers) {
    std::string lower = comparableName(identifier);
    if (characterCount(lower) > 3) kept.push_back(std::move(lower));
  }
  return kept;
}

}  // namespace klarvik
