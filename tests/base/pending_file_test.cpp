#include "base/file_writes.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/syscall.h>

#include <cerrno>
#include <string>

#include "base/posix_io.h"
#include "support/system_call_faults.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

std::string contentOf(const PendingFile& file) {
  std::string content;
  EXPECT_TRUE(file.inspect([&](std::span<const std::byte> bytes) {
    content.assign(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    return true;
  }));
  return content;
}

std::optional<PendingFile> in(const Path& folder) {
  return PendingFile::in(openFolderHandle(AT_FDCWD, folder.c_str()));
}

class PendingFileTest : public ::testing::Test {
 protected:
  [[nodiscard]] bool isEmpty() const { return std::filesystem::is_empty(folder.path()); }

  TemporaryFolder folder;
};

TEST_F(PendingFileTest, IsNotThereForAnybodyUntilItIsPublished) {
  auto file = in(folder.path());
  ASSERT_TRUE(file);
  ASSERT_TRUE(file->append("half "));
  ASSERT_TRUE(file->append("and half"));
  EXPECT_TRUE(isEmpty());
  EXPECT_EQ(contentOf(*file), "half and half");
  EXPECT_EQ(file->size(), 13);
  EXPECT_EQ(file->commit("Klarvik", ".deb"), "Klarvik.deb");
  EXPECT_EQ(folder.contentOf("Klarvik.deb"), "half and half");
}

TEST_F(PendingFileTest, LeavesNothingWhenItGoesUnpublished) {
  {
    auto file = in(folder.path());
    ASSERT_TRUE(file && file->append("x"));
  }
  EXPECT_TRUE(isEmpty());
}

TEST_F(PendingFileTest, StaysWhenItGoesPublished) {
  {
    auto file = in(folder.path());
    ASSERT_TRUE(file && file->append("x"));
    PendingFile moved(std::move(*file));
    ASSERT_TRUE(moved.commit("a", ".zip"));
  }
  EXPECT_EQ(folder.contentOf("a.zip"), "x");
}

TEST_F(PendingFileTest, NeverReplacesWhatStandsThere) {
  folder.makeFile("a.deb", "first");
  std::filesystem::create_symlink("nowhere", folder.path() / "a-2.deb");
  auto file = in(folder.path());
  ASSERT_TRUE(file && file->append("new"));
  EXPECT_EQ(file->commit("a", ".deb"), "a-3.deb");
  EXPECT_EQ(folder.contentOf("a.deb"), "first");
  EXPECT_TRUE(std::filesystem::is_symlink(folder.path() / "a-2.deb"));
}

TEST_F(PendingFileTest, MayBeReadByEverybodyOnceItIsPublished) {
  auto file = in(folder.path());
  const auto name = file->commit("a", "");
  ASSERT_TRUE(name);
  struct ::stat status {};
  ASSERT_EQ(::stat((folder.path() / *name).c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777U, 0644U);
}

TEST_F(PendingFileTest, CannotBeMadeWhereThereIsNoFolder) {
  EXPECT_FALSE(in(folder.path() / "missing"));
  folder.makeFile("file", "");
  EXPECT_FALSE(in(folder.path() / "file"));
}

TEST_F(PendingFileTest, CannotBePublishedIntoAFolderThatHasGone) {
  folder.makeFolder("gone");
  auto file = in(folder.path() / "gone");
  ASSERT_TRUE(file);
  std::filesystem::remove_all(folder.path() / "gone");
  EXPECT_FALSE(file->commit("a", ""));
}

/// Where a fault leaves the folder: empty, or with the whole file under its name.
TEST_F(PendingFileTest, IsWholeOrNotThereWhicheverSystemCallFails) {
  const auto operation = [this] {
    auto file = in(folder.path());
    return file && file->append("first ") && file->append("second") && file->flush() &&
           file->commit("a", ".deb").has_value();
  };
  for (const auto kind : {SystemCallFault::Kind::failsOnce, SystemCallFault::Kind::failsFromThere,
                          SystemCallFault::Kind::killed}) {
    bool reached = true;
    for (int at = 1; reached; ++at) {
      std::filesystem::remove(folder.path() / "a.deb");
      const FaultyRun run =
          runWithFault({.kind = kind, .at = at, .error = ENOSPC, .disturbance = {}}, operation);
      reached = run.reached;
      const bool isWhole = folder.holds("a.deb") && folder.contentOf("a.deb") == "first second";
      EXPECT_TRUE(isWhole || isEmpty()) << at;
      EXPECT_TRUE(isWhole || !run.answer || run.killed) << at;
    }
  }
}

TEST_F(PendingFileTest, SaysWhenItCannotBeFlushed) {
  const auto flush = [this] {
    refuseSystemCall(SYS_fdatasync, EIO);
    auto file = in(folder.path());
    return file && file->append("x") && file->flush();
  };
  EXPECT_FALSE(runWithFault({}, flush).answer);
}

TEST_F(PendingFileTest, IsHiddenAndGoesAllTheSameWhereFilesCannotBeNameless) {
  const auto write = [this](bool publishes) {
    refuseNamelessFiles();
    auto file = in(folder.path());
    if (!file || !file->append("x") || isEmpty()) return false;
    return !publishes || file->commit("a", ".deb").has_value();
  };
  EXPECT_TRUE(runWithFault({}, [&] { return write(false); }).answer);
  EXPECT_TRUE(isEmpty());
  folder.makeFile("a.deb", "first");
  EXPECT_TRUE(runWithFault({}, [&] { return write(true); }).answer);
  EXPECT_EQ(folder.contentOf("a.deb"), "first");
  EXPECT_EQ(folder.contentOf("a-2.deb"), "x");
}

TEST_F(PendingFileTest, ReplacesNothingWhereNoRenamingPromisesThatAndFilesCannotBeNameless) {
  folder.makeFile("a.deb", "first");
  const auto write = [this] {
    refuseNamelessFiles();
    refuseSystemCall(SYS_renameat2, EINVAL);
    auto file = in(folder.path());
    return file && file->append("x") && file->commit("a", ".deb") == "a-2.deb";
  };
  EXPECT_TRUE(runWithFault({}, write).answer);
  EXPECT_EQ(folder.contentOf("a.deb"), "first");
  EXPECT_EQ(folder.contentOf("a-2.deb"), "x");
  std::filesystem::remove(folder.path() / "a.deb");
  std::filesystem::remove(folder.path() / "a-2.deb");
  EXPECT_TRUE(isEmpty());
}

TEST_F(PendingFileTest, IsGoneOnceDiscardedThoughSomebodyReadsItAndItCannotBeNameless) {
  const auto discard = [this] {
    refuseNamelessFiles();
    auto file = in(folder.path());
    if (!file || !file->append("x") || isEmpty()) return false;
    file->discard();
    return isEmpty() && contentOf(*file) == "x";
  };
  EXPECT_TRUE(runWithFault({}, discard).answer);
}

}  // namespace
}  // namespace klarvik
