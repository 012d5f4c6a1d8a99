#pragma once

#include <functional>
#include <optional>
#include <set>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

#include "base/message.h"
#include "core/catalogue.h"
#include "core/junk_model.h"
#include "engine/place_conditions.h"
#include "engine/place_matches.h"
#include "platform/platform.h"

namespace klarvik {

/// Finds what the tables of a layout name. Only what the guard would let go, where it is named and
/// where it really lies, becomes an item, or what a tool says that it removes itself; what is there
/// and cannot be removed becomes a hint.
///
/// Lives for one scan, on its thread. No thing is part of two items, whatever the rows.
class PlaceScanner {
 public:
  using ItemReport = std::function<void(const JunkItem&)>;

  /// Tells each item to `report` as soon as it is found.
  PlaceScanner(const Platform& platform, std::stop_token stop, ItemReport report);

  /// The items of one category by its rows, largest first.
  [[nodiscard]] CleanCategory find(CategoryType type);
  /// What builds have left in the projects of the home.
  [[nodiscard]] CleanCategory findArtifacts();
  /// What lies in the Trash.
  [[nodiscard]] CleanCategory findTrashed();

 private:
  [[nodiscard]] Path folder(Base base) const;
  [[nodiscard]] std::vector<PlaceMatch> matches(const Place& place) const;
  [[nodiscard]] static Message nameOf(const Place& place, const PlaceMatch& match);
  [[nodiscard]] bool isExcepted(const Place& place, const PlaceMatch& match) const;
  void look(const Place& place, const PlaceMatch& match, CleanCategory& category);
  /// As an item, or as a hint where Klarvik could not remove it.
  void offer(JunkItem item, const Measure& measure, CleanCategory& category);
  void list(JunkItem item, const Measure& measure, CleanCategory& category);
  /// Whether `tool` can be asked to remove what lies at `path`.
  [[nodiscard]] bool mayRun(const CleaningTool& tool, const Path& path,
                            const Measure& measure) const;
  /// Whether the command of `tool` could be run with the rights of root.
  [[nodiscard]] bool mayRunAsRoot(const CleaningTool& tool);
  [[nodiscard]] Message obstacle(const Path& path, const Measure& measure) const;
  [[nodiscard]] std::string runningUser(const Place& place, const PlaceMatch& match) const;
  [[nodiscard]] bool overlapsAnItem(const Path& path) const;

  const Platform& _platform;
  const DiskLayout& _layout;
  const Catalogue _catalogue;
  const std::stop_token _stop;
  const ItemReport _report;
  const Date _now;
  std::optional<bool> _asksForPassword;  ///< whether the system can, once that was looked at
  std::set<std::string> _taken;          ///< paths of items, each with a slash at its end
};

/// Whether what a scan found at `path` is still what it was offered as: its marker and its
/// condition are looked at again. True for what no table puts under a condition. Asked right before
/// a removal.
[[nodiscard]] bool isStillOffered(const Platform& platform, const Path& path);

}  // namespace klarvik
