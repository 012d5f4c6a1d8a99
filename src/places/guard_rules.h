#pragma once

#include <span>
#include <string_view>

#include "places/place.h"

namespace klarvik {

/// A place below one of the user's folders, named by a pattern.
struct PlacePattern {
  Base base;
  std::string_view pattern;
};

/// The texts of paths by which a removal is judged on one system.
struct GuardRules {
  /// Whether nothing goes but what the tables of places name; else all that no rule keeps.
  bool onlyListedPlaces = false;
  std::span<const std::string_view> systemDirectories;  ///< these themselves
  std::span<const std::string_view> protectedPrefixes;
  std::string_view protectedReason;  ///< "%1": the prefix
  std::span<const std::string_view> managedPrefixes{};
  std::string_view managedReason{};
  /// No home lies at or below one of these: what is there belongs to everybody.
  std::span<const std::string_view> nobodysHomes{};
  std::span<const std::string_view> homesAllTheSame{};       ///< patterns; but these are somebody's
  std::span<const std::string_view> otherHomes;              ///< patterns; what other people own
  std::span<const PlacePattern> secrets{};                   ///< keys and passwords, at and below
  std::span<const std::string_view> secretNames{};           ///< patterns; anywhere in the home
  std::span<const PlacePattern> ownPlaces;                   ///< what people keep, at and below
  std::span<const PlacePattern> residualRoots{};             ///< where no desktop entries tell more
  std::span<const std::string_view> cleanableOutsideHome{};  ///< prefixes
};

}  // namespace klarvik
