#include "platform/linux/volume_trash.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <string>

#include "base/posix_io.h"
#include "platform/linux/mounts.h"

namespace klarvik {
namespace {

constexpr const char* kSharedName = ".Trash";

std::string userId() {
  return std::to_string(::geteuid());
}

std::string ownName() {
  return std::string(kSharedName).append("-").append(userId());
}

enum class Missing { isMade, isNothing };

std::optional<TrashFolder> openOwn(int parent, const std::string& name, std::uint64_t mount,
                                   Missing missing) {
  const bool makes = missing == Missing::isMade;
  const UniqueFd folder = makes ? openFolderHandleCreating(parent, name.c_str())
                                : openFolderHandle(parent, name.c_str());
  struct stat status {};
  if (!folder || ::fstat(folder.get(), &status) != 0 || status.st_uid != ::geteuid()) {
    return std::nullopt;
  }
  auto trash = makes ? TrashFolder::openCreating(folder) : TrashFolder::open(folder);
  const auto files = trash ? mountOfEntry(trash->files(), "") : std::nullopt;
  return files && files->id == mount ? std::move(trash) : std::nullopt;
}

std::optional<TrashFolder> openInShared(int top, std::uint64_t mount, Missing missing) {
  const UniqueFd shared = openFolderHandle(top, kSharedName);
  struct stat status {};
  if (!shared || ::fstat(shared.get(), &status) != 0 || !(status.st_mode & S_ISVTX)) {
    return std::nullopt;
  }
  return openOwn(shared.get(), userId(), mount, missing);
}

}  // namespace

std::optional<VolumeTrash> openVolumeTrash(int top, std::uint64_t mount) {
  if (auto trash = openInShared(top, mount, Missing::isMade)) {
    return VolumeTrash{std::move(*trash), Path(kSharedName) / userId()};
  }
  if (auto trash = openOwn(top, ownName(), mount, Missing::isMade)) {
    return VolumeTrash{std::move(*trash), ownName()};
  }
  return std::nullopt;
}

std::vector<VolumeTrash> volumeTrashesAt(int top, std::uint64_t mount) {
  std::vector<VolumeTrash> found;
  if (auto trash = openInShared(top, mount, Missing::isNothing)) {
    found.push_back({std::move(*trash), Path(kSharedName) / userId()});
  }
  if (auto trash = openOwn(top, ownName(), mount, Missing::isNothing)) {
    found.push_back({std::move(*trash), ownName()});
  }
  return found;
}

std::optional<Path> topOfVolumeTrash(const Path& item) {
  const Path files = item.parent_path();
  const Path folder = files.parent_path();
  if (files.filename() != "files") return std::nullopt;
  if (folder.filename() == ownName()) return folder.parent_path();
  const Path shared = folder.parent_path();
  if (folder.filename() == userId() && shared.filename() == kSharedName) {
    return shared.parent_path();
  }
  return std::nullopt;
}

bool passesThroughVolumeTrash(const Path& item) {
  return std::find(item.begin(), item.end(), ownName()) != item.end();
}

}  // namespace klarvik
