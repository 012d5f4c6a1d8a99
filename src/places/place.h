#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "places/category_type.h"

namespace klarvik {

/// Where a pattern begins: the root of the disk, the home, or one of the user's standard folders.
enum class Base { root, home, cache, config, data, state };

/// What of a place is one item.
enum class Unit {
  whole,     ///< the place itself; its pattern has no "*"
  match,     ///< each thing that the pattern stands for
  children,  ///< each thing in the folders that the pattern stands for
  unknown,   ///< each thing in the folder whose name no other row of this base begins with
};

/// How an item goes.
enum class Removal {
  asSet,     ///< to the Trash, or for good where the user has set so
  outright,  ///< for good
  byTool,    ///< not by Klarvik: its own tool, or root, has to
};

/// What has to be looked at on the disk before a thing of a place is an item.
enum class Condition {
  none,
  ownUntouchedForADay,  ///< belongs to the user, and nothing in it has changed for so long
  ownUntouchedForTenDays,
  ownUntouchedForThirtyDays,
  own,               ///< belongs to the user
  flatpakInstalled,  ///< the application whose folder it is; its identifier is the first match
  flatpakGone,
  snapInstalled,
  snapGone,
  snapRevisionGone,
  steamGameGone,
  steamGameInstalled,
  olderVersion,  ///< a newer one of the same name stands beside it
  programOfEntryGone,
};

/// What not every place needs.
struct PlaceDetails {
  Removal removal = Removal::asSet;
  std::span<const std::string_view> only{};  ///< not the match itself: these inside of it
  /// Names that no "*" stands for, and that no child has.
  std::span<const std::string_view> except{};
  /// The program that should be closed first; "*" for the application whose folder it is.
  std::string_view closedFirst{};
  Condition condition = Condition::none;
  std::string_view tool{};  ///< by its `id` in the layout's table; `byTool` only
};

/// One row of a table of places. Its texts live as long as the program.
struct Place {
  std::string_view id;  ///< for tests
  CategoryType category;
  Base base;
  std::string_view pattern;
  Unit unit;
  std::int64_t above;  ///< bytes; what takes no more is not listed
  /// Of an item; each "*" is what the next "*" of the pattern stands for. Where empty, its file
  /// name.
  std::string_view name;
  std::string_view reason;  ///< one sentence on what becomes of it, for the user
  PlaceDetails details{};
};

/// What is looked at besides the marker of a project. Lists of patterns; an empty one asks for
/// nothing.
struct ProjectMarks {
  std::span<const std::string_view> inside{};  ///< one of these lies directly in the artifact
  std::span<const std::string_view> notBeside{};
  std::span<const std::string_view> notInside{};
};

/// A folder that builds leave in a project. All that is named has to hold.
struct ProjectArtifact {
  std::string_view id;
  std::span<const std::string_view> names;   ///< patterns
  std::span<const std::string_view> beside;  ///< patterns; one of these stands beside it
  std::string_view reason;
  ProjectMarks marks{};
};

}  // namespace klarvik
