// What a scan for duplicates meets on a disk that is not as it should be.

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include "base/posix_io.h"
#include "content_hash.h"
#include "platform/linux/linux_file_system.h"
#include "support/child_process.h"
#include "support/fault_injecting_file_system.h"
#include "support/system_call_faults.h"
#include "support/temporary_folder.h"
#include "tools/duplicate_scanner.h"

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Operation = FaultInjectingFileSystem::Operation;

class DuplicateFaults : public testing::Test {
 protected:
  using Groups = std::vector<std::vector<Path>>;

  std::vector<DuplicateGroup> scan(const std::vector<Path>& directories = {"/"},
                                   std::int64_t minimumSize = 1) {
    return DuplicateScanner(files).scan(directories, minimumSize,
                                        [this](const DuplicateProgress& progress) {
                                          if (onReport) onReport(progress.line);
                                        });
  }

  /// The groups' paths, each group in order of path.
  Groups found(const std::vector<Path>& directories = {"/"}) {
    Groups paths;
    for (const DuplicateGroup& group : scan(directories)) {
      auto& copies = paths.emplace_back();
      for (const DuplicateFile& file : group.files) copies.push_back(file.url);
      std::ranges::sort(copies);
    }
    return paths;
  }

  void makeCopies(const std::vector<Path>& places, std::string_view content = "content") const {
    for (const Path& place : places) disk.makeFile(place, content);
  }

  void makeSpecialFile(const Path& place, mode_t kind) const {
    ASSERT_EQ(::mknod(disk.onDisk(place).c_str(), kind | 0644, 0), 0);
  }

  void vanish(const Path& place) const { std::filesystem::remove_all(disk.onDisk(place)); }

  TemporaryFolder disk;
  LinuxFileSystem real{disk.path(), "/Users/ann"};
  FaultInjectingFileSystem files{real};
  std::function<void(const std::string& line)> onReport;
};

TEST_F(DuplicateFaults, AFileThatCannotBeOpenedIsNeverInAGroup) {
  makeCopies({"/a", "/b", "/c"});
  files.fail(Operation::openForReading, "/b");
  EXPECT_THAT(found(), ElementsAre(ElementsAre("/a", "/c")));
  files.fail(Operation::openForReading, "/c");
  EXPECT_THAT(found(), IsEmpty());
}

TEST_F(DuplicateFaults, AFileOrAFolderThatMayNotBeReadIsPassedOver) {
  makeCopies({"/a", "/b", "/forbidden", "/closed/c"});
  std::filesystem::permissions(disk.path(), std::filesystem::perms(0755));
  std::filesystem::permissions(disk.onDisk("/forbidden"), std::filesystem::perms::none);
  std::filesystem::permissions(disk.onDisk("/closed"), std::filesystem::perms::none);
  EXPECT_TRUE(inChildWithoutPrivileges([this] { return found() == Groups{{"/a", "/b"}}; }));
  std::filesystem::permissions(disk.onDisk("/closed"), std::filesystem::perms(0755));
}

TEST_F(DuplicateFaults, AnEntryThatCannotBeAskedIsPassedOver) {
  makeCopies({"/a", "/b", "/c"});
  files.fail(Operation::attributes, "/b");
  EXPECT_THAT(found(), ElementsAre(ElementsAre("/a", "/c")));
}

TEST_F(DuplicateFaults, AFileThatVanishesBeforeTheGroupingIsPassedOver) {
  makeCopies({"/a", "/b", "/c"});
  onReport = [this](const std::string& line) {
    if (line == "Grouping by size (3 files)...") vanish("/b");
  };
  EXPECT_THAT(found(), ElementsAre(ElementsAre("/a", "/c")));
}

TEST_F(DuplicateFaults, AFileThatChangesSizeBeforeTheGroupingIsGroupedByItsNewSize) {
  makeCopies({"/a", "/b"});
  makeCopies({"/c"}, "grows to be the same");
  onReport = [this](const std::string& line) {
    if (line == "Grouping by size (3 files)...") disk.makeFile("/b", "grows to be the same");
  };
  EXPECT_THAT(found(), ElementsAre(ElementsAre("/b", "/c")));
}

TEST_F(DuplicateFaults, AFileThatVanishesBetweenGroupingAndHashingIsPassedOver) {
  makeCopies({"/a", "/b", "/c"});
  files.vanishBefore(Operation::openForReading, "/b");
  EXPECT_THAT(found(), ElementsAre(ElementsAre("/a", "/c")));
}

TEST_F(DuplicateFaults, AFileThatChangesSizeBetweenGroupingAndHashingIsJudgedByWhatIsRead) {
  makeCopies({"/a", "/b"});
  makeCopies({"/c", "/d"}, "another content");
  files.before(Operation::openForReading, "/b", [this] { disk.makeFile("/b", "another content"); });
  const auto groups = scan();
  ASSERT_EQ(groups.size(), 1U);
  EXPECT_EQ(groups[0].reclaimableBytes(), 30);
}

TEST_F(DuplicateFaults, AFileSwappedForALinkBetweenGroupingAndHashingIsPassedOver) {
  makeCopies({"/a", "/b", "/c"});
  files.becomeLinkBefore(Operation::openForReading, "/b", disk.onDisk("/a"));
  EXPECT_THAT(found(), ElementsAre(ElementsAre("/a", "/c")));
}

TEST_F(DuplicateFaults, AFileThatVanishesBeforeTheResultIsBuiltHasNoSizeAndNoDateAndStandsLast) {
  makeCopies({"/1/a", "/2/b", "/3/c"});
  onReport = [this](const std::string& line) {
    if (line == "Building results...") vanish("/1/a");
  };
  const auto groups = scan({"/1", "/2", "/3"});
  ASSERT_EQ(groups.size(), 1U);
  ASSERT_EQ(groups[0].files.size(), 3U);
  EXPECT_EQ(groups[0].files[2].url, "/1/a");
  EXPECT_EQ(groups[0].files[2].size, 0);
  EXPECT_EQ(groups[0].files[2].modifiedDate, std::nullopt);
  EXPECT_EQ(groups[0].reclaimableBytes(), 7);
}

TEST_F(DuplicateFaults, TwoFilesWhoseReadsFailHalfWayAreComparedByWhatWasRead) {
  makeCopies({"/a"}, "same, then this");
  makeCopies({"/b"}, "same, then that");
  EXPECT_THAT(found(), IsEmpty());
  files.failReadingAfter(5, "/a");
  files.failReadingAfter(5, "/b");
  EXPECT_THAT(found(), ElementsAre(ElementsAre("/a", "/b")));
}

TEST_F(DuplicateFaults, AReadThatFailsAtOnceGivesTheDigestOfNothing) {
  makeCopies({"/a"});
  files.failReadingAfter(0, "/a");
  EXPECT_EQ(contentHash(files, "/a"),
            "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
}

TEST_F(DuplicateFaults, APipeASocketAndADeviceAreNeverOpened) {
  makeCopies({"/a", "/b"});
  bool opened = false;
  for (const Path name : {"/pipe1", "/pipe2"}) makeSpecialFile(name, S_IFIFO);
  for (const Path name : {"/socket1", "/socket2"}) makeSpecialFile(name, S_IFSOCK);
  for (const Path name : {"/pipe1", "/pipe2", "/socket1", "/socket2"}) {
    files.before(Operation::openForReading, name, [&opened] { opened = true; });
  }
  EXPECT_THAT(scan({"/"}, 0), testing::SizeIs(1));
  EXPECT_FALSE(opened);
  const LinuxFileSystem machine("/", "/Users/ann");
  EXPECT_EQ(contentHash(machine, "/dev/zero"), std::nullopt);
}

TEST_F(DuplicateFaults, AFileSwappedForAPipeBeforeItIsHashedHoldsNothingUp) {
  makeCopies({"/a", "/b", "/c"});
  files.before(Operation::openForReading, "/b", [this] {
    vanish("/b");
    makeSpecialFile("/b", S_IFIFO);
  });
  EXPECT_THAT(found(), ElementsAre(ElementsAre("/a", "/c")));
}

TEST_F(DuplicateFaults, ALinkLoopIsNotEntered) {
  makeCopies({"/a/one", "/a/b/two"});
  disk.makeLink("/a/b/up", disk.onDisk("/a"));
  disk.makeLink("/a/self", disk.onDisk("/a/self"));
  EXPECT_THAT(found(), ElementsAre(ElementsAre("/a/b/two", "/a/one")));
}

TEST_F(DuplicateFaults, AFolderThatIsALinkIsNotSearched) {
  makeCopies({"/a/one", "/a/two"});
  disk.makeLink("/link", disk.onDisk("/a"));
  EXPECT_THAT(found({"/link"}), IsEmpty());
}

TEST_F(DuplicateFaults, NamesWithNewlinesDashesAndBytesThatAreNotUtf8AreFound) {
  const std::vector<Path> names{"/-rf", "/a\nb", "/c\xff\xfe", "/folder \xf0/$(x)"};
  makeCopies(names);
  EXPECT_THAT(found(), ElementsAre(testing::ElementsAreArray(names)));
}

TEST_F(DuplicateFaults, SparseFilesOfATerabyteAndOfDifferentSizesAreNeverOpened) {
  constexpr std::int64_t terabyte = 1'000'000'000'000;
  disk.makeSparseFile("/a", terabyte);
  disk.makeSparseFile("/b", terabyte + 1);
  bool opened = false;
  for (const Path name : {"/a", "/b"}) {
    files.before(Operation::openForReading, name, [&opened] { opened = true; });
  }
  EXPECT_THAT(found(), IsEmpty());
  EXPECT_FALSE(opened);
}

TEST_F(DuplicateFaults, ManyFilesOfOneSizeAreToldApart) {
  constexpr int contents = 500;
  for (int number = 0; number < 6 * contents; ++number) {
    const int content = 1'000 + number % contents;
    disk.makeFile("/" + std::to_string(number % 7) + "/" + std::to_string(number),
                  std::to_string(content));
  }
  const auto groups = scan();
  EXPECT_EQ(groups.size(), std::size_t{contents});
  for (const DuplicateGroup& group : groups) {
    ASSERT_EQ(group.files.size(), 6U);
    for (const DuplicateFile& file : group.files) {
      EXPECT_EQ(disk.contentOf(file.url), disk.contentOf(group.files[0].url));
    }
  }
}

TEST_F(DuplicateFaults, WhereHandlesRunOutLessIsFoundAndNothingWrong) {
  makeCopies({"/a/1", "/b/c/2", "/b/c/d/3"});
  makeCopies({"/a/4", "/b/5"}, "CONTENT");
  for (rlim_t handles = 0; handles < 12; ++handles) {
    EXPECT_TRUE(inChild([&] {
      const struct rlimit limit = {.rlim_cur = handles, .rlim_max = handles};
      if (::setrlimit(RLIMIT_NOFILE, &limit) != 0) return false;
      const auto groups = found();
      return std::ranges::all_of(groups, [](const std::vector<Path>& group) {
        const bool isUpper = group[0] == "/a/4";
        return std::ranges::all_of(
            group, [&](const Path& path) { return isUpper == (path == "/a/4" || path == "/b/5"); });
      });
    })) << handles;
  }
}

/// Deeper than any path that the system takes at once, with an equal file on each level.
TEST_F(DuplicateFaults, OnAChainOfFoldersAFileCostsTheSameFewSystemCallsHoweverDeepItLies) {
  constexpr int levels = 600;
  const std::string name(40, 'n');
  UniqueFd folder(::open(disk.path().c_str(), O_PATH | O_DIRECTORY));
  for (int level = 0; level < levels; ++level) {
    ASSERT_EQ(::mkdirat(folder.get(), name.c_str(), 0755), 0);
    folder.reset(::openat(folder.get(), name.c_str(), O_PATH | O_DIRECTORY));
    const UniqueFd file(::openat(folder.get(), "file", O_WRONLY | O_CREAT, 0600));
    ASSERT_EQ(::write(file.get(), "equal", 5), 5);
  }
  constexpr int mostCalls = 30 * levels;
  const FaultyRun run =
      runWithFault({SystemCallFault::Kind::disturbed, mostCalls, 0, [] {}}, [this] {
        const auto groups = DuplicateScanner(real, 1).scan({"/"}, 1, {});
        return groups.size() == 1 && groups[0].files.size() == levels;
      });
  EXPECT_TRUE(run.answer);
  EXPECT_FALSE(run.reached) << "more than 30 calls a file";
}

TEST_F(DuplicateFaults, WhereNoThreadCanBeHadTheCallersDoesTheWork) {
  std::filesystem::permissions(disk.path(), std::filesystem::perms(0755));
  makeCopies({"/a", "/b", "/c"});
  EXPECT_TRUE(inChildWithoutPrivileges([this] {
    const struct rlimit none = {.rlim_cur = 0, .rlim_max = 0};
    return ::setrlimit(RLIMIT_NPROC, &none) == 0 && found() == Groups{{"/a", "/b", "/c"}};
  }));
}

}  // namespace
}  // namespace klarvik
