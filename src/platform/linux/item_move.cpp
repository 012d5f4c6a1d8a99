#include "platform/linux/item_move.h"

#include <stdio.h>

#include <cerrno>

#include "base/posix_io.h"
#include "platform/linux/file_status.h"

namespace klarvik {
namespace {

bool rename(const Name& from, const Name& to) {
  return retryOnEintr([&] {
           return ::renameat2(from.folder, from.text.c_str(), to.folder, to.text.c_str(),
                              RENAME_NOREPLACE);
         }) == 0;
}

}  // namespace

/// The system moves whatever stands under a name by the time it is asked, so that what was moved is
/// looked at again where it is then.
Move moveItem(const Name& from, const struct statx& seen, const Name& to) {
  if (!rename(from, to)) {
    if (errno == EEXIST) return Move::nameTaken;
    return errno == EINVAL ? Move::unsupported : Move::failed;
  }
  const auto moved = statusOf(to.folder, to.text.c_str());
  if (!moved) return Move::unseen;
  if (isTheSame(*moved, seen)) return Move::done;
  return rename(to, from) ? Move::failed : Move::strayed;
}

}  // namespace klarvik
