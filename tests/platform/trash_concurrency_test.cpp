#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <thread>

#include "platform/linux/trash_folder.h"
#include "trash_fixture.h"

namespace klarvik {
namespace {

class TrashConcurrency : public TrashFixture {
 protected:
  static Path itemOf(int i) { return "/Users/ann/" + std::to_string(i) + "/same.txt"; }

  void makeItems(int count) {
    for (int i = 0; i < count; ++i) disk.makeFile(itemOf(i), disk.onDisk(itemOf(i)).native());
  }

  /// Each trashed file holds its own old place, so that its record can be told from another's.
  void expectPairs(std::size_t count) const {
    EXPECT_EQ(countIn(kFiles), count);
    EXPECT_EQ(countIn(kInfo), count);
    for (const auto& entry : std::filesystem::directory_iterator(disk.onDisk(kFiles))) {
      const std::string name = entry.path().filename();
      const auto place = placeInTrashRecord(disk.contentOf(recordOf(name)));
      ASSERT_TRUE(place);
      EXPECT_EQ(disk.contentOf(inFiles(name)), place->native());
    }
  }
};

TEST_F(TrashConcurrency, AHundredProcessesTrashingTheSameNameAtOnceAHundredPairs) {
  constexpr int kProcesses = 100;
  makeItems(kProcesses);
  int starting[2];
  ASSERT_EQ(::pipe(starting), 0);
  std::vector<pid_t> children;
  for (int i = 0; i < kProcesses; ++i) {
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      ::close(starting[1]);
      char signal = 0;
      const bool started = ::read(starting[0], &signal, 1) == 0;
      std::_Exit(started && trash.moveToTrash(itemOf(i), anywhere) ? 0 : 1);
    }
    children.push_back(child);
  }
  ::close(starting[0]);
  ::close(starting[1]);
  for (const pid_t child : children) {
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
  }
  expectPairs(kProcesses);
}

TEST_F(TrashConcurrency, SixThreadsMoveAndPutBackAtOnce) {
  constexpr int kItems = 300;
  constexpr int kThreads = 6;
  makeItems(kItems);
  const auto onSixThreads = [](const auto& work) {
    std::vector<std::jthread> threads;
    for (int first = 0; first < kThreads; ++first) {
      threads.emplace_back([&work, first] {
        for (int i = first; i < kItems; i += kThreads) work(i);
      });
    }
  };

  std::vector<std::optional<Path>> places(kItems);
  onSixThreads(
      [&](int i) { places[static_cast<std::size_t>(i)] = trash.moveToTrash(itemOf(i), anywhere); });
  expectPairs(kItems);

  std::atomic<int> restored = 0;
  onSixThreads([&](int i) {
    restored +=
        trash.putBack(places[static_cast<std::size_t>(i)].value_or(Path()), itemOf(i), anywhere);
  });
  EXPECT_EQ(restored, kItems);
  for (int i = 0; i < kItems; ++i) {
    EXPECT_EQ(disk.contentOf(itemOf(i)), disk.onDisk(itemOf(i)).native());
  }
  expectPairs(0);
}

TEST_F(TrashConcurrency, AnItemThatTwoThreadsRemoveGoesOnce) {
  for (int round = 0; round < 50; ++round) {
    makeItems(1);
    const auto place = trash.moveToTrash(itemOf(0), anywhere);
    ASSERT_TRUE(place);
    std::atomic<int> removed = 0;
    {
      const std::jthread one([&] { removed += trash.remove(*place, anywhere); });
      const std::jthread other([&] { removed += trash.remove(*place, anywhere); });
    }
    EXPECT_EQ(removed, 1);
    expectPairs(0);
  }
}

}  // namespace
}  // namespace klarvik
