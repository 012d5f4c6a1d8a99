#include "platform/linux/trash_folder.h"

#include <fcntl.h>
#include <limits.h>
#include <sys/stat.h>
#include <unistd.h>
#include <algorithm>
#include <array>
#include <random>
#include <string>
#include <vector>

#include "base/file_writes.h"
#include "base/posix_io.h"
#include "base/text.h"
#include "platform/linux/directory_stack.h"
#include "platform/linux/file_status.h"
#include "platform/linux/item_move.h"
#include "platform/linux/mounts.h"

namespace klarvik {
namespace {

constexpr std::size_t kLongestName = NAME_MAX - kTrashRecordSuffix.size();
constexpr std::size_t kLongestExtension = 32;
constexpr std::size_t kNumberedNames = 8;

std::string_view extensionOf(std::string_view name) {
  const std::size_t dot = name.rfind('.');
  if (dot == std::string_view::npos || dot == 0) return {};
  const std::string_view extension = name.substr(dot);
  return extension.size() <= kLongestExtension ? extension : std::string_view();
}

// Not in the middle of a character, if it is UTF-8: that has at most three bytes after the first.
std::string_view cutTo(std::string_view text, std::size_t length) {
  if (text.size() <= length) return text;
  const auto continues = [&](std::size_t at) {
    return (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80;
  };
  for (std::size_t end = length; end > 0 && length - end <= 3; --end) {
    if (!continues(end)) return text.substr(0, end);
  }
  return text.substr(0, length);
}

std::string numberAfter(std::size_t taken) {
  std::string text;
  if (taken == 0) return text;
  const std::size_t number = taken <= kNumberedNames ? taken + 1 : std::random_device()();
  return text.append(".").append(std::to_string(number));
}

}  // namespace

std::string trashName(std::string_view name, std::size_t taken) {
  const std::string_view extension = extensionOf(name);
  const std::string_view stem = name.substr(0, name.size() - extension.size());
  const std::string number = numberAfter(taken);
  std::string result(cutTo(stem, kLongestName - number.size() - extension.size()));
  return result.append(number).append(extension);
}

namespace {

constexpr std::string_view kHeading = "[Trash Info]";
constexpr std::string_view kPathKey = "Path=";
constexpr std::string_view kHexDigits = "0123456789ABCDEF";
// Letters and digits aside, what a place may hold without being encoded.
constexpr std::string_view kPlainMarks = "/-._~";

bool isPlain(unsigned char byte) {
  return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') ||
         (byte >= '0' && byte <= '9') ||
         kPlainMarks.find(static_cast<char>(byte)) != std::string_view::npos;
}

std::string percentEncoded(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    if (isPlain(byte)) {
      text += c;
    } else {
      text += {'%', kHexDigits[byte >> 4], kHexDigits[byte & 15]};
    }
  }
  return text;
}

std::optional<char> byteOf(std::string_view twoDigits) {
  const auto value = wholeNumber<unsigned char>(twoDigits, 16);
  if (twoDigits.size() != 2 || !value || *value == 0) return std::nullopt;
  return static_cast<char>(*value);
}

std::optional<std::string> percentDecoded(std::string_view text) {
  std::string bytes;
  while (!text.empty()) {
    if (text.front() != '%') {
      bytes += text.front();
      text.remove_prefix(1);
      continue;
    }
    const auto byte = byteOf(text.substr(1, 2));
    if (!byte) return std::nullopt;
    bytes += *byte;
    text.remove_prefix(3);
  }
  return bytes;
}

bool climbs(const Path& place) {
  return std::find(place.begin(), place.end(), "..") != place.end();
}

}  // namespace

std::string trashRecordText(const Path& place, std::time_t deleted) {
  std::tm local{};
  ::localtime_r(&deleted, &local);
  std::array<char, 32> date{};
  std::strftime(date.data(), date.size(), "%Y-%m-%dT%H:%M:%S", &local);
  return std::string(kHeading) + "\n" + std::string(kPathKey) + percentEncoded(place.native()) +
         "\nDeletionDate=" + date.data() + "\n";
}

std::optional<Path> placeInTrashRecord(std::string_view text) {
  if (takeLine(text) != kHeading) return std::nullopt;
  while (!text.empty()) {
    const std::string_view line = takeLine(text);
    if (!line.starts_with(kPathKey)) continue;
    const auto bytes = percentDecoded(line.substr(kPathKey.size()));
    if (!bytes || bytes->empty() || bytes->find('\0') != std::string::npos) return std::nullopt;
    Path place(*bytes);
    return climbs(place) ? std::nullopt : std::optional(std::move(place));
  }
  return std::nullopt;
}

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

std::optional<TrashFolder> TrashFolder::open(const UniqueFd& folder) {
  UniqueFd files = openFolderHandle(folder.get(), "files");
  UniqueFd info = openFolderHandle(folder.get(), "info");
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

void TrashFolder::dropRecordsOfNothing(Date time) const {
  constexpr int flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
  const UniqueFd info(retryOnEintr([&] { return ::openat(_info.get(), ".", flags); }));
  if (!info) return;
  std::vector<std::string> names;
  DirectoryReader().read(info.get(), [&](const ListedEntry& entry) {
    const std::string_view name = entry.name;
    if (name.ends_with(kTrashRecordSuffix) && name != kTrashRecordSuffix) {
      names.emplace_back(name.substr(0, name.size() - kTrashRecordSuffix.size()));
    }
    return true;
  });
  for (const std::string& name : names) {
    const auto record = statusOf(_info.get(), recordName(name).c_str());
    const auto written = record ? attributesOf(*record).modified : std::nullopt;
    if (written && *written < time && !holds(files(), name)) dropRecord(name);
  }
}

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
