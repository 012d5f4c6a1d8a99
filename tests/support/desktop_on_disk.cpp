#include "support/desktop_on_disk.h"

namespace klarvik {
namespace {

const Path protectedFile = "/Users/ann/Library/Safari/CloudTabs.db";

}  // namespace

DesktopOnDisk::DesktopOnDisk(const std::optional<SampleDiskOptions>& options) {
  if (!options) {
    disk.makeFolder("/Users/ann");
    return;
  }
  sample = buildSampleDisk(disk.path(), *options);
  commands.answer("xcrun simctl list devices unavailable --json 2>/dev/null",
                  sample->simulatorListing);
}

void DesktopOnDisk::denyFullDiskAccess() const {
  std::filesystem::remove(disk.onDisk(protectedFile));
  disk.makeFolder(protectedFile);
}

void DesktopOnDisk::grantFullDiskAccess() const {
  std::filesystem::remove(disk.onDisk(protectedFile));
  disk.makeFile(protectedFile);
}

WalkOutcome DesktopOnDisk::GatedFiles::walk(const Path& folder, WalkOptions options,
                                            const WalkVisitor& visit) const {
  _owner.walkGate.pass();
  return LinuxFileSystem::walk(folder, options, visit);
}

std::optional<Path> DesktopOnDisk::GatedTrash::moveToTrash(const Path& item,
                                                           const PlaceCheck& mayMove) {
  _owner.trashGate.pass();
  return LinuxTrash::moveToTrash(item, mayMove);
}

}  // namespace klarvik
