#include "platform/linux/process_table.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/utsname.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <system_error>

#include "base/paths.h"
#include "base/posix_io.h"
#include "base/text.h"
#include "platform/linux/file_status.h"
#include "platform/linux/mounts.h"

namespace klarvik {
namespace {

constexpr std::size_t longestFile = 4UL * 1024 * 1024;

std::string contentOf(const Path& file) {
  const UniqueFd opened(
      retryOnEintr([&] { return ::open(file.c_str(), O_RDONLY | O_NOCTTY | O_CLOEXEC); }));
  if (!opened) return {};
  return readToEnd(opened.get(), longestFile).value_or(std::string());
}

bool isProcessOfThisUser(const Path& folder) {
  const std::string name = folder.filename().native();
  struct stat status {};
  return name.find_first_not_of("0123456789") == std::string::npos &&
         ::stat(folder.c_str(), &status) == 0 && status.st_uid == ::geteuid();
}

std::string machineName() {
  struct utsname machine {};
  return ::uname(&machine) == 0 ? machine.nodename : "";
}

/// Whether `holds` is true of the folder of one of this user's processes.
template <class Holds>
bool anyProcess(const Path& table, const Holds& holds) {
  std::error_code error;
  for (std::filesystem::directory_iterator entry(table, error), end; !error && entry != end;
       entry.increment(error)) {
    if (isProcessOfThisUser(entry->path()) && holds(entry->path())) return true;
  }
  return false;
}

/// A path and a class are told by their last part.
bool isCalled(std::string_view word, std::string_view program) {
  if (!word.ends_with(program)) return false;
  if (word.size() == program.size()) return true;
  const char before = word[word.size() - program.size() - 1];
  return before == '/' || before == '.';
}

std::string nameOf(const Path& process) {
  std::string name = contentOf(process / "comm");
  if (name.ends_with('\n')) name.pop_back();
  return name;
}

/// Whether nothing is left of it but its entry, which stands until the process that has started it
/// asks: such a one has no file open and writes nothing. Of one that goes on in another thread
/// there is more.
bool hasEnded(const Path& process) {
  const std::string status = contentOf(process / "status");
  const auto says = [&](std::string_view line) { return status.find(line) != std::string::npos; };
  return says("\nState:\tZ") && says("\nThreads:\t1\n");
}

bool isCalledSo(const Path& process, std::string_view program) {
  // The kernel keeps so much of a name, and a process may give itself another one.
  constexpr std::size_t keptCharacters = 15;
  if (nameOf(process) == program.substr(0, keptCharacters)) return true;
  const std::string words = contentOf(process / "cmdline");
  const bool isJava = isCalled(words.c_str(), "java");
  for (std::size_t start = 0; start < words.size();) {
    const std::string_view word(words.c_str() + start);
    if (isCalled(word, program)) return true;
    if (!isJava) return false;
    start += word.size() + 1;
  }
  return false;
}

bool isProgram(const Path& process, std::string_view program) {
  return isCalledSo(process, program) && !hasEnded(process);
}

/// The number of the file system that something open lies on. A program in a sandbox has mounts of
/// its own; the numbers of the file systems are the same for all.
std::optional<std::uint64_t> volumeOfOpened(const std::string& information,
                                            const std::vector<MountPoint>& mounts) {
  constexpr std::string_view field = "mnt_id:\t";
  std::string_view rest = information;
  while (!rest.empty()) {
    const std::string_view line = takeLine(rest);
    if (!line.starts_with(field)) continue;
    const auto id = wholeNumber<std::uint64_t>(line.substr(field.size()));
    const auto mount = std::ranges::find(mounts, id.value_or(0), &MountPoint::id);
    return mount != mounts.end() ? std::optional(mount->volume) : std::nullopt;
  }
  return std::nullopt;
}

/// What is open under `link`, asked of the kernel alone; nothing unless it is a file without a
/// name.
std::optional<DeletedOpenFile> deletedFileAt(const Path& link) {
  struct statx status {};
  constexpr int flags = AT_NO_AUTOMOUNT | AT_STATX_DONT_SYNC;
  if (::statx(AT_FDCWD, link.c_str(), flags, STATX_BASIC_STATS, &status) != 0) return std::nullopt;
  if (kindOf(status) != FileKind::regular || status.stx_nlink != 0) return std::nullopt;
  return DeletedOpenFile{
      .program = {}, .file = *attributesOf(status).identity, .bytes = allocatedBytesOf(status)};
}

/// Those that `process` has open on `volume`.
std::vector<DeletedOpenFile> deletedFilesOf(const Path& process, std::uint64_t volume) {
  std::vector<DeletedOpenFile> files;
  std::optional<std::vector<MountPoint>> mounts;
  std::error_code error;
  for (std::filesystem::directory_iterator entry(process / "fd", error), end;
       !error && entry != end; entry.increment(error)) {
    std::error_code unread;
    const Path target = std::filesystem::read_symlink(entry->path(), unread);
    if (unread || !target.native().ends_with(" (deleted)")) continue;
    if (!mounts) mounts = mountTableFrom(contentOf(process / "mountinfo"));
    const Path information = process / "fdinfo" / entry->path().filename();
    if (volumeOfOpened(contentOf(information), *mounts) != volume) continue;
    if (auto file = deletedFileAt(entry->path())) files.push_back(std::move(*file));
  }
  return files;
}

}  // namespace

std::vector<DeletedOpenFile> ProcessTable::deletedOpenFiles(const Path& folder) const {
  const auto mount = mountOf(AT_FDCWD, folder.c_str());
  const auto mounts = readMountTable();
  if (!mount || !mounts) return {};
  const auto own = std::ranges::find(*mounts, mount->number, &MountPoint::id);
  if (own == mounts->end()) return {};
  std::vector<DeletedOpenFile> files;
  std::set<FileIdentity> known;
  anyProcess(_folder, [&](const Path& process) {
    for (DeletedOpenFile& file : deletedFilesOf(process, own->volume)) {
      if (!known.insert(file.file).second) continue;
      file.program = nameOf(process);
      files.push_back(std::move(file));
    }
    return false;
  });
  return files;
}

bool ProcessTable::isRunning(std::string_view program) const {
  return anyProcess(_folder, [&](const Path& process) { return isProgram(process, program); });
}

bool ProcessTable::isSandboxRunning(std::string_view application) const {
  const std::string flatpak = "app-flatpak-" + std::string(application) + "-";
  const std::string snap = "snap." + std::string(application) + ".";
  return anyProcess(_folder, [&](const Path& process) {
    const std::string groups = contentOf(process / "cgroup");
    const bool isInside =
        groups.find(flatpak) != std::string::npos || groups.find(snap) != std::string::npos;
    return isInside && !hasEnded(process);
  });
}

bool ProcessTable::isLockHeld(const Path& link) const {
  std::error_code error;
  const std::string text = std::filesystem::read_symlink(link, error).native();
  const std::size_t end = text.find_last_not_of("0123456789");
  if (error || end == std::string::npos || end + 1 == text.size()) return false;
  // "machine-123", or the machine's address in front of ":+123".
  const bool namesMachine = text[end] == '-';
  if (namesMachine && text.substr(0, end) != machineName()) return true;
  const Path process = _folder / text.substr(end + 1);
  return std::filesystem::exists(process, error) && !hasEnded(process);
}

bool ProcessTable::hasOpen(const Path& path) const {
  const auto isInside = [&](const Path& link) {
    std::error_code error;
    const Path linked = std::filesystem::read_symlink(link, error);
    const std::string& target = linked.native();
    return target == path.native() || isBelow(target, path.native());
  };
  return anyProcess(_folder, [&](const Path& process) {
    if (isInside(process / "cwd") || isInside(process / "exe")) return true;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(process / "fd", error), end;
         !error && entry != end; entry.increment(error)) {
      if (isInside(entry->path())) return true;
    }
    return false;
  });
}

}  // namespace klarvik
