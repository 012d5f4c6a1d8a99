#include "base/folder_handle.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>

#include "base/posix_io.h"

namespace klarvik {

UniqueFd openFolderHandle(int parent, const char* name, LinkInPlace link) {
  const int flags =
      O_PATH | O_DIRECTORY | O_CLOEXEC | (link == LinkInPlace::refused ? O_NOFOLLOW : 0);
  return UniqueFd(retryOnEintr([&] { return ::openat(parent, name, flags); }));
}

UniqueFd openFolderHandleCreating(int parent, const char* name, LinkInPlace link) {
  UniqueFd folder = openFolderHandle(parent, name, link);
  if (folder || errno != ENOENT) return folder;
  constexpr mode_t forTheUserAlone = 0700;
  const auto make = [&] { return ::mkdirat(parent, name, forTheUserAlone); };
  if (retryOnEintr(make) != 0 && errno != EEXIST) return {};
  return openFolderHandle(parent, name, link);
}

}  // namespace klarvik
