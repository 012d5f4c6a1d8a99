#include "core/uuid.h"

#include <gtest/gtest.h>

#include <unordered_set>

namespace klarvik {
namespace {

const std::string upper = "0F9E1C2A-3B4D-4E5F-8A6B-7C8D9E0F1A2B";

TEST(Uuid, WritesItsCanonicalTextInUpperCase) {
  EXPECT_EQ(Uuid::fromText(upper).value().text(), upper);
}

TEST(Uuid, ReadsBothCases) {
  EXPECT_EQ(Uuid::fromText("0f9e1c2a-3b4d-4e5f-8a6b-7c8d9e0f1a2b"), Uuid::fromText(upper));
}

TEST(Uuid, ReadsNoOtherText) {
  for (const std::string& text :
       {std::string(), upper + "0", " " + upper, "{" + upper + "}", upper.substr(1),
        std::string("0F9E1C2A3B4D4E5F8A6B7C8D9E0F1A2B"), upper + std::string(1, '\0'),
        std::string("0F9E1C2A-3B4D-4E5F-8A6B-7C8D9E0F1A2G")}) {
    EXPECT_EQ(Uuid::fromText(text), std::nullopt) << text;
  }
}

TEST(Uuid, IsNeverTheSameTwice) {
  std::unordered_set<Uuid> seen;
  for (int i = 0; i < 10'000; ++i) seen.insert(Uuid::random());
  EXPECT_EQ(seen.size(), 10'000U);
}

TEST(Uuid, SurvivesItsText) {
  const Uuid id = Uuid::random();
  EXPECT_EQ(Uuid::fromText(id.text()), id);
}

}  // namespace
}  // namespace klarvik
