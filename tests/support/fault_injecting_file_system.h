#pragma once

#include <vector>

#include "support/fault_injection.h"

namespace klarvik {

enum class FileOperation {
  exists,
  attributes,  ///< of one path, and of an entry in a walk
  list,
  walk,  ///< a start is refused; a folder on the way is shown, but not entered
  openForReading,
  createDirectories,
  move,  ///< by the path it is moved from
  remove,
};

extern template class FaultInjection<FileOperation>;

/// Another file system, real or remembered, with faults put into it, and a record of what was
/// opened and removed. May be used from any thread.
class FaultInjectingFileSystem final : public FileSystem, public FaultInjection<FileOperation> {
 public:
  using Operation = FileOperation;
  struct Removal {
    Path item;
    bool done = false;
  };

  explicit FaultInjectingFileSystem(FileSystem& files) : _files(files) {}

  /// From now on the folder can neither be listed nor walked.
  void makeUnreadable(const Path& folder);
  /// Reading of `path` fails once this many bytes have been handed out.
  void failReadingAfter(std::size_t bytes, const Path& path);

  /// The file says it has this many bytes, allocated and in length.
  void overlaySize(const Path& path, std::int64_t bytes);

  /// On a disk of the machine, `path` itself is gone, or is a link to `target`, by the time of the
  /// operation.
  void vanishBefore(Operation operation, const Path& path);
  void becomeLinkBefore(Operation operation, const Path& path, const Path& target);

  /// In the order they were asked for, refused and failed ones included.
  [[nodiscard]] std::vector<Path> openings() const;
  [[nodiscard]] std::vector<Removal> removals() const;
  /// What was removed for good, in order.
  [[nodiscard]] std::vector<Path> removed() const;

  [[nodiscard]] Path diskPath(const Path& logical) const override;
  [[nodiscard]] std::optional<Path> logicalPath(const Path& disk) const override;
  [[nodiscard]] Path home() const override;
  [[nodiscard]] Path realHome() const override;
  [[nodiscard]] UserFolders folders() const override;
  [[nodiscard]] std::optional<Path> realPath(const Path& path) const override;
  [[nodiscard]] bool exists(const Path& path) const override;
  [[nodiscard]] std::optional<FileAttributes> attributes(const Path& path) const override;
  [[nodiscard]] std::optional<Path> linkTarget(const Path& path) const override;
  [[nodiscard]] std::vector<std::string> userAttributes(const Path& path) const override {
    return _files.userAttributes(path);
  }
  [[nodiscard]] bool isMountPoint(const Path& path) const override;
  [[nodiscard]] std::size_t filesAtOnce(const Path& folder) const override {
    return _files.filesAtOnce(folder);
  }
  [[nodiscard]] bool mayShareContent(const Path& path) const override {
    return _files.mayShareContent(path);
  }
  [[nodiscard]] VolumeTops volumeTops() const override { return _files.volumeTops(); }
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
  class OverlaidEntry;

  [[nodiscard]] FileAttributes overlaid(const Path& path, FileAttributes attributes) const;

  FileSystem& _files;
  std::atomic<bool> _isOverlaid = false;
  mutable std::mutex _mutex;  // guards all below
  std::map<Path, std::size_t> _readLimits;
  std::map<Path, std::int64_t> _sizes;
  mutable std::vector<Path> _openings;
  std::vector<Removal> _removals;
};

}  // namespace klarvik
