// remove_tree HOME FOLDER: removes a folder and all it holds for good, as a clean without the Trash
// does with what it found. FOLDER must be one that may be removed for the user whose home is HOME.

#include <cstdio>

#include "engine/scanner_engine.h"
#include "platform/system_platform.h"

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fprintf(stderr, "usage: %s HOME FOLDER\n", argv[0]);
    return 2;
  }
  klarvik::SystemPlatform machine("/", klarvik::Path(argv[1]));
  const klarvik::Platform platform = machine.platform();
  klarvik::ScannerEngine engine(platform);
  const klarvik::JunkItem item{.name = argv[2], .path = argv[2], .size = 1};
  return engine.deleteItem(item, /*useTrash=*/false).reclaimed == item.size ? 0 : 1;
}
