#pragma once

#include <cstddef>
#include <limits>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"
#include "tools/path_text.h"

namespace klarvik {

/// A list of files that walks came by, kept so tightly that a million of them do no harm: the bytes
/// of each name, and each folder once, by its name in the one above.
class FoundFiles {
 public:
  /// The entries added from here on are those of a walk that starts at `start`.
  void beginWalk(const Path& start);
  void add(const WalkEntry& entry);

  [[nodiscard]] std::size_t size() const { return _files.size(); }
  /// Bytes of the last path component.
  [[nodiscard]] std::string name(std::size_t number) const;

 private:
  friend class FoundFileAccess;
  friend class FoundFilePaths;
  static constexpr std::size_t none = std::numeric_limits<std::size_t>::max();

  struct Folder {
    std::size_t above;  // none: the start of a walk
    std::string name;   // of a start, its path
  };
  struct File {
    std::size_t folder;
    std::size_t name;  // where it begins
  };

  void goTo(std::string_view folder);
  [[nodiscard]] std::string pathOfFolder(std::size_t folder) const;

  std::vector<Folder> _folders;
  std::string _names;  // each ends with a zero byte
  std::vector<File> _files;
  std::size_t _current = none;  // the folder that the last entry lies in
  std::string _currentText;     // of it, as the walk tells it
};

/// The paths of found files, of which those in one folder share its text. One thread; must not
/// outlive what it is given.
class FoundFilePaths {
 public:
  explicit FoundFilePaths(const FoundFiles& found)
      : _found(found), _folders(found._folders.size()) {}

  [[nodiscard]] PathText path(std::size_t number);

 private:
  const FoundFiles& _found;
  std::vector<PathText::Folder> _folders;  // null: not asked for yet
};

/// Asks for found files one after the other. The folder of the last one stays open, so that the way
/// down to the next costs no more than the levels between them. One thread; must not outlive what
/// it is given.
class FoundFileAccess {
 public:
  FoundFileAccess(const FileSystem& files, const FoundFiles& found)
      : _files(files), _found(found) {}

  [[nodiscard]] std::optional<FileAttributes> attributes(std::size_t number);
  [[nodiscard]] std::unique_ptr<FileReader> openForReading(std::size_t number);

 private:
  void open(std::size_t folder);

  const FileSystem& _files;
  const FoundFiles& _found;
  std::unique_ptr<OpenedFolder> _opened;  // none where it cannot be opened
  std::size_t _folder = FoundFiles::none;
};

}  // namespace klarvik
