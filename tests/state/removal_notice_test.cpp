#include "state/removal_notice.h"

#include <gtest/gtest.h>

#include "signal_count.h"

namespace klarvik {
namespace {

TEST(RemovalNotice, SaysNothingOfARemovalThatLeftNothingAlone) {
  RemovalNotice notice;
  const SignalCount changes(notice, &RemovalNotice::changed);
  notice.tell(LeftAlone());
  EXPECT_EQ(notice.text(), "");
  EXPECT_EQ(changes.get(), 0);
}

TEST(RemovalNotice, SaysWhatWasLeftAndWhy) {
  RemovalNotice notice;
  LeftAlone one;
  one.replaced = 1;
  notice.tell(one);
  EXPECT_EQ(notice.text(),
            "1 item was left alone: something else has taken its place since it was listed.");

  LeftAlone many;
  many.replaced = 2;
  many.keptCopies = 1;
  many.notReturned = 3;
  notice.tell(many);
  EXPECT_EQ(
      notice.text(),
      "2 items were left alone: something else has taken their places since they were listed. "
      "1 copy was left alone: it is the same file as the one that stays, under another name, "
      "so deleting it would free nothing. "
      "3 items were not put back: something else has taken their places in the Trash.");
}

TEST(RemovalNotice, SaysThatAToolHasNotRemovedWhatItShould) {
  RemovalNotice notice;
  LeftAlone one;
  one.toolsInVain = 1;
  notice.tell(one);
  EXPECT_EQ(notice.text(),
            "1 item is still there: the tool that removes it failed, was refused, or found nothing "
            "to remove.");
}

TEST(RemovalNotice, SaysThatTheTrashHasNotTakenWhatWasPicked) {
  RemovalNotice notice;
  LeftAlone two;
  two.notMoved = 2;
  notice.tell(two);
  EXPECT_EQ(notice.text(), "2 items were not moved: the Trash could not take them.");
}

TEST(RemovalNotice, StaysUntilItIsDismissed) {
  RemovalNotice notice;
  LeftAlone one;
  one.keptCopies = 1;
  notice.tell(one);
  notice.tell(LeftAlone());
  EXPECT_NE(notice.text(), "");
  const SignalCount changes(notice, &RemovalNotice::changed);
  notice.dismiss();
  notice.dismiss();
  EXPECT_EQ(notice.text(), "");
  EXPECT_EQ(changes.get(), 1);
}

}  // namespace
}  // namespace klarvik
