#include "tools/duplicate_group.h"

#include <algorithm>
#include <iterator>

#include "base/bytes.h"
#include "base/message.h"

namespace klarvik {

std::int64_t DuplicateGroup::reclaimableBytes() const {
  if (files.empty()) return 0;
  std::int64_t largest = files.front().size;
  std::int64_t rest = 0;
  for (auto file = files.begin() + 1; file != files.end(); ++file) {
    rest = addBytes(rest, std::min(largest, file->size));
    largest = std::max(largest, file->size);
  }
  return rest;
}

namespace {

using KeepRule = DuplicateSelection::KeepRule;

bool isNewer(const DuplicateFile& candidate, const DuplicateFile& best) {
  return best.modifiedDate.value_or(Date::min()) < candidate.modifiedDate.value_or(Date::min());
}

bool isOlder(const DuplicateFile& candidate, const DuplicateFile& best) {
  return candidate.modifiedDate.value_or(Date::max()) < best.modifiedDate.value_or(Date::max());
}

bool isShallower(const DuplicateFile& candidate, const DuplicateFile& best) {
  return candidate.url.partCount() < best.url.partCount();
}

struct Rule {
  std::string_view rawValue;
  std::string_view label;
  bool (*wins)(const DuplicateFile& candidate, const DuplicateFile& best);
};

const Rule& ruleOf(KeepRule rule) {
  static constexpr std::array<Rule, 3> rules{{
      {"newest", QT_TRANSLATE_NOOP("Engine", "Newest copy"), isNewer},
      {"oldest", QT_TRANSLATE_NOOP("Engine", "Oldest copy"), isOlder},
      {"shallowest", QT_TRANSLATE_NOOP("Engine", "Shallowest path"), isShallower},
  }};
  return rules.at(static_cast<std::size_t>(rule));
}

/// The end of `files` only when there are none.
auto findKeeper(const std::vector<DuplicateFile>& files, KeepRule rule,
                const std::optional<Uuid>& override) {
  const auto named = std::find_if(files.begin(), files.end(),
                                  [&](const DuplicateFile& file) { return override == file.id; });
  if (named != files.end()) return named;
  auto best = files.begin();
  for (auto candidate = best; candidate != files.end(); ++candidate) {
    if (ruleOf(rule).wins(*candidate, *best)) best = candidate;
  }
  return best;
}

}  // namespace

std::string_view DuplicateSelection::rawValue(KeepRule rule) {
  return ruleOf(rule).rawValue;
}

std::string_view DuplicateSelection::label(KeepRule rule) {
  return ruleOf(rule).label;
}

std::optional<DuplicateFile> DuplicateSelection::keeper(const DuplicateGroup& group, KeepRule rule,
                                                        const std::optional<Uuid>& override) {
  const auto place = keeperPlace(group, rule, override);
  return place ? std::optional(group.files[*place]) : std::nullopt;
}

std::optional<std::size_t> DuplicateSelection::keeperPlace(const DuplicateGroup& group,
                                                           KeepRule rule,
                                                           const std::optional<Uuid>& override) {
  const auto found = findKeeper(group.files, rule, override);
  if (found == group.files.end()) return std::nullopt;
  return static_cast<std::size_t>(std::distance(group.files.begin(), found));
}

std::vector<DuplicateFile> DuplicateSelection::removable(const DuplicateGroup& group, KeepRule rule,
                                                         const std::optional<Uuid>& override) {
  const auto staying = findKeeper(group.files, rule, override);
  std::vector<DuplicateFile> others;
  for (const DuplicateFile& file : group.files) {
    if (file.id != staying->id) others.push_back(file);
  }
  return others;
}

}  // namespace klarvik
