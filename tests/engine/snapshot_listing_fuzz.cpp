// Whatever `tmutil` prints, nothing that a shell acts on reaches a command line, and every snapshot
// stands below the folder of snapshots.

#include "engine/local_snapshots.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

constexpr std::string_view actedOn = " \t\n\r;&|<>()$`\\\"'*?[]{}#~!=%^";

void requireInert(const std::string& text) {
  if (!klarvik::listedSnapshotSizeCommand(text)) return;
  if (text.find_first_of(actedOn) != std::string::npos || text.starts_with('-')) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view output(reinterpret_cast<const char*>(data), size);
  for (const std::string& text : klarvik::listedSnapshots(output)) {
    if (text.empty() || text.find('\n') != std::string::npos) std::abort();
    if (!klarvik::isSnapshotPath(klarvik::snapshotPath(text))) std::abort();
    requireInert(text);
  }
  return 0;
}
