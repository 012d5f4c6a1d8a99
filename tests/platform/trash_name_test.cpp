#include "platform/linux/trash_folder.h"

#include <gtest/gtest.h>

#include <set>

namespace klarvik {
namespace {

TEST(TrashName, IsTheItemsOwnAtFirst) {
  EXPECT_EQ(trashName("report.txt", 0), "report.txt");
  EXPECT_EQ(trashName(".bashrc", 0), ".bashrc");
  EXPECT_EQ(trashName("-rf", 0), "-rf");
}

TEST(TrashName, IsNumberedBeforeTheExtensionWhenTaken) {
  EXPECT_EQ(trashName("report.txt", 1), "report.2.txt");
  EXPECT_EQ(trashName("report.txt", 8), "report.9.txt");
  EXPECT_EQ(trashName("report", 1), "report.2");
  EXPECT_EQ(trashName(".bashrc", 1), ".bashrc.2");
}

TEST(TrashName, IsDrawnAtRandomWhenManyAreTaken) {
  std::set<std::string> names;
  for (int i = 0; i < 100; ++i) names.insert(trashName("report.txt", 9));
  EXPECT_GT(names.size(), 90u);
  for (const std::string& name : names) {
    EXPECT_TRUE(name.starts_with("report.") && name.ends_with(".txt")) << name;
  }
}

TEST(TrashName, LeavesRoomForTheRecordOfANameOf255Bytes) {
  const std::string name = std::string(251, 'n') + ".txt";
  for (std::size_t taken = 0; taken < 20; ++taken) {
    const std::string chosen = trashName(name, taken);
    EXPECT_LE(chosen.size() + kTrashRecordSuffix.size(), 255u);
    EXPECT_TRUE(chosen.ends_with(".txt"));
  }
  EXPECT_EQ(trashName(name, 0).size(), 245u);
}

TEST(TrashName, IsNotCutInTheMiddleOfACharacter) {
  std::string name = "x";
  while (name.size() < 255) name += "\xc3\xa9";
  const std::string chosen = trashName(name, 0);
  EXPECT_EQ(chosen.size(), 245u);
  EXPECT_EQ(chosen, name.substr(0, 245));
  EXPECT_EQ(trashName("x" + name.substr(0, 254), 0).size(), 244u);
}

TEST(TrashName, ANameThatIsNotUtf8IsCutToo) {
  EXPECT_EQ(trashName(std::string(255, '\x80'), 0), std::string(245, '\x80'));
}

}  // namespace
}  // namespace klarvik
