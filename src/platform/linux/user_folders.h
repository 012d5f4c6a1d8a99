#pragma once

#include <optional>

#include "platform/path.h"

namespace klarvik {

/// Where the things of one user lie, as logical paths.
struct UserFolders {
  Path home;
  Path data;
  Path configuration;
  Path downloads;

  /// Those of a user who has set nothing of their own.
  [[nodiscard]] static UserFolders in(const Path& home);
  /// Those of whoever runs this program: the home that the environment names, else the one in the
  /// user database. Nothing when that is empty, "/" or relative: no place that a user owns.
  [[nodiscard]] static std::optional<UserFolders> ofThisUser();
};

}  // namespace klarvik
