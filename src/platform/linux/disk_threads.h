#pragma once

#include <cstddef>

namespace klarvik {

/// Threads that read folders for a walk, beside the one that called it.
struct HelpfulThreads {
  std::size_t helpers = 0;
  std::size_t whileDiskIsRead = 0;  ///< more, that wait for the disk and hardly use a processor
};

/// How many help a walk that begins in the opened `folder`: none where the disk has heads that they
/// would send to and fro, and none where this process has one processor; a few at most.
[[nodiscard]] HelpfulThreads helpfulThreads(int folder);

/// How many files in the opened `folder` are best read at a time: one where the disk has heads;
/// else one for each processor, and where these are few, more that wait for the disk meanwhile.
[[nodiscard]] std::size_t filesReadAtOnce(int folder);

}  // namespace klarvik
