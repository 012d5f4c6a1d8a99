#pragma once

#include <sys/types.h>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "base/posix_io.h"

namespace klarvik {

/// A file that nobody finds until it is whole. It is written in the folder that it will stand in,
/// and is gone with this object, or with the process, unless it has got a name. One thread at a
/// time.
///
/// Where the file system has no files without a name, it is called ".klarvik-new-1a2b3c" meanwhile,
/// and stays when the process is killed.
class PendingFile {
 public:
  enum class Naming { done, nameTaken, failed };

  /// In an opened folder. The user alone may read the file. Nothing when none can be made there, or
  /// when `folder` holds -1.
  [[nodiscard]] static std::optional<PendingFile> in(UniqueFd folder);

  PendingFile(PendingFile&& other) noexcept;
  PendingFile& operator=(PendingFile&&) = delete;
  ~PendingFile();

  /// False when not all of it could be written; the file is of no use then.
  [[nodiscard]] bool append(std::string_view bytes);
  [[nodiscard]] std::int64_t size() const { return _size; }
  /// Shows `look` all of what has been written. False when it cannot be read, else what `look`
  /// says.
  [[nodiscard]] bool inspect(const std::function<bool(std::span<const std::byte>)>& look) const;
  /// Writes all that has come so far to the disk. False when that failed.
  [[nodiscard]] bool flush() const;
  /// Puts the file under `name` in its folder, where nothing is ever replaced.
  [[nodiscard]] Naming giveName(const std::string& name);
  /// Gives it up: nothing of it stays in the folder, though it can still be inspected, meanwhile
  /// and afterwards, on another thread too.
  void discard();
  /// Puts the file on the disk for good, under the first of `name` + `extension`, `name` + "-2" +
  /// `extension` and so on that is free. Everybody may read it then. Answers its name; nothing when
  /// that failed.
  [[nodiscard]] std::optional<std::string> commit(const std::string& name,
                                                  const std::string& extension);

 private:
  PendingFile(UniqueFd folder, UniqueFd fd, std::string temporary);
  [[nodiscard]] bool rename(const std::string& name) const;
  [[nodiscard]] bool link(const std::string& name) const;

  UniqueFd _folder;
  UniqueFd _fd;
  std::string _temporary;  ///< where the folder cannot hold a file without a name; empty: it can
  std::int64_t _size = 0;
};

/// What `file`, a path on the machine, means once the links that it is are followed: people keep
/// such files elsewhere and link to them. `file` itself where it is no link, or links in a circle.
[[nodiscard]] std::filesystem::path linkedFile(const std::filesystem::path& file);

/// Puts `content` in the place of `file`, a path on the machine; of a link, too.
/// Whoever reads the file, also after a crash at any moment, finds either all that stood there
/// before or all of `content`. `mode` says who may read it: the user alone, unless told otherwise.
///
/// False when that failed; what stood there before then still stands. Two writers of one file must
/// keep each other out.
[[nodiscard]] bool writeAtomically(const std::filesystem::path& file, std::string_view content,
                                   ::mode_t mode = 0600);

}  // namespace klarvik
