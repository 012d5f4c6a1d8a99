#include "panes/duplicates/duplicate_choice.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace klarvik {
namespace {

bool goes(const DuplicateGroup& group, std::size_t file, std::size_t keeper,
          const std::unordered_set<Uuid>& deselected) {
  return file != keeper && !deselected.contains(group.files[file].id);
}

}  // namespace

ChosenGroups unchosen(std::vector<DuplicateGroup> groups) {
  ChosenGroups all;
  all.reserve(groups.size());
  for (DuplicateGroup& group : groups) {
    all.push_back(std::make_unique<ChosenGroup>());
    all.back()->group = std::move(group);
  }
  return all;
}

std::vector<SelectedCopy> CopySelection::list() const {
  std::vector<SelectedCopy> copies;
  for (const auto& [group, keeper] : _groups) {
    for (std::size_t file = 0; file < group->files.size(); ++file) {
      if (goes(*group, file, keeper, _deselected)) copies.push_back({group, file, keeper});
    }
  }
  return copies;
}

bool DuplicateChoice::isSelected(const ChosenGroup& group, std::size_t file) const {
  return goes(group.group, file, group.keeper, _deselected);
}

CopySelection DuplicateChoice::selection() const {
  CopySelection selection;
  for (const auto& group : _groups) {
    if (group->selectedCount > 0) selection._groups.push_back({&group->group, group->keeper});
  }
  selection._deselected = _deselected;
  return selection;
}

ChosenGroups DuplicateChoice::replace(ChosenGroups groups) {
  _deselected.clear();
  _keepOverrides.clear();
  std::swap(_groups, groups);
  judgeAll();
  return groups;
}

void DuplicateChoice::setKeepRule(KeepRule rule) {
  _keepRule = rule;
  judgeAll();
}

void DuplicateChoice::keepInstead(const ChosenGroup& group, std::size_t file) {
  const Uuid id = group.group.files[file].id;
  _keepOverrides[group.group.id] = id;
  _deselected.erase(id);
  judge(listed(group));
  sumUp();
}

void DuplicateChoice::toggle(const ChosenGroup& group) {
  const bool areAllSelected = group.selectedCount + 1 == group.group.files.size();
  for (std::size_t file = 0; file < group.group.files.size(); ++file) {
    if (file == group.keeper) continue;
    const Uuid id = group.group.files[file].id;
    if (areAllSelected) {
      _deselected.insert(id);
    } else {
      _deselected.erase(id);
    }
  }
  judge(listed(group));
  sumUp();
}

void DuplicateChoice::toggle(const ChosenGroup& group, std::size_t file) {
  if (file == group.keeper) return;
  const Uuid id = group.group.files[file].id;
  if (_deselected.erase(id) == 0) _deselected.insert(id);
  judge(listed(group));
  sumUp();
}

DuplicateChoice::GroupSet DuplicateChoice::dissolvedBy(const Paths& gone) const {
  GroupSet dissolved;
  for (const auto& group : _groups) {
    const auto left = std::ranges::count_if(
        group->group.files, [&](const DuplicateFile& file) { return !gone.contains(file.url); });
    if (left < 2) dissolved.insert(group.get());
  }
  return dissolved;
}

ChosenGroups DuplicateChoice::remove(const Paths& gone, const GroupSet& dissolved) {
  ChosenGroups removed;
  const auto stay = std::stable_partition(_groups.begin(), _groups.end(), [&](const auto& group) {
    return !dissolved.contains(group.get());
  });
  std::move(stay, _groups.end(), std::back_inserter(removed));
  _groups.erase(stay, _groups.end());
  for (const auto& group : _groups) {
    std::erase_if(group->group.files,
                  [&](const DuplicateFile& file) { return gone.contains(file.url); });
  }
  _deselected.clear();
  _keepOverrides.clear();
  judgeAll();
  return removed;
}

std::optional<Uuid> DuplicateChoice::overrideOf(const ChosenGroup& group) const {
  const auto found = _keepOverrides.find(group.group.id);
  return found != _keepOverrides.end() ? std::optional(found->second) : std::nullopt;
}

/// The caller holds a group of this list, which only this list may change.
ChosenGroup& DuplicateChoice::listed(const ChosenGroup& group) {
  return **std::ranges::find(_groups, &group, &std::unique_ptr<ChosenGroup>::get);
}

void DuplicateChoice::judge(ChosenGroup& group) {
  const std::vector<DuplicateFile>& files = group.group.files;
  group.keeper =
      DuplicateSelection::keeperPlace(group.group, _keepRule, overrideOf(group)).value_or(0);
  group.removableBytes = 0;
  group.selectedBytes = 0;
  group.selectedCount = 0;
  for (std::size_t file = 0; file < files.size(); ++file) {
    if (file == group.keeper) continue;
    group.removableBytes += files[file].size;
    if (!isSelected(group, file)) continue;
    group.selectedBytes += files[file].size;
    ++group.selectedCount;
  }
}

void DuplicateChoice::judgeAll() {
  for (const auto& group : _groups) judge(*group);
  sumUp();
}

void DuplicateChoice::sumUp() {
  _totals = {};
  for (const auto& group : _groups) {
    const std::size_t files = group->group.files.size();
    _totals.reclaimable += group->removableBytes;
    _totals.extraCopies += files == 0 ? 0 : static_cast<std::int64_t>(files) - 1;
    _totals.selectedBytes += group->selectedBytes;
    _totals.selectedCount += group->selectedCount;
  }
}

}  // namespace klarvik
