#include "platform/linux/item_move.h"

#include <fcntl.h>
#include <limits.h>
#include <stdio.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <random>

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

bool linkName(const Name& from, const Name& to) {
  return retryOnEintr([&] {
           return ::linkat(from.folder, from.text.c_str(), to.folder, to.text.c_str(), 0);
         }) == 0;
}

/// Where something stands already, nothing is renamed; what comes in that moment is replaced when
/// it is a file.
bool renamePlainly(const Name& from, const Name& to) {
  if (statusOf(to.folder, to.text.c_str())) {
    errno = EEXIST;
    return false;
  }
  return retryOnEintr([&] {
           return ::renameat(from.folder, from.text.c_str(), to.folder, to.text.c_str());
         }) == 0;
}

/// Takes the name from the item that has another one by now. The system would unlink whatever
/// stands there, so what it is is seen under a temporary name first.
Move unlinkFirstName(const Name& name, const struct statx& seen) {
  const std::string temporary = temporaryName(name.text);
  const Name aside{name.folder, temporary};
  if (!renamePlainly(name, aside)) return Move::failed;
  if (isStill(seen, aside.folder, aside.text.c_str()) && unlinkName(aside)) return Move::done;
  const bool isBack = linkName(aside, name) ? unlinkName(aside) : renamePlainly(aside, name);
  return isBack ? Move::failed : Move::strayed;
}

/// A second name replaces nothing. The first one goes once both are known to mean the item.
Move moveBySecondName(const Name& from, const struct statx& seen, const Name& to) {
  if (!linkName(from, to)) {
    if (errno == EEXIST) return Move::nameTaken;
    const bool cannotLink = errno == EPERM || errno == EOPNOTSUPP || errno == ENOSYS;
    return cannotLink ? Move::unsupported : Move::failed;
  }
  const bool isMeant = isStill(seen, to.folder, to.text.c_str());
  const Move taken = isMeant ? unlinkFirstName(from, seen) : Move::failed;
  if (taken != Move::done) unlinkName(to);
  return taken;
}

/// A folder that is renamed replaces nothing but an empty folder, and one is looked for before.
Move moveFolderPlainly(const Name& from, const struct statx& seen, const Name& to) {
  if (!isStill(seen, from.folder, from.text.c_str())) return Move::failed;
  if (!renamePlainly(from, to)) {
    const bool isTaken = errno == EEXIST || errno == ENOTEMPTY || errno == ENOTDIR;
    return isTaken ? Move::nameTaken : Move::failed;
  }
  return lookedAtAgain(seen, to, [&] { return renamePlainly(to, from); });
}

}  // namespace

std::string temporaryName(const std::string& name) {
  std::array<char, 32> suffix{};
  const int length =
      std::snprintf(suffix.data(), suffix.size(), ".klarvik-removal-%08x", std::random_device()());
  return name.substr(0, NAME_MAX - static_cast<std::size_t>(length)) + suffix.data();
}

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
