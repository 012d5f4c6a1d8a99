#include <gmock/gmock.h>

#include <cerrno>
#include <filesystem>

#include "firefox_profile.h"
#include "support/system_call_faults.h"
#include "support/temporary_folder.h"
#include "tools/firefox_history.h"

namespace klarvik {
namespace {

using Kind = SystemCallFault::Kind;
using Rows = std::vector<std::string>;
using testing::ElementsAre;
using testing::IsEmpty;

/// A history that is cleared with one fault, on a fresh profile each time.
class FirefoxHistorySweep : public testing::Test {
 protected:
  enum class Log { writtenBack, leftByACrash };

  struct Profile {
    explicit Profile(Log log) {
      makePlaces(places);
      makeIcons(icons);
      if (log == Log::leftByACrash) crash();
    }
    /// Leaves what was written last in the log alone.
    void crash() const {
      const BrowserDatabase open(places);
      open.run("PRAGMA wal_autocheckpoint = 0");
      open.run("INSERT INTO moz_places (id, url, foreign_count) VALUES (9, 'https://late/', 1)");
      open.run("INSERT INTO moz_bookmarks VALUES (9, 1, 9, 1, 2, 'Late', 'bm9')");
      for (const char* ending : {"", "-wal"}) {
        std::filesystem::copy_file(places.native() + ending, aside.onDisk("p").native() + ending);
      }
    }
    void comeBackFromTheCrash() const {
      for (const char* ending : {"", "-wal"}) {
        const Path from = aside.onDisk("p").native() + ending;
        if (std::filesystem::exists(from)) {
          std::filesystem::rename(from, Path(places.native() + ending));
        }
      }
    }
    [[nodiscard]] bool clear() const {
      return clearFirefoxHistory({places, icons}, [] { return true; }) == HistoryOutcome::done;
    }
    [[nodiscard]] Rows rows(const std::string& question) const {
      return BrowserDatabase(places).rows(question);
    }
    [[nodiscard]] Rows bookmarks() const {
      return rows(
          "SELECT b.id, b.title, b.parent, b.position, p.url FROM moz_bookmarks b "
          "LEFT JOIN moz_places p ON p.id = b.fk ORDER BY b.id");
    }
    [[nodiscard]] Rows kept() const { return rows("SELECT * FROM moz_keywords"); }
    [[nodiscard]] Rows visits() const { return rows("SELECT id FROM moz_historyvisits"); }

    // In memory, where waiting for the disk takes no time.
    TemporaryFolder folder{"/dev/shm"};
    TemporaryFolder aside{"/dev/shm"};
    Path places = folder.onDisk("places.sqlite");
    Path icons = folder.onDisk("favicons.sqlite");
  };

  static void sweep(Log log, Kind kind, int error) {
    SCOPED_TRACE("with " + std::to_string(error));
    int calls = 0;
    for (bool reached = true; reached && !HasFailure(); ++calls) {
      SCOPED_TRACE("at call " + std::to_string(calls + 1));
      Profile profile(log);
      const Rows bookmarks = profile.bookmarks();
      const Rows kept = profile.kept();
      profile.comeBackFromTheCrash();
      const FaultyRun run =
          runWithFault({.kind = kind, .at = calls + 1, .error = error, .disturbance = {}},
                       [&] { return profile.clear(); });
      reached = run.reached;
      EXPECT_THAT(profile.rows("PRAGMA integrity_check"), ElementsAre("ok"));
      EXPECT_EQ(profile.bookmarks(), bookmarks);
      EXPECT_EQ(profile.kept(), kept);
      const Rows visits = profile.visits();
      EXPECT_TRUE(visits.empty() || visits.size() == 4) << "half of the history is gone";
      if (run.answer) {
        EXPECT_THAT(visits, IsEmpty()) << "the answer is not true";
      } else if (kind == Kind::failsOnce) {
        EXPECT_EQ(visits.size(), 4U) << "the answer is not true";
      }
      EXPECT_THAT(BrowserDatabase(profile.icons).rows("PRAGMA integrity_check"), ElementsAre("ok"));
      EXPECT_TRUE(profile.clear()) << "the next run";
      EXPECT_THAT(profile.visits(), IsEmpty());
      EXPECT_EQ(profile.bookmarks(), bookmarks);
    }
    EXPECT_GT(calls, 50);
  }
};

TEST_F(FirefoxHistorySweep, ACallThatFailsOnceLosesNoBookmarkAndTheAnswerIsTrue) {
  for (const int error : {EIO, ENOSPC}) sweep(Log::writtenBack, Kind::failsOnce, error);
}

TEST_F(FirefoxHistorySweep, ADiskThatIsFullFromSomePointOnLosesNoBookmark) {
  for (const int error : {EIO, ENOSPC, EMFILE}) {
    sweep(Log::writtenBack, Kind::failsFromThere, error);
  }
}

TEST_F(FirefoxHistorySweep, KilledAtEachStepTheHistoryIsWholeOrGoneAndNoBookmarkIsLost) {
  sweep(Log::writtenBack, Kind::killed, 0);
}

TEST_F(FirefoxHistorySweep, ABookmarkInTheLogOfACrashIsLostAtNoStep) {
  sweep(Log::leftByACrash, Kind::killed, 0);
  sweep(Log::leftByACrash, Kind::failsOnce, EIO);
  sweep(Log::leftByACrash, Kind::failsFromThere, ENOSPC);
}

TEST_F(FirefoxHistorySweep, AnotherDatabaseUnderTheNameAtEveryStepStaysAsItIs) {
  int calls = 0;
  for (bool reached = true; reached && !HasFailure(); ++calls) {
    SCOPED_TRACE("at call " + std::to_string(calls + 1));
    const Profile profile(Log::writtenBack);
    const TemporaryFolder other{"/dev/shm"};
    other.makeFile("places.sqlite", std::string_view(firefoxPlaces()));
    const Path aside = profile.aside.onDisk("places.sqlite");
    const auto swap = [&] {
      std::filesystem::rename(profile.places, aside);
      std::filesystem::rename(other.onDisk("places.sqlite"), profile.places);
    };
    const auto isMeant = [&] { return !std::filesystem::exists(aside); };
    const FaultyRun run = runWithFault(
        {.kind = Kind::disturbed, .at = calls + 1, .error = 0, .disturbance = swap}, [&] {
          return clearFirefoxHistory({profile.places, profile.icons}, isMeant) ==
                 HistoryOutcome::done;
        });
    reached = run.reached;
    if (!reached) continue;
    EXPECT_EQ(profile.folder.contentOf("places.sqlite"), firefoxPlaces());
    const BrowserDatabase meant(aside);
    EXPECT_THAT(meant.rows("PRAGMA integrity_check"), ElementsAre("ok"));
    EXPECT_EQ(meant.rows("SELECT id FROM moz_historyvisits").size(), run.answer ? 0U : 4U);
    EXPECT_EQ(meant.rows("SELECT count(*) FROM moz_bookmarks b JOIN moz_places p ON p.id = b.fk"),
              Rows{"2"});
  }
  EXPECT_GT(calls, 50);
}

}  // namespace
}  // namespace klarvik
