#include <cstdio>

#include "platform/linux/linux_file_system.h"

// remove_tree FOLDER: removes a folder and all it holds, the way a clean without the Trash does.
int main(int argc, char** argv) {
  if (argc != 2 || argv[1][0] != '/') {
    std::fprintf(stderr, "usage: %s /FOLDER\n", argv[0]);
    return 2;
  }
  klarvik::LinuxFileSystem files("/", klarvik::Path(argv[1]).parent_path());
  const bool removed = files.remove(argv[1], [](const klarvik::Path&) { return true; });
  return removed ? 0 : 1;
}
