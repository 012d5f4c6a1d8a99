// Whatever the records of a package hold, what is read of them is a name of one line, a size that
// is none below zero, and files that were asked for.

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "tools/pacman_packages.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  if (const auto description = klarvik::readPacmanDescription(text)) {
    const bool isOneLine = description->name.find('\n') == std::string::npos;
    if (description->name.empty() || !isOneLine || description->bytes < 0) std::abort();
  }
  for (const std::string_view file : klarvik::pacmanFilesOf(text, {"usr/bin/writer", "usr/"})) {
    if (file != "usr/bin/writer" && file != "usr/") std::abort();
  }
  return 0;
}
