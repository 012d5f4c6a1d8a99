#include "engine/program_use.h"

#include <algorithm>

#include "engine/place_matches.h"
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

}  // namespace klarvik
