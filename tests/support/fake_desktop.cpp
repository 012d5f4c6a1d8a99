#include "support/fake_desktop.h"

#include "platform/user_defaults.h"
#include "support/desktop_fakes.h"

namespace klarvik {
namespace {

const Path protectedFile = "/Users/ann/Library/Safari/CloudTabs.db";

}  // namespace

struct FakeDesktop::Surroundings {
  FakeRecentDocuments recentDocuments;
  FakeWorkspace workspace;
  FakeMotionPreference motion;
  FakePasteboard pasteboard;
  FakeOpenPanel openPanel;
  FakeStatusItem statusItem;
  FakeUpdater updater;
};

FakeDesktop::FakeDesktop(FileSystem& disk, Trash& trashOfTheDisk)
    : _surroundings(std::make_unique<Surroundings>()),
      files(disk),
      trash(trashOfTheDisk),
      recentDocuments(_surroundings->recentDocuments),
      workspace(_surroundings->workspace),
      motion(_surroundings->motion),
      pasteboard(_surroundings->pasteboard),
      openPanel(_surroundings->openPanel),
      statusItem(_surroundings->statusItem),
      updater(_surroundings->updater) {
  files.holdAt(FileOperation::walk, walkGate);
  trash.holdAt(TrashOperation::moveToTrash, trashGate);
  defaults.onChange([this] { notifications.post(defaultsChangedNotification); });
}

FakeDesktop::~FakeDesktop() = default;

Desktop FakeDesktop::with(Clock& other) {
  return {{files, trash, commands, defaults, volume, formatting, info, recentDocuments, programs,
           tools},
          other,
          notifications,
          workspace,
          motion,
          pasteboard,
          openPanel,
          statusItem,
          updater};
}

FakeDesktopOnDisk::FakeDesktopOnDisk(const std::optional<SampleDiskOptions>& options,
                                     const Path& home)
    : TemporaryDisk(home), FakeDesktop(filesOnDisk, trashOnDisk) {
  if (!options) {
    disk.makeFolder(home);
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

FakeDesktopInMemory::FakeDesktopInMemory(const Path& home)
    : RememberedDisk(home), FakeDesktop(disk, trashOnDisk) {}

}  // namespace klarvik
