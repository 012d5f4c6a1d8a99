#include "platform/linux/item_move.h"

#include <fcntl.h>
#include <stdio.h>
#include <unistd.h>

#include <cerrno>

#include "base/posix_io.h"
#include "platform/linux/file_status.h"

namespace klarvik {
namespace {

bool renameIfFree(const Name& from, const Name& to) {
  return retryOnEintr([&] {
           return ::renameat2(from.folder, from.text.c_str(), to.folder, to.text.c_str(),
                              RENAME_NOREPLACE);
         }) == 0;
}

/// The system moves whatever stands under a name by the time it is asked, so that what was moved is
/// looked at again where it is then.
template <typename MoveBack>
Move lookedAtAgain(const struct statx& seen, const Name& to, const MoveBack& moveBack) {
  const auto moved = statusOf(to.folder, to.text.c_str());
  if (!moved) return Move::unseen;
  if (isTheSame(*moved, seen)) return Move::done;
  return moveBack() ? Move::failed : Move::strayed;
}

bool unlinkName(const Name& name) {
  return retryOnEintr([&] { return ::unlinkat(name.folder, name.text.c_str(), 0); }) == 0;
}

/// A second name replaces nothing. The first one goes once both are known to mean the item.
Move moveBySecondName(const Name& from, const struct statx& seen, const Name& to) {
  const int linked = retryOnEintr(
      [&] { return ::linkat(from.folder, from.text.c_str(), to.folder, to.text.c_str(), 0); });
  if (linked != 0) {
    if (errno == EEXIST) return Move::nameTaken;
    const bool cannotLink = errno == EPERM || errno == EOPNOTSUPP || errno == ENOSYS;
    return cannotLink ? Move::unsupported : Move::failed;
  }
  const bool isMeant =
      isStill(seen, to.folder, to.text.c_str()) && isStill(seen, from.folder, from.text.c_str());
  if (isMeant && unlinkName(from)) return Move::done;
  unlinkName(to);
  return Move::failed;
}

/// A folder that is renamed replaces nothing but an empty folder, and one is looked for before.
Move moveFolderPlainly(const Name& from, const struct statx& seen, const Name& to) {
  const auto plainly = [](const Name& source, const Name& target) {
    if (statusOf(target.folder, target.text.c_str())) {
      errno = EEXIST;
      return false;
    }
    return retryOnEintr([&] {
             return ::renameat(source.folder, source.text.c_str(), target.folder,
                               target.text.c_str());
           }) == 0;
  };
  if (!isStill(seen, from.folder, from.text.c_str())) return Move::failed;
  if (!plainly(from, to)) {
    const bool isTaken = errno == EEXIST || errno == ENOTEMPTY || errno == ENOTDIR;
    return isTaken ? Move::nameTaken : Move::failed;
  }
  return lookedAtAgain(seen, to, [&] { return plainly(to, from); });
}

}  // namespace

Move moveItem(const Name& from, const struct statx& seen, const Name& to) {
  if (renameIfFree(from, to)) {
    return lookedAtAgain(seen, to, [&] { return renameIfFree(to, from); });
  }
  if (errno == EEXIST) return Move::nameTaken;
  const bool cannotRenameSo = errno == EINVAL || errno == ENOSYS;
  if (!cannotRenameSo) return Move::failed;
  // NFS and some others know no renaming that replaces nothing.
  return kindOf(seen) == FileKind::directory ? moveFolderPlainly(from, seen, to)
                                             : moveBySecondName(from, seen, to);
}

}  // namespace klarvik
