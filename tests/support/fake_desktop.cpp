#include "support/fake_desktop.h"

namespace klarvik {
namespace {

const Path protectedFile = "/Users/ann/Library/Safari/CloudTabs.db";

}  // namespace

FakeDesktop::FakeDesktop(FileSystem& disk, Trash& trashOfTheDisk)
    : files(disk), trash(trashOfTheDisk) {
  files.holdAt(FileOperation::walk, walkGate);
  trash.holdAt(TrashOperation::moveToTrash, trashGate);
  defaults.onChange([this] { notifications.post(defaultsChangedNotification); });
}

Desktop FakeDesktop::with(Clock& other) {
  return {{files, trash, commands, defaults, volume, formatting, info, recentDocuments},
          other,
          notifications,
          workspace,
          pasteboard,
          openPanel,
          statusItem,
          updater};
}

FakeDesktopOnDisk::FakeDesktopOnDisk(const std::optional<SampleDiskOptions>& options)
    : FakeDesktop(filesOnDisk, trashOnDisk) {
  if (!options) {
    disk.makeFolder("/Users/ann");
    return;
  }
  sample = buildSampleDisk(disk.path(), *options);
  commands.answer("xcrun simctl list devices unavailable --json 2>/dev/null",
                  sample->simulatorListing);
}

void FakeDesktopOnDisk::denyFullDiskAccess() const {
  std::filesystem::remove(disk.onDisk(protectedFile));
  disk.makeFolder(protectedFile);
}

void FakeDesktopOnDisk::grantFullDiskAccess() const {
  std::filesystem::remove(disk.onDisk(protectedFile));
  disk.makeFile(protectedFile);
}

FakeDesktopInMemory::FakeDesktopInMemory() : FakeDesktop(disk, trashOnDisk) {}

}  // namespace klarvik
