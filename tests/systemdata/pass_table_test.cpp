#include "systemdata/pass_table.h"

#include <gtest/gtest.h>

#include <set>

namespace klarvik {
namespace {

TEST(PassTable, HasOnePassForEachKind) {
  std::set<SystemDataSubCategory> kinds;
  for (const Pass& pass : passTable()) kinds.insert(pass.kind);
  EXPECT_EQ(passTable().size(), systemDataSubCategoryCount);
  EXPECT_EQ(kinds.size(), systemDataSubCategoryCount);
}

TEST(PassTable, FractionsRiseToBelowOne) {
  double last = 0;
  for (const Pass& pass : passTable()) {
    EXPECT_GT(pass.fraction, last) << pass.label;
    last = pass.fraction;
  }
  EXPECT_LT(last, 1);
}

}  // namespace
}  // namespace klarvik
