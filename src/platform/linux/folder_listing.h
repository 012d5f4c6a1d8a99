#pragma once

#include <atomic>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/posix_io.h"
#include "platform/file_attributes.h"
#include "platform/file_system.h"
#include "platform/linux/directory_stack.h"
#include "platform/linux/file_status.h"

namespace klarvik {

/// How a walk asks, and which folders it does not go into whatever a visitor says.
struct WalkRules {
  WalkOptions options{};
  Waiting waiting = Waiting::forServer;
  std::optional<MountOf> mount{};  ///< where the walk begins
  /// The names of folders that an automounter mounts something on. Nothing where they are not
  /// known, or where the system cannot open folders of one mount only.
  std::optional<std::vector<std::string>> automounts{};
};

/// Whether the options leave out an entry of this name.
[[nodiscard]] bool isLeftOut(const WalkRules& rules, std::string_view name);
/// Whether they let the walk go into a folder of this name.
[[nodiscard]] bool isEntered(const WalkRules& rules, std::string_view name);
/// Opens the folder `name` in `above` if it lies on the mount where the walk begins. Holds -1
/// otherwise, with EXDEV in `errno` when it lies on another: that one is never opened, which could
/// wait for a server for ever.
[[nodiscard]] UniqueFd openOnTheMount(const WalkRules& rules, int above, const char* name);
/// For `WalkRules::automounts`.
[[nodiscard]] std::optional<std::vector<std::string>> namesOfAutomounts();

/// Kinds of entries as a folder tells them, each a bit.
enum : unsigned { kRegularFiles = 1, kFolders = 2, kOtherKinds = 4, kUntoldKinds = 8 };
[[nodiscard]] unsigned kindBit(unsigned char type);

/// What a folder held when it was read ahead of its turn: its entries, and what the system told of
/// some of them. Kept small, since many wait at once. Can be filled again.
class FolderListing {
 public:
  using Answer = std::optional<FileAttributes>;  ///< nothing: the entry could not be asked

  enum class State {
    whole,     ///< all entries
    begun,     ///< the first entries; the others can be read from the opened folder
    unopened,  ///< the walk passes over it
    unread,    ///< it has to be read at its turn
  };
  State state = State::unread;
  /// Held by one that is `begun`. A whole one holds it if there are folders to open in it, as long
  /// as handles can be spared.
  std::shared_ptr<const UniqueFd> folder;

  /// Hands the entries that the rules do not leave out to `each(entry, answer)`, in the order of
  /// the folder until it answers false, and answers what it answered last. `answer` is null where
  /// none was asked for.
  template <typename Each>
  bool forEach(const WalkRules& rules, const Each& each) const {
    std::size_t next = 0;
    return forEachListed(_listed, [&](const ListedEntry& entry) {
      if (isLeftOut(rules, entry.name)) return true;
      const bool isAnswered = next < _answers.size() && (kindBit(entry.type) & _asked) != 0;
      return each(entry, isAnswered ? &_answers[next++] : nullptr);
    });
  }

  /// The names of the folders in it, in its order.
  [[nodiscard]] const std::vector<std::string>& folders() const { return _folders; }
  /// Whether something in it may be opened.
  [[nodiscard]] bool hasFolders() const { return _hasFolders; }

  /// How many entries the system was asked about.
  [[nodiscard]] std::size_t answers() const { return _answers.size(); }

  [[nodiscard]] std::size_t bytes() const {
    return _listed.capacity() + _answers.capacity() * sizeof(Answer);
  }

 private:
  friend class FolderReader;

  std::vector<std::byte> _listed;  // as the system lists them
  std::vector<Answer> _answers;    // for the first entries of the kinds that were asked for
  std::vector<std::string> _folders;
  bool _hasFolders = false;
  unsigned _asked = 0;
};

/// Reads folders ahead of their turn. Belongs to one thread.
class FolderReader {
 public:
  /// `isOver` becomes true when nobody wants the rest any more.
  FolderReader(const WalkRules& rules, const std::atomic<bool>& isOver)
      : _rules(rules), _isOver(isOver) {}

  /// Reads the folder `name` in `above`, and asks for its entries of `kinds`. One that lies on
  /// another mount is `unopened`, or `unread` where the walk goes everywhere: that is for the walk
  /// to do once it is there.
  void read(int above, const char* name, unsigned kinds, FolderListing& into);

 private:
  void list(FolderListing& into);
  void noteFolders(FolderListing& into);
  void ask(FolderListing& into);

  const WalkRules& _rules;
  const std::atomic<bool>& _isOver;
  DirectoryReader _reader;
};

}  // namespace klarvik
