#pragma once

#include <map>
#include <set>
#include <shared_mutex>
#include <string>
#include <vector>

#include "platform/file_system.h"
#include "platform/trash.h"

namespace klarvik {

/// A disk that is only remembered, with sizes to the byte. The home is a Mac's, unless another is
/// given. Links are entries of their own and lead nowhere.
///
/// Files are laid down before the disk is used; from then on it may be used from any thread.
class FakeFileSystem final : public FileSystem {
 public:
  /// When everything was changed that is given no other date: 2026-03-04 17:06:40 UTC.
  static constexpr Date usualDate{std::chrono::seconds(1'772'644'000)};

  explicit FakeFileSystem(Path home = "/Users/ann");

  void addFolder(const Path& path);
  void addFile(const Path& path, std::int64_t allocatedBytes,
               std::optional<Date> modified = usualDate);
  void addLink(const Path& path);
  void setModified(const Path& path, std::optional<Date> modified);
  /// The item is reached through a link: this is where it really is.
  void setRealPlace(const Path& item, const Path& real);

  [[nodiscard]] bool holds(const Path& path) const;
  /// Every path there is.
  [[nodiscard]] std::set<Path> contents() const;

  [[nodiscard]] Path diskPath(const Path& logical) const override { return logical; }
  [[nodiscard]] std::optional<Path> logicalPath(const Path& disk) const override { return disk; }
  [[nodiscard]] Path home() const override { return _home; }
  [[nodiscard]] Path realHome() const override { return _realHome; }
  void setRealHome(const Path& path) { _realHome = path; }
  [[nodiscard]] std::optional<Path> realPath(const Path& path) const override { return path; }
  [[nodiscard]] bool isMountPoint(const Path&) const override { return false; }

  [[nodiscard]] bool exists(const Path& path) const override;
  [[nodiscard]] std::optional<FileAttributes> attributes(const Path& path) const override;
  [[nodiscard]] std::optional<std::vector<Path>> list(const Path& folder) const override;
  WalkOutcome walk(const Path& folder, WalkOptions options,
                   const WalkVisitor& visit) const override;
  [[nodiscard]] std::unique_ptr<FileReader> openForReading(const Path& path) const override;
  [[nodiscard]] std::unique_ptr<OpenedFolder> openFolder(const Path& folder) const override;
  bool createDirectories(const Path& folder) override;
  bool move(const Path& from, const Path& to) override;
  bool empty(const Path& file, const ItemCheck& mayEmpty) override;
  /// No file has any.
  bool removeUserAttributes(const Path& file, std::span<const std::string_view> names,
                            const ItemCheck& mayChange) override;
  bool remove(const Path& item, const ItemCheck& mayRemove) override;

  /// A move that asks for leave first, as a removal does.
  bool moveChecked(const Path& from, const Path& to, const ItemCheck& mayMove);

 private:
  [[nodiscard]] bool isAllowed(const Path& item, const ItemCheck& check) const;
  [[nodiscard]] std::vector<Path> subtree(const Path& item) const;

  mutable std::shared_mutex _mutex;
  std::map<Path, FileAttributes> _entries;
  std::map<Path, Path> _realPlaces;
  const Path _home;
  Path _realHome = _home;
};

/// A Trash on such a disk, with its main folder in the user's data folder and a second one,
/// ".Trash", in the home where a test makes it. It keeps no records: things go back where they are
/// sent.
class FakeTrash final : public Trash {
 public:
  explicit FakeTrash(FakeFileSystem& files);

  [[nodiscard]] std::vector<Path> folders() override;
  [[nodiscard]] std::optional<std::vector<Path>> list() override;
  [[nodiscard]] std::optional<Date> modificationDate() override;
  [[nodiscard]] bool contains(const Path& item) const override;
  std::optional<Path> moveToTrash(const Path& item, const ItemCheck& mayMove) override;
  bool putBack(const Path& trashed, const Path& original, const ItemCheck& mayReturn) override;
  bool remove(const Path& trashed, const ItemCheck& mayRemove) override;
  void dropRecordsOfNothing() override {}  // it keeps none

 private:
  FakeFileSystem& _files;
  const Path _mainTrash;
  const Path _homeTrash;
};

}  // namespace klarvik
