#pragma once

#include <optional>
#include <stop_token>
#include <string_view>

#include "base/paths.h"
#include "platform/file_attributes.h"

namespace klarvik {

class FileSystem;

/// The question to ask right before a copy is removed. May be called from any thread; reads both
/// files, and holds two small buffers meanwhile.
struct DuplicateCheck {
  /// A copy that is to go, as it was found.
  struct Copy {
    const Path& path;
    const std::optional<EntryIdentity>& identity;
  };

  /// Whether `copy` may go because `keeper` holds the same content and stays: both are regular
  /// files, and two of them, of which the one is still that which was found; both were just now
  /// read whole, every byte is equal, their SHA-256 is `hash`, and neither has changed while they
  /// were read. False in all other cases, after a stop request as well.
  [[nodiscard]] static bool mayRemove(const FileSystem& files, const Path& keeper, const Copy& copy,
                                      std::string_view hash, const std::stop_token& stop = {});
};

}  // namespace klarvik
