#pragma once

#include <cstdint>
#include <stop_token>

#include "base/paths.h"

namespace klarvik {

class FileSystem;
struct WalkOptions;

/// Whether `path` is the top of another volume, of which nothing is counted or removed, on a disk
/// whose layout does not leave its volume. Waits for no server.
[[nodiscard]] bool isOtherVolume(const FileSystem& files, const Path& path);

/// A walk that sees all that a removal would take.
[[nodiscard]] WalkOptions wholeWalk(const FileSystem& files);

/// The size of a thing in a Smart Scan: bytes allocated on the disk, links not followed; on a disk
/// whose layout does not count whole, hidden files and the contents of packages inside it left out.
/// 0 for a link and for what cannot be read; a plain file counts its own allocation. May be called
/// from any thread; takes as long as the tree is large.
[[nodiscard]] std::int64_t allocatedSize(const FileSystem& files, const Path& path);

/// What a thing takes of the disk, everything in it counted: hidden files and the contents of
/// packages too. Else as above; it can therefore be more. Ends early at a stop, with what it has.
[[nodiscard]] std::int64_t wholeAllocatedSize(const FileSystem& files, const Path& path,
                                              const std::stop_token& stop = {});

/// How many bytes of the thing at `path` stay on the disk when it goes, because copies elsewhere
/// have the same content. Only large files are asked, and files that share content with each other
/// count as well, so it is no exact figure; 0 where the file system does not tell, at no cost. May
/// be called from any thread; ends early at a stop, with what it has.
[[nodiscard]] std::int64_t sharedBytes(const FileSystem& files, const Path& path,
                                       const std::stop_token& stop);

// Sizes by the length of the content, in bytes: what the tools show for things that they list. What
// the disk gives for them is another measure, `allocatedSize`. May be called from any thread.

/// Length of one file, or of a link itself. 0 for a folder, and where the path cannot be asked.
[[nodiscard]] std::int64_t fileSize(const FileSystem& files, const Path& path);

/// Sum over everything in a folder, hidden things left out and packages entered. For what cannot be
/// walked, its own `fileSize`.
[[nodiscard]] std::int64_t contentSize(const FileSystem& files, const Path& path);

}  // namespace klarvik
