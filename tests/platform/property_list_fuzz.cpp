// Input: a property list, XML or binary, as an application brings it along.

#include <cstdint>

#include "platform/property_list.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto list = klarvik::PropertyList::parse({reinterpret_cast<const char*>(data), size});
  if (!list) return 0;
  for (const char* const key : {"CFBundleIdentifier", "CFBundleDisplayName", "CFBundleName"}) {
    static_cast<void>(list->text(key));
  }
  return 0;
}
