#include "state/picked_files_removal.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/application/main_loop.h"
#include "support/fake_desktop.h"

namespace klarvik {
namespace {

using ::testing::ElementsAre;
using ::testing::UnorderedElementsAre;

class PickedFilesRemovalTest : public ::testing::Test {
 protected:
  PickedFile file(const std::string& name, std::int64_t bytes = 100) {
    const Path place = "/Users/ann/Documents/" + name;
    around.disk.makeFile(place, bytes);
    return {
        .url = place, .name = name, .size = bytes, .identity = entryIdentity(around.files, place)};
  }
  QCoro::Task<> trash(std::vector<PickedFile> files, ScannerEngine::PickedFileCheck check = {}) {
    const std::size_t count = files.size();
    auto pick = [files = std::move(files), check = std::move(check)](LeftAlone&) {
      return PickedFilesRemoval::Pick{files, check};
    };
    moved = co_await removal.trash(count, std::move(pick));
  }
  [[nodiscard]] bool ended() {
    return turnMainLoopUntil([this] { return moved.has_value(); });
  }

  FakeDesktopOnDisk around;
  std::optional<std::set<Path>> moved;
  RemovalNotice notice;
  PickedFilesRemoval removal{around.desktop, notice};
};

TEST_F(PickedFilesRemovalTest, MovesTheFilesAndTellsWhich) {
  trash({file("a"), file("b")});
  EXPECT_TRUE(removal.isRunning());
  ASSERT_TRUE(removal.progress());
  EXPECT_EQ(removal.progress()->total, 2);
  ASSERT_TRUE(ended());
  EXPECT_THAT(*moved, UnorderedElementsAre("/Users/ann/Documents/a", "/Users/ann/Documents/b"));
  EXPECT_FALSE(removal.isRunning());
  EXPECT_FALSE(removal.progress());
  EXPECT_FALSE(around.disk.holds("/Users/ann/Documents/a"));
}

TEST_F(PickedFilesRemovalTest, AFileThatTheCheckRefusesStays) {
  trash({file("a"), file("b")}, [](const PickedFile& picked) { return picked.name != "a"; });
  ASSERT_TRUE(ended());
  EXPECT_THAT(*moved, ElementsAre("/Users/ann/Documents/b"));
  EXPECT_TRUE(around.disk.holds("/Users/ann/Documents/a"));
}

TEST_F(PickedFilesRemovalTest, CancelledHalfWayItAnswersWhatWent) {
  std::vector<PickedFile> files;
  for (int number = 0; number < 100; ++number) files.push_back(file(std::to_string(number)));
  std::atomic<int> asked = 0;
  trash(files, [&](const PickedFile&) {
    if (++asked == 3) removal.cancel();
    return true;
  });
  ASSERT_TRUE(ended());
  EXPECT_GE(moved->size(), 3);
  EXPECT_LT(moved->size(), 100);
  for (const PickedFile& picked : files) {
    EXPECT_NE(moved->contains(picked.url), around.disk.holds(picked.url)) << picked.url;
  }
}

TEST_F(PickedFilesRemovalTest, EndingTheProgramWaitsForTheFilesInHand) {
  trash({file("a"), file("b")});
  removal.finish();
  ASSERT_TRUE(moved);
  for (const char* const place : {"/Users/ann/Documents/a", "/Users/ann/Documents/b"}) {
    EXPECT_NE(moved->contains(place), around.disk.holds(place)) << place;
  }
}

}  // namespace
}  // namespace klarvik
