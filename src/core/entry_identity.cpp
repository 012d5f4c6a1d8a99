#include "core/entry_identity.h"

#include "platform/file_system.h"

namespace klarvik {

std::optional<EntryIdentity> entryIdentity(const FileSystem& files, const Path& path) {
  const auto attributes = files.attributes(path);
  if (!attributes || !attributes->identity) return std::nullopt;
  return EntryIdentity{*attributes->identity, attributes->created};
}

}  // namespace klarvik
