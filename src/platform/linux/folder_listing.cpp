#include "platform/linux/folder_listing.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <utility>

#include "platform/linux/mounts.h"
#include "platform/packages.h"

namespace klarvik {
namespace {

// The caller of a walk may have to wait for a folder that is just being read ahead, and cannot stop
// meanwhile. What is left when these are reached is read and asked at the folder's turn.
constexpr std::size_t kMostBytesListed = std::size_t{64} * 1024;
constexpr std::size_t kMostAnswers = 1024;
constexpr std::chrono::milliseconds kLongestAsking{10};
constexpr std::size_t kAnswersBetweenLooks = 16;

}  // namespace

bool isLeftOut(const WalkRules& rules, std::string_view name) {
  return rules.options.skipHidden && name.front() == '.';
}

bool isEntered(const WalkRules& rules, std::string_view name) {
  return !(rules.options.skipPackageContents && isPackageName(name));
}

namespace {

bool liesOnTheMount(const WalkRules& rules, int above, const char* name) {
  const auto mount = mountOf(above, name);
  return mount && rules.mount && mount->number == rules.mount->number;
}

/// Whether the system itself refuses the folder `name` if it lies on another mount. Then one call
/// for a folder is enough where two were needed.
bool isRefusedElsewhere(const WalkRules& rules, const char* name) {
  return rules.options.stayOnMount && rules.automounts &&
         std::ranges::find(*rules.automounts, name) == rules.automounts->end();
}

}  // namespace

UniqueFd openOnTheMount(const WalkRules& rules, int above, const char* name) {
  if (isRefusedElsewhere(rules, name)) return openOnSameMount(above, name);
  if (liesOnTheMount(rules, above, name)) return openForListing(above, name);
  errno = EXDEV;
  return {};
}

std::optional<std::vector<std::string>> namesOfAutomounts() {
  const auto mounts = canOpenOnSameMount() ? readMountTable() : std::nullopt;
  if (!mounts) return std::nullopt;
  std::vector<std::string> names;
  for (const MountPoint& mount : *mounts) {
    if (mount.mountsOnEntry) names.push_back(mount.place.filename());
  }
  return names;
}

unsigned kindBit(unsigned char type) {
  switch (type) {
    case DT_REG:
      return kRegularFiles;
    case DT_DIR:
      return kFolders;
    case DT_UNKNOWN:
      return kUntoldKinds;
    default:
      return kOtherKinds;
  }
}

void FolderReader::read(int above, const char* name, unsigned kinds, FolderListing& into) {
  using enum FolderListing::State;
  into._listed.clear();
  into._answers.clear();
  into._folders.clear();
  into._hasFolders = false;
  into._asked = kinds | kUntoldKinds;
  into.folder.reset();
  UniqueFd folder = openOnTheMount(_rules, above, name);
  if (folder) {
    into.folder = std::make_shared<const UniqueFd>(std::move(folder));
    list(into);
    ask(into);
  } else {
    const bool isForTheWalk = errno == EXDEV && !_rules.options.stayOnMount;
    into.state = isForTheWalk || errno == EMFILE || errno == ENFILE ? unread : unopened;
  }
}

void FolderReader::list(FolderListing& into) {
  into.state = FolderListing::State::whole;
  for (;;) {
    const auto part = _reader.readPart(into.folder->get());
    if (!part || part->empty()) return noteFolders(into);
    into._listed.insert(into._listed.end(), part->begin(), part->end());
    if (into._listed.size() >= kMostBytesListed / 2) {
      into.state = FolderListing::State::begun;
      return;
    }
  }
}

void FolderReader::noteFolders(FolderListing& into) {
  (void)forEachListed(into._listed, [&](const ListedEntry& entry) {
    into._hasFolders = into._hasFolders || entry.type == DT_DIR || entry.type == DT_UNKNOWN;
    if (entry.type == DT_DIR && !isLeftOut(_rules, entry.name) && isEntered(_rules, entry.name)) {
      into._folders.emplace_back(entry.name);
    }
    return true;
  });
}

void FolderReader::ask(FolderListing& into) {
  const auto begun = std::chrono::steady_clock::now();
  const auto isLate = [&] {
    return _isOver.load(std::memory_order_relaxed) ||
           std::chrono::steady_clock::now() - begun > kLongestAsking;
  };
  (void)forEachListed(into._listed, [&](const ListedEntry& entry) {
    if ((kindBit(entry.type) & into._asked) == 0 || isLeftOut(_rules, entry.name)) return true;
    const std::size_t answered = into._answers.size();
    if (answered == kMostAnswers) return false;
    if (answered % kAnswersBetweenLooks == kAnswersBetweenLooks - 1 && isLate()) return false;
    const auto status = statusOf(into.folder->get(), entry.name.data(), _rules.waiting);
    into._answers.push_back(status ? FolderListing::Answer(attributesOf(*status)) : std::nullopt);
    return true;
  });
}

}  // namespace klarvik
