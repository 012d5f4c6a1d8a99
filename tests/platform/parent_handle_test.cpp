#include "platform/linux/parent_handle.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "support/temporary_folder.h"

namespace klarvik {
namespace {

using testing::Optional;

class ParentHandleTest : public testing::Test {
 protected:
  std::optional<Path> realPlace(const Path& item) const {
    const auto parent = openParent(disk.path(), item);
    return parent ? std::optional(parent->realPath) : std::nullopt;
  }
  static RealPathPredicate allow() {
    return [](const Path&) { return true; };
  }

  TemporaryFolder disk;
};

TEST_F(ParentHandleTest, OpensTheFolderThatAnItemLiesIn) {
  disk.makeFile("/Users/ann/note", "kept");

  const auto parent = openParent(disk.path(), "/Users/ann/note");

  ASSERT_TRUE(parent);
  EXPECT_EQ(parent->name, "note");
  EXPECT_EQ(parent->realPath, "/Users/ann/note");
  struct stat status {};
  ASSERT_EQ(::fstatat(parent->folder.get(), "note", &status, 0), 0);
  EXPECT_EQ(status.st_size, 4);
}

TEST_F(ParentHandleTest, DoesNotAskForTheItemItself) {
  disk.makeFolder("/Users/ann");
  disk.makeLink("/Users/ann/link", "/nowhere");
  EXPECT_THAT(realPlace("/Users/ann/missing"), Optional(Path("/Users/ann/missing")));
  EXPECT_THAT(realPlace("/Users/ann/link"), Optional(Path("/Users/ann/link")));
  EXPECT_THAT(realPlace("/top"), Optional(Path("/top")));
}

TEST_F(ParentHandleTest, RefusesWhatDoesNotEndInAName) {
  disk.makeFolder("/a/b");
  for (const char* item : {"", ".", "..", "/", "//", "/.", "/..", "/a/", "/a/.", "/a/..", "/a/b/..",
                           "a", "a/b", "./a"}) {
    EXPECT_FALSE(realPlace(item)) << item;
  }
}

TEST_F(ParentHandleTest, RefusesANameCutShortByAZeroByte) {
  disk.makeFile("/a/b", "kept");
  EXPECT_FALSE(realPlace(Path(std::string("/a/b\0c", 6))));
  EXPECT_FALSE(realPlace(Path(std::string("/a\0b/c", 6))));
}

TEST_F(ParentHandleTest, RefusesAParentThatIsMissingOrAFile) {
  disk.makeFile("/a/file", "kept");
  EXPECT_FALSE(realPlace("/a/missing/x"));
  EXPECT_FALSE(realPlace("/a/file/x"));
}

TEST_F(ParentHandleTest, TellsTheRealPlaceBehindARelativeLink) {
  disk.makeFolder("/real/deep");
  disk.makeLink("/Users/ann/link", "../../real/./deep");
  EXPECT_THAT(realPlace("/Users/ann/link/x"), Optional(Path("/real/deep/x")));
}

TEST_F(ParentHandleTest, TellsTheRealPlaceBehindAnAbsoluteLink) {
  disk.makeFolder("/real/deep");
  disk.makeLink("/Users/ann/link", disk.onDisk("/real"));
  EXPECT_THAT(realPlace("/Users/ann/link/deep/x"), Optional(Path("/real/deep/x")));
}

TEST_F(ParentHandleTest, FollowsALinkThroughAnotherLink) {
  disk.makeFolder("/real/deep");
  disk.makeLink("/second", "real");
  disk.makeLink("/first", "second/deep");
  EXPECT_THAT(realPlace("/first/x"), Optional(Path("/real/deep/x")));
}

TEST_F(ParentHandleTest, CountsDotDotFromTheRealPlace) {
  disk.makeFolder("/real/deep");
  disk.makeLink("/Users/ann/link", disk.onDisk("/real/deep"));
  EXPECT_THAT(realPlace("/Users/ann/link/../x"), Optional(Path("/real/x")));
}

TEST_F(ParentHandleTest, RefusesWhatReallyLiesOutsideTheRoot) {
  const TemporaryFolder outside;
  outside.makeFile("canary", "kept");
  disk.makeLink("/out", outside.path());
  disk.makeLink("/up", "../../../../../../..");
  EXPECT_FALSE(realPlace("/out/canary"));
  EXPECT_FALSE(realPlace("/up/x"));
  EXPECT_FALSE(realPlace("/../x"));
}

TEST_F(ParentHandleTest, TellsARootFromASiblingThatSharesItsPrefix) {
  disk.makeFolder("/base");
  disk.makeFolder("/base2/in");
  disk.makeLink("/base/link", "../base2");
  EXPECT_FALSE(openParent(disk.onDisk("/base"), "/link/in"));
}

TEST_F(ParentHandleTest, ReachesARootThatIsNamedThroughALink) {
  disk.makeFolder("/real/Users");
  disk.makeLink("/named", "real");
  const auto parent = openParent(disk.onDisk("/named"), "/Users/x");
  ASSERT_TRUE(parent);
  EXPECT_EQ(parent->realPath, "/Users/x");
}

TEST_F(ParentHandleTest, WorksFromTheRootOfTheMachine) {
  const auto parent = openParent("/", disk.onDisk("/x"));
  ASSERT_TRUE(parent);
  EXPECT_EQ(parent->realPath, disk.onDisk("/x"));
}

TEST_F(ParentHandleTest, GivesUpOnALinkLoop) {
  disk.makeLink("/a", "b");
  disk.makeLink("/b", "a");
  disk.makeLink("/self", "self/self");
  EXPECT_FALSE(realPlace("/a/x"));
  EXPECT_FALSE(realPlace("/self/x"));
}

TEST_F(ParentHandleTest, FollowsAsManyLinksAsTheSystemAndNoMore) {
  disk.makeFolder("/0");
  for (int i = 1; i <= 41; ++i) disk.makeLink(std::to_string(i), std::to_string(i - 1));
  EXPECT_THAT(realPlace("/40/x"), Optional(Path("/0/x")));
  EXPECT_FALSE(realPlace("/41/x"));
}

TEST_F(ParentHandleTest, TakesNamesOfAnyBytes) {
  const Path odd = "/-rf \n$(x)`\xff\xfe'/\xc3(";
  disk.makeFile(odd, "kept");
  EXPECT_THAT(realPlace(odd), Optional(odd));
}

TEST_F(ParentHandleTest, ReachesAPathLongerThanPathMax) {
  Path item;
  for (int i = 0; i < 100; ++i) item /= std::string(100, 'd');
  item = "/" / item / "file";
  const auto made = openParentCreating(disk.path(), item, allow());
  ASSERT_TRUE(made);
  ASSERT_TRUE(UniqueFd(::openat(made->folder.get(), "file", O_CREAT | O_WRONLY, 0600)));

  const auto parent = openParent(disk.path(), item);

  ASSERT_TRUE(parent);
  EXPECT_EQ(parent->realPath, item);
  EXPECT_EQ(::faccessat(parent->folder.get(), "file", F_OK, 0), 0);
}

TEST_F(ParentHandleTest, StaysInTheOpenedFolderWhenItsNameIsTakenByALink) {
  const TemporaryFolder outside;
  outside.makeFile("x", "canary");
  disk.makeFile("/a/b/x", "chosen");
  const auto parent = openParent(disk.path(), "/a/b/x");
  ASSERT_TRUE(parent);

  std::filesystem::rename(disk.onDisk("/a/b"), disk.onDisk("/a/away"));
  disk.makeLink("/a/b", outside.path());
  ASSERT_EQ(::unlinkat(parent->folder.get(), "x", 0), 0);

  EXPECT_TRUE(outside.holds("x"));
  EXPECT_FALSE(disk.holds("/a/away/x"));
}

TEST_F(ParentHandleTest, MakesTheParentsThatAreMissing) {
  disk.makeFolder("/Users/ann");
  const auto parent = openParentCreating(disk.path(), "/Users/ann/a/b/note", allow());
  ASSERT_TRUE(parent);
  EXPECT_EQ(parent->realPath, "/Users/ann/a/b/note");
  EXPECT_TRUE(disk.holds("/Users/ann/a/b"));
  EXPECT_FALSE(disk.holds("/Users/ann/a/b/note"));
}

TEST_F(ParentHandleTest, AsksWithTheRealPlaceBeforeItMakesAnything) {
  disk.makeFolder("/protected");
  disk.makeLink("/Users/ann/link", "../../protected");
  Path asked;
  EXPECT_FALSE(openParentCreating(disk.path(), "/Users/ann/link/a/b/note", [&](const Path& place) {
    asked = place;
    return false;
  }));
  EXPECT_EQ(asked, "/protected/a/b/note");
  EXPECT_FALSE(disk.holds("/protected/a"));
}

TEST_F(ParentHandleTest, MakesNothingOutsideTheRoot) {
  const TemporaryFolder outside;
  disk.makeLink("/out", outside.path());
  EXPECT_FALSE(openParentCreating(disk.path(), "/out/a/note", allow()));
  EXPECT_FALSE(outside.holds("a"));
}

TEST_F(ParentHandleTest, DoesNotFillInALinkToNothing) {
  disk.makeFolder("/Users");
  disk.makeLink("/Users/ann", "gone/deep");
  EXPECT_FALSE(openParentCreating(disk.path(), "/Users/ann/a/note", allow()));
  EXPECT_FALSE(disk.holds("/Users/gone"));
}

TEST_F(ParentHandleTest, DoesNotMakeAWayUpAgain) {
  disk.makeFolder("/Users");
  EXPECT_FALSE(openParentCreating(disk.path(), "/Users/a/../b/note", allow()));
  EXPECT_FALSE(disk.holds("/Users/a"));
}

TEST_F(ParentHandleTest, MakesNothingInPlaceOfAFile) {
  disk.makeFile("/Users/ann", "kept");
  EXPECT_FALSE(openParentCreating(disk.path(), "/Users/ann/a/note", allow()));
  EXPECT_EQ(disk.contentOf("/Users/ann"), "kept");
}

}  // namespace
}  // namespace klarvik
