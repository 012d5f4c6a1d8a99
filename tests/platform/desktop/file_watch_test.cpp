#include "platform/desktop/observed_user_defaults.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <utility>

#include "support/application/main_loop.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

class FileWatchTest : public testing::Test {
 protected:
  void watch() {
    _watch.emplace(file, [this] { ++told; });
  }
  void write(const Path& path, const std::string& text) const {
    std::ofstream(path, std::ios::trunc) << text;
  }
  /// As an editor that is careful does it.
  void replace(const std::string& text) const {
    write(folder / "new", text);
    std::filesystem::rename(folder / "new", file);
  }
  /// Whether it has been told of since this was asked last.
  [[nodiscard]] bool isTold() {
    const bool was = turnMainLoopUntil([this] { return told > 0; });
    // A change may be told of several times.
    while (std::exchange(told, 0) > 0) QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    return was;
  }

  const TemporaryFolder home;
  const Path folder = home.path() / ".config/klarvik";
  const Path file = folder / "preferences.json";
  int told = 0;

 private:
  std::optional<FileWatch> _watch;
};

TEST_F(FileWatchTest, TellsOfAFileThatIsWrittenInPlace) {
  std::filesystem::create_directories(folder);
  write(file, "{}");
  watch();
  write(file, "{\"a\": true}");
  EXPECT_TRUE(isTold());
  write(file, "{\"a\": false}");
  EXPECT_TRUE(isTold());
}

TEST_F(FileWatchTest, TellsOfAFileThatIsReplacedEachTime) {
  std::filesystem::create_directories(folder);
  write(file, "{}");
  watch();
  for (const char* text : {"1", "2", "3"}) {
    replace(text);
    EXPECT_TRUE(isTold()) << text;
  }
  write(file, "4");
  EXPECT_TRUE(isTold()) << "the replaced file is watched too";
}

TEST_F(FileWatchTest, TellsOfAFileThatIsRemovedAndOfOneThatIsMade) {
  std::filesystem::create_directories(folder);
  watch();
  write(file, "{}");
  EXPECT_TRUE(isTold());
  std::filesystem::remove(file);
  EXPECT_TRUE(isTold());
}

TEST_F(FileWatchTest, WaitsForTheFolderInAHomeWithoutAConfigurationDirectory) {
  watch();
  std::filesystem::create_directories(folder);
  write(file, "{}");
  EXPECT_TRUE(isTold());
  write(file, "{\"a\": true}");
  EXPECT_TRUE(isTold());
}

TEST_F(FileWatchTest, SurvivesTheLossOfTheWholeFolder) {
  std::filesystem::create_directories(folder);
  write(file, "{}");
  watch();
  std::filesystem::remove_all(home.path() / ".config");
  EXPECT_TRUE(isTold());
  std::filesystem::create_directories(folder);
  EXPECT_TRUE(isTold());
  write(file, "{}");
  EXPECT_TRUE(isTold());
}

TEST_F(FileWatchTest, NoticesThatItsFolderIsAnotherOneNow) {
  std::filesystem::create_directories(folder);
  write(file, "{}");
  watch();
  std::filesystem::rename(folder, home.path() / ".config/old");
  EXPECT_TRUE(isTold());
  std::filesystem::create_directories(folder);
  EXPECT_TRUE(isTold());
  write(file, "{}");
  EXPECT_TRUE(isTold());
}

}  // namespace
}  // namespace klarvik
