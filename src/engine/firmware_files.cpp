#include "engine/firmware_files.h"

namespace klarvik {

bool isFirmware(const Path& file) {
  const Path extension = file.extension();
  return extension == ".ipsw" || extension == ".ipa";
}

}  // namespace klarvik
