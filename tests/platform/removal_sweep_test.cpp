#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/syscall.h>

#include <cerrno>

#include "deep_tree.h"
#include "platform/file_attributes.h"
#include "platform/linux/linux_file_system.h"
#include "support/disk_snapshot.h"
#include "support/system_call_faults.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

using Kind = SystemCallFault::Kind;

/// One removal, disturbed at each of its system calls in turn, on a fresh disk each time. The
/// canary has entries of the same names as the tree, so that a step that goes astray finds
/// something to remove.
class RemovalSweepTest : public testing::Test {
 protected:
  struct Stage {
    Stage() {
      for (const char* top : {"/chosen/tree", "/canary", "/canary/tree", "/canary/x"}) {
        disk.makeFile(top / Path("x/file"), "one");
        disk.makeFile(top / Path("y/z/file"), "two");
        disk.makeFile(top / Path("file"), "three");
      }
    }
    bool removeTree() {
      return files.remove("/chosen/tree", [](const Path& place, const FileAttributes&) {
        return place == "/chosen/tree";
      });
    }
    std::string unexpectedSince(const DiskSnapshot& before) const {
      return unexpectedDifferences(before, snapshotOf(disk.path()), {"/chosen/tree"});
    }

    TemporaryFolder disk{memoryFolder()};
    LinuxFileSystem files{disk.path(), "/Users/ann"};
  };

  /// Calls `check` with what became of each run, until the fault comes too late to happen.
  template <typename Check>
  static int sweep(const std::function<SystemCallFault(Stage&, int)>& faultAt, const Check& check) {
    for (int call = 1;; ++call) {
      SCOPED_TRACE("at call " + std::to_string(call));
      Stage stage;
      const DiskSnapshot before = snapshotOf(stage.disk.path());
      const FaultyRun run =
          runWithFault(faultAt(stage, call), [&stage] { return stage.removeTree(); });
      check(stage, before, run);
      if (!run.reached || testing::Test::HasFailure()) return call - 1;
    }
  }

  static void sweepWithError(Kind kind, int error) {
    SCOPED_TRACE(std::string("with ") + std::to_string(error));
    const int calls = sweep(
        [&](Stage&, int call) {
          return SystemCallFault{.kind = kind, .at = call, .error = error, .disturbance = {}};
        },
        [&](Stage& stage, const DiskSnapshot& before, const FaultyRun& run) {
          EXPECT_EQ(stage.unexpectedSince(before), "");
          EXPECT_NE(run.answer, stage.disk.holds("/chosen/tree"));
          EXPECT_NE(run.answer, stage.removeTree()) << "a second run does what the first did not";
          EXPECT_FALSE(stage.disk.holds("/chosen/tree"));
        });
    EXPECT_GT(calls, 20);
  }

  /// Moves `folder` out of the way and puts a link to the canary in its place.
  static void swapForALink(const std::string& folder) {
    SCOPED_TRACE("swapping " + folder);
    const int calls = sweep(
        [&](Stage& stage, int call) {
          const Path path = stage.disk.onDisk(folder);
          const Path aside = stage.disk.onDisk("/aside");
          const Path canary = stage.disk.onDisk("/canary");
          return SystemCallFault{
              .kind = Kind::disturbed, .at = call, .error = 0, .disturbance = [=] {
                std::error_code error;
                std::filesystem::rename(path, aside, error);
                if (!error) std::filesystem::create_symlink(canary, path);
              }};
        },
        [&](Stage& stage, const DiskSnapshot& before, const FaultyRun&) {
          const DiskSnapshot after = snapshotOf(stage.disk.path());
          for (const auto& [place, description] : before) {
            if (!place.starts_with("canary")) continue;
            const auto found = after.find(place);
            EXPECT_TRUE(found != after.end() && found->second == description) << place;
          }
        });
    EXPECT_GT(calls, 20);
  }
};

TEST_F(RemovalSweepTest, ACallThatFailsOnceLosesNothingOutside) {
  for (const int error : {EIO, EACCES, EMFILE, ENOSPC}) sweepWithError(Kind::failsOnce, error);
}

TEST_F(RemovalSweepTest, CallsThatFailFromSomePointOnLoseNothingOutside) {
  for (const int error : {EIO, EACCES, EMFILE}) sweepWithError(Kind::failsFromThere, error);
}

TEST_F(RemovalSweepTest, AnyOneCallThatIsInterruptedIsMadeAgain) {
  sweep(
      [](Stage&, int call) {
        return SystemCallFault{
            .kind = Kind::failsOnce, .at = call, .error = EINTR, .disturbance = {}};
      },
      [](Stage& stage, const DiskSnapshot& before, const FaultyRun& run) {
        EXPECT_TRUE(run.answer);
        EXPECT_FALSE(stage.disk.holds("/chosen/tree"));
        EXPECT_EQ(stage.unexpectedSince(before), "");
      });
}

TEST_F(RemovalSweepTest, KilledAtEachStepTheNextRunFinishes) {
  const int calls = sweep(
      [](Stage&, int call) {
        return SystemCallFault{.kind = Kind::killed, .at = call, .error = 0, .disturbance = {}};
      },
      [](Stage& stage, const DiskSnapshot& before, const FaultyRun& run) {
        EXPECT_EQ(run.killed, run.reached);
        EXPECT_EQ(stage.unexpectedSince(before), "");
        const bool isLeft = stage.disk.holds("/chosen/tree");
        EXPECT_EQ(stage.removeTree(), isLeft);
        EXPECT_FALSE(stage.disk.holds("/chosen/tree"));
      });
  EXPECT_GT(calls, 20);
}

/// One file, and another of its name beside it.
class FileRemovalSweepTest : public testing::Test {
 protected:
  struct Stage {
    Stage() {
      disk.makeFile("/chosen/file", "waste");
      disk.makeFile("/kept/file", "mine");
      identity = entryIdentity(files, "/chosen/file");
    }
    bool removeFile() {
      return files.remove("/chosen/file", [this](const Path&, const FileAttributes& item) {
        return entryIdentity(item) == identity;
      });
    }

    TemporaryFolder disk{memoryFolder()};
    LinuxFileSystem files{disk.path(), "/Users/ann"};
    std::optional<EntryIdentity> identity;
  };

  template <typename Check>
  static void sweep(const std::function<SystemCallFault(Stage&, int)>& faultAt,
                    const Check& check) {
    int calls = 0;
    for (bool reached = true; reached && !HasFailure(); ++calls) {
      SCOPED_TRACE("at call " + std::to_string(calls + 1));
      Stage stage;
      const FaultyRun run =
          runWithFault(faultAt(stage, calls + 1), [&stage] { return stage.removeFile(); });
      check(stage, run);
      EXPECT_EQ(stage.disk.contentOf("/kept/file"), "mine");
      reached = run.reached;
      EXPECT_TRUE(reached || run.answer);
    }
    EXPECT_GT(calls, 8);
  }
};

TEST_F(FileRemovalSweepTest, ACallThatFailsLeavesTheFileUnderItsName) {
  for (const int error : {EIO, EACCES, EMFILE}) {
    sweep(
        [&](Stage&, int call) {
          return SystemCallFault{
              .kind = Kind::failsOnce, .at = call, .error = error, .disturbance = {}};
        },
        [](Stage& stage, const FaultyRun& run) {
          EXPECT_NE(run.answer, stage.disk.holds("/chosen/file"));
        });
  }
}

TEST_F(FileRemovalSweepTest, KilledAtEachStepTheFileIsWholeUnderItsNameOrOneThatTellsOfIt) {
  sweep(
      [](Stage&, int call) {
        return SystemCallFault{.kind = Kind::killed, .at = call, .error = 0, .disturbance = {}};
      },
      [](Stage& stage, const FaultyRun&) {
        for (const auto& entry :
             std::filesystem::directory_iterator(stage.disk.onDisk("/chosen"))) {
          const std::string name = entry.path().filename();
          EXPECT_TRUE(name == "file" || name.starts_with("file.klarvik-removal-")) << name;
          EXPECT_EQ(stage.disk.contentOf(Path("/chosen") / name), "waste");
        }
      });
}

TEST_F(FileRemovalSweepTest, AnotherFileUnderTheNameAtEveryStepStays) {
  sweep(
      [](Stage& stage, int call) {
        return SystemCallFault{
            .kind = Kind::disturbed, .at = call, .error = 0, .disturbance = [&stage] {
              std::error_code error;
              const Path file = stage.disk.onDisk("/chosen/file");
              std::filesystem::rename(file, stage.disk.onDisk("/aside"), error);
              if (error) return;
              stage.disk.makeFile("/chosen/file", "also mine");
            }};
      },
      [](Stage& stage, const FaultyRun&) {
        if (!stage.disk.holds("/aside")) return;
        EXPECT_EQ(stage.disk.contentOf("/chosen/file"), "also mine");
      });
}

TEST_F(FileRemovalSweepTest, WhereNothingCanBeMovedWithoutReplacingTheFileGoesAllTheSame) {
  Stage stage;
  const FaultyRun run = runWithFault({}, [&stage] {
    refuseSystemCall(SYS_renameat2, EINVAL);
    return stage.removeFile();
  });
  EXPECT_TRUE(run.answer);
  EXPECT_FALSE(stage.disk.holds("/chosen/file"));
}

TEST_F(FileRemovalSweepTest, ANameThatIsAsLongAsCanBeGoesToo) {
  Stage stage;
  const std::string longest(255, 'n');
  stage.disk.makeFile(Path("/chosen") / longest, "waste");
  EXPECT_TRUE(stage.files.remove(Path("/chosen") / longest,
                                 [](const Path&, const FileAttributes&) { return true; }));
  EXPECT_FALSE(stage.disk.holds(Path("/chosen") / longest));
}

TEST_F(RemovalSweepTest, AParentSwappedForALinkAtEveryStepLosesNothingOutside) {
  swapForALink("/chosen");
}

TEST_F(RemovalSweepTest, TheItemSwappedForALinkAtEveryStepLosesNothingOutside) {
  swapForALink("/chosen/tree");
}

TEST_F(RemovalSweepTest, AFolderInsideSwappedForALinkAtEveryStepLosesNothingOutside) {
  swapForALink("/chosen/tree/x");
  swapForALink("/chosen/tree/y");
  swapForALink("/chosen/tree/y/z");
}

}  // namespace
}  // namespace klarvik
