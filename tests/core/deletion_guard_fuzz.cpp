// Input: one byte for the scope, then home, path and identifiers, a line each.

#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

#include "guard_promise.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using klarvik::DeletionScope;
  std::istringstream input(std::string(reinterpret_cast<const char*>(data), size));
  const int kind = input.get();
  std::string home;
  std::string path;
  std::getline(input, home);
  std::getline(input, path);
  std::vector<std::string> identifiers;
  for (std::string line; std::getline(input, line);) identifiers.push_back(line);

  const DeletionScope scope = kind % 3 == 0   ? DeletionScope::general()
                              : kind % 3 == 1 ? DeletionScope::pickedFile()
                                              : DeletionScope::residual(identifiers);
  if (klarvik::violatedInvariant(path, scope, home)) std::abort();
  return 0;
}
