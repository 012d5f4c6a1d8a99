#include "base/bytes.h"

#include <gtest/gtest.h>

#include <limits>

namespace klarvik {
namespace {

constexpr auto largest = std::numeric_limits<std::int64_t>::max();

TEST(AddBytes, IsExactUpToTheLargestSum) {
  EXPECT_EQ(addBytes((std::int64_t{1} << 53) + 1, 2), (std::int64_t{1} << 53) + 3);
  EXPECT_EQ(addBytes(largest - 1, 1), largest);
}

TEST(AddBytesDeathTest, EndsTheProgramWhenTheSumNoLongerFits) {
  EXPECT_DEATH(static_cast<void>(addBytes(largest, 1)), "");
}

}  // namespace
}  // namespace klarvik
