// Whatever the package manager's table holds, a package has a name of one line and a size that is
// none below zero.

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "tools/debian_packages.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view status(reinterpret_cast<const char*>(data), size);
  for (const auto& [name, package] : klarvik::readDebianStatus(status)) {
    if (name.empty() || name.find('\n') != std::string::npos) std::abort();
    if (package.bytes < 0) std::abort();
  }
  return 0;
}
