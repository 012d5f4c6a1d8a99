#pragma once

#include <memory>
#include <optional>

#include "platform/application_info.h"
#include "platform/formatting.h"
#include "platform/linux/linux_file_system.h"
#include "platform/linux/linux_trash.h"
#include "platform/notification_center.h"
#include "platform/platform.h"
#include "support/fake_clock.h"
#include "support/fake_command_runner.h"
#include "support/fake_file_system.h"
#include "support/fake_running_programs.h"
#include "support/fake_tool_runner.h"
#include "support/fake_user_defaults.h"
#include "support/fake_volume.h"
#include "support/fault_injecting_file_system.h"
#include "support/fault_injecting_trash.h"
#include "support/gate.h"
#include "support/sample_disk.h"
#include "support/temporary_folder.h"

namespace klarvik {

class FakeMotionPreference;
class FakeOpenPanel;
class FakePasteboard;
class FakeRecentDocuments;
class FakeStatusItem;
class FakeUpdater;
class FakeWorkspace;

/// The whole desktop around a disk, every part of which a test can steer: the one place where what
/// surrounds a test is put together. Sizes and dates are written in the English of the United
/// States.
struct FakeDesktop {
 private:
  /// What few tests steer. Those include "support/desktop_fakes.h"; a change to one of the
  /// interfaces behind it compiles no others.
  struct Surroundings;
  std::unique_ptr<Surroundings> _surroundings;

 public:
  /// Around files and a Trash that outlive it.
  FakeDesktop(FileSystem& disk, Trash& trashOfTheDisk);
  ~FakeDesktop();
  FakeDesktop(const FakeDesktop&) = delete;
  FakeDesktop& operator=(const FakeDesktop&) = delete;

  /// The same desktop with another clock.
  [[nodiscard]] Desktop with(Clock& other);

  Gate commandGate;  ///< for `commands.holdAt`
  Gate trashGate;    ///< every move to the Trash waits here
  Gate walkGate;     ///< every walk waits here, before each folder

  FaultInjectingFileSystem files;
  FaultInjectingTrash trash;
  FakeClock clock;
  FakeCommandRunner commands;
  FakeUserDefaults defaults;
  FakeVolume volume;
  Formatting formatting{"en_US"};
  ApplicationInfo info{{"CFBundleShortVersionString", "1.2.3"}, {"CFBundleVersion", "45"}};
  FakeRecentDocuments& recentDocuments;
  FakeRunningPrograms programs;
  FakeToolRunner tools;
  NotificationCenter notifications;
  FakeWorkspace& workspace;
  FakeMotionPreference& motion;
  FakePasteboard& pasteboard;
  FakeOpenPanel& openPanel;
  FakeStatusItem& statusItem;
  FakeUpdater& updater;

  /// What the program sees of it all; also the `Platform` of an engine.
  const Desktop desktop = with(clock);
};

/// Where tests have their home: that of a Mac's disk, and that of a Linux machine's.
inline const Path macHome = "/Users/ann";
inline const Path linuxHome = "/home/ann";

/// A disk of the machine in a temporary folder.
struct TemporaryDisk {
  explicit TemporaryDisk(const Path& home)
      : filesOnDisk(disk.path(), home), trashOnDisk(disk.path(), home) {}

  TemporaryFolder disk;
  LinuxFileSystem filesOnDisk;
  LinuxTrash trashOnDisk;
};

/// Real files and a real Trash in a temporary folder, `disk`.
struct FakeDesktopOnDisk : TemporaryDisk, FakeDesktop {
  /// An empty home, or the sample disk where its options are given, which is a Mac's.
  explicit FakeDesktopOnDisk(const std::optional<SampleDiskOptions>& options = std::nullopt,
                             const Path& home = macHome);

  /// Something protected is there that nobody can read, not even root.
  void denyFullDiskAccess() const;
  void grantFullDiskAccess() const;

  std::optional<SampleDisk> sample;
};

/// A disk that is only remembered, and its Trash.
struct RememberedDisk {
  explicit RememberedDisk(const Path& home) : disk(home) {}

  FakeFileSystem disk;
  FakeTrash trashOnDisk{disk};
};

/// Files that are only remembered, in `disk`, with sizes to the byte.
struct FakeDesktopInMemory : RememberedDisk, FakeDesktop {
  explicit FakeDesktopInMemory(const Path& home = macHome);
};

}  // namespace klarvik
