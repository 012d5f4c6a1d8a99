// Whatever a tool prints, reading it ends; what is read of it is an absolute path, a name that is
// no option, or a size that is none below 0.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "engine/tool_answers.h"

namespace {

void holds(bool condition) {
  if (!condition) std::abort();
}

bool isPlain(std::string_view name) {
  return !name.empty() && name.front() != '-' &&
         name.find_first_of(std::string_view("/ \t\n\0", 5)) == std::string_view::npos;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace klarvik::tool_answers;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const auto one = folder(text);
  holds(!one || (one->is_absolute() && one->has_relative_path()));
  for (const auto& each : condaFolders(text)) holds(each.is_absolute());
  for (const std::string_view type : {"Images", "Build Cache"}) {
    const auto use = dockerUse(text, type);
    holds(!use || (use->size >= 0 && use->reclaimable >= 0));
  }
  holds(!isLocalDocker(text) || text.starts_with("unix:///"));
  holds(dockerImages(text).value_or(0) >= 0);
  holds(podmanImages(text).value_or(0) >= 0);
  for (const auto& each : flatpakRuntimes(text)) holds(each.size >= 0);
  for (const auto& each : flatpakUnused(text)) holds(isPlain(each.id) && isPlain(each.branch));
  for (const auto& each : disabledSnaps(text)) holds(isPlain(each.name) && isPlain(each.revision));
  return 0;
}
