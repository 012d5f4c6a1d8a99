#include "engine/allocated_size.h"

#include "core/junk_model.h"

namespace klarvik {

namespace {

constexpr WalkOptions withoutHiddenOrPackaged{.skipHidden = true, .skipPackageContents = true};

/// What the item itself takes, for one that cannot be walked: a plain file, but never a link.
std::int64_t ownAllocation(const FileSystem& files, const Path& path) {
  const auto attributes = files.attributes(path);
  if (!attributes || attributes->kind == FileKind::symbolicLink) return 0;
  return attributes->allocatedBytes;
}

}  // namespace

std::int64_t allocatedSize(const FileSystem& files, const Path& path) {
  std::int64_t total = 0;
  const auto outcome = files.walk(path, withoutHiddenOrPackaged, [&](WalkEntry& entry) {
    if (entry.kind() != FileKind::directory && entry.kind() != FileKind::symbolicLink) {
      total = addBytes(total, entry.allocatedBytes());
    }
    return WalkStep::proceed;
  });
  return outcome == WalkOutcome::refused ? ownAllocation(files, path) : total;
}

}  // namespace klarvik
