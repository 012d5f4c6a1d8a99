#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <span>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

#include "base/paths.h"
#include "platform/file_attributes.h"

namespace klarvik {

class FileSystem;

/// What lies in some folders and how much each thing takes, to be looked into level by level. Made
/// by one walk; keeps all folders, and of each the files that take most: some 100 bytes and the
/// name of each. A plain value that refers to no disk: one thread at a time.
class FolderSizes {
 public:
  /// Of a folder, while it is in here.
  using Id = std::uint32_t;
  /// Above all folders that were asked for; lies nowhere itself.
  static constexpr Id top = 0;
  /// So many files of a folder are kept by name. The others are told together.
  static constexpr std::size_t keptFiles = 100;

  struct Row {
    std::string name;            ///< bytes of the disk; a whole path directly below the top
    Path path{};                 ///< empty for what is told together
    std::int64_t bytes = 0;      ///< allocated on the disk
    std::optional<Id> folder{};  ///< to look into
    std::size_t things = 1;      ///< how many are told together
    /// As it was met, before it was measured.
    std::optional<EntryIdentity> identity{};
    /// It is a file that has another name, or holds one: its space may not come back with it.
    bool hasOtherNames = false;
  };

  /// Sees the bytes that were counted so far.
  using Progress = std::function<void(std::int64_t bytes)>;

  FolderSizes() : _folders(1) {}

  /// Measures `starts`, all but what lies at `leftOut`; links are not followed, other volumes not
  /// entered, and servers not waited for. A file with several names counts where it is met first.
  /// What may not be read takes nothing. Any thread; ends early at a stop, with what it has.
  [[nodiscard]] static FolderSizes measure(const FileSystem& files, std::span<const Path> starts,
                                           std::span<const Path> leftOut,
                                           const std::stop_token& stop,
                                           const Progress& progress = {});

  [[nodiscard]] std::int64_t bytes(Id folder) const { return _folders[folder].bytes; }
  /// The top's is empty.
  [[nodiscard]] Path path(Id folder) const;
  [[nodiscard]] std::string_view name(Id folder) const { return nameOf(_folders[folder]); }
  [[nodiscard]] Id above(Id folder) const { return _folders[folder].above; }
  [[nodiscard]] std::size_t folderCount() const { return _folders.size() - 1; }

  /// What lies in the folder, largest first: at most `most` rows, and one for all that is smaller.
  [[nodiscard]] std::vector<Row> rows(Id folder, std::size_t most = 1000) const;
  /// Takes out what has gone from a folder: one of its rows, by its path.
  void remove(Id folder, const Path& gone);

 private:
  friend class FolderMeasurement;

  struct Entry {
    std::uint32_t nameOffset = 0;
    std::uint16_t nameLength = 0;
    FileKind kind = FileKind::directory;
    bool isGone = false;
    bool hasOtherNames = false;
    // The parts of an `EntryIdentity`, which has gaps.
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::int64_t created = 0;  ///< nanoseconds since 1970; `untold` where the disk does not tell
    std::int64_t bytes = 0;
  };
  struct Folder : Entry {
    Id above = 0;
    Id firstFolder = 0;
    Id folderCount = 0;
    std::uint32_t firstFile = 0;
    std::uint32_t fileCount = 0;
    std::uint32_t smallerFiles = 0;
    std::int64_t smallerBytes = 0;
  };

  [[nodiscard]] std::string_view nameOf(const Entry& entry) const {
    return std::string_view(_names).substr(entry.nameOffset, entry.nameLength);
  }
  [[nodiscard]] Row rowOf(Id above, const Entry& entry) const;

  std::deque<Folder> _folders;  // a list that grows without being copied
  std::deque<Entry> _files;
  std::string _names;
};

}  // namespace klarvik
