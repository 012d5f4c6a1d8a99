#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/linux/unique_fd.h"
#include "platform/path.h"

namespace klarvik {

/// A file that nobody finds until it is whole. It is written in the folder that it will stand in,
/// and is gone with this object, or with the process, unless it has been published. Paths are those
/// of the machine. One thread at a time.
class UnpublishedFile {
 public:
  /// Nothing when no file can be made in `folder`.
  [[nodiscard]] static std::optional<UnpublishedFile> in(const Path& folder);

  UnpublishedFile(UnpublishedFile&& other) noexcept;
  UnpublishedFile& operator=(UnpublishedFile&&) = delete;
  ~UnpublishedFile();

  /// False when not all of it could be written; the file is of no use then.
  [[nodiscard]] bool append(std::string_view bytes);
  [[nodiscard]] std::int64_t size() const { return _size; }
  /// Shows `look` all of what has been written. False when it cannot be read, else what `look`
  /// says.
  [[nodiscard]] bool inspect(const std::function<bool(std::span<const std::byte>)>& look) const;
  /// Writes all that has come so far to the disk, so that publishing it does not keep anybody
  /// waiting. False when that failed.
  [[nodiscard]] bool flush() const;
  /// Gives it up: nothing of it stays in the folder, though it can still be inspected, meanwhile
  /// and afterwards, on another thread too.
  void discard();
  /// Puts the file on the disk for good, under the first of `name` + `extension`, `name` + "-2" +
  /// `extension` and so on that is free: nothing is ever replaced. Everybody may read it then.
  /// Answers where it stands; nothing when that failed.
  [[nodiscard]] std::optional<Path> publish(const std::string& name, const std::string& extension);

 private:
  UnpublishedFile(Path folder, UniqueFd fd, Path temporary);
  [[nodiscard]] bool rename(const Path& path) const;
  [[nodiscard]] bool giveName(const Path& path) const;

  Path _folder;
  UniqueFd _fd;
  Path _temporary;  ///< where the folder cannot hold a file without a name; empty: it can
  std::int64_t _size = 0;
};

}  // namespace klarvik
