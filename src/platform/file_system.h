#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/paths.h"
#include "platform/file_attributes.h"
#include "platform/user_folders.h"

namespace klarvik {

struct WalkOptions {
  bool skipHidden = false;           ///< leave out entries whose name begins with a dot
  bool skipPackageContents = false;  ///< show a package inside the tree, but not what is in it
  bool stayOnMount = false;  ///< show a folder where another volume begins, but do not enter
};

enum class WalkStep { proceed, skipDescendants, stop };

/// One entry below the start of a walk. Lives only during the visit. Nothing is asked of the disk
/// and no path is put together until a member that needs it is called.
class WalkEntry {
 public:
  virtual ~WalkEntry() = default;
  [[nodiscard]] virtual std::string_view name() const = 0;
  [[nodiscard]] virtual FileKind kind() const = 0;
  /// 1 for an entry that lies directly in the folder the walk started at.
  [[nodiscard]] virtual std::size_t depth() const = 0;
  [[nodiscard]] virtual Path path() const = 0;
  /// The folder that the entry lies in, counted from the start of the walk: "a/b", and empty for
  /// the start itself. Costs nothing.
  [[nodiscard]] virtual std::string_view folder() const = 0;
  /// 0 for a directory, and when the entry cannot be asked.
  [[nodiscard]] virtual std::int64_t allocatedBytes() = 0;
  [[nodiscard]] virtual std::optional<FileAttributes> attributes() = 0;
};

using WalkVisitor = std::function<WalkStep(WalkEntry&)>;

enum class WalkOutcome {
  completed,
  stopped,  ///< the visitor answered `stop`
  refused,  ///< the start is missing, is not a directory, or may not be read: nothing was visited
};

/// Where the volume of the home can be walked so that each thing on it is met once.
struct VolumeTops {
  std::vector<Path> folders;  ///< where it is mounted; the one that the home lies in comes first
  std::vector<Path> seenElsewhere;  ///< folders in there that hold what another of them holds
};

/// Sees an item, and the place where it really lies, once its parent has been opened and nothing
/// has been changed yet. Answering false leaves everything as it is. Only the item that was seen is
/// removed or moved then: what comes to its name afterwards stays.
using ItemCheck = std::function<bool(const Path& realPath, const FileAttributes& item)>;

/// Content of one regular file, read from front to back.
class FileReader {
 public:
  virtual ~FileReader() = default;
  /// Of the file that is open, whatever stands under its name by now. Nothing when it cannot be
  /// asked.
  [[nodiscard]] virtual std::optional<FileAttributes> attributes() const = 0;
  /// How many bytes were put into `buffer`: fewer than it takes at the end of the file alone, or
  /// where reading failed on the way; nothing when it failed at once.
  [[nodiscard]] virtual std::optional<std::size_t> read(std::span<std::byte> buffer) = 0;
  /// How much of the file stays on the disk when it is removed, because copies of it have the same
  /// content there; 0 where the file system does not tell.
  [[nodiscard]] virtual std::int64_t sharedBytes() const { return 0; }
};

/// A folder that is held open. What lies in it is found without going down to it again, however
/// deep it lies, and also when it has been moved since. Names are single components. Any thread,
/// one at a time.
class OpenedFolder {
 public:
  virtual ~OpenedFolder() = default;
  /// As those of `FileSystem`.
  [[nodiscard]] virtual std::optional<FileAttributes> attributes(const std::string& name) const = 0;
  [[nodiscard]] virtual std::unique_ptr<FileReader> openForReading(
      const std::string& name) const = 0;
  /// Never through a link. Nothing when it cannot be opened.
  [[nodiscard]] virtual std::unique_ptr<OpenedFolder> openFolder(const std::string& name) const = 0;
};

/// The files of one disk.
///
/// Every path that goes in or comes out is logical: absolute, and counted from the root of the file
/// system, which is the root of the machine in the program and a folder in a test. All operations
/// may be called from any thread at once. None throws; a failure is an empty answer or false.
class FileSystem {
 public:
  virtual ~FileSystem() = default;

  /// Where `logical` is found on the machine, and the reverse (nothing when `disk` lies outside the
  /// root).
  [[nodiscard]] virtual Path diskPath(const Path& logical) const = 0;
  [[nodiscard]] virtual std::optional<Path> logicalPath(const Path& disk) const = 0;

  /// The user's home as it is named, and the place it really is at when links are followed.
  [[nodiscard]] virtual Path home() const = 0;
  [[nodiscard]] virtual Path realHome() const = 0;
  /// Where else the user's things lie.
  [[nodiscard]] virtual UserFolders folders() const { return UserFolders::in(home()); }
  /// Where `path` really lies when the links among the folders above it are followed; a link in the
  /// last component is not. Nothing when there is no such folder.
  [[nodiscard]] virtual std::optional<Path> realPath(const Path& path) const = 0;

  /// Follows links: a link to nothing does not exist.
  [[nodiscard]] virtual bool exists(const Path& path) const = 0;
  /// Never follows a link in the last component.
  [[nodiscard]] virtual std::optional<FileAttributes> attributes(const Path& path) const = 0;
  /// What the symbolic link at `path` says, as it stands there; nothing where there is none.
  [[nodiscard]] virtual std::optional<Path> linkTarget(const Path&) const { return std::nullopt; }
  /// The names of the extended attributes of the file at `path` that are the user's own ("user.…").
  /// Never of what a link in the last component leads to. None where it cannot be asked.
  [[nodiscard]] virtual std::vector<std::string> userAttributes(const Path&) const { return {}; }
  /// Whether another volume begins at `path`. Waits for no server.
  [[nodiscard]] virtual bool isMountPoint(const Path& path) const = 0;
  /// Whether files at or below `path` may share content with copies of them, and tell of it.
  [[nodiscard]] virtual bool mayShareContent(const Path&) const { return false; }
  /// How many files at or below `folder` are best read at a time: one where the disk has heads that
  /// each further one would send to and fro, or where it cannot be asked.
  [[nodiscard]] virtual std::size_t filesAtOnce(const Path&) const { return 1; }
  /// Waits for no server.
  [[nodiscard]] virtual VolumeTops volumeTops() const { return {{"/"}, {}}; }
  /// Full paths of the direct children, hidden ones included, in the order the disk gives them.
  /// Nothing when the folder cannot be listed.
  [[nodiscard]] virtual std::optional<std::vector<Path>> list(const Path& folder) const = 0;
  /// The one directory walk. Visits everything below `folder` in an order that puts each directory
  /// before what it holds. Never follows a symbolic link (a `folder` that is one is refused), never
  /// opens anything but directories, and goes as deep as memory allows. What cannot be read is
  /// passed over.
  virtual WalkOutcome walk(const Path& folder, WalkOptions options,
                           const WalkVisitor& visit) const = 0;
  /// Only regular files can be opened, and no link in the last component is followed.
  [[nodiscard]] virtual std::unique_ptr<FileReader> openForReading(const Path& path) const = 0;
  /// Nothing when it cannot be opened.
  [[nodiscard]] virtual std::unique_ptr<OpenedFolder> openFolder(const Path& folder) const = 0;

  virtual bool createDirectories(const Path& folder) = 0;
  /// Never replaces what stands at `to`, and never copies between volumes.
  virtual bool move(const Path& from, const Path& to) = 0;
  /// Takes all content out of a regular file that has no other name; the file itself stays. Never
  /// through a link. False when it stays as it is.
  virtual bool empty(const Path& file, const ItemCheck& mayEmpty) = 0;
  /// Takes these extended attributes off a regular file, whose content, times of change and rights
  /// stay. Never through a link. True only when it has none of them any more.
  virtual bool removeUserAttributes(const Path& file, std::span<const std::string_view> names,
                                    const ItemCheck& mayChange) = 0;
  /// Removes for good an item and all it holds: through directory handles, never through a symbolic
  /// link, never across a mount point. True only when nothing of the item is left.
  virtual bool remove(const Path& item, const ItemCheck& mayRemove) = 0;
};

/// All that a regular file holds; nothing where it cannot be read to its end, or holds more than
/// `mostBytes`. Any thread.
[[nodiscard]] std::optional<std::string> textOfFile(const FileSystem& files, const Path& path,
                                                    std::size_t mostBytes);

}  // namespace klarvik
