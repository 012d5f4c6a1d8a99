#include "panes/kit/row_ranges.h"

#include <gmock/gmock.h>

#include <string_view>

namespace klarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Of rows that are drawn as "x" where they go.
std::vector<RowRange> runsIn(std::string_view rows) {
  return rangesOf(rows.size(), [&](std::size_t row) { return rows[row] == 'x'; });
}

TEST(RowRuns, AreNoneWhereNothingGoes) {
  EXPECT_THAT(runsIn(""), IsEmpty());
  EXPECT_THAT(runsIn("..."), IsEmpty());
}

TEST(RowRuns, AreOneWhereEverythingGoes) {
  EXPECT_THAT(runsIn("xxx"), ElementsAre(RowRange{0, 3}));
}

TEST(RowRuns, EndWhereARowStays) {
  EXPECT_THAT(runsIn("x..xx.x"), ElementsAre(RowRange{0, 1}, RowRange{3, 2}, RowRange{6, 1}));
  EXPECT_THAT(runsIn(".xx."), ElementsAre(RowRange{1, 2}));
}

TEST(RowRuns, AskOnceForEachRowInTheirOrder) {
  std::vector<std::size_t> asked;
  const auto runs = rangesOf(3, [&](std::size_t row) {
    asked.push_back(row);
    return true;
  });
  EXPECT_THAT(asked, ElementsAre(0, 1, 2));
  EXPECT_THAT(runs, ElementsAre(RowRange{0, 3}));
}

}  // namespace
}  // namespace klarvik
