#include "panes/duplicates/duplicate_choice.h"

#include <gmock/gmock.h>

namespace klarvik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

DuplicateFile copy(const Path& url, std::int64_t size, int day) {
  return {.url = url, .size = size, .modifiedDate = Date() + std::chrono::hours(24 * day)};
}

class DuplicateChoiceTest : public testing::Test {
 protected:
  /// One group of three copies of 10 bytes, newest first, and one of two copies of 7.
  DuplicateChoiceTest() {
    std::vector<DuplicateGroup> groups(2);
    groups[0].files = {copy("/new", 10, 3), copy("/deep/middle", 10, 2), copy("/old", 10, 1)};
    groups[1].files = {copy("/x", 7, 2), copy("/y", 7, 1)};
    EXPECT_THAT(choice.replace(unchosen(std::move(groups))), IsEmpty());
  }

  [[nodiscard]] const ChosenGroup& group(std::size_t at) const { return *choice.groups()[at]; }
  [[nodiscard]] std::vector<Path> selected() const {
    std::vector<Path> paths;
    for (const SelectedCopy& copy : choice.selection().list()) {
      paths.push_back(copy.group->files[copy.file].url);
    }
    return paths;
  }
  void remove(const DuplicateChoice::Paths& gone) {
    removed = choice.remove(gone, choice.dissolvedBy(gone));
  }

  DuplicateChoice choice;
  ChosenGroups removed;
};

TEST_F(DuplicateChoiceTest, EveryCopyButTheKeeperIsSelectedAtFirst) {
  EXPECT_EQ(choice.totals(), (DuplicateChoice::Totals{27, 3, 27, 3}));
  EXPECT_THAT(selected(), ElementsAre("/deep/middle", "/old", "/y"));
}

TEST_F(DuplicateChoiceTest, TheHeadlineDoesNotFallWhenCopiesAreDeselected) {
  choice.toggle(group(0), 1);
  EXPECT_EQ(choice.totals(), (DuplicateChoice::Totals{27, 3, 17, 2}));
  EXPECT_THAT(selected(), ElementsAre("/old", "/y"));
  choice.toggle(group(0), 1);
  EXPECT_EQ(choice.totals(), (DuplicateChoice::Totals{27, 3, 27, 3}));
}

TEST_F(DuplicateChoiceTest, TheKeeperCannotBeSelected) {
  choice.toggle(group(0), 0);
  EXPECT_THAT(choice.deselected(), IsEmpty());
  EXPECT_FALSE(choice.isSelected(group(0), 0));
}

TEST_F(DuplicateChoiceTest, AGroupIsTakenOutWholeOrPutInWhole) {
  choice.toggle(group(0));
  EXPECT_THAT(selected(), ElementsAre("/y"));
  EXPECT_THAT(choice.deselected(), SizeIs(2));
  choice.toggle(group(0), 2);
  EXPECT_EQ(group(0).selectedCount, 1U);
  choice.toggle(group(0));
  EXPECT_EQ(group(0).selectedCount, 2U);
  EXPECT_THAT(choice.deselected(), IsEmpty());
}

TEST_F(DuplicateChoiceTest, TheRuleDecidesWhichCopyStays) {
  choice.setKeepRule(DuplicateChoice::KeepRule::oldest);
  EXPECT_THAT(selected(), ElementsAre("/new", "/deep/middle", "/x"));
  choice.setKeepRule(DuplicateChoice::KeepRule::shallowest);
  EXPECT_THAT(selected(), ElementsAre("/deep/middle", "/old", "/y"));
}

TEST_F(DuplicateChoiceTest, ARuleClearsNeitherOverridesNorTheSelection) {
  choice.keepInstead(group(0), 1);
  choice.toggle(group(1), 1);
  choice.setKeepRule(DuplicateChoice::KeepRule::oldest);
  EXPECT_EQ(group(0).keeper, 1U);
  EXPECT_THAT(choice.keepOverrides(), SizeIs(1));
  EXPECT_THAT(choice.deselected(), SizeIs(1));
  EXPECT_THAT(selected(), ElementsAre("/new", "/old", "/x"));
}

TEST_F(DuplicateChoiceTest, AChosenKeeperStaysAndTheFormerOneIsSelected) {
  choice.toggle(group(0), 2);
  choice.keepInstead(group(0), 2);
  EXPECT_EQ(group(0).keeper, 2U);
  EXPECT_THAT(choice.deselected(), IsEmpty());
  EXPECT_THAT(selected(), ElementsAre("/new", "/deep/middle", "/y"));
}

TEST_F(DuplicateChoiceTest, AGroupWithOneFileLeftIsDroppedAndOneWithMoreKeepsItsIdAndHash) {
  const Uuid id = group(0).group.id;
  remove({"/old", "/y"});
  ASSERT_THAT(choice.groups(), SizeIs(1));
  EXPECT_EQ(group(0).group.id, id);
  EXPECT_THAT(group(0).group.files, SizeIs(2));
  EXPECT_THAT(removed, SizeIs(1));
  EXPECT_EQ(choice.totals(), (DuplicateChoice::Totals{10, 1, 10, 1}));
}

TEST_F(DuplicateChoiceTest, ARemovalForgetsWhatWasDeselectedAndOverridden) {
  choice.toggle(group(1), 1);
  choice.keepInstead(group(0), 1);
  remove({"/old"});
  EXPECT_THAT(choice.deselected(), IsEmpty());
  EXPECT_THAT(choice.keepOverrides(), IsEmpty());
  EXPECT_THAT(selected(), ElementsAre("/deep/middle", "/y"));
}

TEST_F(DuplicateChoiceTest, NewGroupsForgetEverythingButTheRule) {
  choice.toggle(group(1), 1);
  choice.keepInstead(group(0), 1);
  choice.setKeepRule(DuplicateChoice::KeepRule::oldest);
  EXPECT_THAT(choice.replace({}), SizeIs(2));
  EXPECT_THAT(choice.deselected(), IsEmpty());
  EXPECT_THAT(choice.keepOverrides(), IsEmpty());
  EXPECT_EQ(choice.totals(), DuplicateChoice::Totals());
  EXPECT_EQ(choice.keepRule(), DuplicateChoice::KeepRule::oldest);
}

TEST_F(DuplicateChoiceTest, AGroupWithoutFilesCountsForNothing) {
  EXPECT_THAT(choice.replace(unchosen(std::vector<DuplicateGroup>(1))), SizeIs(2));
  EXPECT_EQ(choice.totals(), DuplicateChoice::Totals());
  choice.toggle(group(0));
  EXPECT_THAT(selected(), IsEmpty());
}

}  // namespace
}  // namespace klarvik
