#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/file_system.h"

namespace klarvik {

/// Runs `body` in a child process that has mounts of its own, so that what it mounts is seen by
/// nobody else and gone at its end. An ordinary user is made root of a user space of its own for
/// it. Answers whether `body` ended without a failed expectation. `body` must not call `exit`.
[[nodiscard]] bool passesWithPrivateMounts(const std::function<void()>& body);

/// Whether this machine lets a process mount a file system of its own (FUSE).
[[nodiscard]] bool canMountDeadServers();
/// The same as `passesWithPrivateMounts`, with a file system on each of `folders` whose server
/// never answers. A `body` that waits for one is ended after a minute, and has not passed.
[[nodiscard]] bool passesWithDeadServers(const std::vector<Path>& folders,
                                         const std::function<void()>& body);

/// Whether this machine lets a process make a file system of this kind ("btrfs", "xfs") in a file,
/// and mount it. That takes root, and the programs of that kind.
[[nodiscard]] bool canMountImage(const std::string& kind);
/// For use within: an empty one on `folder`, kept in a file of the folder `store`.
[[nodiscard]] bool mountImage(const std::string& kind, const Path& store, const Path& folder);
/// A copy that shares its content with the file, on a file system that has such.
[[nodiscard]] bool shareContent(const Path& file, const Path& copy);

/// For use within: an empty file system in memory on `folder`. `options` are those of tmpfs, such
/// as "size=64k", `source` is what the system says it was mounted from.
void mountTmpfs(const Path& folder, const char* options = "", const char* source = "klarvik-test");
/// `folder` seen at `at` as well.
void mountBind(const Path& folder, const Path& at);

}  // namespace klarvik
