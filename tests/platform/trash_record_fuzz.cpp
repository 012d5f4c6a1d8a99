// Whatever a `.trashinfo` holds: the place that it names is one that a file can have and that does
// not climb, and a record that is written of it names the same place.

#include "platform/linux/trash_folder.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto place =
      klarvik::placeInTrashRecord(std::string_view(reinterpret_cast<const char*>(data), size));
  if (!place) return 0;
  if (place->empty() || place->native().find('\0') != std::string::npos) std::abort();
  if (std::find(place->begin(), place->end(), "..") != place->end()) std::abort();
  if (klarvik::placeInTrashRecord(klarvik::trashRecordText(*place, 0)) != place) std::abort();
  return 0;
}
