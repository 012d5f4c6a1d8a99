// Whatever the package manager prints, what is read of it are names of packages.

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "tools/package_removal.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view output(reinterpret_cast<const char*>(data), size);
  for (const std::string& name : klarvik::simulatedRemovals(output)) {
    if (name.empty() || name.front() == '-') std::abort();
    if (name.find_first_of(" \n\t/\\$;|&`'\"") != std::string::npos) std::abort();
  }
  return 0;
}
