// Whatever is wrong with what lies in the way, the walk goes on, and lists no more than there is.

#include <gmock/gmock.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include "support/child_process.h"
#include "support/fake_desktop.h"
#include "tools/large_file_walker.h"

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

using Operation = FaultInjectingFileSystem::Operation;

constexpr std::int64_t limit = 1'000;

class LargeFileWalkerFaultsTest : public testing::Test {
 protected:
  FakeDesktopOnDisk world;
  TemporaryFolder& disk = world.disk;
  FaultInjectingFileSystem& files = world.files;
  const Path movies = "/Users/ann/Movies";

  std::vector<std::string> found(std::int64_t threshold = limit) const {
    std::vector<std::string> names;
    for (const auto& file : LargeFileWalker(files).walk(threshold, {}, {})) {
      names.push_back(file->url.lexically_relative(movies));
    }
    return names;
  }
};

TEST_F(LargeFileWalkerFaultsTest, AFolderThatMayNotBeReadIsPassedOverAndTheRestListed) {
  disk.makeSparseFile(movies / "locked/a", limit);
  disk.makeSparseFile(movies / "open/b", limit);
  disk.makeSparseFile("/Users/ann/Documents/c", limit);
  ::chmod(disk.onDisk(movies / "locked").c_str(), 0);
  ::chmod(disk.onDisk("/Users/ann/Documents").c_str(), 0);
  ::chmod(disk.path().c_str(), 0755);
  EXPECT_TRUE(
      inChildWithoutPrivileges([&] { return found() == std::vector<std::string>{"open/b"}; }));
  ::chmod(disk.onDisk(movies / "locked").c_str(), 0755);
  ::chmod(disk.onDisk("/Users/ann/Documents").c_str(), 0755);
}

TEST_F(LargeFileWalkerFaultsTest, AFileThatVanishesDuringTheWalkIsNotListed) {
  disk.makeSparseFile(movies / "gone", limit);
  disk.makeSparseFile(movies / "there", limit);
  files.vanishBefore(Operation::attributes, movies / "gone");
  EXPECT_THAT(found(), ElementsAre("there"));
}

TEST_F(LargeFileWalkerFaultsTest, AFolderThatVanishesDuringTheWalkIsDropped) {
  disk.makeSparseFile(movies / "gone/a", limit);
  disk.makeSparseFile(movies / "there/b", limit);
  files.vanishBefore(Operation::walk, movies / "gone");
  EXPECT_THAT(found(), ElementsAre("there/b"));
}

TEST_F(LargeFileWalkerFaultsTest, AFileThatBecomesALinkDuringTheWalkIsNotListed) {
  disk.makeSparseFile("/elsewhere/large", limit);
  disk.makeSparseFile(movies / "swapped", limit);
  files.becomeLinkBefore(Operation::attributes, movies / "swapped",
                         disk.onDisk("/elsewhere/large"));
  EXPECT_THAT(found(), IsEmpty());
}

TEST_F(LargeFileWalkerFaultsTest, AFolderThatBecomesALinkDuringTheWalkIsNotEntered) {
  disk.makeSparseFile("/elsewhere/large", limit);
  disk.makeFile(movies / "swapped/small");
  files.becomeLinkBefore(Operation::walk, movies / "swapped", disk.onDisk("/elsewhere"));
  EXPECT_THAT(found(), IsEmpty());
}

TEST_F(LargeFileWalkerFaultsTest, ASparseFileOfATerabyteCountsByItsLength) {
  constexpr std::int64_t terabyte = 1'099'511'627'776;
  disk.makeSparseFile(movies / "sparse", terabyte);
  EXPECT_THAT(found(terabyte), ElementsAre("sparse"));
  EXPECT_THAT(found(terabyte + 1), IsEmpty());
}

TEST_F(LargeFileWalkerFaultsTest, AFifoASocketAndADeviceAreNeverOpenedNorListed) {
  disk.makeFolder(movies);
  ASSERT_EQ(::mkfifo(disk.onDisk(movies / "fifo").c_str(), 0644), 0);
  const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
  sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
  const std::string place = disk.onDisk(movies / "socket").native();
  ASSERT_LT(place.size(), sizeof address.sun_path);
  place.copy(address.sun_path, place.size());
  ASSERT_EQ(::bind(socket, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
  disk.makeLink(movies / "device", "/dev/zero");
  // An opened pipe would wait for a writer, so that this would not end.
  EXPECT_THAT(found(0), IsEmpty());
  ::close(socket);
}

TEST_F(LargeFileWalkerFaultsTest, LinksInLoopsAreNotFollowed) {
  disk.makeLink(movies / "self", "self");
  disk.makeLink(movies / "up", "..");
  disk.makeLink(movies / "a/to b", "../b");
  disk.makeLink(movies / "b/to a", "../a");
  disk.makeSparseFile(movies / "a/file", limit);
  EXPECT_THAT(found(), ElementsAre("a/file"));
}

TEST_F(LargeFileWalkerFaultsTest, NamesWithNewlinesAndBytesThatAreNotUtf8AreListedAsTheyAre) {
  const std::vector<std::string> names{
      "two\nlines", "\xff\xfe", "-rf", "$(touch hit) `id`;'\"", " ", std::string(255, 'x')};
  for (const auto& name : names) disk.makeSparseFile(movies / name, limit);
  EXPECT_THAT(found(), testing::UnorderedElementsAreArray(names));
}

TEST_F(LargeFileWalkerFaultsTest, ARootThatIsAFileOrALinkToNothingIsLeftOut) {
  disk.makeSparseFile("/Users/ann/Documents", limit);
  disk.makeLink("/Users/ann/Downloads", "missing");
  disk.makeSparseFile(movies / "a", limit);
  EXPECT_THAT(found(), ElementsAre("a"));
}

TEST_F(LargeFileWalkerFaultsTest, ASecondWalkFindsTheSameAsTheFirst) {
  disk.makeSparseFile(movies / "a", limit);
  disk.makeSparseFile(movies / "b/c", limit + 1);
  const auto first = found();
  EXPECT_THAT(first, ElementsAre("b/c", "a"));
  EXPECT_EQ(found(), first);
}

}  // namespace
}  // namespace klarvik
