#include "platform/linux/user_folders.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <string>
#include <vector>

namespace klarvik {
namespace {

Path homeInUserDatabase() {
  std::vector<char> texts(1024 * 1024);
  ::passwd entry{};
  ::passwd* found = nullptr;
  ::getpwuid_r(::geteuid(), &entry, texts.data(), texts.size(), &found);
  return found != nullptr ? Path(found->pw_dir) : Path();
}

Path withoutNeedlessParts(const Path& path) {
  const Path normal = path.lexically_normal();
  return normal.has_filename() ? normal : normal.parent_path();
}

// A relative path in one of these variables is to be ignored, as an unset one is.
Path folderInEnvironment(const char* variable, const Path& fallback) {
  const char* value = std::getenv(variable);
  return value != nullptr && value[0] == '/' ? withoutNeedlessParts(value) : fallback;
}

}  // namespace

UserFolders UserFolders::in(const Path& home) {
  return {home, home / ".local/share", home / ".config", home / "Downloads"};
}

std::optional<UserFolders> UserFolders::ofThisUser() {
  const char* named = std::getenv("HOME");
  const Path home = withoutNeedlessParts(named != nullptr ? Path(named) : homeInUserDatabase());
  if (!home.is_absolute() || home == "/") return std::nullopt;
  const UserFolders usual = in(home);
  return UserFolders{home, folderInEnvironment("XDG_DATA_HOME", usual.data),
                     folderInEnvironment("XDG_CONFIG_HOME", usual.configuration), usual.downloads};
}

}  // namespace klarvik
