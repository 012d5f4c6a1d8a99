#pragma once

#include <sys/stat.h>

#include <string>

namespace klarvik {

enum class Move {
  done,
  nameTaken,    ///< something stands there already; nothing was moved
  failed,       ///< nothing was moved
  unsupported,  ///< nothing was moved: the file system cannot move a file without replacing
  unseen,       ///< moved, but the system does not tell any more what it was
  /// Another thing came to the name in the last moment, was moved, and could not be moved back.
  strayed,
};

/// A name in an opened folder.
struct Name {
  int folder;
  const std::string& text;
};

/// Moves an item within its mount; nothing is ever replaced, also where the file system has no
/// renaming that promises it. `seen` is what the system told of it before: what has come to its
/// name since stays. May be called from any thread.
[[nodiscard]] Move moveItem(const Name& from, const struct statx& seen, const Name& to);

/// A name beside `name` that nobody else gives.
[[nodiscard]] std::string temporaryName(const std::string& name);

}  // namespace klarvik
