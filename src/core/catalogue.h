#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "places/disk_layout.h"
#include "places/path_pattern.h"
#include "platform/user_folders.h"

namespace klarvik {

/// The places that a layout names, for the folders of one user. Pure text: no file is touched. The
/// layout outlives it. Any thread.
///
/// The standard folders count where the user has put them only if that is a hidden place of its own
/// in the home; else the usual ones do. Caches in "~/Documents" would make everything there a
/// cache.
class Catalogue {
 public:
  Catalogue(const DiskLayout& layout, const UserFolders& folders);

  /// Below the home, and empty for the home itself; nothing for the root of the disk.
  [[nodiscard]] std::optional<std::string_view> folder(Base base) const;

  /// The places by which the thing at `path` may be removed, itself or as a part of what it lies
  /// in: `path` counts from the home, or from the root for the places that do. A place with a
  /// condition names whole things only.
  [[nodiscard]] std::vector<const Place*> placesOf(std::span<const std::string_view> path,
                                                   bool inHome) const;
  /// Whether `name` in the folder `base` begins a row of its own.
  [[nodiscard]] bool hasRowOfItsOwn(Base base, std::string_view name) const;
  /// Whether a project's build may have left a folder of this path in the home.
  [[nodiscard]] bool isNamedLikeArtifact(std::span<const std::string_view> path) const;

  /// Whether a table names the thing itself as a trail of what the user did.
  [[nodiscard]] bool isTrail(std::span<const std::string_view> path) const;
  /// Whether a table names the thing itself as a database that holds trails and more: entries may
  /// be taken from it, and it is never removed.
  [[nodiscard]] bool isDatabaseOfTrails(std::span<const std::string_view> path) const;

  /// Keys and passwords: at or below such a place, or above one.
  [[nodiscard]] bool reachesSecret(std::span<const std::string_view> path) const;
  /// Work that programs keep in their caches until it is saved: at or below such a place, or above
  /// one.
  [[nodiscard]] bool reachesUnsavedWork(std::span<const std::string_view> path) const;
  /// The pattern of what people keep for themselves that `path` is or lies in.
  [[nodiscard]] std::optional<std::string> ownPlaceOf(std::span<const std::string_view> path) const;

  /// The pieces of a pattern below the home, for the folders as they are and as they usually are.
  [[nodiscard]] PatternMatch match(std::span<const std::string_view> path,
                                   const PlacePattern& place) const;

 private:
  [[nodiscard]] bool isNamedByTrail(std::span<const std::string_view> path,
                                    bool (*isMeant)(TrailClearing)) const;
  [[nodiscard]] bool mayHoldBase(const std::string& folder) const;
  [[nodiscard]] bool isOfPlace(const Place& place, std::span<const std::string_view> path) const;

  const DiskLayout& _layout;
  std::string _cache, _config, _data, _state;
};

}  // namespace klarvik
