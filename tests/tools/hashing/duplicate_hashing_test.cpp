#include "tools/duplicate_scanner.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <mutex>
#include <random>
#include <set>
#include <thread>

#include "platform/linux/linux_file_system.h"
#include "support/fault_injecting_file_system.h"
#include "support/gate.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAre;
using Operation = FaultInjectingFileSystem::Operation;

/// Files of so many bytes and more are hashed before all others.
constexpr std::size_t kLarge = std::size_t{4} << 20;

class DuplicateHashing : public testing::Test {
 protected:
  /// What a scan shows of itself but for the identifiers, which are new each time.
  struct Shown {
    std::vector<DuplicateProgress> reports;
    std::vector<std::string> groups;

    bool operator==(const Shown&) const = default;
  };

  [[nodiscard]] static Shown scan(const FileSystem& files, std::size_t width) {
    Shown shown;
    const auto keep = [&](const DuplicateProgress& progress) { shown.reports.push_back(progress); };
    for (const DuplicateGroup& group : DuplicateScanner(files, width).scan({"/"}, 0, keep)) {
      std::string& text = shown.groups.emplace_back(group.hash);
      for (const DuplicateFile& file : group.files) {
        text += ' ' + file.url.native() + ' ' + std::to_string(file.size);
      }
    }
    return shown;
  }

  /// Files of few sizes and fewer contents, in folders of up to three levels.
  static void makeVariedTree(const TemporaryFolder& disk, unsigned seed) {
    std::mt19937 random(seed);
    for (int number = 0; number < 150; ++number) {
      Path place = "/";
      for (auto depth = random() % 4; depth > 0; --depth) place /= std::to_string(random() % 3);
      const auto size = random() % 6 * 20'000;
      disk.makeFile(place / ("file " + std::to_string(number)),
                    std::string(size, static_cast<char>('a' + random() % 3)));
    }
  }

  TemporaryFolder disk;
  LinuxFileSystem real{disk.path(), "/Users/ann"};
  FaultInjectingFileSystem files{real};
};

TEST_F(DuplicateHashing, GivesTheSameReportsAndGroupsOnOneCoreAndOnMany) {
  for (const unsigned seed : {1U, 2U, 3U}) {
    const TemporaryFolder tree;
    makeVariedTree(tree, seed);
    const LinuxFileSystem place(tree.path(), "/Users/ann");
    const Shown oneByOne = scan(place, 1);
    EXPECT_GT(oneByOne.groups.size(), 5U);
    EXPECT_GT(oneByOne.reports.size(), 10U);
    for (const std::size_t width : {2, 3, 8, 64}) EXPECT_EQ(scan(place, width), oneByOne);
  }
}

TEST_F(DuplicateHashing, WhileOneFileTakesLongTheOthersAreHashedAndNoReportComesEarly) {
  constexpr int count = 35;
  for (int number = 0; number < count; ++number) {
    disk.makeFile("/" + std::to_string(number), "content " + std::to_string(10 + number));
  }
  disk.makeFile("/large", std::string(kLarge, 'x'));
  disk.makeFile("/large too", std::string(kLarge, 'x'));

  std::mutex guardsReported;
  std::size_t reported = 0;
  std::size_t reportedMeanwhile = 0;
  std::atomic<int> opened = 0;
  Gate gate;
  gate.close();
  files.before(Operation::openForReading, "/large", [&] { gate.pass(); });
  for (int number = 0; number < count; ++number) {
    files.before(Operation::openForReading, "/" + std::to_string(number), [&] {
      if (++opened < count) return;
      const std::scoped_lock lock(guardsReported);
      reportedMeanwhile = reported;
      gate.open();
    });
  }
  const auto groups = DuplicateScanner(files, 2).scan({"/"}, 1, [&](const DuplicateProgress&) {
    const std::scoped_lock lock(guardsReported);
    ++reported;
  });
  EXPECT_EQ(groups.size(), 1U);
  EXPECT_EQ(reported, 8U);
  EXPECT_LE(reportedMeanwhile, 3U);
}

/// A file system of several disks, of which the one below "/usb" has heads.
class DisksOfTwoKinds : public LinuxFileSystem {
 public:
  using LinuxFileSystem::LinuxFileSystem;
  [[nodiscard]] std::size_t filesAtOnce(const Path& folder) const override {
    return folder == "/home" ? 4 : 1;
  }
};

TEST_F(DuplicateHashing, AsManyFilesAreReadAtATimeAsTheSlowestOfTheDisksTakes) {
  DisksOfTwoKinds disks(disk.path(), "/Users/ann");
  FaultInjectingFileSystem watched(disks);
  std::mutex guardsThreads;
  std::set<std::thread::id> threads;
  for (int number = 0; number < 20; ++number) {
    const std::string name = std::to_string(number);
    for (const char* folder : {"/home", "/usb"}) {
      disk.makeFile(Path(folder) / name, "content " + std::to_string(10 + number));
      watched.before(Operation::openForReading, Path(folder) / name, [&] {
        const std::scoped_lock lock(guardsThreads);
        threads.insert(std::this_thread::get_id());
      });
    }
  }
  EXPECT_EQ(DuplicateScanner(watched).scan({"/home", "/usb"}, 1, {}).size(), 20U);
  EXPECT_EQ(threads.size(), 1U);
}

TEST_F(DuplicateHashing, WhereTheDiskTakesSeveralFilesOneIsReadWhileAnotherWaits) {
  DisksOfTwoKinds disks(disk.path(), "/Users/ann");
  FaultInjectingFileSystem watched(disks);
  disk.makeFile("/home/a", "same");
  disk.makeFile("/home/b", "same");
  Gate gate;
  gate.close();
  watched.before(Operation::openForReading, "/home/a", [&] { gate.pass(); });
  watched.before(Operation::openForReading, "/home/b", [&] { gate.open(); });
  // A folder that is gone has no disk to wait for.
  EXPECT_EQ(DuplicateScanner(watched).scan({"/home", "/gone"}, 1, {}).size(), 1U);
}

TEST_F(DuplicateHashing, LargeFilesAreHashedFirstAndAllOthersFolderByFolder) {
  std::vector<Path> opened;
  for (const char* folder : {"/a", "/b"}) {
    for (const std::size_t size :
         {std::size_t{2}, kLarge, kLarge - 1, kLarge + 1, std::size_t{5}}) {
      const Path place = Path(folder) / std::to_string(size);
      disk.makeFile(place, std::string(size, 'x'));
      files.before(Operation::openForReading, place, [&, place] { opened.push_back(place); });
    }
  }
  EXPECT_EQ(scan(files, 1).groups.size(), 5U);
  ASSERT_EQ(opened.size(), 10U);
  const auto names = [&](std::size_t first, std::size_t end) {
    std::vector<std::string> all;
    for (; first < end; ++first) all.emplace_back(opened[first].filename());
    return all;
  };
  EXPECT_THAT(names(0, 4), ElementsAre("4194305", "4194305", "4194304", "4194304"));
  const auto folder = [&](std::size_t at) { return opened[at].parent_path(); };
  for (const std::size_t first : {4U, 7U}) {
    EXPECT_THAT(names(first, first + 3), UnorderedElementsAre("2", "5", "4194303"));
    EXPECT_EQ(folder(first), folder(first + 1));
    EXPECT_EQ(folder(first), folder(first + 2));
  }
  EXPECT_NE(folder(4), folder(7));
}

TEST_F(DuplicateHashing, OneScannerScansForOneCallerAfterTheOther) {
  makeVariedTree(disk, 4);
  DuplicateScanner scanner(real, 2);
  std::atomic<int> scanning = 0;
  std::atomic<bool> together = false;
  const auto run = [&] {
    static_cast<void>(scanner.scan({"/"}, 0, [&](const DuplicateProgress& progress) {
      if (progress.fraction == 0.05 && ++scanning > 1) together = true;
      if (progress.fraction == 1.0) --scanning;
    }));
  };
  {
    const std::jthread first(run);
    const std::jthread second(run);
  }
  EXPECT_FALSE(together);
}

}  // namespace
}  // namespace klarvik
