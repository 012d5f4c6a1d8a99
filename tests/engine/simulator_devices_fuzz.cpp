// Whatever `xcrun` prints, a device never lies anywhere but in a folder of its own.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "base/paths.h"
#include "engine/developer_tool_answers.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const klarvik::Path devices = "/devices";
  for (const auto& device :
       klarvik::unavailableSimulators({reinterpret_cast<const char*>(data), size})) {
    const klarvik::Path folder = klarvik::standardizedPath(devices / device.udid);
    if (folder.parent_path() != devices || folder == devices) std::abort();
  }
  return 0;
}
