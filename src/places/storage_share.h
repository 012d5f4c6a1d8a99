#pragma once

#include <span>
#include <string_view>

#include "places/colors.h"
#include "places/guard_rules.h"
#include "platform/user_folders.h"

namespace klarvik {

/// A share of the disk in the coarse terms that a person thinks in.
struct StorageShare {
  std::string_view id;
  std::string_view label;
  RgbColor color;
  /// Below the home unless absolute. What several places take together has no folder to open.
  std::span<const std::string_view> places{};
  /// One of the folders that the user sees, in the place of `places`.
  Path UserFolders::*shown = nullptr;
  /// More places, by patterns. Of two shares, what lies deeper belongs to the place that is deeper.
  std::span<const PlacePattern> patterns{};
  bool holdsArtifacts = false;  ///< what builds left in the projects of the user
};

}  // namespace klarvik
