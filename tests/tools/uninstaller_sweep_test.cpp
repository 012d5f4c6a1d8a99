// One uninstall, disturbed at each of its system calls in turn, on a fresh disk each time.

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>

#include "support/disk_snapshot.h"
#include "support/fake_desktop.h"
#include "support/system_call_faults.h"
#include "tools/uninstaller_engine.h"

namespace klarvik {
namespace {

using Kind = SystemCallFault::Kind;

class UninstallSweep : public testing::Test {
 protected:
  struct Stage {
    Stage() {
      disk.makeFile(app.appURL / "Contents/program", "program");
      disk.makeFile(cache / "data/blob", "waste");
      // The canary has entries of the same names, so that a step that goes astray finds something.
      disk.makeFile(canary / "com.acme.writer/data/blob", "mine");
      disk.makeFile(canary / "Writer.app/Contents/program", "mine");
      static_cast<void>(world.trash.folders());
      app.identity = entryIdentity(world.files, app.appURL);
      leftover.identity = entryIdentity(world.files, cache);
    }

    bool uninstall() {
      UninstallerEngine engine(world.desktop);
      return engine.uninstall(app, {leftover}) == 110;
    }

    [[nodiscard]] DiskSnapshot outsideTheTrash() const {
      DiskSnapshot snapshot = snapshotOf(disk.path());
      std::erase_if(snapshot, [](const auto& entry) {
        return entry.first.starts_with("Users/ann/.local/share/Trash");
      });
      return snapshot;
    }

    [[nodiscard]] bool isTheApp(const Path& place) const {
      const Path program = place / "Contents/program";
      return disk.holds(program) && disk.contentOf(program) == "program";
    }

    /// The name there may be another one: that of a record without its thing is not taken again.
    [[nodiscard]] bool appIsInTheTrash() {
      const std::vector<Path> trashed = world.trash.list().value_or(std::vector<Path>{});
      return std::ranges::any_of(trashed, [&](const Path& place) { return isTheApp(place); });
    }

    [[nodiscard]] bool appIsInPlace() const { return isTheApp(app.appURL); }

    FakeDesktopOnDisk world;
    const TemporaryFolder& disk = world.disk;
    AppInfo app{.name = "Writer",
                .bundleID = "com.acme.writer",
                .appURL = "/Applications/Writer.app",
                .appSize = 100};
    const Path cache = "/Users/ann/Library/Caches/com.acme.writer";
    ResidualFile leftover{.url = cache, .size = 10};
    const Path canary = "/Users/ann/Documents";
  };

  /// Calls `check` with what became of each run, until the fault comes too late to happen.
  template <class MakeFault, class Check>
  static void sweep(const MakeFault& makeFault, const Check& check) {
    int calls = 0;
    for (bool reached = true; reached && !testing::Test::HasFailure(); ++calls) {
      SCOPED_TRACE("at call " + std::to_string(calls + 1));
      Stage stage;
      const DiskSnapshot before = stage.outsideTheTrash();
      const FaultyRun run =
          runWithFault(makeFault(stage, calls + 1), [&stage] { return stage.uninstall(); });
      check(stage, before, run);
      reached = run.reached;
    }
    EXPECT_GT(calls, 20);
  }

  static void expectNothingLost(Stage& stage, const DiskSnapshot& before) {
    EXPECT_EQ(
        unexpectedDifferences(before, stage.outsideTheTrash(), {stage.cache, stage.app.appURL}),
        "");
    EXPECT_NE(stage.appIsInPlace(), stage.appIsInTheTrash());
  }

  static void sweepWith(Kind kind, int error) {
    sweep(
        [&](Stage&, int call) {
          return SystemCallFault{.kind = kind, .at = call, .error = error, .disturbance = {}};
        },
        [](Stage& stage, const DiskSnapshot& before, const FaultyRun& run) {
          expectNothingLost(stage, before);
          if (run.answer) {
            EXPECT_FALSE(stage.disk.holds(stage.cache));
            EXPECT_TRUE(stage.appIsInTheTrash());
          }
          stage.uninstall();
          expectNothingLost(stage, before);
          EXPECT_FALSE(stage.disk.holds(stage.cache)) << "the next run does the rest";
          EXPECT_FALSE(stage.appIsInPlace());
        });
  }

  /// What is neither below the folder that is swapped nor where that goes.
  static DiskSnapshot besides(const Path& folder, DiskSnapshot snapshot) {
    std::erase_if(snapshot, [&](const auto& entry) {
      return entry.first.starts_with("aside") ||
             entry.first.starts_with(folder.relative_path().native());
    });
    return snapshot;
  }

  static void swapForALink(const Path& folder) {
    sweep(
        [&](Stage& stage, int call) {
          const Path path = stage.disk.onDisk(folder);
          const Path aside = stage.disk.onDisk("/aside");
          const Path canary = stage.disk.onDisk(stage.canary);
          return SystemCallFault{
              .kind = Kind::disturbed, .at = call, .error = 0, .disturbance = [=] {
                std::error_code error;
                std::filesystem::rename(path, aside, error);
                if (!error) std::filesystem::create_symlink(canary, path);
              }};
        },
        [&](Stage& stage, const DiskSnapshot& before, const FaultyRun&) {
          EXPECT_EQ(
              unexpectedDifferences(besides(folder, before),
                                    besides(folder, stage.outsideTheTrash()), {stage.app.appURL}),
              "");
          EXPECT_NE(stage.appIsInPlace(), stage.appIsInTheTrash());
        });
  }
};

TEST_F(UninstallSweep, ACallThatFailsOnceLosesNothing) {
  sweepWith(Kind::failsOnce, EIO);
}

TEST_F(UninstallSweep, CallsThatFailFromSomePointOnLoseNothing) {
  sweepWith(Kind::failsFromThere, EACCES);
}

TEST_F(UninstallSweep, KilledAtEachStepTheApplicationIsWholeInOnePlaceAndTheNextRunFinishes) {
  sweepWith(Kind::killed, 0);
}

TEST_F(UninstallSweep, TheFolderOfAResidualSwappedForALinkAtEveryStepLosesNothingOutside) {
  swapForALink("/Users/ann/Library/Caches");
}

TEST_F(UninstallSweep, AResidualSwappedForALinkAtEveryStepLosesNothingOutside) {
  swapForALink("/Users/ann/Library/Caches/com.acme.writer");
}

}  // namespace
}  // namespace klarvik
