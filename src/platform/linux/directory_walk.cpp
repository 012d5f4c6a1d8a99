#include "platform/linux/directory_walk.h"

#include <algorithm>
#include <array>
#include <bit>
#include <optional>
#include <vector>

#include "platform/linux/directory_stack.h"
#include "platform/linux/file_status.h"
#include "platform/linux/folder_listing.h"
#include "platform/linux/read_ahead.h"
#include "platform/packages.h"

namespace klarvik {
namespace {

/// The folder that a walk is in, opened once that is needed.
class CurrentFolder {
 public:
  CurrentFolder(DirectoryStack& trail, const WalkRules& rules) : _trail(trail), _rules(rules) {}

  [[nodiscard]] const DirectoryStack& trail() const { return _trail; }

  [[nodiscard]] std::optional<struct statx> statusOf(const char* name) {
    _trail.openCurrent();
    if (_trail.current() < 0) return std::nullopt;
    return klarvik::statusOf(_trail.current(), name, _rules.waiting);
  }

 private:
  DirectoryStack& _trail;
  const WalkRules& _rules;
};

/// The one entry object of a walk, set to each entry in turn. Asks the system at most once.
class VisitedEntry final : public WalkEntry {
 public:
  VisitedEntry(CurrentFolder& folder, const Path& startPath)
      : _folder(folder), _trail(folder.trail()), _startPath(startPath) {}

  /// `answer` is what the system has told ahead of the visit, or null.
  void set(const ListedEntry& listed, const FolderListing::Answer* answer) {
    _name = listed.name;
    _answer = answer;
    _status.reset();
    _isAsked = false;
    _wasOfUse = false;
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
    _wasOfUse = true;
    if (_answer) return *_answer ? (*_answer)->allocatedBytes : 0;
    return ask() ? allocatedBytesOf(*_status) : 0;
  }

  [[nodiscard]] std::optional<FileAttributes> attributes() override {
    _wasOfUse = true;
    if (_answer) return *_answer;
    return ask() ? std::optional(attributesOf(*_status)) : std::nullopt;
  }

  /// Whether the visitor has asked for more than the name.
  [[nodiscard]] bool wasAsked() const { return _wasOfUse; }

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
        return kindWhenAsked();
      default:
        return FileKind::other;
    }
  }

  FileKind kindWhenAsked() {
    if (_answer) return *_answer ? (*_answer)->kind : FileKind::other;
    return ask() ? kindOf(*_status) : FileKind::other;
  }

  bool ask() {
    if (!_isAsked) {
      _status = _folder.statusOf(_name.data());
      _isAsked = true;
    }
    return _status.has_value();
  }

  CurrentFolder& _folder;
  const DirectoryStack& _trail;
  const Path& _startPath;
  std::string_view _name;
  FileKind _kind = FileKind::other;
  const FolderListing::Answer* _answer = nullptr;
  bool _isAsked = false;
  bool _wasOfUse = false;
  std::optional<struct statx> _status;
};

/// Which kinds of entries a visitor asks about, as far as it has shown.
class AskedKinds {
 public:
  /// True when the answer of `kinds` has changed.
  bool note(unsigned kind, bool wasAsked) {
    std::size_t& unasked = _unasked[static_cast<std::size_t>(std::countr_zero(kind))];
    unasked = wasAsked ? 0 : unasked + 1;
    const unsigned before = _kinds;
    if (wasAsked) _kinds |= kind;
    if (unasked == kUnaskedInARow) _kinds &= ~kind;
    return _kinds != before;
  }
  [[nodiscard]] unsigned kinds() const { return _kinds; }

 private:
  static constexpr std::size_t kUnaskedInARow = 64;
  std::array<std::size_t, 4> _unasked{};  // by the bit of the kind
  unsigned _kinds = 0;
};

class Walk {
 public:
  Walk(UniqueFd start, const Path& startPath, WalkOptions options, const WalkVisitor& visit,
       WalkThreads threads)
      : _trail(
            std::move(start), [this](int above, const char* name) { return open(above, name); },
            [this] { return goOnAlone(); }),
        _visit(visit),
        _threads(threads),
        _rules({.options = options,
                .waiting = options.stayOnMount ? Waiting::forNobody : Waiting::forServer,
                .mount = options.stayOnMount ? mountOf(_trail.current(), "") : std::nullopt}),
        _folder(_trail, _rules),
        _entry(_folder, startPath) {}

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
    return visitRest();
  }

  bool visitRest() {
    return _reader.read(_trail.current(),
                        [this](const ListedEntry& listed) { return visitEntry(listed, nullptr); });
  }

  bool visitEntry(const ListedEntry& listed, const FolderListing::Answer* answer) {
    if (isLeftOut(_rules, listed.name)) return true;
    _entry.set(listed, answer);
    const WalkStep step = _visit(_entry);
    ++_visited;
    _stopped = step == WalkStep::stop;
    learn(kindBit(listed.type), step);
    if (step == WalkStep::proceed && _entry.kind() == FileKind::directory &&
        isEntered(_rules, listed.name)) {
      if (_isInListing && _ahead) _ahead->willEnter(listed.name, _pending.extent());
      _pending.push(listed.name);
    }
    return !_stopped;
  }

  /// From what the visitor did with an entry.
  void learn(unsigned kind, WalkStep step) {
    const bool hasChanged = _asked.note(kind, _entry.wasAsked());
    if (kind == kFolders) _entered = step == WalkStep::proceed ? _entered + 1 : 0;
    if (_ahead && (hasChanged || kind == kFolders)) tellHelpers();
  }

  void tellHelpers() {
    constexpr std::size_t enteredInARow = 16;
    _ahead->setKinds(_asked.kinds());
    _ahead->setGoesDeeper(_entered >= enteredInARow);
  }

  void leaveFinishedFolders() {
    while (_trail.depth() > 0 && _pending.extent() == _firstPending.back()) {
      _trail.leave();
      while (_firstPending.size() > _trail.depth() + 1) {
        _pending.truncate(_firstPending.back());
        _firstPending.pop_back();
      }
      if (_ahead) _ahead->forgetFrom(_pending.extent());
    }
  }

  void enterNextFolder() {
    readAhead();
    const std::string name = _pending.pop();
    if (_ahead && _ahead->take(_pending.extent(), _listing)) {
      visitListed(name);
    } else if (enter(name)) {
      visitFolder();
    }
  }

  bool enter(const std::string& name) {
    UniqueFd folder = _trail.open(name.c_str());
    if (!folder) return false;
    _trail.enter(std::move(folder), name);
    return true;
  }

  UniqueFd open(int above, const char* name) {
    const bool staysOnMount = _rules.options.stayOnMount && _rules.mount;
    return staysOnMount ? openOnTheMount(_rules, above, name) : openForListing(above, name);
  }

  /// What `visitFolder` does, with what was read ahead.
  void visitListed(const std::string& name) {
    if (enterListed(name)) {
      _firstPending.push_back(_pending.extent());
      _isInListing = true;
      const bool goesOn = _listing.forEach(
          _rules, [this](const ListedEntry& listed, const FolderListing::Answer* answer) {
            return visitEntry(listed, answer);
          });
      _isInListing = false;
      if (goesOn && _listing.state == FolderListing::State::begun) visitRest();
    }
    if (_ahead) _ahead->endFolder();
  }

  bool enterListed(const std::string& name) {
    if (_listing.state == FolderListing::State::unopened) return false;
    if (_listing.folder) {
      _trail.enter(std::move(_listing.folder), name);
    } else if (_listing.hasFolders()) {
      return enter(name);
    } else {
      _trail.enterUnopened(name);
    }
    return true;
  }

  /// Has the folders that come after the next one read ahead. The next one is the caller's own.
  void readAhead() {
    if (!_hasStarted && _visited >= _threads.entriesAlone) startThreads();
    if (!_ahead || _ahead->knowsFrom(_firstPending.back())) return;
    constexpr std::size_t most = 128;
    std::vector<ReadAhead::Folder> folders;
    bool isNext = true;
    _pending.forEachFromLast(_firstPending.back(), [&](std::string_view name, std::size_t extent) {
      if (!isNext) folders.push_back({extent, std::string(name), _trail.currentHandle()});
      isNext = false;
      return folders.size() < most;
    });
    if (folders.empty()) return;
    std::ranges::reverse(folders);
    _ahead->offer(std::move(folders));
  }

  void startThreads() {
    _hasStarted = true;
    if (!_rules.mount) _rules.mount = mountOf(_trail.current(), "");
    if (!_rules.mount) return;
    if (_rules.options.stayOnMount) _rules.automounts = namesOfAutomounts();
    const HelpfulThreads threads =
        _threads.helpful ? *_threads.helpful : helpfulThreads(_trail.current());
    if (threads.helpers == 0) return;
    _ahead.emplace(threads, _rules);
    if (_ahead->hasThreads()) {
      tellHelpers();
    } else {
      _ahead.reset();
    }
  }

  /// Whether that has closed handles.
  bool goOnAlone() {
    const bool wasHelped = _ahead.has_value();
    _ahead.reset();
    return wasHelped;
  }

  DirectoryStack _trail;
  const WalkVisitor& _visit;
  const WalkThreads _threads;
  WalkRules _rules;
  CurrentFolder _folder;
  VisitedEntry _entry;
  AskedKinds _asked;
  DirectoryReader _reader;
  NameStack _pending;                      // folders still to be entered, of all levels
  std::vector<std::size_t> _firstPending;  // for each level, where its own begin
  FolderListing _listing;
  std::size_t _visited = 0;
  std::size_t _entered = 0;   // folders in a row that the visitor let the walk enter
  bool _isInListing = false;  // visits what was read ahead
  bool _hasStarted = false;   // threads, or tried to
  bool _stopped = false;
  std::optional<ReadAhead> _ahead;
};

}  // namespace

WalkOutcome walkBelow(UniqueFd start, const Path& startPath, WalkOptions options,
                      const WalkVisitor& visit, WalkThreads threads) {
  return Walk(std::move(start), startPath, options, visit, threads).run();
}

}  // namespace klarvik
