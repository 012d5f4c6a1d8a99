#include "platform/linux/json_user_defaults.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <thread>
#include <vector>

#include "support/child_process.h"
#include "support/private_mounts.h"
#include "support/system_call_faults.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string fileName = "klarvik/preferences.json";

class JsonUserDefaultsTest : public testing::Test {
 protected:
  [[nodiscard]] JsonUserDefaults open() const { return JsonUserDefaults(folder()); }
  [[nodiscard]] Path folder() const { return config.path() / "klarvik"; }

  [[nodiscard]] std::vector<std::string> filesKeptAside() const {
    std::vector<std::string> found;
    for (const auto& entry : std::filesystem::directory_iterator(folder())) {
      const std::string name = entry.path().filename();
      if (name.starts_with("preferences.broken-") && name.ends_with(".json")) {
        found.push_back("klarvik/" + name);
      }
    }
    return found;
  }

  TemporaryFolder config;
};

TEST_F(JsonUserDefaultsTest, KeepsTheTypeOfEachValueAcrossARestart) {
  const std::vector<std::pair<std::string, DefaultsValue>> values{
      {"yes", true},
      {"no", false},
      {"zero", std::int64_t{0}},
      {"one", std::int64_t{1}},
      {"largest", std::numeric_limits<std::int64_t>::max()},
      {"smallest", std::numeric_limits<std::int64_t>::min()},
      {"whole float", 1.0},
      {"float", 0.1},
      {"tiny", std::numeric_limits<double>::denorm_min()},
      {"huge", std::numeric_limits<double>::max()},
      {"negative zero", -0.0},
      {"empty text", std::string()},
      {"text", std::string("Ärger\n\"quoted\" \\ \0 end", 22)},
      {"text that looks like bytes", std::string("{\"base64\":\"Zg==\"}")},
      {"empty bytes", Bytes{}},
      {"bytes", Bytes{std::string("\0\xff\xfe{}", 5)}},
      {"", std::string("the empty key")},
  };
  for (const auto& [key, value] : values) ASSERT_TRUE(open().set(key, value)) << key;
  const JsonUserDefaults defaults = open();
  for (const auto& [key, value] : values) EXPECT_EQ(defaults.object(key), value) << key;
}

TEST_F(JsonUserDefaultsTest, AnswersNothingForAKeyThatWasNeverSet) {
  EXPECT_EQ(open().object("useTrash"), std::nullopt);
  EXPECT_TRUE(open().boolean("useTrash", true));
}

TEST_F(JsonUserDefaultsTest, TakesAnythingButABooleanForTheDefaultOfABoolean) {
  ASSERT_TRUE(open().set("useTrash", std::int64_t{0}));
  EXPECT_TRUE(open().boolean("useTrash", true));
  ASSERT_TRUE(open().set("useTrash", false));
  EXPECT_FALSE(open().boolean("useTrash", true));
}

TEST_F(JsonUserDefaultsTest, ForgetsARemovedKeyAndNoOther) {
  auto defaults = open();
  ASSERT_TRUE(defaults.set("clean_schedule", std::string("weekly")));
  ASSERT_TRUE(defaults.set("useTrash", false));
  EXPECT_TRUE(defaults.remove("clean_schedule"));
  EXPECT_EQ(defaults.object("clean_schedule"), std::nullopt);
  EXPECT_EQ(open().object("useTrash"), DefaultsValue(false));
}

TEST_F(JsonUserDefaultsTest, WritesNothingToRemoveAKeyThatIsNotThere) {
  EXPECT_TRUE(open().remove("clean_schedule"));
  EXPECT_FALSE(config.holds("klarvik"));
}

TEST_F(JsonUserDefaultsTest, SeesAtOnceWhatAnotherHasWritten) {
  auto mine = open();
  auto theirs = open();
  for (int turn = 0; turn < 200; ++turn) {
    ASSERT_TRUE(theirs.set("turn", std::int64_t{turn}));
    ASSERT_EQ(mine.object("turn"), DefaultsValue(std::int64_t{turn}));
  }
}

TEST_F(JsonUserDefaultsTest, SeesAChangeToAFileThatHadNotChangedForLong) {
  config.makeFile(fileName, std::string_view(R"({"turn": 1})"));
  const timespec longAgo[2]{{1'000'000'000, 0}, {1'000'000'000, 0}};
  ASSERT_EQ(::utimensat(AT_FDCWD, config.onDisk(fileName).c_str(), longAgo, 0), 0);
  const auto defaults = open();
  EXPECT_EQ(defaults.object("turn"), DefaultsValue(std::int64_t{1}));
  EXPECT_EQ(defaults.object("turn"), DefaultsValue(std::int64_t{1}));
  ASSERT_TRUE(open().set("turn", std::int64_t{2}));
  EXPECT_EQ(defaults.object("turn"), DefaultsValue(std::int64_t{2}));
}

TEST_F(JsonUserDefaultsTest, KeepsWhatAnotherVersionHasStored) {
  config.makeFile(fileName, std::string_view(R"({"future": {"list": [1, null, {"x": 1.5}]},
      "nothing": null, "large": 18446744073709551615, "two": {"base64": "Zg==", "more": 1}})"));
  auto defaults = open();
  for (const auto* key : {"future", "nothing", "large", "two"}) {
    EXPECT_EQ(defaults.object(key), std::nullopt) << key;
  }
  ASSERT_TRUE(defaults.set("useTrash", false));
  const std::string content = config.contentOf(fileName);
  for (const auto* text : {"\"list\"", "null", "1.5", "18446744073709551615", "\"more\": 1"}) {
    EXPECT_NE(content.find(text), std::string::npos) << text << " in " << content;
  }
  EXPECT_THAT(filesKeptAside(), IsEmpty());
}

TEST_F(JsonUserDefaultsTest, RefusesWhatItCouldNotGiveBack) {
  auto defaults = open();
  ASSERT_TRUE(defaults.set("key", std::string("old")));
  EXPECT_FALSE(defaults.set("key", std::nan("")));
  EXPECT_FALSE(defaults.set("key", std::numeric_limits<double>::infinity()));
  EXPECT_FALSE(defaults.set("key", std::string("\xff")));
  EXPECT_FALSE(defaults.set("\xff", true));
  EXPECT_FALSE(defaults.set("key", Bytes{std::string(std::size_t{17} << 20, 'x')}));
  EXPECT_FALSE(defaults.set("key", std::string(std::size_t{17} << 20, 'x')));
  EXPECT_EQ(open().object("key"), DefaultsValue(std::string("old")));
}

TEST_F(JsonUserDefaultsTest, LetsOnlyTheUserReadTheFile) {
  ASSERT_TRUE(open().set("useTrash", false));
  struct ::stat status {};
  ASSERT_EQ(::stat(config.onDisk(fileName).c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777U, 0600U);
}

class BrokenDocument : public JsonUserDefaultsTest,
                       public testing::WithParamInterface<std::string> {};

TEST_P(BrokenDocument,
       CorruptEmptyOrForeignJsonReadsAsDefaultsAndIsKeptAsideBeforeItIsOverwritten) {
  config.makeFile(fileName, std::string_view(GetParam()));
  auto defaults = open();
  EXPECT_EQ(defaults.object("useTrash"), std::nullopt);
  EXPECT_EQ(config.contentOf(fileName), GetParam());
  ASSERT_TRUE(defaults.set("useTrash", false));
  EXPECT_EQ(open().object("useTrash"), DefaultsValue(false));
  const auto aside = filesKeptAside();
  ASSERT_EQ(aside.size(), 1U);
  EXPECT_EQ(config.contentOf(aside.front()), GetParam());
}

INSTANTIATE_TEST_SUITE_P(Of, BrokenDocument,
                         testing::Values("", "\n", "{", R"({"useTrash": fal)",
                                         R"({"useTrash": true} more)", R"([{"useTrash": true}])",
                                         "true", "null", "\xff\xfe{}", "{\"useTrash\": \"\xff\"}",
                                         R"({"useTrash": true, "number": 1e999})", "bplist00\x01",
                                         std::string(4096, '\0'),
                                         "{\"a\":" + std::string(1'000'000, '[') +
                                             std::string(1'000'000, ']') + "}",
                                         "{\"a\":" + std::string(2'000'000, '[')));

TEST_F(JsonUserDefaultsTest, ADocumentThatIsMuchTooLargeReadsAsDefaultsAndIsKeptAside) {
  config.makeSparseFile(fileName, std::int64_t{1} << 40);
  auto defaults = open();
  EXPECT_EQ(defaults.object("useTrash"), std::nullopt);
  ASSERT_TRUE(defaults.set("useTrash", false));
  ASSERT_EQ(filesKeptAside().size(), 1U);
  EXPECT_EQ(std::filesystem::file_size(config.onDisk(filesKeptAside().front())),
            std::uintmax_t{1} << 40);
}

TEST_F(JsonUserDefaultsTest, AFolderOrAPipeInThePlaceOfTheDocumentIsKeptAside) {
  config.makeFile(fileName + "/inside", std::string_view("x"));
  ASSERT_TRUE(open().set("useTrash", false));
  ASSERT_EQ(filesKeptAside().size(), 1U);
  EXPECT_EQ(config.contentOf(filesKeptAside().front() + "/inside"), "x");

  std::filesystem::remove(config.onDisk(fileName));
  ASSERT_EQ(::mkfifo(config.onDisk(fileName).c_str(), 0600), 0);
  EXPECT_EQ(open().object("useTrash"), std::nullopt);
  ASSERT_TRUE(open().set("useTrash", true));
  EXPECT_EQ(filesKeptAside().size(), 2U);
  EXPECT_EQ(open().object("useTrash"), DefaultsValue(true));
}

TEST_F(JsonUserDefaultsTest, EveryBrokenDocumentIsKeptAsideUnderANameOfItsOwn) {
  for (int turn = 1; turn <= 3; ++turn) {
    config.makeFile(fileName, std::string_view("broken"));
    ASSERT_TRUE(open().set("turn", std::int64_t{turn}));
    EXPECT_EQ(filesKeptAside().size(), static_cast<std::size_t>(turn));
  }
}

TEST_F(JsonUserDefaultsTest, ADocumentBehindLinksIsWrittenWhereItIs) {
  config.makeFile("dotfiles/preferences.json", std::string_view("{\"kept\": true}"));
  config.makeLink("dotfiles/link", "preferences.json");
  config.makeLink(fileName, config.onDisk("dotfiles/link"));
  ASSERT_TRUE(open().set("useTrash", true));
  EXPECT_TRUE(std::filesystem::is_symlink(config.onDisk(fileName)));
  EXPECT_TRUE(std::filesystem::is_symlink(config.onDisk("dotfiles/link")));
  EXPECT_THAT(config.contentOf("dotfiles/preferences.json"), testing::HasSubstr("useTrash"));
  EXPECT_EQ(open().object("kept"), DefaultsValue(true));
  EXPECT_EQ(open().object("useTrash"), DefaultsValue(true));

  config.makeFile("dotfiles/preferences.json", std::string_view("broken"));
  ASSERT_TRUE(open().set("useTrash", false));
  EXPECT_TRUE(std::filesystem::is_symlink(config.onDisk(fileName)));
  EXPECT_EQ(open().object("useTrash"), DefaultsValue(false));
}

TEST_F(JsonUserDefaultsTest, ALinkInACircleStaysAndOneToNothingIsFilledIn) {
  config.makeLink(fileName, config.onDisk(fileName));
  EXPECT_FALSE(open().set("useTrash", true));
  std::filesystem::remove(config.onDisk(fileName));
  config.makeFolder("dotfiles");
  config.makeLink(fileName, config.onDisk("dotfiles/new.json"));
  ASSERT_TRUE(open().set("useTrash", true));
  EXPECT_TRUE(config.holds("dotfiles/new.json"));
}

TEST_F(JsonUserDefaultsTest, GivesUpWhenAnotherNeverLetsGoOfTheLock) {
  ASSERT_TRUE(open().set("useTrash", true));
  const auto held = FileLock::take(folder() / "preferences.lock", std::chrono::milliseconds(0));
  ASSERT_TRUE(held);
  EXPECT_FALSE(open().set("useTrash", false));
  EXPECT_EQ(open().object("useTrash"), DefaultsValue(true));
}

TEST_F(JsonUserDefaultsTest, AReadOnlyFolderKeepsWhatItHoldsAndSetAnswersFalse) {
  ASSERT_TRUE(open().set("useTrash", true));
  ::chmod(config.path().c_str(), 0755);
  ::chmod(config.onDisk(fileName).c_str(), 0644);
  ::chmod(folder().c_str(), 0555);
  EXPECT_TRUE(inChildWithoutPrivileges([&] {
    auto defaults = open();
    return !defaults.set("useTrash", false) && !defaults.remove("useTrash") &&
           defaults.object("useTrash") == DefaultsValue(true);
  }));
  ::chmod(folder().c_str(), 0755);
  EXPECT_EQ(open().object("useTrash"), DefaultsValue(true));
}

TEST_F(JsonUserDefaultsTest, ADocumentThatMayNotBeReadIsNeverReplaced) {
  ASSERT_TRUE(open().set("useTrash", false));
  const std::string before = config.contentOf(fileName);
  ::chmod(config.path().c_str(), 0755);
  ::chmod(folder().c_str(), 0777);
  ::chmod((folder() / "preferences.lock").c_str(), 0666);
  ::chmod(config.onDisk(fileName).c_str(), 0);
  EXPECT_TRUE(inChildWithoutPrivileges([&] {
    auto defaults = open();
    return defaults.object("useTrash") == std::nullopt && !defaults.set("useTrash", true) &&
           !defaults.remove("useTrash");
  }));
  ::chmod(config.onDisk(fileName).c_str(), 0600);
  EXPECT_EQ(config.contentOf(fileName), before);
}

TEST_F(JsonUserDefaultsTest, TwoProcessesWritingAtOnceBothKeysSurvive) {
  constexpr int processes = 4;
  constexpr int keysOfEach = 25;
  // On a busy machine one may find the document locked for longer than it waits; it is then told
  // that nothing was stored, and asks again.
  constexpr int attempts = 30;
  std::vector<::pid_t> children;
  for (int process = 0; process < processes; ++process) {
    const ::pid_t child = ::fork();
    if (child == 0) {
      auto defaults = open();
      bool stored = true;
      for (int key = 0; key < keysOfEach; ++key) {
        const std::string name = std::to_string(process) + '.' + std::to_string(key);
        bool isStored = false;
        for (int attempt = 0; attempt < attempts && !isStored; ++attempt) {
          isStored = defaults.set(name, std::int64_t{key});
        }
        stored = isStored && stored;
      }
      ::_exit(stored ? 0 : 1);
    }
    children.push_back(child);
  }
  for (const ::pid_t child : children) {
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
  }
  for (int process = 0; process < processes; ++process) {
    for (int key = 0; key < keysOfEach; ++key) {
      const std::string name = std::to_string(process) + '.' + std::to_string(key);
      EXPECT_EQ(open().object(name), DefaultsValue(std::int64_t{key})) << name;
    }
  }
}

TEST_F(JsonUserDefaultsTest, ManyThreadsWritingAtOnceEveryKeySurvives) {
  auto defaults = open();
  {
    std::vector<std::jthread> threads;
    for (int thread = 0; thread < 4; ++thread) {
      threads.emplace_back([&defaults, thread] {
        for (int key = 0; key < 25; ++key) {
          defaults.set(std::to_string(thread) + '.' + std::to_string(key), true);
        }
      });
    }
  }
  for (int thread = 0; thread < 4; ++thread) {
    for (int key = 0; key < 25; ++key) {
      EXPECT_TRUE(defaults.boolean(std::to_string(thread) + '.' + std::to_string(key), false));
    }
  }
}

using Kind = SystemCallFault::Kind;

// After a change that went wrong somewhere: all of the old or all of the new, and the next change
// works.
class FaultyChange : public JsonUserDefaultsTest {
 protected:
  const DefaultsValue oldValue = std::string(10'000, 'o');
  const DefaultsValue newValue = std::string(20'000, 'n');

  FaultyRun change(const SystemCallFault& fault) {
    return runWithFault(fault, [&] { return open().set("history", newValue); });
  }

  void expectOldOrNew(const FaultyRun& run) {
    const auto value = open().object("history");
    EXPECT_TRUE(value == oldValue || value == newValue);
    EXPECT_TRUE(run.killed || (value == newValue) == run.answer);
    EXPECT_EQ(open().object("other"), DefaultsValue(true));
    EXPECT_THAT(filesKeptAside(), IsEmpty());
    EXPECT_TRUE(open().set("history", oldValue));
    EXPECT_EQ(open().object("history"), oldValue);
  }

  void sweep(Kind kind, int error = 0) {
    SCOPED_TRACE("errno " + std::to_string(error));
    ASSERT_TRUE(open().set("history", oldValue));
    ASSERT_TRUE(open().set("other", true));
    int at = 1;
    for (; at < 100; ++at) {
      SCOPED_TRACE("system call " + std::to_string(at));
      const FaultyRun run = change({.kind = kind, .at = at, .error = error, .disturbance = {}});
      if (!run.reached) break;
      expectOldOrNew(run);
    }
    EXPECT_GT(at, 8);
    EXPECT_LT(at, 100);
  }
};

TEST_F(FaultyChange, KilledAtEachStepOfASaveOldOrNewNeverTorn) {
  sweep(Kind::killed);
}

TEST_F(FaultyChange, FullDiskAtEachStepOfASaveOldOrNewNeverTorn) {
  sweep(Kind::failsFromThere, ENOSPC);
}

TEST_F(FaultyChange, OneFailingCallAtEachStepOfASaveOldOrNewNeverTorn) {
  for (const int error : {EIO, ENOSPC, EACCES, EINTR, EMFILE}) sweep(Kind::failsOnce, error);
}

TEST_F(FaultyChange, CallsThatFailForGoodFromEachStepOnOldOrNewNeverTorn) {
  for (const int error : {EIO, EACCES, EMFILE}) sweep(Kind::failsFromThere, error);
}

TEST_F(FaultyChange, KilledAtEachStepWhileABrokenDocumentIsReplacedLosesNothingOfIt) {
  int at = 1;
  for (; at < 100; ++at) {
    SCOPED_TRACE("system call " + std::to_string(at));
    std::filesystem::remove_all(folder());
    config.makeFile(fileName, std::string_view("broken"));
    if (!change({.kind = Kind::killed, .at = at, .error = 0, .disturbance = {}}).reached) break;
    const auto aside = filesKeptAside();
    const bool inPlace = aside.empty() && config.contentOf(fileName) == "broken";
    const bool keptAside = aside.size() == 1 && config.contentOf(aside.front()) == "broken";
    EXPECT_TRUE(inPlace || keptAside);
    EXPECT_TRUE(open().set("history", newValue));
    EXPECT_EQ(open().object("history"), newValue);
    EXPECT_EQ(filesKeptAside().size(), 1U);
  }
  EXPECT_GT(at, 8);
  EXPECT_LT(at, 100);
}

TEST_F(JsonUserDefaultsTest, AFullDiskKeepsTheOldDocumentAndSetAnswersFalse) {
  EXPECT_TRUE(passesWithPrivateMounts([&] {
    mountTmpfs(config.path(), "size=64k");
    auto defaults = open();
    const DefaultsValue old = std::string(10'000, 'o');
    EXPECT_TRUE(defaults.set("history", old));
    EXPECT_FALSE(defaults.set("history", std::string(60'000, 'n')));
    EXPECT_EQ(defaults.object("history"), old);
    EXPECT_TRUE(defaults.set("small", true));
  }));
}

}  // namespace
}  // namespace klarvik
