#pragma once

#include <cstdint>
#include <stop_token>
#include <string>
#include <vector>

#include "core/junk_model.h"
#include "platform/platform.h"

namespace klarvik {

// What tools remove by themselves. Each call runs programs and waits for them; any thread.

/// Whether `tool` is there and says that what it cleans is the folder at `path` and nothing else.
[[nodiscard]] bool cleansFolder(const Platform& platform, const CleaningTool& tool,
                                const Path& path, const std::stop_token& stop);

/// What `tool` says it would remove of what is in no table of places. Nothing when it is not there,
/// does not answer, or cannot be understood.
[[nodiscard]] std::vector<JunkItem> itemsOf(const Platform& platform, const CleaningTool& tool,
                                            const std::stop_token& stop);

struct ToolRemoval {
  bool succeeded = false;
  std::int64_t reclaimed = 0;  ///< bytes that are really gone; what the tool says is not believed
};

/// Has the tool of `item` remove it, if it still offers that. A tool that fails, is refused or
/// takes too long has reclaimed nothing.
[[nodiscard]] ToolRemoval removeByTool(const Platform& platform, const JunkItem& item,
                                       const std::stop_token& stop);

}  // namespace klarvik
