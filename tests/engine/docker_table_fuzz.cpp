// Whatever `docker` prints, reading it ends, and only what ends like a size counts as one.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "engine/developer_tool_answers.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  static_cast<void>(klarvik::dockerReclaimableBytes(text));
  const bool endsLikeASize = text.ends_with('B');
  if (klarvik::dockerSizeBytes(text) != 0 && !endsLikeASize) std::abort();
  return 0;
}
