#include "engine/place_conditions.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <map>
#include <string>

#include "base/bytes.h"
#include "engine/place_matches.h"
#include "engine/sizes.h"
#include "platform/desktop_entry.h"
#include "platform/file_system.h"
#include "platform/running_programs.h"

namespace klarvik {
namespace {

bool isLockHeld(const Platform& platform, const Catalogue& catalogue, const ProgramLock& lock) {
  const FileSystem& files = platform.files;
  const Path base = files.home() / catalogue.folder(lock.base).value_or("");
  return std::ranges::any_of(matchesBelow(files, {{.path = base}}, lock.pattern),
                             [&](const PlaceMatch& link) {
                               return platform.programs.isLockHeld(files.diskPath(link.path));
                             });
}

}  // namespace

std::string nameIfRunning(const Platform& platform, const Catalogue& catalogue,
                          std::string_view program) {
  const DiskLayout& layout = layoutFor(platform.files.home());
  const auto known = std::ranges::find(layout.programs, program, &ProgramName::program);
  const std::string_view name = known != layout.programs.end() ? known->name : program;
  // One program may go by several names.
  const auto isItRunning = [&](const ProgramName& each) {
    return each.name == name && platform.programs.isRunning(each.program);
  };
  const auto isItsLockHeld = [&](const ProgramLock& lock) {
    return lock.program == program && isLockHeld(platform, catalogue, lock);
  };
  const bool isRunning = platform.programs.isRunning(program) ||
                         std::ranges::any_of(layout.programs, isItRunning) ||
                         std::ranges::any_of(layout.programLocks, isItsLockHeld);
  return isRunning ? std::string(name) : "";
}

namespace {

using namespace std::chrono_literals;

/// What a condition is asked about.
struct Question {
  const Platform& platform;
  const Catalogue& catalogue;
  const Path& path;
  const std::vector<std::string_view>& stars;
  const Measure& measure;
  Date now;

  [[nodiscard]] const FileSystem& files() const { return platform.files; }
  [[nodiscard]] Path inBase(Base base, const Path& below) const {
    return files().home() / catalogue.folder(base).value_or("") / below;
  }
  [[nodiscard]] bool isThere(const Path& place) const {
    return files().attributes(place).has_value();
  }
};

bool isOwnAndUntouched(const Question& asked, Date::duration age) {
  return asked.measure.isOwn && asked.measure.used && *asked.measure.used <= asked.now - age &&
         !asked.platform.programs.hasOpen(asked.files().diskPath(asked.path));
}

bool isFlatpakInstalled(const Question& asked) {
  const Path name(asked.stars.front());
  return asked.isThere(Path("/var/lib/flatpak/app") / name) ||
         asked.isThere(asked.inBase(Base::data, "flatpak/app") / name);
}

/// Whether a Flatpak that is in none of its places is installed nowhere. A place that is a link to
/// nothing, or empty, may be on a volume that is not mounted just now; where there is none at all,
/// another system that shares the home may have installed it.
bool knowsAllFlatpaks(const Question& asked) {
  bool isAny = false;
  for (const Path& place : {Path("/var/lib/flatpak"), asked.inBase(Base::data, "flatpak")}) {
    if (!asked.isThere(place)) continue;
    const auto content = asked.files().list(place);
    const Path applications = place / "app";
    const bool isSeen = content && !content->empty() &&
                        (!asked.isThere(applications) || asked.files().list(applications));
    if (!isSeen) return false;
    isAny = true;
  }
  return isAny;
}

/// An administrator may have set up further places of installed applications, which are not known
/// here.
bool mayBeInstalledElsewhere(const Question& asked) {
  const auto others = asked.files().list("/etc/flatpak/installations.d");
  return others && !others->empty();
}

/// The files of installed snaps, "name_revision.snap"; nothing when they cannot be listed. An empty
/// folder may be the place of a volume that is not mounted just now.
std::optional<std::vector<Path>> snapFiles(const Question& asked) {
  auto files = asked.files().list("/var/lib/snapd/snaps");
  return files && !files->empty() ? std::move(files) : std::nullopt;
}

bool isSnapInstalled(const Question& asked) {
  const std::string start = std::string(asked.stars.front()) + "_";
  const auto snaps = snapFiles(asked);
  return !snaps || std::ranges::any_of(*snaps, [&](const Path& file) {
    return file.filename().native().starts_with(start);
  });
}

bool isSnapRevisionGone(const Question& asked) {
  const std::string_view revision = asked.stars.at(1);
  const bool isNumber =
      !revision.empty() && revision.find_first_not_of("0123456789") == std::string_view::npos;
  const std::string file = std::string(asked.stars.front()) + "_" + std::string(revision) + ".snap";
  const auto snaps = snapFiles(asked);
  return isNumber && snaps && isSnapInstalled(asked) &&
         std::ranges::none_of(*snaps, [&](const Path& each) { return each.filename() == file; });
}

/// Steam keeps a manifest of each game that is installed two folders above what it caches of it.
bool isSteamGameInstalled(const Question& asked) {
  const Path library = asked.path.parent_path().parent_path();
  return asked.isThere(library / ("appmanifest_" + asked.path.filename().native() + ".acf"));
}

/// A name as its text with "#" for each number, and the numbers.
struct VersionedName {
  std::string text;
  std::vector<std::uint64_t> numbers;

  explicit VersionedName(std::string_view name) {
    while (!name.empty()) {
      std::uint64_t number = 0;
      const auto [rest, error] = std::from_chars(name.data(), name.data() + name.size(), number);
      if (error == std::errc{}) {
        numbers.push_back(number);
        text += '#';
        name.remove_prefix(static_cast<std::size_t>(rest - name.data()));
      } else {
        text += name.front();
        name.remove_prefix(1);
      }
    }
  }
};

/// A link, or a file that is still empty, takes nobody's place.
bool mayTakeThePlace(const std::optional<FileAttributes>& sister, const FileAttributes& own) {
  const bool isSameKind = sister && sister->kind == own.kind;
  return isSameKind && (own.kind != FileKind::regular || sister->logicalBytes > 0);
}

bool hasNewerSister(const Question& asked) {
  const VersionedName own(asked.path.filename().native());
  const auto self = asked.files().attributes(asked.path);
  const auto sisters = asked.files().list(asked.path.parent_path()).value_or(std::vector<Path>{});
  return std::ranges::any_of(sisters, [&](const Path& each) {
    const VersionedName other(each.filename().native());
    return self && other.text == own.text && other.numbers > own.numbers &&
           mayTakeThePlace(asked.files().attributes(each), *self);
  });
}

constexpr std::size_t longestDesktopEntry = 64UL * 1024;

std::string textOf(const FileSystem& files, const Path& path) {
  std::string text(longestDesktopEntry, '\0');
  const auto file = files.openForReading(path);
  const auto length = file ? file->read(std::as_writable_bytes(std::span(text))) : std::nullopt;
  text.resize(length.value_or(0));
  return text;
}

/// By an absolute path; nothing where the entry names it otherwise, or the path cannot be told.
std::optional<Path> programOfEntry(std::string_view entry) {
  auto program = valueInDesktopEntry(entry, "TryExec");  // a path, which may hold blanks
  if (!program) {
    program = valueInDesktopEntry(entry, "Exec");  // a command
    if (program) program = program->substr(0, program->find_first_of(" \t"));
  }
  const bool isPlain = program && program->starts_with('/') &&
                       program->find_first_of("\"'\\%$`") == std::string_view::npos;
  return isPlain ? std::optional(Path(*program)) : std::nullopt;
}

/// Looks for the first name on the way to `path` that is not there. One that lies on a volume which
/// is not mounted just now, or in a folder that may not be looked into, cannot be told from one
/// that is gone.
bool isSurelyGone(const FileSystem& files, const Path& path) {
  constexpr std::array<std::string_view, 4> otherVolumes{"/media/", "/mnt/", "/run/", "/net/"};
  const bool mayBeElsewhere = std::ranges::any_of(
      otherVolumes, [&](std::string_view volumes) { return path.native().starts_with(volumes); });
  if (mayBeElsewhere || files.exists(path) || files.attributes(path)) return false;
  Path missing = path;
  while (missing.has_relative_path() && !files.attributes(missing.parent_path())) {
    missing = missing.parent_path();
  }
  // A link to nothing cannot be listed, and an empty folder may be the place of a volume.
  const auto sisters = files.list(missing.parent_path());
  return sisters && !sisters->empty() && std::ranges::none_of(*sisters, [&](const Path& each) {
           return each.filename() == missing.filename();
         });
}

bool isProgramOfEntryGone(const Question& asked) {
  const std::string entry = textOf(asked.files(), asked.path);
  if (valueInDesktopEntry(entry, "X-Flatpak") || valueInDesktopEntry(entry, "X-SnapInstanceName")) {
    return false;
  }
  const auto program = programOfEntry(entry);
  return program && isSurelyGone(asked.files(), *program);
}

}  // namespace

Measure measureWhole(const FileSystem& files, const Path& path, const std::stop_token& stop) {
  Measure measure;
  // A file that has a name elsewhere goes on taking its space.
  std::map<FileIdentity, std::uint64_t> namesFound;
  const auto add = [&](const FileAttributes& entry) {
    const bool isFolder = entry.kind == FileKind::directory;
    measure.isOwn = measure.isOwn && entry.isOwn;
    measure.holdsMountPoint = measure.holdsMountPoint || entry.isMountPoint;
    measure.holdsReadOnlyFolder = measure.holdsReadOnlyFolder || (isFolder && entry.isReadOnly);
    // Looking into a folder counts as reading it, so that a scan itself would.
    for (const auto& date : {entry.modified, isFolder ? std::nullopt : entry.accessed}) {
      if (date) measure.used = std::max(measure.used.value_or(*date), *date);
    }
    const bool takesSpace = !isFolder && entry.kind != FileKind::symbolicLink;
    if (!takesSpace) return;
    const bool hasOneName = entry.names <= 1 || !entry.identity;
    const std::uint64_t found = hasOneName ? 1 : ++namesFound[*entry.identity];
    if (found == 1) measure.taken = addBytes(measure.taken, entry.allocatedBytes);
    const bool comesBack = hasOneName || found == entry.names;
    if (comesBack) measure.bytes = addBytes(measure.bytes, entry.allocatedBytes);
  };
  if (const auto start = files.attributes(path)) add(*start);
  files.walk(path, wholeWalk(files), [&](WalkEntry& entry) {
    if (stop.stop_requested()) return WalkStep::stop;
    if (const auto attributes = entry.attributes()) add(*attributes);
    return WalkStep::proceed;
  });
  return measure;
}

bool conditionHolds(const Platform& platform, const Catalogue& catalogue, const Place& place,
                    const Path& path, const std::vector<std::string_view>& stars,
                    const Measure& measure, Date now) {
  const Question asked{platform, catalogue, path, stars, measure, now};
  switch (place.details.condition) {
    case Condition::none:
      return true;
    case Condition::own:
      return measure.isOwn;
    case Condition::ownUntouchedForADay:
      return isOwnAndUntouched(asked, 24h);
    case Condition::ownUntouchedForTenDays:
      return isOwnAndUntouched(asked, 240h);
    case Condition::ownUntouchedForThirtyDays:
      return isOwnAndUntouched(asked, 720h);
    case Condition::flatpakInstalled:
      return isFlatpakInstalled(asked) || mayBeInstalledElsewhere(asked);
    case Condition::flatpakGone:
      return !isFlatpakInstalled(asked) && knowsAllFlatpaks(asked) &&
             !mayBeInstalledElsewhere(asked);
    case Condition::snapInstalled:
      return isSnapInstalled(asked);
    case Condition::snapGone:
      return !isSnapInstalled(asked);
    case Condition::snapRevisionGone:
      return isSnapRevisionGone(asked);
    case Condition::steamGameInstalled:
      return isSteamGameInstalled(asked);
    case Condition::steamGameGone:
      return !isSteamGameInstalled(asked);
    case Condition::olderVersion:
      return hasNewerSister(asked);
    case Condition::programOfEntryGone:
      return isProgramOfEntryGone(asked);
  }
  return false;
}

}  // namespace klarvik
