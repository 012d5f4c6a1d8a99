#include "support/temporary_folder.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <vector>

namespace klarvik {
namespace {

[[noreturn]] void giveUp(const char* what, const Path& path) {
  std::fprintf(stderr, "cannot %s %s: %s\n", what, path.c_str(), std::strerror(errno));
  std::abort();
}

Path makeUniqueFolder(const Path& base) {
  // The real place, so that a test may compare paths that went through the system and back.
  std::string name = std::filesystem::canonical(base) / "klarvik-XXXXXX";
  if (!::mkdtemp(name.data())) giveUp("make", name);
  return name;
}

bool runs(std::vector<const char*> arguments) {
  arguments.push_back(nullptr);
  pid_t child = 0;
  if (::posix_spawnp(&child, arguments.front(), nullptr, nullptr,
                     const_cast<char* const*>(arguments.data()), environ) != 0) {
    giveUp("start a tool for", arguments.end()[-2]);
  }
  int status = 0;
  while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  return status == 0;
}

// The system's own tool, since a test may leave behind trees that are deeper than the standard
// library can remove. What lies in read-only folders goes when they are no longer so.
void removeTree(const Path& path) {
  const auto isRemoved = [&] {
    return runs({"rm", "-rf", "--one-file-system", "--", path.c_str()});
  };
  if (isRemoved()) return;
  if (runs({"chmod", "-R", "u+rwX", "--", path.c_str()}) && isRemoved()) return;
  std::fprintf(stderr, "left behind: %s\n", path.c_str());
}

}  // namespace

TemporaryFolder::TemporaryFolder(const Path& base) : _path(makeUniqueFolder(base)) {}

TemporaryFolder::~TemporaryFolder() {
  removeTree(_path);
}

Path TemporaryFolder::makeFolder(const Path& place) const {
  const Path path = onDisk(place);
  std::error_code error;
  std::filesystem::create_directories(path, error);
  if (!std::filesystem::is_directory(path)) giveUp("make", path);
  return path;
}

Path TemporaryFolder::makeFile(const Path& place, std::int64_t bytes) const {
  return makeFile(place, std::string(static_cast<std::size_t>(bytes), 'k'));
}

Path TemporaryFolder::makeFile(const Path& place, std::string_view content) const {
  const Path path = makeFolder(place.parent_path()) / place.filename();
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file.write(content.data(), static_cast<std::streamsize>(content.size()));
  if (!file.flush()) giveUp("write", path);
  return path;
}

Path TemporaryFolder::makeSparseFile(const Path& place, std::int64_t bytes) const {
  const Path path = makeFile(place, std::string_view());
  if (::truncate(path.c_str(), bytes) != 0) giveUp("lengthen", path);
  return path;
}

Path TemporaryFolder::makeLink(const Path& place, const Path& target) const {
  const Path path = makeFolder(place.parent_path()) / place.filename();
  if (::symlink(target.c_str(), path.c_str()) != 0) giveUp("link", path);
  return path;
}

std::string TemporaryFolder::contentOf(const Path& place) const {
  const Path path = onDisk(place);
  std::ifstream file(path, std::ios::binary);
  if (!file) giveUp("read", path);
  return {std::istreambuf_iterator<char>(file), {}};
}

bool TemporaryFolder::holds(const Path& place) const {
  return std::filesystem::symlink_status(onDisk(place)).type() !=
         std::filesystem::file_type::not_found;
}

}  // namespace klarvik
