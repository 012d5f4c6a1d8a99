#include <dirent.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/inotify.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/un.h>

#include <array>
#include <fstream>
#include <set>

#include "deep_tree.h"
#include "platform/linux/linux_file_system.h"
#include "support/child_process.h"
#include "support/fault_injecting_file_system.h"
#include "support/private_mounts.h"
#include "support/system_call_faults.h"
#include "support/temporary_folder.h"

namespace {
thread_local bool kindsAreHidden = false;
}

/// Stands before the one of the C library in this program, so that a listing can be had from a file
/// system that does not tell kinds.
extern "C" ssize_t getdents64(int folder, void* buffer, size_t size) noexcept {
  const ssize_t filled = ::syscall(SYS_getdents64, folder, buffer, size);
  for (ssize_t at = 0; kindsAreHidden && at < filled;) {
    auto* entry = reinterpret_cast<struct dirent64*>(static_cast<char*>(buffer) + at);
    entry->d_type = DT_UNKNOWN;
    at += entry->d_reclen;
  }
  return filled;
}

namespace klarvik {
namespace {

using testing::Contains;
using testing::IsEmpty;
using testing::Not;

using Seen = std::multiset<std::string>;

Seen seenBelow(const FileSystem& files, const Path& folder, WalkOptions options = {}) {
  Seen seen;
  files.walk(folder, options, [&](WalkEntry& entry) {
    seen.insert(entry.path());
    return WalkStep::proceed;
  });
  return seen;
}

std::int64_t sumBelow(const FileSystem& files, const Path& folder) {
  std::int64_t sum = 0;
  files.walk(folder, {}, [&](WalkEntry& entry) {
    sum += entry.allocatedBytes();
    return WalkStep::proceed;
  });
  return sum;
}

std::size_t countBelow(const FileSystem& files, const Path& folder) {
  std::size_t count = 0;
  files.walk(folder, {}, [&](WalkEntry&) {
    ++count;
    return WalkStep::proceed;
  });
  return count;
}

class WalkFaultsTest : public testing::Test {
 protected:
  TemporaryFolder disk{memoryFolder()};
  LinuxFileSystem files{disk.path(), "/Users/ann"};
};

TEST_F(WalkFaultsTest, ANameThatIsNotUtf8OrHasANewlineOrADashIsWalkedAndCounted) {
  const std::vector<std::string> names = {
      "\xff\xfe", "\xc3(", "two\nlines",         "-rf", "$(id)", "`id`", "a;b", "'\"",
      " ",        "*",     std::string(255, 'n')};
  for (const std::string& name : names) disk.makeFile("/start" / Path(name) / name, 4096);
  Seen expected;
  for (const std::string& name : names) {
    expected.insert("/start/" + name);
    expected.insert("/start/" + name + "/" + name);
  }
  EXPECT_EQ(seenBelow(files, "/start"), expected);
  EXPECT_EQ(sumBelow(files, "/start"), static_cast<std::int64_t>(names.size()) * 4096);
}

TEST_F(WalkFaultsTest, AHundredThousandLevelsDeepWithFewFileHandlesCompletes) {
  constexpr int levels = 100'000;
  makeDeepTree(disk.makeFolder("/start"), levels);
  EXPECT_TRUE(inChild([&] {
    std::size_t deepest = 0;
    std::size_t count = 0;
    const auto visit = [&](WalkEntry& entry) {
      deepest = std::max(deepest, entry.depth());
      ++count;
      return WalkStep::proceed;
    };
    return limitHandles(64) && files.walk("/start", {}, visit) == WalkOutcome::completed &&
           deepest == levels + 1 && count == 3 * levels + 1;
  }));
}

TEST_F(WalkFaultsTest, APathLongerThanPathMaxCompletes) {
  const std::string name(200, 'd');
  makeDeepTree(disk.makeFolder("/start"), 50, name);
  Path bottom = "/start";
  for (int i = 0; i < 50; ++i) bottom /= name;
  bottom /= "bottom";
  EXPECT_THAT(seenBelow(files, "/start"), Contains(bottom.native()));

  EXPECT_TRUE(files.exists(bottom));
  EXPECT_FALSE(files.exists(bottom.parent_path() / "missing"));
  EXPECT_EQ(files.attributes(bottom)->kind, FileKind::regular);
  EXPECT_TRUE(files.openForReading(bottom));
  EXPECT_THAT(*files.list(bottom.parent_path()), testing::ElementsAre(bottom));
  EXPECT_EQ(countBelow(files, bottom.parent_path()), 1U);
  EXPECT_TRUE(files.createDirectories(bottom.parent_path() / "made/deeper"));
  EXPECT_TRUE(files.move(bottom, bottom.parent_path() / "made/bottom"));
  EXPECT_TRUE(files.move(bottom.parent_path() / "made/bottom", "/bottom"));
  EXPECT_TRUE(disk.holds("/bottom"));
}

TEST_F(WalkFaultsTest, ALinkLoopAndALinkToTheOutsideAreNotEnteredAndAddNothing) {
  const TemporaryFolder outside(memoryFolder());
  outside.makeFile("secret", 4096);
  disk.makeLink("/start/loop", ".");
  disk.makeLink("/start/folder/up", "..");
  disk.makeLink("/start/out", outside.path());
  EXPECT_EQ(seenBelow(files, "/start"),
            (Seen{"/start/folder", "/start/folder/up", "/start/loop", "/start/out"}));
  EXPECT_EQ(sumBelow(files, "/start"), 0);
}

/// The names of what was opened directly in a folder since this was made.
class OpenWatch {
 public:
  explicit OpenWatch(const Path& folder) : _events(::inotify_init1(IN_NONBLOCK)) {
    EXPECT_GE(::inotify_add_watch(_events.get(), folder.c_str(), IN_OPEN), 0);
  }
  std::set<std::string> opened() const {
    alignas(inotify_event) std::array<char, 65536> buffer;
    std::set<std::string> names;
    const ssize_t filled = ::read(_events.get(), buffer.data(), buffer.size());
    for (ssize_t at = 0; at < filled;) {
      const auto* event = reinterpret_cast<const inotify_event*>(buffer.data() + at);
      if (event->len > 0) names.insert(event->name);
      at += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
    }
    return names;
  }

 private:
  UniqueFd _events;
};

TEST_F(WalkFaultsTest, APipeASocketAndADeviceAreNeverOpened) {
  const Path start = disk.makeFolder("/start");
  disk.makeFile("/start/file", "x");
  disk.makeFolder("/start/folder");
  ASSERT_EQ(::mkfifo((start / "pipe").c_str(), 0600), 0);
  const bool hasDevice = ::mknod((start / "device").c_str(), S_IFCHR | 0600, 0x0101) == 0;
  ASSERT_TRUE(hasDevice || ::geteuid() != 0);
  sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
  (start / "socket").native().copy(address.sun_path, sizeof(address.sun_path) - 1);
  const UniqueFd socket(::socket(AF_UNIX, SOCK_STREAM, 0));
  ASSERT_EQ(::bind(socket.get(), reinterpret_cast<sockaddr*>(&address), sizeof(address)), 0);

  const OpenWatch watch(start);
  std::size_t others = 0;
  files.walk("/start", {}, [&](WalkEntry& entry) {
    others += entry.kind() == FileKind::other;
    EXPECT_TRUE(entry.attributes());
    return WalkStep::proceed;
  });
  EXPECT_EQ(others, hasDevice ? 3U : 2U);
  for (const char* name : {"pipe", "socket", "device"}) {
    EXPECT_FALSE(files.openForReading("/start" / Path(name))) << name;
  }
  EXPECT_EQ(watch.opened(), std::set<std::string>{"folder"});
}

TEST_F(WalkFaultsTest, AnEntryThatVanishesDuringTheWalkIsDropped) {
  disk.makeFile("/start/file", 4096);
  std::int64_t bytes = -1;
  bool known = true;
  EXPECT_EQ(files.walk("/start", {},
                       [&](WalkEntry& entry) {
                         std::filesystem::remove(disk.onDisk(entry.path()));
                         bytes = entry.allocatedBytes();
                         known = entry.attributes().has_value();
                         return WalkStep::proceed;
                       }),
            WalkOutcome::completed);
  EXPECT_EQ(bytes, 0);
  EXPECT_FALSE(known);
}

TEST_F(WalkFaultsTest, AFolderThatVanishesOrBecomesALinkDuringTheWalkIsDropped) {
  const TemporaryFolder outside(memoryFolder());
  outside.makeFile("secret");
  disk.makeFile("/start/a/x");
  disk.makeFile("/start/b/x");
  disk.makeFile("/start/c/x");
  Seen seen;
  files.walk("/start", {}, [&](WalkEntry& entry) {
    seen.insert(entry.path());
    if (entry.name() == "a") std::filesystem::remove_all(disk.onDisk("/start/a"));
    if (entry.name() == "b") {
      std::filesystem::remove_all(disk.onDisk("/start/b"));
      disk.makeLink("/start/b", outside.path());
    }
    return WalkStep::proceed;
  });
  EXPECT_EQ(seen, (Seen{"/start/a", "/start/b", "/start/c", "/start/c/x"}));
}

TEST_F(WalkFaultsTest, AFolderMovedAwayDuringTheWalkIsDroppedWithoutAnEscape) {
  constexpr int levels = 200;
  const TemporaryFolder outside(memoryFolder());
  outside.makeFile("secret/x");
  makeDeepTree(disk.makeFolder("/start/moved"), levels);
  for (const char* name : {"0", "a", "n", "z"}) disk.makeFile("/start" / Path(name) / "sibling");

  Seen names;
  bool moved = false;
  EXPECT_EQ(files.walk("/start", {},
                       [&](WalkEntry& entry) {
                         names.insert(std::string(entry.name()));
                         if (entry.name() == "bottom") {
                           std::filesystem::rename(disk.onDisk("/start/moved"),
                                                   outside.onDisk("moved"));
                           moved = true;
                         }
                         return WalkStep::proceed;
                       }),
            WalkOutcome::completed);

  EXPECT_TRUE(moved);
  EXPECT_THAT(names, Not(Contains("secret")));
  EXPECT_EQ(names.count("sibling"), 4U) << "what lies beside the moved folder is still found";
}

TEST_F(WalkFaultsTest, AFolderThatMayNotBeReadIsPassedOverAndTheRestCounted) {
  std::filesystem::permissions(disk.path(), std::filesystem::perms(0755));
  disk.makeFile("/start/closed/secret");
  disk.makeFile("/start/open/file");
  const Path closed = disk.onDisk("/start/closed");
  std::filesystem::permissions(closed, std::filesystem::perms::none);
  EXPECT_TRUE(inChildWithoutPrivileges([&] {
    return seenBelow(files, "/start") == Seen{"/start/closed", "/start/open", "/start/open/file"} &&
           files.walk("/start/closed", {}, nullptr) == WalkOutcome::refused &&
           !files.list("/start/closed");
  }));
  std::filesystem::permissions(closed, std::filesystem::perms(0755));
}

TEST_F(WalkFaultsTest, ReadingAFolderThatFailsPartWayCountsWhatWasRead) {
  constexpr std::size_t entries = 3000;
  const std::string longName(200, 'n');
  for (std::size_t i = 0; i < entries; ++i) {
    std::ofstream(disk.makeFolder("/start") / (longName + std::to_string(i)));
  }
  int partial = 0;
  int refused = 0;
  for (int call = 1;; ++call) {
    const SystemCallFault fault{
        .kind = SystemCallFault::Kind::failsOnce, .at = call, .error = EIO, .disturbance = {}};
    std::size_t found = 0;
    const FaultyRun run = runWithFault(fault, [&] {
      found = countBelow(files, "/start");
      return found > 0 && found < entries;
    });
    if (!run.reached) break;
    if (run.answer)
      ++partial;
    else
      ++refused;
  }
  EXPECT_GE(partial, 3) << "3,000 long names are read in many pieces";
  EXPECT_GE(refused, 1) << "the call that opens the folder is among those that fail";
}

/// The number of the next handle, in a child; none behind it is taken, whatever was inherited.
int firstFreeHandle() {
  constexpr int behindTheStandardOnes = 3;
  ::close_range(behindTheStandardOnes, ~0U, 0);
  return behindTheStandardOnes;
}

TEST_F(WalkFaultsTest, HandlesThatRunOutMakeItFindLessWithoutACrash) {
  makeDeepTree(disk.makeFolder("/start"), 40);
  EXPECT_TRUE(inChild([&] {
    const int next = firstFreeHandle();
    return limitHandles(static_cast<rlim_t>(next)) &&
           files.walk("/start", {}, nullptr) == WalkOutcome::refused && !files.list("/start");
  }));
  EXPECT_TRUE(inChild([&] {
    const int next = firstFreeHandle();
    return limitHandles(static_cast<rlim_t>(next + 1)) && countBelow(files, "/start") == 3;
  })) << "one handle is enough to see what lies directly in the folder";
  EXPECT_TRUE(inChild([&] {
    const int next = firstFreeHandle();
    return limitHandles(static_cast<rlim_t>(next + 3)) && countBelow(files, "/start") == 121;
  })) << "three handles are enough for any depth";
}

TEST_F(WalkFaultsTest, AnyOneCallThatIsInterruptedIsMadeAgain) {
  makeDeepTree(disk.makeFolder("/start"), 6);
  for (int call = 1;; ++call) {
    const SystemCallFault fault{
        .kind = SystemCallFault::Kind::failsOnce, .at = call, .error = EINTR, .disturbance = {}};
    const FaultyRun run = runWithFault(fault, [&] { return countBelow(files, "/start") == 19; });
    if (!run.reached) break;
    EXPECT_TRUE(run.answer) << "call " << call;
  }
}

TEST_F(WalkFaultsTest, AMillionEntriesInOneFolderTakeBoundedMemory) {
  constexpr std::size_t entries = 1'000'000;
  const UniqueFd folder(::open(disk.makeFolder("/start").c_str(), O_PATH | O_DIRECTORY));
  for (std::size_t i = 0; i < entries; ++i) {
    const std::string name = "entry-" + std::to_string(i);
    ASSERT_EQ(::mknodat(folder.get(), name.c_str(), S_IFREG | 0644, 0), 0);
  }
  EXPECT_TRUE(inChild([&] {
    rusage before{};
    rusage after{};
    ::getrusage(RUSAGE_SELF, &before);
    const std::size_t count = countBelow(files, "/start");
    ::getrusage(RUSAGE_SELF, &after);
    constexpr long kilobytes = 4096;
    return count == entries && after.ru_maxrss - before.ru_maxrss < kilobytes;
  }));
}

TEST_F(WalkFaultsTest, AFileSystemThatDoesNotTellKindsGivesTheSameResult) {
  disk.makeFile("/start/folder/file", 5000);
  disk.makeFile("/start/Some.app/inside", 5000);
  disk.makeLink("/start/link", "folder");
  ASSERT_EQ(::mkfifo((disk.onDisk("/start/pipe")).c_str(), 0600), 0);
  const auto observe = [&] {
    std::set<std::tuple<std::string, FileKind, std::int64_t>> seen;
    files.walk("/start", {.skipPackageContents = true}, [&](WalkEntry& entry) {
      seen.emplace(entry.path(), entry.kind(), entry.allocatedBytes());
      return WalkStep::proceed;
    });
    return seen;
  };
  const auto expected = observe();
  EXPECT_EQ(expected.size(), 5U);
  kindsAreHidden = true;
  const auto seen = observe();
  const bool removed =
      files.remove("/start", [](const Path&, const FileAttributes&) { return true; });
  kindsAreHidden = false;
  EXPECT_EQ(seen, expected);
  EXPECT_TRUE(removed);
  EXPECT_FALSE(disk.holds("/start"));
}

TEST_F(WalkFaultsTest, ASparseFileOfFiveGibibytesCountsItsAllocatedBlocks) {
  disk.makeSparseFile("/start/sparse", std::int64_t{5} * 1024 * 1024 * 1024);
  EXPECT_EQ(sumBelow(files, "/start"), 0);
  EXPECT_EQ(files.attributes("/start/sparse")->logicalBytes, 5'368'709'120);
}

TEST_F(WalkFaultsTest, TwoNamesOfOneFileCountForEachName) {
  const Path file = disk.makeFile("/start/file", 4096);
  ASSERT_EQ(::link(file.c_str(), disk.onDisk("/start/second").c_str()), 0);
  EXPECT_EQ(sumBelow(files, "/start"), 8192);
}

TEST_F(WalkFaultsTest, SumsBeyondTwoToThe53AreExact) {
  disk.makeFile("/start/a");
  disk.makeFile("/start/b");
  FaultInjectingFileSystem overlaid(files);
  overlaid.overlaySize("/start/a", (std::int64_t{1} << 53) + 1);
  overlaid.overlaySize("/start/b", 2);
  EXPECT_EQ(sumBelow(overlaid, "/start"), 9'007'199'254'740'995);
}

TEST_F(WalkFaultsTest, AStopRequestEndsAWalkThatNeverEnds) {
  disk.makeFolder("/start/0");
  int visits = 0;
  EXPECT_EQ(files.walk("/start", {},
                       [&](WalkEntry& entry) {
                         std::filesystem::create_directory(disk.onDisk(entry.path()) / "0");
                         return ++visits == 500 ? WalkStep::stop : WalkStep::proceed;
                       }),
            WalkOutcome::stopped);
  EXPECT_EQ(visits, 500);
}

TEST_F(WalkFaultsTest, AMountInsideTheTreeIsWalked) {
  disk.makeFolder("/start/mount");
  EXPECT_TRUE(passesWithPrivateMounts([&] {
    mountTmpfs(disk.onDisk("/start/mount"));
    disk.makeFile("/start/mount/inside", 4096);
    EXPECT_EQ(sumBelow(files, "/start"), 4096);
  }));
}

}  // namespace
}  // namespace klarvik
