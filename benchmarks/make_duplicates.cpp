// make_duplicates FOLDER: builds the same 2.6 GB on every run: films, photos, documents, and many
// records of the same size and of different content. Every fourth file has a copy in another place
// and under another name. FOLDER must not exist.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <set>
#include <string>
#include <vector>

namespace {

constexpr int kFilesAFolder = 40;

struct Kind {
  const char* name;
  int files;
  std::uint64_t leastBytes;
  std::uint64_t mostBytes;
};

constexpr Kind kKinds[] = {
    {"film", 24, 10'000'000, 50'000'000}, {"photo", 300, 1'000'000, 5'000'000},
    {"document", 6'000, 1'000, 80'000},   {"record", 6'000, 16'384, 16'384},
    {"block", 2'000, 65'536, 65'536},
};

[[noreturn]] void giveUp(const std::string& what) {
  std::perror(what.c_str());
  std::exit(1);
}

/// Numbers without a pattern, always the same ones (splitmix64).
class Numbers {
 public:
  explicit Numbers(std::uint64_t seed) : _state(seed) {}

  std::uint64_t next() {
    _state += 0x9E3779B97F4A7C15U;
    std::uint64_t number = _state;
    number = (number ^ (number >> 30U)) * 0xBF58476D1CE4E5B9U;
    number = (number ^ (number >> 27U)) * 0x94D049BB133111EBU;
    return number ^ (number >> 31U);
  }

 private:
  std::uint64_t _state;
};

void makeFolder(const std::string& path) {
  static std::set<std::string> made;
  if (made.insert(path).second && ::mkdir(path.c_str(), 0755) != 0) giveUp(path);
}

void makeFile(const std::string& path, std::uint64_t seed, std::uint64_t bytes) {
  static std::vector<std::uint64_t> piece(std::size_t{128} * 1024);
  const int file = ::open(path.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0644);
  if (file < 0) giveUp(path);
  Numbers content(seed);
  for (std::uint64_t left = bytes; left > 0;) {
    for (std::uint64_t& number : piece) number = content.next();
    const std::uint64_t count = std::min(left, std::uint64_t{piece.size() * sizeof piece[0]});
    if (::write(file, piece.data(), count) != static_cast<ssize_t>(count)) giveUp(path);
    left -= count;
  }
  ::close(file);
}

std::string folderFor(const std::string& above, int number) {
  makeFolder(above);
  const std::string folder = above + "/" + std::to_string(number / kFilesAFolder);
  makeFolder(folder);
  return folder;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: %s FOLDER\n", argv[0]);
    return 2;
  }
  const std::string root = argv[1];
  makeFolder(root);
  makeFolder(root + "/originals");
  makeFolder(root + "/backup");
  Numbers sizes(2024);
  std::uint64_t seed = 0;
  for (const Kind& kind : kKinds) {
    for (int number = 0; number < kind.files; ++number) {
      const std::uint64_t bytes =
          kind.leastBytes + sizes.next() % (kind.mostBytes - kind.leastBytes + 1);
      const std::string name = std::to_string(number);
      const std::string place = folderFor(root + "/originals/" + kind.name + "s", number);
      makeFile(place + "/" + kind.name + "-" + name, ++seed, bytes);
      if (number % 4 != 0) continue;
      makeFile(folderFor(root + "/backup/" + kind.name, number / 4) + "/copy " + name, seed, bytes);
    }
  }
  return 0;
}
