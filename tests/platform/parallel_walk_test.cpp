#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/inotify.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <filesystem>
#include <random>
#include <set>
#include <string>
#include <thread>
#include <tuple>
#include <vector>

#include "base/paths.h"
#include "deep_tree.h"
#include "platform/linux/directory_walk.h"
#include "platform/linux/file_status.h"
#include "platform/linux/folder_listing.h"
#include "support/child_process.h"
#include "support/private_mounts.h"
#include "support/system_call_faults.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

constexpr WalkThreads kAlone{.entriesAlone = 0, .helpful = HelpfulThreads{}};
constexpr WalkThreads kHelped{.entriesAlone = 0, .helpful = HelpfulThreads{.helpers = 3}};

/// All that a walk has told of one entry.
using Told = std::tuple<std::string, std::string, FileKind, std::size_t, std::int64_t,
                        std::optional<std::uint64_t>>;

/// What a visitor asks and answers, by the name of the entry alone.
struct Visitor {
  std::size_t asksEach = 1;   // about every entry, or every second ...
  std::size_t skipsEach = 0;  // 0: nothing

  static std::size_t number(std::string_view name) {
    return std::hash<std::string_view>{}(name) / 7;
  }
  [[nodiscard]] bool asks(std::string_view name) const { return number(name) % asksEach == 0; }
  [[nodiscard]] bool skips(std::string_view name) const {
    return skipsEach > 0 && number(name) % skipsEach == 0;
  }
};

class ParallelWalkTest : public testing::Test {
 protected:
  WalkOutcome walk(WalkThreads threads, WalkOptions options, const WalkVisitor& visit) const {
    UniqueFd start(::open(disk.onDisk("start").c_str(), O_RDONLY | O_DIRECTORY));
    return walkBelow(std::move(start), "/start", options, visit, threads);
  }

  std::vector<Told> told(WalkThreads threads, WalkOptions options = {.stayOnMount = true},
                         Visitor visitor = {}) const {
    std::vector<Told> all;
    EXPECT_EQ(walk(threads, options,
                   [&](WalkEntry& entry) {
                     all.push_back(toldBy(entry, visitor));
                     return visitor.skips(entry.name()) ? WalkStep::skipDescendants
                                                        : WalkStep::proceed;
                   }),
              WalkOutcome::completed);
    return all;
  }

  static Told toldBy(WalkEntry& entry, const Visitor& visitor) {
    std::int64_t bytes = -1;
    std::optional<std::uint64_t> inode;
    if (visitor.asks(entry.name())) {
      bytes = entry.allocatedBytes();
      if (const auto attributes = entry.attributes()) inode = attributes->identity->inode;
    }
    return {entry.path(), std::string(entry.folder()), entry.kind(), entry.depth(), bytes, inode};
  }

  /// Files, links and folders of all shapes: some empty, some with very many entries, some deep.
  void makeRandomTree(unsigned seed, int entries) const {
    std::mt19937 random(seed);
    std::vector<std::string> folders{"start"};
    disk.makeFolder("start");
    for (int made = 0; made < entries; ++made) {
      const std::string& above =
          random() % 3 == 0 ? folders.back() : folders[random() % folders.size()];
      const std::string name = (random() % 20 == 0 ? "." : "") + std::to_string(random()) +
                               (random() % 40 == 0 ? ".app" : "");
      const std::string path = above + "/" + name;
      switch (random() % 6) {
        case 0:
        case 1:
          disk.makeFolder(path);
          folders.push_back(path);
          break;
        case 2:
          disk.makeLink(path, "..");
          break;
        default:
          disk.makeFile(path, random() % 9000);
      }
    }
  }

  /// A folder with this many empty files, quickly.
  void makeMany(const Path& folder, std::size_t entries) const {
    const UniqueFd made(::open(disk.makeFolder(folder).c_str(), O_PATH | O_DIRECTORY));
    for (std::size_t number = 0; number < entries; ++number) {
      const std::string name = "entry-" + std::to_string(number);
      ASSERT_EQ(::mknodat(made.get(), name.c_str(), S_IFREG | 0644, 0), 0);
    }
  }

  TemporaryFolder disk{memoryFolder()};
};

TEST_F(ParallelWalkTest, TellsTheSameInTheSameOrderAsAloneWhateverTheVisitorDoes) {
  for (const unsigned seed : {1U, 2U, 3U}) {
    std::filesystem::remove_all(disk.onDisk("start"));
    makeRandomTree(seed, 1500);
    for (const bool stays : {false, true}) {
      for (const bool leavesOut : {false, true}) {
        const WalkOptions options{
            .skipHidden = leavesOut, .skipPackageContents = leavesOut, .stayOnMount = stays};
        for (const Visitor visitor : {Visitor{}, Visitor{.asksEach = 3}, Visitor{.asksEach = 200},
                                      Visitor{.skipsEach = 9}, Visitor{.skipsEach = 50}}) {
          const auto alone = told(kAlone, options, visitor);
          EXPECT_GT(alone.size(), 20U);
          EXPECT_EQ(told(kHelped, options, visitor), alone)
              << seed << stays << leavesOut << visitor.asksEach << visitor.skipsEach;
        }
      }
    }
  }
}

TEST_F(ParallelWalkTest, FoldersWithVeryManyFoldersOrFilesAreToldInOrder) {
  for (int number = 0; number < 700; ++number) {
    disk.makeFile("start/wide/" + std::to_string(number) + "/deeper/file", 10);
  }
  makeMany("start/many", 5000);
  makeMany("start/wide/many", 3000);
  disk.makeFile("start/many/folder/file");
  EXPECT_EQ(told(kHelped), told(kAlone));
  EXPECT_EQ(told(kHelped, {}, {.asksEach = 5}), told(kAlone, {}, {.asksEach = 5}));
}

TEST_F(ParallelWalkTest, AChainOfFoldersIsToldInOrder) {
  makeDeepTree(disk.makeFolder("start"), 500);
  EXPECT_EQ(told(kHelped), told(kAlone));
}

TEST_F(ParallelWalkTest, FoldersThatMayNotBeReadArePassedOverAsAlone) {
  std::filesystem::permissions(disk.path(), std::filesystem::perms(0755));
  makeRandomTree(4, 1500);
  std::vector<Path> closed;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(disk.onDisk("start"))) {
    if (entry.is_directory() && !entry.is_symlink()) closed.push_back(entry.path());
  }
  std::erase_if(closed, [](const Path& path) { return Visitor::number(path.native()) % 8 != 0; });
  std::ranges::reverse(closed);
  ASSERT_GT(closed.size(), 10U);
  for (const Path& path : closed) {
    std::filesystem::permissions(path, std::filesystem::perms::none);
  }
  EXPECT_TRUE(inChildWithoutPrivileges([&] {
    const auto alone = told(kAlone);
    return alone.size() > 20 && told(kHelped) == alone;
  }));
  std::ranges::reverse(closed);
  for (const Path& path : closed) {
    std::filesystem::permissions(path, std::filesystem::perms(0755));
  }
}

TEST_F(ParallelWalkTest, HandlesThatRunOutChangeNothing) {
  makeRandomTree(5, 1500);
  makeDeepTree(disk.makeFolder("start/deep"), 60);
  const auto alone = told(kAlone);
  for (const rlim_t handles : {rlim_t{4}, rlim_t{5}, rlim_t{7}, rlim_t{12}, rlim_t{40}}) {
    EXPECT_TRUE(inChild([&] {
      constexpr int behindTheStandardOnes = 3;
      ::close_range(behindTheStandardOnes, ~0U, 0);
      return limitHandles(behindTheStandardOnes + handles) && told(kHelped) == alone;
    })) << handles;
  }
}

TEST_F(ParallelWalkTest, NoMoreThanAFewHandlesAreOpenAtOnce) {
  for (int number = 0; number < 3000; ++number) {
    disk.makeFolder("start/" + std::to_string(number) + "/inside/deeper");
  }
  constexpr rlim_t few = 160;
  EXPECT_TRUE(inChild([&] {
    bool isEnough = limitHandles(few + 50);
    (void)walk(kHelped, {.stayOnMount = true}, [&](WalkEntry&) {
      const UniqueFd next(::open("/dev/null", O_RDONLY | O_CLOEXEC));
      isEnough = isEnough && next && next.get() < static_cast<int>(few);
      return WalkStep::proceed;
    });
    return isEnough;
  }));
}

TEST_F(ParallelWalkTest, NothingIsShownAfterAStop) {
  makeRandomTree(6, 1500);
  const std::size_t all = told(kAlone).size();
  for (std::size_t last = 1; last < all; last += 97) {
    std::size_t visits = 0;
    EXPECT_EQ(
        walk(kHelped, {.stayOnMount = true},
             [&](WalkEntry&) { return ++visits == last ? WalkStep::stop : WalkStep::proceed; }),
        WalkOutcome::stopped);
    EXPECT_EQ(visits, last);
  }
}

TEST_F(ParallelWalkTest, FoldersThatAreRemovedAndReplacedMeanwhileLeadNowhereElse) {
  const TemporaryFolder outside(memoryFolder());
  outside.makeFile("secret/inside");
  makeRandomTree(7, 1500);
  std::vector<Path> folders;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(disk.onDisk("start"))) {
    if (entry.is_directory() && !entry.is_symlink()) folders.push_back(entry.path());
  }
  std::atomic<bool> isOver = false;
  std::thread other([&] {
    std::mt19937 random(8);
    while (!isOver) {
      std::error_code error;
      const Path& one = folders[random() % folders.size()];
      const Path aside = outside.onDisk("aside");
      std::filesystem::rename(one, aside, error);
      if (error) continue;
      std::filesystem::create_directory_symlink(outside.onDisk("secret"), one, error);
      std::filesystem::remove(one, error);
      std::filesystem::rename(aside, one, error);
    }
  });
  for (int round = 0; round < 30; ++round) {
    std::set<std::string> shown{""};
    EXPECT_EQ(walk(kHelped, {.stayOnMount = true},
                   [&](WalkEntry& entry) {
                     EXPECT_NE(entry.name(), "inside");
                     EXPECT_TRUE(shown.contains(std::string(entry.folder())));
                     (void)entry.attributes();
                     const std::string folder(entry.folder());
                     shown.insert(folder + (folder.empty() ? "" : "/") + std::string(entry.name()));
                     return WalkStep::proceed;
                   }),
              WalkOutcome::completed);
  }
  isOver = true;
  other.join();
}

TEST_F(ParallelWalkTest, SeveralWalksAtOnceAndWithinEachOther) {
  makeRandomTree(9, 600);
  const auto alone = told(kAlone);
  std::vector<std::thread> walks;
  for (int number = 0; number < 3; ++number) {
    walks.emplace_back([&] { EXPECT_EQ(told(kHelped), alone); });
  }
  for (std::thread& each : walks) each.join();
  bool isNested = false;
  (void)walk(kHelped, {}, [&](WalkEntry& entry) {
    if (!isNested && entry.depth() == 3) {
      isNested = true;
      EXPECT_EQ(told(kHelped), alone);
    }
    return WalkStep::proceed;
  });
  EXPECT_TRUE(isNested);
}

/// Whether one of these folders themselves has been opened since this was made.
class OpenedFolders {
 public:
  explicit OpenedFolders(const std::vector<Path>& folders) : _events(::inotify_init1(IN_NONBLOCK)) {
    for (const Path& folder : folders) {
      EXPECT_GE(::inotify_add_watch(_events.get(), folder.c_str(), IN_OPEN | IN_ONLYDIR), 0);
    }
  }
  [[nodiscard]] bool any() const {
    alignas(inotify_event) std::array<char, 4096> buffer;
    return ::read(_events.get(), buffer.data(), buffer.size()) > 0;
  }

 private:
  UniqueFd _events;
};

TEST_F(ParallelWalkTest, AnotherVolumeIsNeverOpenedWhereTheWalkStays) {
  std::vector<Path> mounts;
  for (int number = 0; number < 20; ++number) {
    const std::string project = "start/" + std::to_string(number);
    for (const char* name : {"a", "b", "c"}) disk.makeFile(project + "/" + name + "/deeper/file");
    mounts.push_back(disk.makeFolder(project + "/b/mount"));
  }
  EXPECT_TRUE(passesWithPrivateMounts([&] {
    for (const Path& mount : mounts) {
      mountTmpfs(mount);
      std::filesystem::create_directory(mount / "far");
    }
    const OpenedFolders opened(mounts);
    for (int round = 0; round < 20; ++round) {
      for (const Told& one : told(kHelped)) EXPECT_FALSE(std::get<0>(one).ends_with("far"));
    }
    EXPECT_FALSE(opened.any());
    EXPECT_EQ(told(kHelped, {}), told(kAlone, {}));
  }));
}

TEST_F(ParallelWalkTest, TheNamesOfAutomountsAreThoseOfTheSystemsTable) {
  const Path table = disk.makeFile("/table",
                                   "22 1 254:0 / / rw - ext4 /dev/vda rw\n"
                                   "36 22 0:31 / /srv/server rw - autofs systemd-1 rw,direct\n"
                                   "37 22 0:32 / /mnt/disk rw - tmpfs autofs rw\n"
                                   "38 22 0:33 / /net\\040work rw shared:5 - autofs auto rw\n");
  EXPECT_TRUE(passesWithPrivateMounts([&] {
    mountBind(table, "/proc/self/mountinfo");
    EXPECT_EQ(namesOfAutomounts(), (std::vector<std::string>{"server", "net work"}));
    refuseSystemCall(SYS_openat2, ENOSYS);
    EXPECT_EQ(namesOfAutomounts(), std::nullopt);
  }));
}

// A kernel before 6.15 lets the automounter mount something before it refuses.
TEST_F(ParallelWalkTest, WhatHasTheNameOfAnAutomountIsAskedBeforeItIsOpened) {
  disk.makeFolder("start/server");
  disk.makeFolder("start/other");
  EXPECT_TRUE(passesWithPrivateMounts([&] {
    const UniqueFd start(::open(disk.onDisk("start").c_str(), O_RDONLY | O_DIRECTORY));
    const WalkRules rules{.options = {.stayOnMount = true},
                          .mount = mountOf(start.get(), ""),
                          .automounts = std::vector<std::string>{"server"}};
    EXPECT_TRUE(openOnTheMount(rules, start.get(), "other"));
    refuseSystemCall(SYS_openat2, EIO);
    EXPECT_FALSE(openOnTheMount(rules, start.get(), "other"));
    EXPECT_TRUE(openOnTheMount(rules, start.get(), "server"));
  }));
}

TEST_F(ParallelWalkTest, OneThatMayNotOpenFoldersOfOneMountOnlyAsksFirst) {
  for (const char* name : {"a/b/file", "a/c/file", "d/file"}) {
    disk.makeFile(std::string("start/") + name);
  }
  const Path mount = disk.makeFolder("start/a/mount");
  for (const int error : {ENOSYS, EPERM}) {
    EXPECT_TRUE(passesWithPrivateMounts([&] {
      mountTmpfs(mount);
      std::filesystem::create_directory(mount / "far");
      const auto all = told(kHelped);
      refuseSystemCall(SYS_openat2, error);
      const OpenedFolders opened({mount});
      EXPECT_EQ(told(kHelped), all);
      EXPECT_EQ(told(kAlone), all);
      EXPECT_FALSE(opened.any());
    }));
  }
}

TEST_F(ParallelWalkTest, WhatTheOptionsLeaveOutIsNeverOpened) {
  std::vector<Path> leftOut;
  for (int number = 0; number < 20; ++number) {
    const std::string project = "start/" + std::to_string(number);
    for (const char* name : {"a", "b", "c"}) disk.makeFile(project + "/" + name + "/deeper/file");
    leftOut.push_back(disk.makeFolder(project + "/a/.hidden"));
    leftOut.push_back(disk.makeFolder(project + "/b/Some.app"));
  }
  const OpenedFolders opened(leftOut);
  for (int round = 0; round < 20; ++round) {
    (void)told(kHelped, {.skipHidden = true, .skipPackageContents = true, .stayOnMount = true});
  }
  EXPECT_FALSE(opened.any());
}

TEST_F(ParallelWalkTest, AMillionEntriesInFoldersReadAheadTakeBoundedMemory) {
  constexpr std::size_t each = 100'000;
  for (int number = 0; number < 10; ++number) makeMany("start/" + std::to_string(number), each);
  EXPECT_TRUE(inChild([&] {
    rusage before{};
    rusage after{};
    ::getrusage(RUSAGE_SELF, &before);
    std::size_t count = 0;
    const auto visit = [&](WalkEntry& entry) {
      count += entry.attributes().has_value();
      return WalkStep::proceed;
    };
    const WalkOutcome outcome = walk(kHelped, {.stayOnMount = true}, visit);
    ::getrusage(RUSAGE_SELF, &after);
    constexpr long kilobytes = 8192;
    return outcome == WalkOutcome::completed && count == 10 * each + 10 &&
           after.ru_maxrss - before.ru_maxrss < kilobytes;
  }));
}

}  // namespace
}  // namespace klarvik
