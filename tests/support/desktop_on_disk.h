#pragma once

#include <optional>

#include "platform/linux/linux_file_system.h"
#include "platform/linux/linux_trash.h"
#include "support/desktop_fakes.h"
#include "support/gate.h"
#include "support/hand_moved_clock.h"
#include "support/sample_disk.h"
#include "support/temporary_folder.h"

namespace klarvik {

/// A whole desktop around a temporary disk: real files and a real Trash below `disk`, the home at
/// "/Users/ann", and for the rest what a test can steer. A test can hold a scan up before each
/// walk, and a removal before each move to the Trash.
class DesktopOnDisk : public DesktopFakes {
 public:
  /// An empty home, or the sample disk where its options are given.
  explicit DesktopOnDisk(const std::optional<SampleDiskOptions>& options = std::nullopt);

  /// Something protected is there that nobody can read, not even root.
  void denyFullDiskAccess() const;
  void grantFullDiskAccess() const;

  Gate commandGate;  ///< for `commands.holdAt`
  Gate trashGate;
  Gate walkGate;

  TemporaryFolder disk;
  std::optional<SampleDisk> sample;

 private:
  class GatedFiles final : public LinuxFileSystem {
   public:
    explicit GatedFiles(DesktopOnDisk& owner)
        : LinuxFileSystem(owner.disk.path(), "/Users/ann"), _owner(owner) {}
    WalkOutcome walk(const Path& folder, WalkOptions options,
                     const WalkVisitor& visit) const override;

   private:
    DesktopOnDisk& _owner;
  };

 public:
  GatedFiles files{*this};
  HandMovedClock clock;

 private:
  class GatedTrash final : public LinuxTrash {
   public:
    explicit GatedTrash(DesktopOnDisk& owner)
        : LinuxTrash(owner.disk.path(), owner.files.home()), _owner(owner) {}
    std::optional<Path> moveToTrash(const Path& item, const PlaceCheck& mayMove) override;

   private:
    DesktopOnDisk& _owner;
  };
  GatedTrash _gatedTrash{*this};

 public:
  Desktop desktop = around(files, _gatedTrash, clock);
};

}  // namespace klarvik
