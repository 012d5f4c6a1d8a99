#include "platform/linux/directory_walk.h"

#include <optional>
#include <vector>

#include "platform/linux/directory_stack.h"
#include "platform/linux/file_status.h"
#include "platform/packages.h"

namespace klarvik {
namespace {

/// The one entry object of a walk, set to each entry in turn. Asks the system at most once.
class VisitedEntry final : public WalkEntry {
 public:
  VisitedEntry(const DirectoryStack& trail, const Path& startPath, Waiting waiting)
      : _trail(trail), _startPath(startPath), _waiting(waiting) {}

  void set(const ListedEntry& listed) {
    _name = listed.name;
    _asked = false;
    _kind = kindOfListed(listed.type);
  }

  [[nodiscard]] std::string_view name() const override { return _name; }
  [[nodiscard]] FileKind kind() const override { return _kind; }
  [[nodiscard]] std::size_t depth() const override { return _trail.depth() + 1; }

  [[nodiscard]] Path path() const override {
    std::string text = _startPath.native();
    for (const std::string_view part : {std::string_view(_trail.path()), _name}) {
      if (part.empty()) continue;
      if (text.back() != '/') text.push_back('/');
      text.append(part);
    }
    return Path(std::move(text));
  }

  [[nodiscard]] std::string_view folder() const override { return _trail.path(); }

  [[nodiscard]] std::int64_t allocatedBytes() override {
    if (_kind == FileKind::directory) return 0;
    return ask() ? allocatedBytesOf(*_status) : 0;
  }

  [[nodiscard]] std::optional<FileAttributes> attributes() override {
    return ask() ? std::optional(attributesOf(*_status)) : std::nullopt;
  }

 private:
  FileKind kindOfListed(unsigned char type) {
    switch (type) {
      case DT_DIR:
        return FileKind::directory;
      case DT_REG:
        return FileKind::regular;
      case DT_LNK:
        return FileKind::symbolicLink;
      case DT_UNKNOWN:
        return ask() ? kindOf(*_status) : FileKind::other;
      default:
        return FileKind::other;
    }
  }

  bool ask() {
    if (!_asked) {
      _status = statusOf(_trail.current(), _name.data(), _waiting);
      _asked = true;
    }
    return _status.has_value();
  }

  const DirectoryStack& _trail;
  const Path& _startPath;
  const Waiting _waiting;
  std::string_view _name;
  FileKind _kind = FileKind::other;
  bool _asked = false;
  std::optional<struct statx> _status;
};

class Walk {
 public:
  Walk(UniqueFd start, const Path& startPath, WalkOptions options, const WalkVisitor& visit)
      : _trail(std::move(start)),
        _options(options),
        _visit(visit),
        _entry(_trail, startPath, options.stayOnMount ? Waiting::forNobody : Waiting::forServer) {
    if (_options.stayOnMount) _mount = mountOf(_trail.current(), "");
  }

  WalkOutcome run() {
    if (!visitFolder()) return WalkOutcome::refused;
    while (!_stopped && !_pending.empty()) {
      leaveFinishedFolders();
      if (!_pending.empty()) enterNextFolder();
    }
    return _stopped ? WalkOutcome::stopped : WalkOutcome::completed;
  }

 private:
  /// Visits what lies directly in the current folder, and notes the folders to go into.
  bool visitFolder() {
    _firstPending.push_back(_pending.extent());
    return _reader.read(_trail.current(), [this](const ListedEntry& listed) {
      if (_options.skipHidden && listed.name.front() == '.') return true;
      _entry.set(listed);
      const WalkStep step = _visit(_entry);
      _stopped = step == WalkStep::stop;
      if (step == WalkStep::proceed && isEntered()) _pending.push(listed.name);
      return !_stopped;
    });
  }

  [[nodiscard]] bool isEntered() const {
    return _entry.kind() == FileKind::directory &&
           !(_options.skipPackageContents && isPackageName(_entry.name()));
  }

  void leaveFinishedFolders() {
    while (_trail.depth() > 0 && _pending.extent() == _firstPending.back()) {
      _trail.leave();
      while (_firstPending.size() > _trail.depth() + 1) {
        _pending.truncate(_firstPending.back());
        _firstPending.pop_back();
      }
    }
  }

  void enterNextFolder() {
    const std::string name = _pending.pop();
    if (_mount && !liesOnTheMount(name)) return;
    UniqueFd folder = _trail.open(name.c_str());
    if (!folder) return;
    _trail.enter(std::move(folder), name);
    visitFolder();
  }

  /// Asked before the folder is opened, which could wait for a server for ever.
  [[nodiscard]] bool liesOnTheMount(const std::string& name) const {
    const auto mount = mountOf(_trail.current(), name.c_str());
    return mount && mount->number == _mount->number;
  }

  DirectoryStack _trail;
  const WalkOptions _options;
  const WalkVisitor& _visit;
  VisitedEntry _entry;
  DirectoryReader _reader;
  NameStack _pending;                      // folders still to be entered, of all levels
  std::vector<std::size_t> _firstPending;  // for each level, where its own begin
  std::optional<MountOf> _mount;           // to stay on; nothing where the walk goes everywhere
  bool _stopped = false;
};

}  // namespace

WalkOutcome walkBelow(UniqueFd start, const Path& startPath, WalkOptions options,
                      const WalkVisitor& visit) {
  return Walk(std::move(start), startPath, options, visit).run();
}

}  // namespace klarvik
