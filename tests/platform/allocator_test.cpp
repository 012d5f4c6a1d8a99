#include "platform/own_process.h"

#include <gtest/gtest.h>
#include <malloc.h>

#include <memory>
#include <vector>

#include "support/child_process.h"

namespace klarvik {
namespace {

/// Whether memory that is freed now is kept in small pieces, to be put together later.
bool keepsSmallPieces() {
  std::vector<std::unique_ptr<int>> many;
  for (int number = 0; number < 1'000; ++number) many.push_back(std::make_unique<int>(number));
  many.clear();
  return ::mallinfo2().fsmblks > 0;
}

TEST(Allocator, PutsFreedMemoryTogetherAtOnce) {
  EXPECT_TRUE(inChild([] {
    disableFastBins();
    return !keepsSmallPieces();
  }));
}

}  // namespace
}  // namespace klarvik
