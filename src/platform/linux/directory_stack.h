#pragma once

#include <dirent.h>
#include <sys/types.h>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/posix_io.h"

namespace klarvik {

/// Names that wait for their turn, the last one first, packed into one piece of memory.
class NameStack {
 public:
  [[nodiscard]] bool empty() const { return _bytes.empty(); }
  /// For `truncate`: a measure of what is held, not a number of names.
  [[nodiscard]] std::size_t extent() const { return _bytes.size(); }

  void push(std::string_view name) { _bytes.append(name).push_back('\0'); }

  std::string pop() {
    const std::size_t end = _bytes.size() - 1;
    const std::size_t before = end == 0 ? std::string::npos : _bytes.rfind('\0', end - 1);
    const std::size_t start = before == std::string::npos ? 0 : before + 1;
    std::string name = _bytes.substr(start, end - start);
    _bytes.resize(start);
    return name;
  }

  /// Calls `each(name, extent)` for the names that were pushed since `extent()` was `since`, the
  /// last one first, until it answers false; `extent` is what it was before that name was pushed.
  template <typename Each>
  void forEachFromLast(std::size_t since, const Each& each) const {
    for (std::size_t after = _bytes.size(); after > since;) {
      const std::size_t end = after - 1;
      const std::size_t before = end == 0 ? std::string::npos : _bytes.rfind('\0', end - 1);
      const std::size_t start = before == std::string::npos ? 0 : before + 1;
      if (!each(std::string_view(_bytes).substr(start, end - start), start)) return;
      after = start;
    }
  }

  /// Drops what was pushed since `extent()` was this.
  void truncate(std::size_t extent) { _bytes.resize(extent); }

 private:
  std::string _bytes;
};

/// One entry of a directory as it was listed. The name ends with a zero byte.
struct ListedEntry {
  std::string_view name;
  unsigned char type = DT_UNKNOWN;  ///< one of DT_...; not every file system tells
};

/// Hands every entry but "." and ".." of what the system has listed to `each` until it answers
/// false, and answers what it answered last.
template <typename Each>
bool forEachListed(std::span<const std::byte> listed, const Each& each) {
  const auto isDotOrDotDot = [](const char* name) {
    return name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0'));
  };
  for (std::size_t at = 0; at < listed.size();) {
    const auto* entry = reinterpret_cast<const struct dirent64*>(listed.data() + at);
    at += entry->d_reclen;
    if (isDotOrDotDot(entry->d_name)) continue;
    if (!each(ListedEntry{entry->d_name, entry->d_type})) return false;
  }
  return true;
}

/// Lists opened directories, one after the other, through one big buffer.
class DirectoryReader {
 public:
  /// Hands every entry but "." and ".." to `each` until it answers false. An error on the way ends
  /// the list early; false only when nothing at all could be read.
  template <typename Each>
  bool read(int folder, const Each& each) {
    for (bool first = true;; first = false) {
      const auto listed = readPart(folder);
      if (!listed) return !first;
      if (listed->empty() || !forEachListed(*listed, each)) return true;
    }
  }

  /// The next entries as the system lists them, until the next call; empty at the end, nothing
  /// when they cannot be read.
  [[nodiscard]] std::optional<std::span<const std::byte>> readPart(int folder) {
    const ssize_t filled =
        retryOnEintr([&] { return ::getdents64(folder, _buffer.get(), kBufferBytes); });
    if (filled < 0) return std::nullopt;
    return std::span<const std::byte>(_buffer.get(), static_cast<std::size_t>(filled));
  }

 private:
  static constexpr std::size_t kBufferBytes = std::size_t{64} * 1024;

  std::unique_ptr<std::byte[]> _buffer = std::make_unique_for_overwrite<std::byte[]>(kBufferBytes);
};

/// Holds -1 when `name` in the opened folder is no folder, or when it cannot be opened.
[[nodiscard]] UniqueFd openForListing(int folder, const char* name);

/// The same, but where another volume is mounted on `name` nothing is opened, and `errno` is EXDEV.
/// The volume itself is not asked, except that an automounter may mount one first.
[[nodiscard]] UniqueFd openOnSameMount(int folder, const char* name);
/// Whether this system lets `openOnSameMount` open anything.
[[nodiscard]] bool canOpenOnSameMount();

/// Where a walk stands: the opened folders from its start down to the current one.
///
/// 1. Every folder was opened by its name in the folder above, and is no symbolic link.
/// 2. Only a few handles are open at a time, the start's and the current one's among them, so that
///    depth is bounded by memory alone.
/// 3. A folder above whose handle was closed is opened again through "..", and only accepted when
///    it is the same folder as before. A stack never leads to a place that it did not come from.
///
/// Belongs to one thread.
class DirectoryStack {
 public:
  /// Opens the folder `name` in an opened one; sets `errno` when it cannot.
  using Open = std::function<UniqueFd(int folder, const char* name)>;

  /// `freeHandles` is called when this process has no handle left and the stack cannot spare one of
  /// its own. It answers whether it has closed some.
  explicit DirectoryStack(UniqueFd start, Open open = openForListing,
                          std::function<bool()> freeHandles = nullptr);

  /// 0 in the folder that it started at.
  [[nodiscard]] std::size_t depth() const { return _levels.size() - 1; }
  /// -1 while it is not opened.
  [[nodiscard]] int current() const {
    const auto& handle = _levels.back().handle;
    return handle ? handle->get() : -1;
  }
  /// For whoever opens folders in the current one while the stack goes on. Once the stack has
  /// closed it, it is gone.
  [[nodiscard]] std::weak_ptr<const UniqueFd> currentHandle() const {
    return _levels.back().handle;
  }
  /// Of the current folder, counted from the start: "a/b", and empty at the start itself.
  [[nodiscard]] const std::string& path() const { return _path; }
  [[nodiscard]] std::string_view currentName() const { return nameAt(depth()); }

  /// Opens a folder that lies in the current one. Holds -1 when it is none, or when it cannot be
  /// opened.
  [[nodiscard]] UniqueFd open(const char* name);
  void enter(UniqueFd folder, std::string_view name) {
    enter(std::make_shared<const UniqueFd>(std::move(folder)), name);
  }
  void enter(std::shared_ptr<const UniqueFd> folder, std::string_view name);
  /// Enters a folder in which nothing will be entered, without opening it.
  void enterUnopened(std::string_view name);
  /// Opens the current folder if it is not yet. It stays unopened when that fails.
  void openCurrent();
  /// Goes back to the folder above. When folders have been moved meanwhile, so that it is not to be
  /// found, goes back as far as the last folder that still is where it was. Never called at the
  /// start.
  void leave();

 private:
  struct Level {
    std::shared_ptr<const UniqueFd> handle;
    std::size_t pathLength = 0;  // of the path up to this folder
    dev_t device = 0;            // these two are known once the handle was closed
    ino_t inode = 0;

    void closeHandle();
    [[nodiscard]] bool isThe(const UniqueFd& folder) const;
  };

  [[nodiscard]] std::string_view nameAt(std::size_t level) const;
  [[nodiscard]] UniqueFd openIn(int folder, const char* name) const;
  bool closeHighest();
  void reopenFromRoot();
  void truncate(std::size_t depth);

  std::vector<Level> _levels;
  std::size_t _firstOpen = 1;  // levels from 1 to here have their handles closed, the others open
  std::string _path;
  Open _open;
  std::function<bool()> _freeHandles;
};

}  // namespace klarvik
