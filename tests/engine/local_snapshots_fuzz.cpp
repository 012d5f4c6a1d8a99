// Whatever `tmutil` and `diskutil` print, nothing that a shell acts on reaches a command line, and
// every snapshot stands below the folder of snapshots.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "engine/local_snapshots.h"

namespace {

constexpr std::string_view actedOn = " \t\n\r;&|<>()$`\\\"'*?[]{}#~!=%^";

void requireInert(const std::optional<std::string>& command, const std::string& text) {
  if (command && text.find_first_of(actedOn) != std::string::npos) std::abort();
  if (command && text.starts_with('-')) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view output(reinterpret_cast<const char*>(data), size);
  static_cast<void>(klarvik::snapshotBytes(output));
  for (const std::string& text : klarvik::snapshotTexts(output)) {
    if (!klarvik::isSnapshotPath(klarvik::snapshotPath(text))) std::abort();
    requireInert(klarvik::snapshotSizeCommand(text), text);
    requireInert(klarvik::snapshotRemovalCommand(klarvik::snapshotPath(text)), text);
  }
  return 0;
}
