#include "platform/linux/trash_folder.h"

#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>

#include <cerrno>

#include "platform/linux/folder_handle.h"
#include "platform/linux/read_to_end.h"
#include "platform/linux/trash_name.h"
#include "platform/linux/uninterrupted.h"
#include "platform/linux/write_whole.h"

namespace klarvik {
namespace {

constexpr mode_t kPrivateFile = 0600;
constexpr std::size_t kMostNames = 200;
constexpr std::size_t kLongestRecord = 1 << 20;  // bytes; far more than any place takes

enum class Attempt { done, nameTaken, failed };

UniqueFd openAt(int folder, const char* name, int flags) {
  return UniqueFd(
      uninterrupted([&] { return ::openat(folder, name, flags | O_CLOEXEC, kPrivateFile); }));
}

std::string recordName(const std::string& name) {
  return name + std::string(kTrashRecordSuffix);
}

// Some file systems tell only when a file is closed that there was no room for it.
bool closeWhole(UniqueFd file) {
  return ::close(file.release()) == 0;
}

void removeRecord(int info, const std::string& name) {
  uninterrupted([&] { return ::unlinkat(info, recordName(name).c_str(), 0); });
}

Attempt makeRecord(int info, const std::string& name, std::string_view text) {
  UniqueFd file = openAt(info, recordName(name).c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW);
  if (!file) return errno == EEXIST ? Attempt::nameTaken : Attempt::failed;
  if (writeWhole(file.get(), text) && closeWhole(std::move(file))) return Attempt::done;
  removeRecord(info, name);
  return Attempt::failed;
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

std::optional<std::string> TrashFolder::take(const ParentHandle& item,
                                             std::string_view record) const {
  const auto tryAs = [&](const std::string& name) {
    if (holds(files(), name)) return Attempt::nameTaken;
    const Attempt recorded = makeRecord(_info.get(), name, record);
    if (recorded != Attempt::done) return recorded;
    if (::renameat2(item.folder.get(), item.name.c_str(), files(), name.c_str(),
                    RENAME_NOREPLACE) == 0) {
      return Attempt::done;
    }
    const bool taken = errno == EEXIST;
    dropRecord(name);
    return taken ? Attempt::nameTaken : Attempt::failed;
  };

  for (std::size_t taken = 0; taken < kMostNames; ++taken) {
    std::string name = trashName(item.name, taken);
    const Attempt attempt = tryAs(name);
    if (attempt == Attempt::done) return name;
    if (attempt == Attempt::failed) return std::nullopt;
  }
  return std::nullopt;
}

std::optional<std::string> TrashFolder::readRecord(const std::string& name) const {
  const UniqueFd file =
      openAt(_info.get(), recordName(name).c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK);
  return file ? readToEnd(file.get(), kLongestRecord) : std::nullopt;
}

bool TrashFolder::holdsRecord(const std::string& name) const {
  return holds(_info.get(), recordName(name));
}

void TrashFolder::dropRecord(const std::string& name) const {
  removeRecord(_info.get(), name);
}

}  // namespace klarvik
