#include "platform/user_folders.h"

#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string>
#include <vector>

#include "base/text.h"

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

struct VisibleFolder {
  std::string_view key;
  Path UserFolders::*folder;
};

constexpr std::array<VisibleFolder, 6> visibleFolders{{
    {"XDG_DESKTOP_DIR", &UserFolders::desktop},
    {"XDG_DOCUMENTS_DIR", &UserFolders::documents},
    {"XDG_DOWNLOAD_DIR", &UserFolders::downloads},
    {"XDG_MUSIC_DIR", &UserFolders::music},
    {"XDG_PICTURES_DIR", &UserFolders::pictures},
    {"XDG_VIDEOS_DIR", &UserFolders::videos},
}};

constexpr std::string_view blanks = " \t\r";

/// What stands between the quotation marks of a shell's assignment; nothing when it is no such
/// text.
std::optional<std::string> unquoted(std::string_view text) {
  if (text.size() < 2 || text.front() != '"' || text.back() != '"') return std::nullopt;
  std::string plain;
  const std::string_view inner = text.substr(1, text.size() - 2);
  for (std::size_t at = 0; at < inner.size(); ++at) {
    if (inner[at] == '\\' && at + 1 < inner.size()) ++at;
    plain += inner[at];
  }
  return plain;
}

/// Only "$HOME/..." and absolute paths are allowed to stand there.
std::optional<Path> folderIn(std::string_view assigned, const Path& home) {
  auto text = unquoted(assigned);
  if (!text || text->find('\0') != std::string::npos) return std::nullopt;
  constexpr std::string_view homeVariable = "$HOME";
  if (text->starts_with(homeVariable)) {
    const std::string below = text->substr(homeVariable.size());
    if (!below.empty() && below.front() != '/') return std::nullopt;
    text = home.native() + below;
  }
  const Path folder = withoutNeedlessParts(*text);
  return folder.is_absolute() ? std::optional(folder) : std::nullopt;
}

}  // namespace

UserFolders UserFolders::in(const Path& home) {
  return {.home = home,
          .data = home / ".local/share",
          .configuration = home / ".config",
          .cache = home / ".cache",
          .state = home / ".local/state",
          .desktop = home / "Desktop",
          .documents = home / "Documents",
          .downloads = home / "Downloads",
          .music = home / "Music",
          .pictures = home / "Pictures",
          .videos = home / "Videos"};
}

std::optional<UserFolders> UserFolders::ofThisUser() {
  const char* named = std::getenv("HOME");
  const Path home = withoutNeedlessParts(named != nullptr ? Path(named) : homeInUserDatabase());
  if (!home.is_absolute() || home == "/") return std::nullopt;
  UserFolders folders = in(home);
  folders.data = folderInEnvironment("XDG_DATA_HOME", folders.data);
  folders.configuration = folderInEnvironment("XDG_CONFIG_HOME", folders.configuration);
  folders.cache = folderInEnvironment("XDG_CACHE_HOME", folders.cache);
  folders.state = folderInEnvironment("XDG_STATE_HOME", folders.state);
  return folders;
}

UserFolders UserFolders::withVisibleFolders(std::string_view userDirs) const {
  UserFolders folders = *this;
  while (!userDirs.empty()) {
    const std::string_view line = takeLine(userDirs);
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) continue;
    const std::string_view key = trimmed(line.substr(0, equals), blanks);
    const auto* known = std::ranges::find(visibleFolders, key, &VisibleFolder::key);
    if (known == visibleFolders.end()) continue;
    if (auto folder = folderIn(trimmed(line.substr(equals + 1), blanks), home)) {
      folders.*known->folder = std::move(*folder);
    }
  }
  return folders;
}

UserFolders UserFolders::movedTo(const Path& otherHome) const {
  UserFolders moved = *this;
  for (Path UserFolders::*folder :
       {&UserFolders::data, &UserFolders::configuration, &UserFolders::cache, &UserFolders::state,
        &UserFolders::desktop, &UserFolders::documents, &UserFolders::downloads,
        &UserFolders::music, &UserFolders::pictures, &UserFolders::videos}) {
    const Path below = (this->*folder).lexically_relative(home);
    const bool isInHome = !below.empty() && *below.begin() != "..";
    if (isInHome) moved.*folder = below == "." ? otherHome : otherHome / below;
  }
  moved.home = otherHome;
  return moved;
}

}  // namespace klarvik
