#include "platform/linux/trash_folder.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace klarvik {
namespace {

TEST(TrashRecord, SaysPlaceAndLocalTimeOfDeletion) {
  ::setenv("TZ", "UTC-2", 1);
  ::tzset();
  const std::string text = trashRecordText("/Users/ann/a", 1'700'000'000);
  ::unsetenv("TZ");
  ::tzset();
  EXPECT_EQ(text, "[Trash Info]\nPath=/Users/ann/a\nDeletionDate=2023-11-15T00:13:20\n");
}

TEST(TrashRecord, EncodesEveryByteThatIsNotPlain) {
  const std::string text = trashRecordText("/-a b\n%\xff\xc3\xa9[x]~_.", 0);
  EXPECT_NE(text.find("Path=/-a%20b%0A%25%FF%C3%A9%5Bx%5D~_.\n"), std::string::npos) << text;
}

TEST(TrashRecord, ANameOfAnyBytesComesBackTheSame) {
  std::string name = "/";
  for (int byte = 1; byte < 256; ++byte) name += static_cast<char>(byte);
  EXPECT_EQ(placeInTrashRecord(trashRecordText(name, 0)), Path(name));
}

TEST(TrashRecord, ANewlineInTheNameCannotWriteASecondPlace) {
  const Path name = "/Users/ann/x\nPath=/etc/passwd\n";
  EXPECT_EQ(placeInTrashRecord(trashRecordText(name, 0)), name);
}

TEST(TrashRecord, TheFirstPlaceCounts) {
  EXPECT_EQ(placeInTrashRecord("[Trash Info]\nPath=/a\nPath=/b\n"), Path("/a"));
}

TEST(TrashRecord, OtherKeysAndOrdersAreAccepted) {
  EXPECT_EQ(placeInTrashRecord("[Trash Info]\nDeletionDate=x\nOther=1\nPath=a/b%20c"),
            Path("a/b c"));
}

class MalformedRecord : public testing::TestWithParam<std::string> {};

TEST_P(MalformedRecord, TellsNoPlace) {
  EXPECT_EQ(placeInTrashRecord(GetParam()), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(
    TrashRecord, MalformedRecord,
    testing::Values("", "[Trash Info]", "[Trash Info]\n", "[Trash Info]\nPath=\n", "Path=/a\n",
                    "[Trash]\nPath=/a\n", "[Trash Info]\npath=/a\n", "[Trash Info]\nPath=/a%\n",
                    "[Trash Info]\nPath=/a%2\n", "[Trash Info]\nPath=/a%zz\n",
                    "[Trash Info]\nPath=/a%-1\n", "[Trash Info]\nPath=/a%00b\n",
                    std::string("[Trash Info]\nPath=/a\0b\n", 22),
                    "[Trash Info]\nPath=../../etc/passwd\n", "[Trash Info]\nPath=/a/%2E%2E/b\n",
                    std::string(100'000, '\xff')));

}  // namespace
}  // namespace klarvik
