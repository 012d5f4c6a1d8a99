#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <string>

#include "base/posix_io.h"
#include "support/temporary_folder.h"

namespace klarvik {

/// Where big trees are made: in memory, where the machine offers that.
inline Path memoryFolder() {
  return std::filesystem::is_directory("/dev/shm") ? Path("/dev/shm")
                                                   : std::filesystem::temp_directory_path();
}

/// A chain of folders called `name` in `folder`, each with a folder "a" and a folder "z" beside the
/// next one, and a file at the bottom: `3 * levels + 1` entries.
inline void makeDeepTree(const Path& folder, int levels, const std::string& name = "d") {
  UniqueFd current(::open(folder.c_str(), O_PATH | O_DIRECTORY));
  for (int level = 0; level < levels; ++level) {
    for (const char* made : {"a", name.c_str(), "z"}) {
      ASSERT_EQ(::mkdirat(current.get(), made, 0755), 0);
    }
    current.reset(::openat(current.get(), name.c_str(), O_PATH | O_DIRECTORY));
    ASSERT_TRUE(current);
  }
  ASSERT_EQ(::mknodat(current.get(), "bottom", S_IFREG | 0644, 0), 0);
}

/// From now on this process may have `handles` files open. For a child process.
inline bool limitHandles(rlim_t handles) {
  const struct rlimit limit = {.rlim_cur = handles, .rlim_max = handles};
  return ::setrlimit(RLIMIT_NOFILE, &limit) == 0;
}

}  // namespace klarvik
