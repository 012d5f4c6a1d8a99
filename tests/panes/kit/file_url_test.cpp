#include "panes/kit/row_text.h"

#include <gtest/gtest.h>

namespace klarvik {
namespace {

const Path home = "/Users/ann";

TEST(FileUrl, EveryByteOfANameComesBack) {
  std::string name = "/Users/ann/";
  for (int byte = 1; byte < 256; ++byte) {
    if (byte != '/') name += static_cast<char>(byte);
  }
  EXPECT_EQ(pathOfUrl(urlOfPath(name)), Path(name));
}

TEST(FileUrl, NamesThatLookLikePartsOfAUrlComeBack) {
  for (const char* path :
       {"/a/%41", "/a/b?c=d", "/a/b#c", "/a/ b ", "/a/..b", "/a/b;c", "/a:80/b"}) {
    EXPECT_EQ(pathOfUrl(urlOfPath(path)), Path(path));
  }
}

TEST(FileUrl, AnEmptyPathIsAnEmptyUrl) {
  EXPECT_TRUE(urlOfPath({}).isEmpty());
  EXPECT_TRUE(pathOfUrl({}).empty());
}

TEST(FolderLine, NamesTheFolderWithTheHomeAsATilde) {
  EXPECT_EQ(folderLine("/Users/ann/Library/Caches/a", home), "~/Library/Caches/");
  EXPECT_EQ(folderLine("/Library/Caches/a", home), "/Library/Caches/");
}

TEST(FolderLine, OfAFileAtTheTopOfTheHomeIsTildeSlash) {
  EXPECT_EQ(folderLine("/Users/ann/a.txt", home), "~/");
}

TEST(FolderLine, ReplacesEveryOccurrenceOfTheHome) {
  EXPECT_EQ(folderLine("/Users/ann/copy/Users/ann/a", home), "~/copy~/");
}

TEST(FolderLine, OfANameThatIsNotUtf8IsPrintable) {
  EXPECT_EQ(folderLine("/Users/ann/\xff/a", home), QString::fromUtf8("~/\uFFFD/"));
}

TEST(FolderLine, AnEmptyHomeReplacesNothing) {
  EXPECT_EQ(folderLine("/Users/ann/a", {}), "/Users/ann/");
  EXPECT_EQ(folderLine("/Users/ann/a", "/"), "/Users/ann/");
}

}  // namespace
}  // namespace klarvik
