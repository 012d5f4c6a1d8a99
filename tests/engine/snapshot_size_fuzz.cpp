// Whatever the size command prints, a size is the number that stands there, or else the estimate.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "engine/local_snapshots.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view output(reinterpret_cast<const char*>(data), size);
  const auto bytes = klarvik::listedSnapshotBytes(output);
  const bool holdsADigit = output.find_first_of("0123456789") != std::string_view::npos;
  if (!holdsADigit && bytes != klarvik::estimatedListedSnapshotBytes) std::abort();
  if (klarvik::listedSnapshotBytes(std::to_string(bytes)) != bytes) std::abort();
  return 0;
}
