#include "platform/linux/trash_folder.h"

#include <fcntl.h>
#include <unistd.h>

#include "base/folder_handle.h"
#include "base/pending_file.h"
#include "base/posix_io.h"
#include "platform/linux/item_move.h"
#include "platform/linux/trash_name.h"

namespace klarvik {
namespace {

constexpr std::size_t kMostNames = 200;
constexpr std::size_t kLongestRecord = 1 << 20;  // bytes; far more than any place takes

std::string recordName(const std::string& name) {
  return name + std::string(kTrashRecordSuffix);
}

void removeRecord(int info, const std::string& name) {
  retryOnEintr([&] { return ::unlinkat(info, recordName(name).c_str(), 0); });
}

PendingFile::Naming makeRecord(int info, const std::string& name, std::string_view text) {
  auto file = PendingFile::in(openFolderHandle(info, "."));
  if (!file || !file->append(text) || !file->flush()) return PendingFile::Naming::failed;
  return file->giveName(recordName(name));
}

bool holds(int folder, const std::string& name) {
  struct stat entry {};
  return ::fstatat(folder, name.c_str(), &entry, AT_SYMLINK_NOFOLLOW) == 0;
}

}  // namespace

std::optional<TrashFolder> TrashFolder::openCreating(const UniqueFd& folder) {
  UniqueFd files = openFolderHandleCreating(folder.get(), "files");
  UniqueFd info = openFolderHandleCreating(folder.get(), "info");
  if (!files || !info) return std::nullopt;
  return TrashFolder(std::move(files), std::move(info));
}

std::optional<TrashFolder> TrashFolder::openAround(const UniqueFd& files) {
  const UniqueFd folder = openFolderHandle(files.get(), "..");
  UniqueFd again = openFolderHandle(files.get(), ".");
  UniqueFd info = openFolderHandle(folder.get(), "info");
  if (!again || !info) return std::nullopt;
  return TrashFolder(std::move(again), std::move(info));
}

std::optional<std::string> TrashFolder::take(const ParentHandle& item, const struct statx& seen,
                                             std::string_view record) const {
  using Naming = PendingFile::Naming;
  const auto tryAs = [&](const std::string& name) {
    if (holds(files(), name)) return Move::nameTaken;
    const Naming recorded = makeRecord(_info.get(), name, record);
    if (recorded == Naming::nameTaken) return Move::nameTaken;
    if (recorded == Naming::failed) return Move::failed;
    const Move move = moveItem({item.folder.get(), item.name}, seen, {files(), name});
    const bool isEmpty =
        move == Move::nameTaken || move == Move::failed || move == Move::unsupported;
    if (isEmpty) dropRecord(name);
    return move;
  };

  for (std::size_t taken = 0; taken < kMostNames; ++taken) {
    std::string name = trashName(item.name, taken);
    const Move move = tryAs(name);
    if (move == Move::done || move == Move::unseen) return name;
    if (move != Move::nameTaken) return std::nullopt;
  }
  return std::nullopt;
}

std::optional<std::string> TrashFolder::readRecord(const std::string& name) const {
  constexpr int flags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
  const UniqueFd file(
      retryOnEintr([&] { return ::openat(_info.get(), recordName(name).c_str(), flags); }));
  return file ? readToEnd(file.get(), kLongestRecord) : std::nullopt;
}

bool TrashFolder::holdsRecord(const std::string& name) const {
  return holds(_info.get(), recordName(name));
}

void TrashFolder::dropRecord(const std::string& name) const {
  removeRecord(_info.get(), name);
}

}  // namespace klarvik
