#pragma once

#include <stop_token>
#include <string_view>

#include "platform/path.h"

namespace klarvik {

class FileSystem;

/// The question to ask right before a copy is removed. May be called from any thread; reads both
/// files, and holds two small buffers meanwhile.
struct DuplicateCheck {
  /// Whether `copy` may go because `keeper` holds the same content and stays: both are regular
  /// files and not one and the same, both were just now read whole, every byte is equal, their
  /// SHA-256 is `hash`, and neither has changed while they were read. False in all other cases,
  /// after a stop request as well.
  [[nodiscard]] static bool mayRemove(const FileSystem& files, const Path& keeper, const Path& copy,
                                      std::string_view hash, const std::stop_token& stop = {});
};

}  // namespace klarvik
