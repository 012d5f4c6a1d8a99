// What downloads say about where they came from: counted, and taken off without a change to the
// files.

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/xattr.h>

#include <cerrno>
#include <filesystem>

#include "core/deletion_guard.h"
#include "core/removal_check.h"
#include "platform/linux/linux_file_system.h"
#include "platform/system_platform.h"
#include "support/desktop_fakes.h"
#include "support/disk_snapshot.h"
#include "support/fake_running_programs.h"
#include "support/fault_injecting_file_system.h"
#include "support/system_call_faults.h"
#include "support/temporary_folder.h"
#include "tools/privacy_scanner.h"

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

constexpr const char* origin = "user.xdg.origin.url";
constexpr const char* referrer = "user.xdg.referrer.url";
constexpr const char* comment = "user.xdg.comment";

class DownloadOrigins : public testing::Test {
 protected:
  void SetUp() override {
    const Path probe = disk.makeFile("/probe");
    if (!set(probe, comment)) GTEST_SKIP() << "this file system has no extended attributes";
  }

  static bool set(const Path& onDisk, const char* name) {
    return ::setxattr(onDisk.c_str(), name, "https://acme.example/a", 22, 0) == 0;
  }
  static bool has(const Path& onDisk, const char* name) {
    return ::lgetxattr(onDisk.c_str(), name, nullptr, 0) >= 0;
  }

  Path download(const Path& name) const {
    Path file = disk.makeFile(downloads / name, "content");
    EXPECT_TRUE(set(file, origin) && set(file, referrer) && set(file, comment));
    return file;
  }

  std::vector<PrivacyItem> scan() {
    std::vector<PrivacyItem> items = scanner.scan({});
    std::erase_if(items, [](const PrivacyItem& item) {
      return item.category != PrivacyCategory::quarantine;
    });
    return items;
  }

  TemporaryFolder disk;
  const Path home = "/home/ann";
  const Path downloads = home / "Downloads";
  SystemPlatform machine{disk.path(), home};
  const Platform system = machine.platform();
  FaultInjectingFileSystem files{system.files};
  FakeRunningPrograms programs;
  const Platform platform{files,         system.trash,      system.commands, system.defaults,
                          system.volume, system.formatting, system.info,     system.recentDocuments,
                          programs,      system.tools};
  FakePasteboard pasteboard;
  PrivacyScanner scanner{platform, pasteboard};
};

TEST_F(DownloadOrigins, AreOneTrailThatCountsTheFiles) {
  download("report.pdf");
  download("Papers/2026/annex.pdf");
  set(disk.makeFile(downloads / "referred.iso", "x"), referrer);
  set(disk.makeFile(downloads / "mine.txt", "x"), comment);
  set(disk.makeFile(home / "Documents/kept.pdf", "x"), origin);
  set(disk.makeFolder(downloads / "Folder"), origin);
  const auto found = scan();
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found.front().name, "Origin of downloads");
  EXPECT_EQ(found.front().count, 3);
  EXPECT_EQ(found.front().size, 0);
  EXPECT_TRUE(found.front().isSelected);
}

TEST_F(DownloadOrigins, GoAndLeaveTheFilesAsTheyAre) {
  const Path file = download("report.pdf");
  ASSERT_EQ(::chmod(file.c_str(), 0640), 0);
  const Path other = disk.makeFile(home / "Documents/kept.pdf", "x");
  set(other, origin);
  const auto before = snapshotOf(disk.path());
  struct stat earlier {};
  ASSERT_EQ(::stat(file.c_str(), &earlier), 0);

  const PrivacyClearance done = scanner.clear(scan());
  EXPECT_EQ(done.cleaned, 1);
  EXPECT_THAT(done.stayed, IsEmpty());
  EXPECT_FALSE(has(file, origin));
  EXPECT_FALSE(has(file, referrer));
  EXPECT_TRUE(has(file, comment)) << "nobody was told of it";
  EXPECT_TRUE(has(other, origin));
  EXPECT_EQ(unexpectedDifferences(before, snapshotOf(disk.path()), {}), "");
  struct stat later {};
  ASSERT_EQ(::stat(file.c_str(), &later), 0);
  EXPECT_EQ(later.st_mtim.tv_sec, earlier.st_mtim.tv_sec);
  EXPECT_EQ(later.st_mtim.tv_nsec, earlier.st_mtim.tv_nsec);
  EXPECT_EQ(later.st_mode, earlier.st_mode);
  EXPECT_EQ(later.st_ino, earlier.st_ino);
  EXPECT_THAT(scan(), IsEmpty());
}

TEST_F(DownloadOrigins, OfFilesWithOddNamesAndWithoutRightsToReadGoToo) {
  const Path odd = download("two\nlines \xff.pdf");
  const Path closed = download("closed.pdf");
  ASSERT_EQ(::chmod(closed.c_str(), 0200), 0);
  EXPECT_EQ(scanner.clear(scan()).cleaned, 1);
  EXPECT_FALSE(has(odd, origin));
  EXPECT_FALSE(has(closed, origin));
}

TEST_F(DownloadOrigins, BehindLinksStay) {
  const Path kept = disk.makeFile(home / "Documents/kept.pdf", "x");
  set(kept, origin);
  disk.makeLink(downloads / "link.pdf", "../Documents/kept.pdf");
  disk.makeLink(downloads / "folder", "../Documents");
  EXPECT_THAT(scan(), IsEmpty());

  const Path file = download("report.pdf");
  const auto found = scan();
  std::filesystem::rename(file, disk.onDisk(home / "aside.pdf"));
  disk.makeLink(downloads / "report.pdf", "../Documents/kept.pdf");
  EXPECT_EQ(scanner.clear(found).stayed, (std::vector<StayedTrail>{{found.front().id}}));
  EXPECT_TRUE(has(kept, origin));
}

TEST_F(DownloadOrigins, InADownloadFolderThatIsALinkStay) {
  disk.makeLink(downloads, "Documents");
  set(disk.makeFile(home / "Documents/kept.pdf", "x"), origin);
  EXPECT_THAT(scan(), IsEmpty());
}

TEST_F(DownloadOrigins, OfWhatWasReplacedOrIsGoneStayAndAreToldAndTheOthersGo) {
  const Path replaced = download("replaced.pdf");
  const Path gone = download("gone.pdf");
  const Path plain = download("plain.pdf");
  const auto found = scan();
  const Path other = disk.makeFile(home / "other.pdf", "another one");
  set(other, origin);
  std::filesystem::rename(other, replaced);
  std::filesystem::remove(gone);
  const PrivacyClearance done = scanner.clear(found);
  EXPECT_EQ(done.cleaned, 0);
  EXPECT_EQ(done.stayed, (std::vector<StayedTrail>{{found.front().id}}));
  EXPECT_TRUE(has(replaced, origin));
  EXPECT_FALSE(has(plain, origin));
}

TEST_F(DownloadOrigins, OfAFileThatBecomesALinkInTheLastMomentStay) {
  const Path file = download("report.pdf");
  const Path kept = disk.makeFile(home / "Documents/kept.pdf", "x");
  set(kept, origin);
  const auto found = scan();
  files.becomeLinkBefore(FileOperation::remove, downloads / "report.pdf", "../Documents/kept.pdf");
  EXPECT_EQ(scanner.clear(found).stayed.size(), 1U);
  EXPECT_TRUE(has(kept, origin));
}

TEST_F(DownloadOrigins, ThatTheSystemDoesNotLetGoAreTold) {
  const Path file = download("report.pdf");
  const auto found = scan();
  ASSERT_EQ(found.size(), 1U);
  for (const int error : {EROFS, EACCES, EPERM, EIO, ENOTSUP}) {
    const FaultyRun run = runWithFault({}, [&] {
      refuseSystemCall(SYS_removexattr, error);
      const PrivacyClearance done = scanner.clear(found);
      return done.cleaned == 0 && done.stayed.size() == 1;
    });
    EXPECT_TRUE(run.answer) << error;
    EXPECT_TRUE(has(file, origin));
  }
  const FaultyRun run = runWithFault({}, [&] {
    refuseSystemCall(SYS_listxattr, ENOTSUP);
    return scan().empty();
  });
  EXPECT_TRUE(run.answer) << "a file system without any";
  EXPECT_EQ(disk.contentOf(downloads / "report.pdf"), "content");
}

TEST_F(DownloadOrigins, OfAnotherFileThatComesToTheNameAtAnyCallStay) {
  const auto give = [&](const Path& name) {
    std::filesystem::remove_all(disk.onDisk(downloads));
    std::filesystem::remove(disk.onDisk(home / "aside.pdf"));
    const Path stranger = disk.makeFile(home / "stranger.pdf", "another one");
    set(stranger, origin);
    return download(name);
  };
  int calls = 0;
  for (bool isReached = true; isReached; ++calls) {
    const Path file = give("report.pdf");
    const auto found = scan();
    const SystemCallFault fault{
        .kind = SystemCallFault::Kind::disturbed, .at = calls + 1, .error = 0, .disturbance = [&] {
          std::error_code failed;
          std::filesystem::rename(file, disk.onDisk(home / "aside.pdf"), failed);
          std::filesystem::rename(disk.onDisk(home / "stranger.pdf"), file, failed);
        }};
    const FaultyRun run = runWithFault(fault, [&] { return scanner.clear(found).cleaned == 1; });
    isReached = run.reached;
    const Path stranger = isReached ? file : disk.onDisk(home / "stranger.pdf");
    EXPECT_TRUE(has(stranger, origin)) << "at call " << calls + 1;
  }
  EXPECT_GT(calls, 5);
}

TEST_F(DownloadOrigins, LieInTheFolderThatTheUserHasChosen) {
  UserFolders folders = UserFolders::in(home);
  folders.downloads = home / "Loaded";
  const auto found = [&] {
    SystemPlatform own(disk.path(), folders);
    std::int64_t count = 0;
    for (const PrivacyItem& item : PrivacyScanner(own.platform(), pasteboard).scan({})) {
      if (item.category == PrivacyCategory::quarantine) count += item.count;
    }
    return count;
  };
  set(disk.makeFile(home / "Loaded/a.pdf", "x"), origin);
  download("b.pdf");
  EXPECT_EQ(found(), 1);
  folders.downloads = home;
  EXPECT_EQ(found(), 0) << "all of the home is no download folder";
  set(disk.makeFile("/srv/loaded/a.pdf", "x"), origin);
  folders.downloads = "/srv/loaded";
  EXPECT_EQ(found(), 0);
}

TEST(RulesForDownloadOrigins, LetNothingGoOutsideOfTheDownloadFolder) {
  const auto isRefused = [](const Path& path, const Path& home) {
    return DeletionGuard::refusalReason(path, DeletionScope::origin(), home).has_value();
  };
  EXPECT_FALSE(isRefused("/home/ann/Downloads/a.pdf", "/home/ann"));
  EXPECT_FALSE(isRefused("/home/ann/Downloads/papers/a.pdf", "/home/ann"));
  for (const char* const path : {"/home/ann/Downloads", "/home/ann", "/home/ann/Documents/a.pdf",
                                 "/home/ann/Downloads.old/a", "/home/ann/.cache/pip/http/a",
                                 "/home/ben/Downloads/a", "/tmp/a", "/etc/passwd", "/"}) {
    EXPECT_TRUE(isRefused(path, "/home/ann")) << path;
  }
  EXPECT_TRUE(isRefused("/Users/ann/Downloads/a.pdf", "/Users/ann"));
  const auto trail = DeletionGuard::refusalReason("/home/ann/Downloads/a.pdf",
                                                  DeletionScope::trail(), "/home/ann");
  EXPECT_TRUE(trail) << "the file itself stays";
}

}  // namespace
}  // namespace klarvik
