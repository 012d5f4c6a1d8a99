#include "platform/linux/process_table.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/utsname.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>

#include "base/paths.h"
#include "base/posix_io.h"

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

bool isProgram(const Path& process, std::string_view program) {
  // The kernel keeps so much of a name, and a process may give itself another one.
  constexpr std::size_t keptCharacters = 15;
  std::string name = contentOf(process / "comm");
  if (name.ends_with('\n')) name.pop_back();
  if (name == program.substr(0, keptCharacters)) return true;
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

}  // namespace

bool ProcessTable::isRunning(std::string_view program) const {
  return anyProcess(_folder, [&](const Path& process) { return isProgram(process, program); });
}

bool ProcessTable::isSandboxRunning(std::string_view application) const {
  const std::string flatpak = "app-flatpak-" + std::string(application) + "-";
  const std::string snap = "snap." + std::string(application) + ".";
  return anyProcess(_folder, [&](const Path& process) {
    const std::string groups = contentOf(process / "cgroup");
    return groups.find(flatpak) != std::string::npos || groups.find(snap) != std::string::npos;
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
  return std::filesystem::exists(_folder / text.substr(end + 1), error);
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
