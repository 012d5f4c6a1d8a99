// bare_loop FOLDER...: prints the bytes that all files below the folders take on the disk. Nothing
// but the system calls that such a sum needs: the yardstick for the walk of the program.
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

namespace {

constexpr std::size_t kBufferBytes = std::size_t{64} * 1024;
char buffer[kBufferBytes];
long long total = 0;

void sum(int folder) {
  std::vector<std::string> folders;
  for (ssize_t filled; (filled = ::getdents64(folder, buffer, kBufferBytes)) > 0;) {
    for (ssize_t at = 0; at < filled;) {
      const auto* entry = reinterpret_cast<const struct dirent64*>(buffer + at);
      at += entry->d_reclen;
      const std::string_view name = entry->d_name;
      if (name == "." || name == "..") continue;
      if (entry->d_type == DT_DIR) {
        folders.emplace_back(name);
        continue;
      }
      struct statx status;
      if (::statx(folder, entry->d_name, AT_SYMLINK_NOFOLLOW, STATX_BASIC_STATS, &status) == 0) {
        total += static_cast<long long>(status.stx_blocks) * 512;
      }
    }
  }
  for (const std::string& name : folders) {
    const int below = ::openat(folder, name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW);
    if (below < 0) continue;
    sum(below);
    ::close(below);
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fprintf(stderr, "usage: %s FOLDER...\n", argv[0]);
    return 2;
  }
  for (int at = 1; at < argc; ++at) {
    const int folder = ::open(argv[at], O_RDONLY | O_DIRECTORY);
    if (folder < 0) {
      std::perror(argv[at]);
      return 1;
    }
    sum(folder);
    ::close(folder);
  }
  std::printf("%lld\n", total);
  return 0;
}
