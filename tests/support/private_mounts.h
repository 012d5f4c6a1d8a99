#pragma once

#include <functional>
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

/// For use within: an empty file system in memory on `folder`. `options` are those of tmpfs, such
/// as "size=64k".
void mountTmpfs(const Path& folder, const char* options = "");
/// `folder` seen at `at` as well.
void mountBind(const Path& folder, const Path& at);

}  // namespace klarvik
