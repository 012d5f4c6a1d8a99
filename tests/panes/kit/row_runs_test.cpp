#include "panes/kit/row_runs.h"

#include <gmock/gmock.h>

#include <string_view>

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Of rows that are drawn as "x" where they go.
std::vector<RowRun> runsIn(std::string_view rows) {
  return runsOf(rows.size(), [&](std::size_t row) { return rows[row] == 'x'; });
}

TEST(RowRuns, AreNoneWhereNothingGoes) {
  EXPECT_THAT(runsIn(""), IsEmpty());
  EXPECT_THAT(runsIn("..."), IsEmpty());
}

TEST(RowRuns, AreOneWhereEverythingGoes) {
  EXPECT_THAT(runsIn("xxx"), ElementsAre(RowRun{0, 3}));
}

TEST(RowRuns, EndWhereARowStays) {
  EXPECT_THAT(runsIn("x..xx.x"), ElementsAre(RowRun{0, 1}, RowRun{3, 2}, RowRun{6, 1}));
  EXPECT_THAT(runsIn(".xx."), ElementsAre(RowRun{1, 2}));
}

TEST(RowRuns, AskOnceForEachRowInTheirOrder) {
  std::vector<std::size_t> asked;
  const auto runs = runsOf(3, [&](std::size_t row) {
    asked.push_back(row);
    return true;
  });
  EXPECT_THAT(asked, ElementsAre(0, 1, 2));
  EXPECT_THAT(runs, ElementsAre(RowRun{0, 3}));
}

}  // namespace
}  // namespace klarvik
