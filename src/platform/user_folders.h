#pragma once

#include <optional>
#include <string_view>

#include "base/paths.h"

namespace klarvik {

/// Where the things of one user lie, as logical paths.
struct UserFolders {
  Path home;
  Path data;
  Path configuration;
  Path cache;
  Path state;
  // What people see in their file manager, in their own language. The home itself where the user
  // has none of the kind.
  Path desktop;
  Path documents;
  Path downloads;
  Path music;
  Path pictures;
  Path videos;

  /// Those of a user who has set nothing of their own.
  [[nodiscard]] static UserFolders in(const Path& home);
  /// Those of whoever runs this program: the home that the environment names, else the one in the
  /// user database. Nothing when that is empty, "/" or relative: no place that a user owns.
  [[nodiscard]] static std::optional<UserFolders> ofThisUser();

  /// The same with the visible folders that the desktop's own file names, `user-dirs.dirs` in the
  /// configuration: its text. What it does not name, or names badly, stays.
  [[nodiscard]] UserFolders withVisibleFolders(std::string_view userDirs) const;
  /// The same folders, counted from another place of the home; those outside of it stay.
  [[nodiscard]] UserFolders movedTo(const Path& otherHome) const;
};

}  // namespace klarvik
