#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>

#include "platform/linux/trash_folder.h"
#include "support/system_call_faults.h"
#include "trash_fixture.h"

namespace klarvik {
namespace {

namespace fs = std::filesystem;
using Kind = SystemCallFault::Kind;

constexpr const char* kItem = "/Users/ann/parent/item";
constexpr const char* kOutside = "/Library/outside";

/// One kind of fault, tried at the first system call of an operation, then at the second, and so on
/// until the operation completes before it is reached.
struct Sweep {
  const char* name;
  Kind kind;
  int error;
};

class TrashFaults : public TrashFixture, public testing::WithParamInterface<Sweep> {
 protected:
  TrashFaults() {
    disk.makeFile(Path(kOutside) / "item", "outside");
    disk.makeFile(Path(kOutside) / "item.trashinfo", "outside");
    outside = snapshot(kOutside);
  }

  ~TrashFaults() override { EXPECT_EQ(snapshot(kOutside), outside); }

  void makeHomeAnew() {
    fs::remove_all(disk.onDisk(kHome));
    disk.makeFile(Path(kItem) / "inner/a", "first");
    disk.makeFile(Path(kItem) / "b", "second");
    whole = snapshot(kItem);
  }

  void makeHomeWithTheItemTrashed() {
    makeHomeAnew();
    ASSERT_EQ(trash.moveToTrash(kItem, anywhere), inFiles("item"));
  }

  /// Calls `tryAt` with 1, 2, 3 and so on for as long as it answers that the call was reached.
  static void sweep(const std::function<bool(int)>& tryAt) {
    int at = 1;
    while (tryAt(at) && !HasFailure()) ++at;
    EXPECT_GT(at, 10) << "the operation makes hardly any system call";
  }

  bool isWholeAt(const Path& place) const { return disk.holds(place) && snapshot(place) == whole; }

  void expectWholeInOnePlace() const {
    EXPECT_TRUE(isWholeAt(kItem) || isWholeAt(inFiles("item")));
    EXPECT_FALSE(disk.holds(kItem) && disk.holds(inFiles("item")));
  }

  void expectEachTrashedItemHasAWholeRecord() const {
    if (!disk.holds(kFiles)) return;
    for (const auto& entry : fs::directory_iterator(disk.onDisk(kFiles))) {
      const Path record = recordOf(entry.path().filename());
      ASSERT_TRUE(disk.holds(record)) << record;
      EXPECT_EQ(placeInTrashRecord(disk.contentOf(record)), disk.onDisk(kItem));
    }
  }

  void expectEachTrashedItemHasARecord() const {
    if (!disk.holds(kFiles)) return;
    for (const auto& entry : fs::directory_iterator(disk.onDisk(kFiles))) {
      EXPECT_TRUE(disk.holds(recordOf(entry.path().filename()))) << entry.path();
    }
  }

  /// Other Trash programs show a record that is not as broken.
  void expectEachRecordIsWhole() const {
    if (!disk.holds(kInfo)) return;
    for (const auto& entry : fs::directory_iterator(disk.onDisk(kInfo))) {
      if (entry.path().extension() != ".trashinfo") continue;
      const std::string text = disk.contentOf(Path(kInfo) / entry.path().filename());
      EXPECT_EQ(placeInTrashRecord(text), disk.onDisk(kItem)) << entry.path();
      EXPECT_TRUE(text.ends_with("\n") && text.find("DeletionDate=") != std::string::npos) << text;
    }
  }

  DiskSnapshot whole;
  DiskSnapshot outside;
};

TEST_P(TrashFaults, MovingToTheTrashLosesNothingAndTheNextRunWorks) {
  sweep([&](int at) {
    SCOPED_TRACE(at);
    makeHomeAnew();
    const FaultyRun run = runWithFault({GetParam().kind, at, GetParam().error, {}}, [&] {
      return trash.moveToTrash(kItem, anywhere) == inFiles("item");
    });
    expectWholeInOnePlace();
    expectEachTrashedItemHasAWholeRecord();
    expectEachRecordIsWhole();
    if (!run.killed) {
      EXPECT_EQ(run.answer, disk.holds(inFiles("item")));
    }
    if (GetParam().kind == Kind::failsOnce) {
      EXPECT_EQ(countIn(kInfo), run.answer ? 1u : 0u);
    }

    if (disk.holds(kItem)) {
      const auto again = trash.moveToTrash(kItem, anywhere);
      EXPECT_TRUE(again && isWholeAt(*again));
    }
    return run.reached;
  });
}

TEST_P(TrashFaults, PuttingBackLosesNothingAndTheNextRunWorks) {
  sweep([&](int at) {
    SCOPED_TRACE(at);
    makeHomeWithTheItemTrashed();
    fs::remove(disk.onDisk("/Users/ann/parent"));
    const FaultyRun run = runWithFault({GetParam().kind, at, GetParam().error, {}}, [&] {
      return trash.putBack(inFiles("item"), kItem, anywhere);
    });
    expectWholeInOnePlace();
    expectEachTrashedItemHasAWholeRecord();
    expectEachRecordIsWhole();
    if (!run.killed) {
      EXPECT_EQ(run.answer, disk.holds(kItem));
    }

    if (!disk.holds(kItem)) {
      EXPECT_TRUE(trash.putBack(inFiles("item"), kItem, anywhere));
    }
    EXPECT_TRUE(isWholeAt(kItem));
    return run.reached;
  });
}

TEST_P(TrashFaults, RemovingKeepsTheRecordForAsLongAsAnythingIsLeft) {
  sweep([&](int at) {
    SCOPED_TRACE(at);
    makeHomeWithTheItemTrashed();
    disk.makeFile("/Users/ann/other", "stays");
    const FaultyRun run = runWithFault({GetParam().kind, at, GetParam().error, {}},
                                       [&] { return trash.remove(inFiles("item"), anywhere); });
    expectEachTrashedItemHasAWholeRecord();
    expectEachRecordIsWhole();
    EXPECT_EQ(disk.contentOf("/Users/ann/other"), "stays");
    if (!run.killed) {
      EXPECT_EQ(run.answer, !disk.holds(inFiles("item")));
    }

    if (disk.holds(inFiles("item"))) {
      EXPECT_TRUE(trash.remove(inFiles("item"), anywhere));
    }
    EXPECT_EQ(countIn(kFiles), 0u);
    return run.reached;
  });
}

INSTANTIATE_TEST_SUITE_P(
    EverySystemCall, TrashFaults,
    testing::Values(Sweep{"FailsOnceWithEIO", Kind::failsOnce, EIO},
                    Sweep{"FailsOnceWithENOSPC", Kind::failsOnce, ENOSPC},
                    Sweep{"FailsOnceWithEACCES", Kind::failsOnce, EACCES},
                    Sweep{"FailsOnceWithEINTR", Kind::failsOnce, EINTR},
                    Sweep{"FailsOnceWithEMFILE", Kind::failsOnce, EMFILE},
                    Sweep{"FailsForGoodWithEIO", Kind::failsFromThere, EIO},
                    Sweep{"FailsForGoodWithENOSPC", Kind::failsFromThere, ENOSPC},
                    Sweep{"FailsForGoodWithEACCES", Kind::failsFromThere, EACCES},
                    Sweep{"FailsForGoodWithEMFILE", Kind::failsFromThere, EMFILE},
                    Sweep{"KillsTheProcess", Kind::killed, 0}),
    [](const auto& sweep) { return sweep.param.name; });

/// Puts a link to the place outside where `folder` is; the folder moves aside.
std::function<void()> swapForLink(const TemporaryFolder& disk, const Path& folder) {
  return [path = disk.onDisk(folder), target = disk.onDisk(kOutside)] {
    fs::rename(path, path.native() + " moved");
    fs::create_symlink(target, path);
  };
}

class TrashSwaps : public TrashFaults {
 protected:
  /// However a folder was moved aside, the item is whole in one of the places it may be in.
  void expectWholeSomewhere(const std::vector<Path>& places) const {
    int found = 0;
    for (const Path& place : places) found += isWholeAt(place);
    EXPECT_EQ(found, 1);
  }
};

TEST_F(TrashSwaps, AParentSwappedForALinkAtEveryStepOfAMoveNothingOutsideIsLost) {
  sweep([&](int at) {
    SCOPED_TRACE(at);
    makeHomeAnew();
    const FaultyRun run =
        runWithFault({Kind::disturbed, at, 0, swapForLink(disk, "/Users/ann/parent")}, [&] {
          return trash
              .moveToTrash(kItem,
                           [](const Path& real, const FileAttributes&) { return real == kItem; })
              .has_value();
        });
    EXPECT_EQ(snapshot(kOutside), outside);
    expectWholeSomewhere({kItem, "/Users/ann/parent moved/item", inFiles("item")});
    expectEachTrashedItemHasAWholeRecord();
    expectEachRecordIsWhole();
    return run.reached;
  });
}

TEST_F(TrashSwaps, ATrashFolderSwappedForALinkAtEveryStepOfAMoveNothingOutsideIsTouched) {
  for (const char* part : {kFiles, kInfo}) {
    sweep([&](int at) {
      SCOPED_TRACE(at);
      makeHomeAnew();
      disk.makeFolder(kFiles);
      disk.makeFolder(kInfo);
      const FaultyRun run = runWithFault({Kind::disturbed, at, 0, swapForLink(disk, part)}, [&] {
        return trash.moveToTrash(kItem, anywhere).has_value();
      });
      EXPECT_EQ(snapshot(kOutside), outside);
      expectWholeSomewhere({kItem, inFiles("item"), std::string(kFiles) + " moved/item"});
      return run.reached;
    });
  }
}

TEST_F(TrashSwaps, AParentSwappedForALinkAtEveryStepOfARestoreNothingOutsideIsTouched) {
  fs::remove(disk.onDisk(Path(kOutside) / "item"));
  outside = snapshot(kOutside);
  sweep([&](int at) {
    SCOPED_TRACE(at);
    makeHomeWithTheItemTrashed();
    const FaultyRun run =
        runWithFault({Kind::disturbed, at, 0, swapForLink(disk, "/Users/ann/parent")},
                     [&] { return trash.putBack(inFiles("item"), kItem, anywhere); });
    EXPECT_EQ(snapshot(kOutside), outside);
    expectWholeSomewhere({kItem, "/Users/ann/parent moved/item", inFiles("item")});
    return run.reached;
  });
}

TEST_F(TrashSwaps, ATrashFolderSwappedForALinkAtEveryStepOfARemovalNothingOutsideIsLost) {
  sweep([&](int at) {
    SCOPED_TRACE(at);
    makeHomeWithTheItemTrashed();
    const FaultyRun run = runWithFault({Kind::disturbed, at, 0, swapForLink(disk, kFiles)}, [&] {
      return trash.remove(inFiles("item"), [&](const Path& real, const FileAttributes&) {
        return real == inFiles("item");
      });
    });
    EXPECT_EQ(snapshot(kOutside), outside);
    return run.reached;
  });
}

TEST_F(TrashSwaps, AnInnerFolderSwappedForALinkAtEveryStepOfARemovalNothingOutsideIsLost) {
  sweep([&](int at) {
    SCOPED_TRACE(at);
    makeHomeWithTheItemTrashed();
    const auto swap = [&] {
      // Once the folder is gone there is nothing left to swap.
      std::error_code gone;
      const Path inner = disk.onDisk(inFiles("item/inner"));
      fs::rename(inner, disk.onDisk("/Users/ann/aside"), gone);
      if (!gone) fs::create_symlink(disk.onDisk(kOutside), inner, gone);
    };
    const FaultyRun run = runWithFault({Kind::disturbed, at, 0, swap},
                                       [&] { return trash.remove(inFiles("item"), anywhere); });
    EXPECT_EQ(snapshot(kOutside), outside);
    return run.reached;
  });
}

TEST_F(TrashSwaps, RestoreOntoAFileThatAppearsInBetweenRefusedBothStay) {
  sweep([&](int at) {
    SCOPED_TRACE(at);
    makeHomeWithTheItemTrashed();
    const auto appear = [path = disk.onDisk(kItem)] {
      const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL, 0600);
      if (file >= 0) ::close(file);
    };
    const FaultyRun run = runWithFault({Kind::disturbed, at, 0, appear}, [&] {
      return trash.putBack(inFiles("item"), kItem, anywhere);
    });
    EXPECT_TRUE(isWholeAt(run.answer ? Path(kItem) : inFiles("item")));
    EXPECT_TRUE(run.answer || fs::is_empty(disk.onDisk(kItem)));
    EXPECT_EQ(disk.holds(recordOf("item")), !run.answer);
    return run.reached;
  });
}

TEST_F(TrashSwaps, ARecordThatCannotBeFlushedToTheDiskKeepsTheItemWhereItIs) {
  makeHomeAnew();
  const FaultyRun run = runWithFault({}, [&] {
    refuseSystemCall(SYS_fdatasync, EIO);
    return trash.moveToTrash(kItem, anywhere).has_value();
  });
  EXPECT_FALSE(run.answer);
  EXPECT_TRUE(isWholeAt(kItem));
  EXPECT_EQ(countIn(kInfo), 0u);
}

TEST_F(TrashSwaps, WhereFilesCannotBeNamelessAKillLeavesNoHalfWrittenRecordEither) {
  sweep([&](int at) {
    SCOPED_TRACE(at);
    makeHomeAnew();
    const FaultyRun run = runWithFault({Kind::killed, at, 0, {}}, [&] {
      refuseNamelessFiles();
      return trash.moveToTrash(kItem, anywhere) == inFiles("item");
    });
    expectWholeInOnePlace();
    expectEachTrashedItemHasAWholeRecord();
    expectEachRecordIsWhole();
    EXPECT_TRUE(run.killed || run.answer);
    return run.reached;
  });
}

TEST_F(TrashSwaps, TheItemIsGoneOrAnotherAtEveryStepOfAMove) {
  sweep([&](int at) {
    SCOPED_TRACE(at);
    makeHomeAnew();
    const auto vanish = [path = disk.onDisk(kItem)] {
      std::error_code gone;
      fs::rename(path, path.native() + " moved", gone);
    };
    const FaultyRun run = runWithFault({Kind::disturbed, at, 0, vanish}, [&] {
      return trash.moveToTrash(kItem, anywhere).has_value();
    });
    expectWholeSomewhere({"/Users/ann/parent/item moved", inFiles("item")});
    EXPECT_EQ(countIn(kInfo), run.answer ? 1u : 0u);
    return run.reached;
  });
}

/// A file system whose renaming may replace what is there, as that of NFS.
class TrashWithPlainRenaming : public TrashSwaps {
 protected:
  static constexpr const char* kFile = "/Users/ann/parent/file";

  void makeHomeWithAFileAnew() {
    makeHomeAnew();
    disk.makeFile(kFile, "content");
  }

  static FaultyRun runPlainly(SystemCallFault fault, const std::function<bool()>& operation) {
    return runWithFault(fault, [&operation] {
      refuseSystemCall(SYS_renameat2, EINVAL);
      return operation();
    });
  }
};

TEST_F(TrashWithPlainRenaming, AFolderAFileAndALinkGoAndComeBack) {
  makeHomeWithAFileAnew();
  disk.makeLink("/Users/ann/parent/link", "nowhere");
  for (const char* const name : {"item", "file", "link"}) {
    const Path place = Path("/Users/ann/parent") / name;
    const DiskSnapshot before = snapshot(place);
    EXPECT_TRUE(
        runPlainly({}, [&] { return trash.moveToTrash(place, anywhere) == inFiles(name); }).answer);
    EXPECT_EQ(snapshot(inFiles(name)), before);
    EXPECT_FALSE(disk.holds(place));
    EXPECT_TRUE(
        runPlainly({}, [&] { return trash.putBack(inFiles(name), place, anywhere); }).answer);
    EXPECT_EQ(snapshot(place), before);
    EXPECT_EQ(countIn(kFiles), 0U);
    EXPECT_EQ(countIn(kInfo), 0U);
  }
}

TEST_F(TrashWithPlainRenaming, NothingInTheTrashIsReplaced) {
  makeHomeWithAFileAnew();
  disk.makeFile(inFiles("file"), "earlier");
  disk.makeFolder(inFiles("item"));
  EXPECT_TRUE(runPlainly({}, [&] {
                return trash.moveToTrash(kFile, anywhere) && trash.moveToTrash(kItem, anywhere);
              }).answer);
  EXPECT_EQ(disk.contentOf(inFiles("file")), "earlier");
  EXPECT_EQ(snapshot(inFiles("item")).size(), 0U);
  EXPECT_EQ(countIn(kInfo), 2U);
}

TEST_F(TrashWithPlainRenaming, NothingIsReplacedByWhatComesBack) {
  makeHomeWithAFileAnew();
  ASSERT_TRUE(trash.moveToTrash(kFile, anywhere) && trash.moveToTrash(kItem, anywhere));
  for (const char* const name : {"file", "item"}) {
    const Path place = Path("/Users/ann/parent") / name;
    const auto appears = [&] {
      if (!disk.holds(place)) disk.makeFile(place, "new");
    };
    sweep([&](int at) {
      SCOPED_TRACE(at);
      fs::remove(disk.onDisk(place));
      const FaultyRun run = runPlainly({Kind::disturbed, at, 0, appears}, [&] {
        return trash.putBack(inFiles(name), place, anywhere);
      });
      if (run.answer) {
        EXPECT_TRUE(trash.moveToTrash(place, anywhere));
      } else {
        EXPECT_EQ(disk.contentOf(place), "new");
      }
      return run.reached;
    });
    fs::remove(disk.onDisk(place));
  }
}

TEST_F(TrashWithPlainRenaming, AFaultOrAKillAtAnySystemCallLosesNothing) {
  for (const auto kind : {Kind::killed, Kind::failsOnce, Kind::failsFromThere}) {
    sweep([&](int at) {
      SCOPED_TRACE(at);
      makeHomeWithAFileAnew();
      const FaultyRun run = runPlainly({kind, at, EIO, {}}, [&] {
        return trash.moveToTrash(kFile, anywhere) && trash.moveToTrash(kItem, anywhere);
      });
      expectWholeInOnePlace();
      expectEachTrashedItemHasARecord();
      EXPECT_TRUE((disk.holds(kFile) && disk.contentOf(kFile) == "content") ||
                  (disk.holds(inFiles("file")) && disk.contentOf(inFiles("file")) == "content"));
      return run.reached;
    });
  }
}

TEST_F(TrashWithPlainRenaming, WhatComesToTheNameAtAnyStepOfAMoveIsKept) {
  const Path parent = "/Users/ann/parent";
  for (const char* const name : {"file", "item"}) {
    for (const bool newIsFolder : {false, true}) {
      sweep([&](int at) {
        SCOPED_TRACE(at);
        makeHomeWithAFileAnew();
        const DiskSnapshot original = snapshot(parent / name);
        const Path newcomer = disk.onDisk("/Users/ann/newcomer");
        disk.makeFile(newIsFolder ? "/Users/ann/newcomer/new" : "/Users/ann/newcomer", "new");
        const DiskSnapshot brought = snapshot("/Users/ann/newcomer");
        const auto swap = [&] {
          std::error_code gone;
          fs::rename(disk.onDisk(parent / name), disk.onDisk("/Users/ann/aside"), gone);
          fs::rename(newcomer, disk.onDisk(parent / name), gone);
        };
        const FaultyRun run = runPlainly({Kind::disturbed, at, 0, swap}, [&] {
          return trash.moveToTrash(parent / name, anywhere).has_value();
        });
        const auto standsIn = [&](const Path& folder, const DiskSnapshot& thing) {
          return disk.holds(folder) &&
                 std::ranges::any_of(fs::directory_iterator(disk.onDisk(folder)),
                                     [&](const fs::directory_entry& entry) {
                                       return snapshot(folder / entry.path().filename()) == thing;
                                     });
        };
        for (const DiskSnapshot& thing : {original, brought}) {
          EXPECT_TRUE(standsIn("/Users/ann", thing) || standsIn(parent, thing) ||
                      standsIn(kFiles, thing));
        }
        return run.reached;
      });
    }
  }
}

TEST_F(TrashSwaps, AWriteCutShortWhileTheRecordIsWrittenTheOriginalStaysNoOrphan) {
  makeHomeAnew();
  const FaultyRun run = runWithFault({}, [&] {
    ::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{20, 20};
    return ::setrlimit(RLIMIT_FSIZE, &limit) == 0 && !trash.moveToTrash(kItem, anywhere);
  });
  EXPECT_TRUE(run.answer);
  EXPECT_TRUE(isWholeAt(kItem));
  EXPECT_EQ(countIn(kInfo), 0u);
}

TEST_F(TrashSwaps, TheMoveFailsTheRecordGoesAgain) {
  for (const int error : {EIO, EXDEV, EBUSY, EACCES, ENOSPC, EPERM}) {
    SCOPED_TRACE(error);
    makeHomeAnew();
    const FaultyRun run = runWithFault({}, [&] {
      for (const long call : {SYS_renameat2, SYS_renameat}) refuseSystemCall(call, error);
      return !trash.moveToTrash(kItem, anywhere);
    });
    EXPECT_TRUE(run.answer);
    EXPECT_TRUE(isWholeAt(kItem));
    EXPECT_EQ(countIn(kInfo), 0u);
    EXPECT_EQ(countIn(kFiles), 0u);
  }
}

TEST_F(TrashSwaps, HandlesRunOutTheOriginalStaysNoOrphan) {
  for (rlim_t handles = 3; handles < 20; ++handles) {
    makeHomeAnew();
    const FaultyRun run = runWithFault({}, [&] {
      const rlimit limit{handles, handles};
      return ::setrlimit(RLIMIT_NOFILE, &limit) == 0 && trash.moveToTrash(kItem, anywhere);
    });
    expectWholeInOnePlace();
    EXPECT_EQ(countIn(kInfo), run.answer ? 1u : 0u);
  }
}

}  // namespace
}  // namespace klarvik
