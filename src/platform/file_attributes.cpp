#include "platform/file_attributes.h"

#include "platform/file_system.h"

namespace klarvik {

std::optional<EntryIdentity> entryIdentity(const FileAttributes& attributes) {
  if (!attributes.identity) return std::nullopt;
  return EntryIdentity{*attributes.identity, attributes.created, attributes.kind};
}

std::optional<EntryIdentity> entryIdentity(const FileSystem& files, const Path& path) {
  const auto attributes = files.attributes(path);
  return attributes ? entryIdentity(*attributes) : std::nullopt;
}

}  // namespace klarvik
