// Whatever the table of mounts holds, each line tells of one absolute place at most.

#include "platform/linux/mounts.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const auto mounts = klarvik::mountTableFrom(text);
  const auto lines = std::count(text.begin(), text.end(), '\n') + 1;
  if (std::ssize(mounts) > lines) std::abort();
  for (const klarvik::MountPoint& mount : mounts) {
    if (!mount.place.is_absolute()) std::abort();
  }
  return 0;
}
