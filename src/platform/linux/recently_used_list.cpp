#include "platform/linux/recently_used_list.h"

#include <sys/stat.h>

#include <cerrno>

#include "base/file_writes.h"
#include "base/posix_io.h"
#include "platform/linux/json_user_defaults.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;

constexpr std::string_view emptyList =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<xbel version=\"1.0\">\n"
    "</xbel>\n";

// Longer than another instance takes to empty it.
constexpr auto lockPatience = 2s;
constexpr ::mode_t permissionBits = 07777;

}  // namespace

bool RecentlyUsedList::clear() {
  struct ::stat status {};
  if (retryOnEintr([&] { return ::lstat(_file.c_str(), &status); }) != 0) return errno == ENOENT;
  if (!S_ISREG(status.st_mode)) return false;
  // Opens the list for writing, which a user who protects it against that has denied.
  const auto lock = FileLock::take(_file, lockPatience);
  return lock && writeAtomically(_file, emptyList, status.st_mode & permissionBits);
}

}  // namespace klarvik
