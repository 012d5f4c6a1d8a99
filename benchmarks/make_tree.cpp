// make_tree FOLDER FILES: builds the same tree of small files on every run: folders about 12 files
// and 3 folders wide, sizes as they are found in caches. FOLDER must not exist.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr int kFilesAFolder = 12;
constexpr int kFoldersAFolder = 3;

[[noreturn]] void giveUp(const std::string& what) {
  std::perror(what.c_str());
  std::exit(1);
}

void makeFolder(const std::string& path) {
  if (::mkdir(path.c_str(), 0755) != 0) giveUp(path);
}

void makeFile(const std::string& path, std::size_t bytes) {
  static const std::string content(std::size_t{64} * 1024, 'k');
  const int file = ::open(path.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0644);
  if (file < 0 || ::write(file, content.data(), bytes) != static_cast<ssize_t>(bytes)) giveUp(path);
  ::close(file);
}

/// Mostly a few hundred bytes, now and then some tens of thousands.
std::size_t nextSize(std::mt19937& random) {
  const std::size_t scale = std::size_t{1} << (random() % 16);
  return random() % (scale + 1);
}

/// The folders fill up level by level.
std::string nextFolder(const std::vector<std::string>& folders, const char* first) {
  if (folders.empty()) return first;
  const std::size_t earlier = folders.size() - 1;
  return folders[earlier / kFoldersAFolder] + "/folder-" +
         std::to_string(earlier % kFoldersAFolder);
}

}  // namespace

int main(int argc, char** argv) {
  const long files = argc == 3 ? std::strtol(argv[2], nullptr, 10) : 0;
  if (files <= 0) {
    std::fprintf(stderr, "usage: %s FOLDER FILES\n", argv[0]);
    return 2;
  }
  std::mt19937 random(2024);  // always the same tree
  std::vector<std::string> folders;
  for (long made = 0; made < files;) {
    folders.push_back(nextFolder(folders, argv[1]));
    makeFolder(folders.back());
    for (int i = 0; i < kFilesAFolder && made < files; ++i, ++made) {
      makeFile(folders.back() + "/file-" + std::to_string(random()) + ".cache", nextSize(random));
    }
  }
  return 0;
}
