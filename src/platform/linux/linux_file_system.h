#pragma once

#include <string>

#include "platform/file_system.h"
#include "platform/linux/parent_handle.h"

namespace klarvik {

/// The files of this machine beneath one folder. Keeps nothing between calls; may be used from any
/// thread. A path that is not absolute, or holds a zero byte, names nothing.
class LinuxFileSystem : public FileSystem {
 public:
  /// `root` is where the logical "/" lies on the machine, also counted from the working folder;
  /// `folders` are logical paths. Below a relative root that is not there, nothing is.
  LinuxFileSystem(const Path& root, UserFolders folders);
  LinuxFileSystem(const Path& root, const Path& home)
      : LinuxFileSystem(root, UserFolders::in(home)) {}

  [[nodiscard]] Path diskPath(const Path& logical) const override;
  [[nodiscard]] std::optional<Path> logicalPath(const Path& disk) const override;
  [[nodiscard]] Path home() const override { return _folders.home; }
  [[nodiscard]] Path realHome() const override;
  [[nodiscard]] UserFolders folders() const override { return _folders; }
  [[nodiscard]] std::optional<Path> realPath(const Path& path) const override;

  [[nodiscard]] bool exists(const Path& path) const override;
  [[nodiscard]] std::optional<FileAttributes> attributes(const Path& path) const override;
  [[nodiscard]] std::optional<Path> linkTarget(const Path& path) const override;
  [[nodiscard]] std::vector<std::string> userAttributes(const Path& path) const override;
  [[nodiscard]] bool isMountPoint(const Path& path) const override;
  [[nodiscard]] bool mayShareContent(const Path& path) const override;
  [[nodiscard]] std::size_t filesAtOnce(const Path& folder) const override;
  [[nodiscard]] VolumeTops volumeTops() const override;
  [[nodiscard]] std::optional<std::vector<Path>> list(const Path& folder) const override;
  WalkOutcome walk(const Path& folder, WalkOptions options,
                   const WalkVisitor& visit) const override;
  [[nodiscard]] std::unique_ptr<FileReader> openForReading(const Path& path) const override;
  [[nodiscard]] std::unique_ptr<OpenedFolder> openFolder(const Path& folder) const override;

  bool createDirectories(const Path& folder) override;
  bool move(const Path& from, const Path& to) override;
  bool empty(const Path& file, const ItemCheck& mayEmpty) override;
  bool removeUserAttributes(const Path& file, std::span<const std::string_view> names,
                            const ItemCheck& mayChange) override;
  bool remove(const Path& item, const ItemCheck& mayRemove) override;

 private:
  /// What system calls are told: a folder and a name in it that together mean `path`.
  struct Location {
    UniqueFd folder;  ///< none: the name is a path of its own
    std::string name;

    [[nodiscard]] int at() const;
  };
  [[nodiscard]] std::optional<Location> locate(const Path& path) const;
  [[nodiscard]] static bool enterLongestPart(Location& location);
  /// Without trailing slashes. Plain text: this is asked for every file that a scan reads.
  [[nodiscard]] std::string diskText(const Path& logical) const;
  [[nodiscard]] static UniqueFd openAt(const Location& location, int flags);
  [[nodiscard]] UniqueFd open(const Path& path, int flags) const;

  Path _root;
  UserFolders _folders;
};

}  // namespace klarvik
