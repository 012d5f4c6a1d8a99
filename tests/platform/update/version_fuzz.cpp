// Input: two or three texts between line breaks, each perhaps a version.

#include "platform/update/version.h"

#include <cstdint>
#include <cstdlib>
#include <vector>

namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view rest(reinterpret_cast<const char*>(data), size);
  std::vector<klarvik::Version> versions;
  while (!rest.empty() && versions.size() < 3) {
    const std::string_view line = rest.substr(0, rest.find('\n'));
    rest.remove_prefix(line.size() == rest.size() ? line.size() : line.size() + 1);
    if (const auto version = klarvik::Version::parse(line)) versions.push_back(*version);
  }
  for (const auto& left : versions) {
    require(left == left);
    for (const auto& right : versions) {
      require((left < right) == (right > left));
      require((left == right) == (right == left));
      for (const auto& third : versions) {
        if (left < right && right < third) require(left < third);
      }
    }
  }
  return 0;
}
