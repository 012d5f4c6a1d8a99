#include "tools/file_size.h"

#include "base/bytes.h"
#include "engine/allocated_size.h"
#include "platform/file_attributes.h"
#include "platform/file_system.h"

namespace klarvik {

namespace {

std::int64_t lengthOf(const std::optional<FileAttributes>& attributes) {
  if (!attributes || attributes->kind == FileKind::directory) return 0;
  return attributes->logicalBytes;
}

}  // namespace

std::int64_t fileSize(const FileSystem& files, const Path& path) {
  return lengthOf(files.attributes(path));
}

std::int64_t contentSize(const FileSystem& files, const Path& path) {
  std::int64_t total = 0;
  WalkOptions options = wholeWalk(files);
  options.skipHidden = true;
  const auto outcome = files.walk(path, options, [&](WalkEntry& entry) {
    if (entry.kind() != FileKind::directory) total = addBytes(total, lengthOf(entry.attributes()));
    return WalkStep::proceed;
  });
  return outcome == WalkOutcome::refused ? fileSize(files, path) : total;
}

}  // namespace klarvik
