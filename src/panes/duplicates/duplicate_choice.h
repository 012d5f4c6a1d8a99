#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "tools/duplicate_group.h"

namespace klarvik {

/// A group of equal files, and what becomes of them as things stand.
struct ChosenGroup {
  DuplicateGroup group;
  std::size_t keeper = 0;  ///< place of the copy that stays; all others may go
  std::int64_t removableBytes = 0;
  std::int64_t selectedBytes = 0;
  std::size_t selectedCount = 0;
};

using ChosenGroups = std::vector<std::unique_ptr<ChosenGroup>>;

/// May be called from any thread: much to build at once.
[[nodiscard]] ChosenGroups unchosen(std::vector<DuplicateGroup> groups);

/// A copy that goes, and the group that it goes from.
struct SelectedCopy {
  const DuplicateGroup* group = nullptr;
  std::size_t file = 0;    ///< place of the copy
  std::size_t keeper = 0;  ///< place of the one that stays
};

/// Which copies of a choice go, as things stood at one moment: quick to take and long to list, and
/// so listed off the main thread. May be listed on any thread, until the choice's groups are
/// replaced or lose files.
class CopySelection {
 public:
  /// In order of the groups.
  [[nodiscard]] std::vector<SelectedCopy> list() const;

 private:
  friend class DuplicateChoice;
  struct Kept {
    const DuplicateGroup* group;
    std::size_t keeper;
  };

  std::vector<Kept> _groups;  // only those that lose a copy
  std::unordered_set<Uuid> _deselected;
};

/// What a scan found, and what the user made of it: every copy but one of each group goes, except
/// for those taken out of the selection. A group's address is stable as long as it is listed.
class DuplicateChoice {
 public:
  using KeepRule = DuplicateSelection::KeepRule;
  using Paths = std::unordered_set<PathText>;
  using GroupSet = std::unordered_set<const ChosenGroup*>;

  struct Totals {
    std::int64_t reclaimable = 0;  ///< bytes of all copies that may go
    std::int64_t extraCopies = 0;
    std::int64_t selectedBytes = 0;
    std::size_t selectedCount = 0;

    bool operator==(const Totals&) const = default;
  };

  [[nodiscard]] const ChosenGroups& groups() const { return _groups; }
  [[nodiscard]] const std::unordered_set<Uuid>& deselected() const { return _deselected; }
  [[nodiscard]] const std::unordered_map<Uuid, Uuid>& keepOverrides() const {
    return _keepOverrides;
  }
  [[nodiscard]] KeepRule keepRule() const { return _keepRule; }
  [[nodiscard]] const Totals& totals() const { return _totals; }

  [[nodiscard]] bool isSelected(const ChosenGroup& group, std::size_t file) const;
  [[nodiscard]] CopySelection selection() const;

  /// Forgets what the user chose, but for the rule. Answers the former groups: much to free at
  /// once.
  [[nodiscard]] ChosenGroups replace(ChosenGroups groups);
  void setKeepRule(KeepRule rule);
  void keepInstead(const ChosenGroup& group, std::size_t file);
  /// Takes all copies out of the selection when all are in it, else puts all in.
  void toggle(const ChosenGroup& group);
  /// Nothing for the copy that stays.
  void toggle(const ChosenGroup& group, std::size_t file);

  /// The groups of which one file at most is left once these are gone.
  [[nodiscard]] GroupSet dissolvedBy(const Paths& gone) const;
  /// Forgets these files, the groups that `dissolvedBy` named for them, and what the user chose but
  /// for the rule. Answers those groups.
  [[nodiscard]] ChosenGroups remove(const Paths& gone, const GroupSet& dissolved);

 private:
  [[nodiscard]] std::optional<Uuid> overrideOf(const ChosenGroup& group) const;
  [[nodiscard]] ChosenGroup& listed(const ChosenGroup& group);
  void judge(ChosenGroup& group);
  void judgeAll();
  void sumUp();

  ChosenGroups _groups;
  std::unordered_set<Uuid> _deselected;
  std::unordered_map<Uuid, Uuid> _keepOverrides;
  KeepRule _keepRule = KeepRule::newest;
  Totals _totals;
};

}  // namespace klarvik
