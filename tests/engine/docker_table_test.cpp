#include "engine/docker_table.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace klarvik {
namespace {

constexpr const char* header = "TYPE TOTAL ACTIVE SIZE RECLAIMABLE\n";

TEST(DockerTable, AddsUpTheLastColumnButOne) {
  EXPECT_EQ(dockerReclaimableBytes("TYPE            TOTAL     ACTIVE    SIZE      RECLAIMABLE\n"
                                   "Images          5         2         1.2GB     800MB (66%)\n"
                                   "Containers      3         1         62.5kB    20kB (32%)\n"
                                   "Local Volumes   2         2         100MB     0B (0%)\n"),
            800'020'000);
}

TEST(DockerTable, TakesTheSizeColumnOfALineWithoutAPercentage) {
  EXPECT_EQ(dockerReclaimableBytes(std::string(header) + "Build Cache 12 0 2GB 1GB"),
            2'000'000'000);
}

TEST(DockerTable, NeverReadsTheFirstLine) {
  EXPECT_EQ(dockerReclaimableBytes("Images 5 2 1.2GB 800MB (66%)"), 0);
  EXPECT_EQ(dockerReclaimableBytes("Images 5 2 1.2GB 800MB (66%)\n"), 0);
  EXPECT_EQ(dockerReclaimableBytes(""), 0);
}

TEST(DockerTable, SkipsLinesOfThreePiecesAndFewer) {
  EXPECT_EQ(dockerReclaimableBytes(std::string(header) + "a 5GB b\n5GB\n\n"), 0);
  EXPECT_EQ(dockerReclaimableBytes(std::string(header) + "a b 5GB c\n"), 5'000'000'000);
}

TEST(DockerTable, ATotalBeyond64BitsCountsNothing) {
  const std::string line = "Images 5 2 9e18B 9e18B (100%)\n";
  EXPECT_EQ(dockerReclaimableBytes(header + line), 9'000'000'000'000'000'000);
  EXPECT_EQ(dockerReclaimableBytes(header + line + line), 0);
}

TEST(DockerTable, ReadsDecimalUnits) {
  EXPECT_EQ(dockerSizeBytes("2TB"), 2'000'000'000'000);
  EXPECT_EQ(dockerSizeBytes("1.5GB"), 1'500'000'000);
  EXPECT_EQ(dockerSizeBytes("800MB"), 800'000'000);
  EXPECT_EQ(dockerSizeBytes("62kB"), 62'000);
  EXPECT_EQ(dockerSizeBytes("999B"), 999);
  EXPECT_EQ(dockerSizeBytes("0B"), 0);
}

TEST(DockerTable, ReadsACommaAsAPoint) {
  EXPECT_EQ(dockerSizeBytes("1,5GB"), 1'500'000'000);
}

TEST(DockerTable, TruncatesTowardsZero) {
  EXPECT_EQ(dockerSizeBytes("1.9B"), 1);
  EXPECT_EQ(dockerSizeBytes("-1.9B"), -1);
}

TEST(DockerTable, TellsUpperFromLowerCaseInAUnit) {
  EXPECT_EQ(dockerSizeBytes("62KB"), 0);
  EXPECT_EQ(dockerSizeBytes("62gb"), 0);
}

TEST(DockerTable, CountsAPieceThatIsNoSizeAsNothing) {
  for (const char* const piece :
       {"", "B", "GB", "xGB", "1.2.3GB", "(66%)", "12", "nanGB", "infGB", "1e999GB", "1e30TB",
        "-1e30TB", "\xff\xfeGB", "1e18446744073709551616B"}) {
    EXPECT_EQ(dockerSizeBytes(piece), 0) << piece;
  }
}

TEST(DockerTable, KeepsTheLargestSizeThatFits) {
  EXPECT_EQ(dockerSizeBytes("9223372036854774784B"), 9'223'372'036'854'774'784);
  EXPECT_EQ(dockerSizeBytes("9223372036854775808B"), 0);
}

}  // namespace
}  // namespace klarvik
