#include "platform/linux/recently_used_list.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cerrno>
#include <iterator>
#include <thread>
#include <vector>

#include "support/child_process.h"
#include "support/disk_snapshot.h"
#include "support/private_mounts.h"
#include "support/system_call_faults.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

constexpr std::string_view fullList =
    "<?xml version=\"1.0\"?>\n<xbel version=\"1.0\">"
    "<bookmark href=\"file:///Users/ann/letter.txt\"/></xbel>\n";

class RecentlyUsedListTest : public testing::Test {
 protected:
  TemporaryFolder folder;
  const Path name = "data/recently-used.xbel";
  RecentlyUsedList list{folder.onDisk(name)};

  void fill() const { folder.makeFile(name, fullList); }
  [[nodiscard]] std::string content() const { return folder.contentOf(name); }
  [[nodiscard]] DiskSnapshot now() const { return snapshotOf(folder.path()); }

  static bool isEmptyList(const std::string& text) {
    return text.starts_with("<?xml") && text.find("<xbel version=\"1.0\"") != std::string::npos &&
           text.ends_with("</xbel>\n") && text.find("bookmark") == std::string::npos;
  }

  void expectUntouched() {
    const DiskSnapshot before = now();
    EXPECT_FALSE(list.clear());
    EXPECT_EQ(unexpectedDifferences(before, now(), {}), "");
  }
};

TEST_F(RecentlyUsedListTest, IsEmptiedAndStaysAListThatOthersRead) {
  fill();
  EXPECT_TRUE(list.clear());
  EXPECT_TRUE(isEmptyList(content())) << content();
}

TEST_F(RecentlyUsedListTest, MayBeEmptiedTwice) {
  fill();
  EXPECT_TRUE(list.clear());
  EXPECT_TRUE(list.clear());
  EXPECT_TRUE(isEmptyList(content()));
}

TEST_F(RecentlyUsedListTest, AFileOfSomebodyElseBesideItStays) {
  fill();
  folder.makeFile("data/recently-used.xbel.new", "mine");
  EXPECT_TRUE(list.clear());
  EXPECT_EQ(folder.contentOf("data/recently-used.xbel.new"), "mine");
}

TEST_F(RecentlyUsedListTest, KeepsItsMode) {
  fill();
  for (const ::mode_t mode : {0600U, 0644U, 0660U}) {
    ::chmod(folder.onDisk(name).c_str(), mode);
    EXPECT_TRUE(list.clear());
    struct ::stat status {};
    ASSERT_EQ(::lstat(folder.onDisk(name).c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, mode);
  }
}

TEST_F(RecentlyUsedListTest, LeavesNothingElseBehind) {
  fill();
  folder.makeFile("data/other", "mine");
  EXPECT_TRUE(list.clear());
  std::filesystem::remove(folder.onDisk(name));
  const std::filesystem::directory_iterator left(folder.onDisk("data"));
  EXPECT_EQ(std::distance(begin(left), end(left)), 1);
  EXPECT_EQ(folder.contentOf("data/other"), "mine");
}

TEST_F(RecentlyUsedListTest, AListThatIsMissingIsEmptyAndIsNotMade) {
  EXPECT_TRUE(list.clear());
  folder.makeFolder("data");
  EXPECT_TRUE(list.clear());
  EXPECT_FALSE(folder.holds(name));
}

TEST_F(RecentlyUsedListTest, AListThatIsALinkStaysAndSoDoesItsTarget) {
  folder.makeFile("elsewhere", fullList);
  folder.makeLink(name, folder.onDisk("elsewhere"));
  expectUntouched();
}

TEST_F(RecentlyUsedListTest, AListThatIsALinkToNothingOrToADeviceStays) {
  folder.makeLink(name, "missing");
  expectUntouched();
  std::filesystem::remove(folder.onDisk(name));
  folder.makeLink(name, "/dev/null");
  expectUntouched();
}

TEST_F(RecentlyUsedListTest, AListThatIsADirectoryStaysWithAllItHolds) {
  folder.makeFile(name / "inside", "mine");
  expectUntouched();
}

TEST_F(RecentlyUsedListTest, AListThatIsAFifoIsNeverOpened) {
  folder.makeFolder("data");
  ASSERT_EQ(::mkfifo(folder.onDisk(name).c_str(), 0644), 0);
  EXPECT_FALSE(list.clear());
}

TEST_F(RecentlyUsedListTest, AListThatMayNotBeWrittenStays) {
  fill();
  ::chmod(folder.path().c_str(), 0755);
  ::chmod(folder.onDisk("data").c_str(), 0777);
  ::chmod(folder.onDisk(name).c_str(), 0444);
  EXPECT_TRUE(inChildWithoutPrivileges([&] { return !list.clear(); }));
  EXPECT_EQ(content(), fullList);
}

TEST_F(RecentlyUsedListTest, AFolderThatMayNotBeWrittenKeepsTheList) {
  fill();
  ::chmod(folder.path().c_str(), 0755);
  ::chmod(folder.onDisk(name).c_str(), 0666);
  ::chmod(folder.onDisk("data").c_str(), 0555);
  EXPECT_TRUE(inChildWithoutPrivileges([&] { return !list.clear(); }));
  EXPECT_EQ(content(), fullList);
  ::chmod(folder.onDisk("data").c_str(), 0755);
}

TEST_F(RecentlyUsedListTest, AFullDiskKeepsTheOldList) {
  folder.makeFolder("data");
  EXPECT_TRUE(passesWithPrivateMounts([&] {
    mountTmpfs(folder.onDisk("data"), "size=8k");
    fill();
    // What is left of the disk goes to something else.
    folder.makeFile("data/filler", 4096);
    const DiskSnapshot before = now();
    EXPECT_FALSE(list.clear());
    EXPECT_EQ(unexpectedDifferences(before, now(), {}), "");
  }));
}

TEST_F(RecentlyUsedListTest, AFaultAtAnySystemCallLeavesTheOldOrTheEmptyListAndTheNextRunWorks) {
  using Kind = SystemCallFault::Kind;
  for (const Kind kind : {Kind::failsOnce, Kind::failsFromThere, Kind::killed}) {
    for (const int error : {ENOSPC, EIO}) {
      for (int at = 1;; ++at) {
        fill();
        const FaultyRun run =
            runWithFault({.kind = kind, .at = at, .error = error, .disturbance = {}},
                         [&] { return list.clear(); });
        ASSERT_TRUE(content() == fullList || isEmptyList(content())) << at << ": " << content();
        const bool told = !run.killed && run.answer;
        EXPECT_TRUE(!told || isEmptyList(content())) << at;
        EXPECT_TRUE(list.clear());
        EXPECT_TRUE(isEmptyList(content()));
        EXPECT_FALSE(folder.holds("data/.klarvik-recently-used.xbel.new"));
        std::filesystem::remove(folder.onDisk(name));
        if (!run.reached) break;
      }
    }
  }
}

TEST_F(RecentlyUsedListTest, ManyWhoEmptyItAtOnceLeaveItWhole) {
  fill();
  std::vector<std::thread> threads;
  for (int number = 0; number < 8; ++number) {
    threads.emplace_back([&] {
      for (int round = 0; round < 20; ++round) list.clear();
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_TRUE(isEmptyList(content()));
}

}  // namespace
}  // namespace klarvik
