#pragma once

#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <utility>
#include <vector>

#include "platform/file_system.h"

namespace klarvik {

/// Another file system with faults put into it, and a record of what was removed and moved. Paths
/// are logical; a fault concerns exactly the path it is told for. May be used from any thread.
class FaultingFileSystem final : public FileSystem {
 public:
  enum class Operation {
    exists,
    attributes,  ///< of one path, and of an entry in a walk
    list,
    walk,  ///< a start is refused; a folder on the way is shown, but not entered
    openForReading,
    createDirectories,
    move,  ///< by the path it is moved from
    remove,
  };
  struct Move {
    Path from;
    Path to;
    bool done = false;
  };
  struct Removal {
    Path item;
    bool done = false;
  };

  explicit FaultingFileSystem(FileSystem& files) : _files(files) {}

  /// From now on, until `heal`.
  void fail(Operation operation, const Path& path);
  void heal(Operation operation, const Path& path);
  /// Reading of `path` fails once this many bytes have been handed out.
  void failReadingAfter(std::size_t bytes, const Path& path);

  /// The file says it has this many bytes, allocated and in length.
  void overlaySize(const Path& path, std::int64_t bytes);
  void overlayModified(const Path& path, Date modified);

  /// Done once, just before the next such operation on `path`, whether that is to fail or not.
  void before(Operation operation, const Path& path, std::function<void()> act);
  /// `path` itself is gone, or is a link to `target`, by the time of the operation.
  void vanishBefore(Operation operation, const Path& path);
  void becomeLinkBefore(Operation operation, const Path& path, const Path& target);

  /// In the order they were asked for, refused and failed ones included.
  [[nodiscard]] std::vector<Removal> removals() const;
  [[nodiscard]] std::vector<Move> moves() const;

  [[nodiscard]] Path diskPath(const Path& logical) const override;
  [[nodiscard]] std::optional<Path> logicalPath(const Path& disk) const override;
  [[nodiscard]] Path home() const override;
  [[nodiscard]] Path realHome() const override;
  [[nodiscard]] bool exists(const Path& path) const override;
  [[nodiscard]] std::optional<FileAttributes> attributes(const Path& path) const override;
  [[nodiscard]] std::optional<std::vector<Path>> list(const Path& folder) const override;
  WalkOutcome walk(const Path& folder, WalkOptions options,
                   const WalkVisitor& visit) const override;
  [[nodiscard]] std::unique_ptr<FileReader> openForReading(const Path& path) const override;
  bool createDirectories(const Path& folder) override;
  bool move(const Path& from, const Path& to) override;
  bool remove(const Path& item, const PlaceCheck& mayRemove) override;

 private:
  class OverlaidEntry;
  using Occasion = std::pair<Operation, Path>;

  /// Does what was to be done before; then tells whether the operation goes ahead.
  [[nodiscard]] bool goesAhead(Operation operation, const Path& path) const;
  [[nodiscard]] FileAttributes overlaid(const Path& path, FileAttributes attributes) const;

  FileSystem& _files;
  mutable std::mutex _mutex;  // guards all below
  std::set<Occasion> _failing;
  mutable std::map<Occasion, std::function<void()>> _acts;
  std::map<Path, std::size_t> _readLimits;
  std::map<Path, std::int64_t> _sizes;
  std::map<Path, Date> _modified;
  std::vector<Removal> _removals;
  std::vector<Move> _moves;
};

}  // namespace klarvik
