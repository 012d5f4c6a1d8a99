#include "tools/duplicate_check.h"

#include <gtest/gtest.h>

#include <random>

#include "content_hash.h"
#include "platform/linux/linux_file_system.h"
#include "support/fault_injecting_file_system.h"
#include "support/temporary_folder.h"
#include "tools/duplicate_scanner.h"

namespace klarvik {
namespace {

using Operation = FaultInjectingFileSystem::Operation;

class DuplicateCheckTest : public testing::Test {
 protected:
  void SetUp() override {
    disk.makeFile("/keeper", content);
    disk.makeFile("/copy", content);
    hash = *contentHash(files, "/keeper");
  }

  [[nodiscard]] bool mayRemove(const Path& keeper = "/keeper", const Path& copy = "/copy") const {
    return DuplicateCheck::mayRemove(files, keeper, {copy, entryIdentity(files, copy)}, hash);
  }

  void vanish(const Path& place) const { std::filesystem::remove(disk.onDisk(place)); }

  /// Runs `act` once the two files have been opened.
  void whileReading(const std::function<void()>& act) {
    files.before(Operation::openForReading, "/copy",
                 [this, act] { files.before(Operation::attributes, "/keeper", act); });
  }

  TemporaryFolder disk;
  LinuxFileSystem real{disk.path(), "/Users/ann"};
  FaultInjectingFileSystem files{real};
  const std::string content = std::string(700'000, 'x') + "end";
  std::string hash;
};

TEST_F(DuplicateCheckTest, ACopyMayGoWhileTheKeptOneHoldsTheSame) {
  EXPECT_TRUE(mayRemove());
}

TEST_F(DuplicateCheckTest, AnEmptyCopyMayGoToo) {
  disk.makeFile("/keeper");
  disk.makeFile("/copy");
  hash = *contentHash(files, "/keeper");
  EXPECT_TRUE(mayRemove());
}

TEST_F(DuplicateCheckTest, TheKeptCopyIsGone) {
  vanish("/keeper");
  EXPECT_FALSE(mayRemove());
}

TEST_F(DuplicateCheckTest, TheCopyIsGone) {
  vanish("/copy");
  EXPECT_FALSE(mayRemove());
}

TEST_F(DuplicateCheckTest, TheKeptCopyIsChanged) {
  disk.makeFile("/keeper", content.substr(1));
  EXPECT_FALSE(mayRemove());
  disk.makeFile("/keeper", content.substr(1) + "?");
  EXPECT_FALSE(mayRemove());
}

TEST_F(DuplicateCheckTest, BothAreChangedInTheSameWay) {
  const std::string other(content.size(), 'y');
  disk.makeFile("/keeper", other);
  disk.makeFile("/copy", other);
  EXPECT_FALSE(mayRemove());
}

TEST_F(DuplicateCheckTest, TheKeptCopyIsSwappedForALinkToTheOther) {
  vanish("/keeper");
  disk.makeLink("/keeper", disk.onDisk("/copy"));
  EXPECT_FALSE(mayRemove());
}

TEST_F(DuplicateCheckTest, TheKeptCopyIsAFolderNow) {
  vanish("/keeper");
  disk.makeFolder("/keeper");
  EXPECT_FALSE(mayRemove());
}

TEST_F(DuplicateCheckTest, AFileIsNoCopyOfItself) {
  EXPECT_FALSE(mayRemove("/keeper", "/keeper"));
  EXPECT_FALSE(mayRemove("/keeper", "/../keeper"));
  disk.makeFolder("/folder");
  disk.makeFile("/folder/file", content);
  disk.makeLink("/link", disk.onDisk("/folder"));
  EXPECT_FALSE(mayRemove("/folder/file", "/link/file"));
}

TEST_F(DuplicateCheckTest, ASecondNameOfTheKeptFileStays) {
  std::filesystem::create_hard_link(disk.onDisk("/keeper"), disk.onDisk("/second"));
  EXPECT_FALSE(mayRemove("/keeper", "/second"));
}

TEST_F(DuplicateCheckTest, ACopyThatIsAnotherFileThanTheOneFoundStays) {
  const auto found = entryIdentity(files, "/copy");
  vanish("/copy");
  disk.makeFile("/other", "so that the number of the first is not given again");
  disk.makeFile("/copy", content);
  const Path copy = "/copy";
  EXPECT_FALSE(DuplicateCheck::mayRemove(files, "/keeper", {copy, found}, hash));
}

TEST_F(DuplicateCheckTest, AReadThatFailsHalfWayRefusesAlsoWhenBothFailAtTheSamePlace) {
  files.failReadingAfter(300'000, "/keeper");
  EXPECT_FALSE(mayRemove());
  files.failReadingAfter(300'000, "/copy");
  hash = *contentHash(files, "/copy");
  EXPECT_FALSE(mayRemove());
}

TEST_F(DuplicateCheckTest, AFileThatIsShorterThanItSaysIsNotRead) {
  const auto bytes = static_cast<std::int64_t>(content.size()) + 1;
  files.overlaySize("/keeper", bytes);
  files.overlaySize("/copy", bytes);
  EXPECT_FALSE(mayRemove());
}

TEST_F(DuplicateCheckTest, AFileThatCannotBeOpenedOrAskedIsNotRead) {
  for (const auto operation : {Operation::openForReading, Operation::attributes}) {
    for (const Path path : {"/keeper", "/copy"}) {
      files.fail(operation, path);
      EXPECT_FALSE(mayRemove());
      files.heal(operation, path);
    }
  }
  EXPECT_TRUE(mayRemove());
}

TEST_F(DuplicateCheckTest, TheKeptCopyVanishesOrChangesWhileItIsRead) {
  whileReading([this] { vanish("/keeper"); });
  EXPECT_FALSE(mayRemove());
  disk.makeFile("/keeper", content);
  whileReading([this] { disk.makeFile("/keeper", content + "more"); });
  EXPECT_FALSE(mayRemove());
  disk.makeFile("/keeper", content);
  whileReading([this] {
    vanish("/keeper");
    disk.makeLink("/keeper", disk.onDisk("/copy"));
  });
  EXPECT_FALSE(mayRemove());
}

TEST_F(DuplicateCheckTest, AfterAStopRequestNothingMayGo) {
  std::stop_source stop;
  const Path path = "/copy";
  const auto identity = entryIdentity(files, path);
  const DuplicateCheck::Copy copy{path, identity};
  EXPECT_TRUE(DuplicateCheck::mayRemove(files, "/keeper", copy, hash, stop.get_token()));
  stop.request_stop();
  EXPECT_FALSE(DuplicateCheck::mayRemove(files, "/keeper", copy, hash, stop.get_token()));
}

TEST_F(DuplicateCheckTest, EveryCopyOfAGroupCanNeverGo) {
  std::mt19937 random(46);  // always the same removals
  for (int round = 0; round < 30; ++round) {
    const TemporaryFolder other;
    const LinuxFileSystem place(other.path(), "/Users/ann");
    other.makeFile("/real/0", "content");
    std::filesystem::create_hard_link(other.onDisk("/real/0"), other.onDisk("/real/1"));
    other.makeFile("/real/2", "content");
    other.makeLink("/link", other.onDisk("/real"));
    const std::string digest = *contentHash(place, "/real/0");
    for (int attempt = 0; attempt < 60; ++attempt) {
      const auto name = [&] {
        return (random() % 2 == 0 ? Path("/real") : Path("/link")) / std::to_string(random() % 3);
      };
      const Path copy = name();
      if (DuplicateCheck::mayRemove(place, name(), {copy, entryIdentity(place, copy)}, digest)) {
        std::filesystem::remove(other.onDisk("/real") / copy.filename());
      }
    }
    std::size_t left = 0;
    for (const Path file : {"/real/0", "/real/1", "/real/2"}) left += other.holds(file) ? 1 : 0;
    EXPECT_GE(left, 1U);  // two, where they are the two names of one file
  }
}

}  // namespace
}  // namespace klarvik
