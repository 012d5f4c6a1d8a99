// Input: the document of preferences as it stands on the disk. "key" is read from it.

#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <fstream>

#include "platform/linux/json_user_defaults.h"

namespace {

struct Folder {
  Folder() {
    std::string name = std::filesystem::temp_directory_path() / "klarvik-preferences-XXXXXX";
    if (::mkdtemp(name.data()) == nullptr) std::abort();
    path = name;
  }
  ~Folder() { std::filesystem::remove_all(path); }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  klarvik::Path path;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const Folder folder;
  // Made anew, since some file systems sync a file that is cut to nothing and written again.
  std::filesystem::remove(folder.path / "preferences.json");
  std::ofstream(folder.path / "preferences.json", std::ios::binary)
      .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
  static_cast<void>(klarvik::JsonUserDefaults(folder.path).object("key"));
  return 0;
}
