// Whatever rpm prints, what is read of it are names of packages, sizes that are none below zero,
// and files that were asked for.

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "tools/rpm_packages.h"

namespace {

void check(const std::string& name) {
  if (name.empty() || name.front() == '-') std::abort();
  if (name.find_first_of(" \n\t/\\$;|&`'\"") != std::string::npos) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view output(reinterpret_cast<const char*>(data), size);
  for (const auto& [name, package] : klarvik::readRpmPackages(output, {"/usr/bin/writer"})) {
    check(name);
    if (package.bytes < 0 || package.owned.size() > 1) std::abort();
  }
  for (const std::string& name : klarvik::rpmDependents(output)) check(name);
  return 0;
}
