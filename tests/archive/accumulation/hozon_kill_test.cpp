// SPDX-License-Identifier: MIT
// A program that ends in the midst of storing a sum leaves the sum before or the whole new one.
#include <gtest/gtest.h>

#include "archive/accumulation/hozon_samples.h"
#include "support/child_process.h"
#include "support/sample.h"

namespace rbt::test {

namespace {

class KilledSum : public testing::Test {
 protected:
  /// What every moment of a kill leaves of a save over `before`; null: there is no file yet.
  void ExpectAllOrNothing(const TallyTable* before) const {
    const TallyTable old = before == nullptr ? TallyTable() : KeptForSum(*before);
    const TallyTable fresh = KeptForSum(SampleSum(9));
    int untouched = 0;
    int done = 0;
    TryMoments([&](int n) {
      SCOPED_TRACE(n);
      Delete_Hozon();
      if (before != nullptr) Save_Hozon(*before);
      const bool killed = KilledBeforeChange(n, [] { Save_Hozon(SampleSum(9)); });
      const TallyTable now = Load_Hozon();
      EXPECT_TRUE(now == old || now == fresh);
      (now == fresh ? done : untouched) += 1;
      return killed;
    });
    EXPECT_GT(untouched, 2);
    EXPECT_GT(done, 0);
  }

  std::filesystem::path Journal() const { return root_.Data("hozon.MDB-journal"); }

  RootFolder root_;
};

}  // namespace

TEST_F(KilledSum, AFirstSaveIsWholeOrNot) { ExpectAllOrNothing(nullptr); }

TEST_F(KilledSum, ASaveOverASumIsWholeOrNot) {
  const TallyTable before = SampleSum(3);
  ExpectAllOrNothing(&before);
}

TEST_F(KilledSum, DeletingTakesTheJournalOfAKilledSaveAlong) {
  int journals = 0;
  TryMoments([&](int n) {
    SCOPED_TRACE(n);
    Save_Hozon(SampleSum(3));
    const bool killed = KilledBeforeChange(n, [] { Save_Hozon(SampleSum(9)); });
    if (std::filesystem::exists(Journal())) ++journals;
    Delete_Hozon();
    EXPECT_FALSE(std::filesystem::exists(Journal()));
    return killed;
  });
  EXPECT_GT(journals, 0);
}

/// Killed between the two: the file is gone, its journal stands.
TEST_F(KilledSum, AJournalWithoutItsFileReachesNoLaterSum) {
  int journals = 0;
  TryMoments([&](int n) {
    SCOPED_TRACE(n);
    Save_Hozon(SampleSum(3));
    const bool killed = KilledBeforeChange(n, [] { Save_Hozon(SampleSum(9)); });
    if (std::filesystem::exists(Journal())) ++journals;
    std::filesystem::remove(root_.Data("hozon.MDB"));
    Save_Hozon(SampleSum(5));
    EXPECT_FALSE(std::filesystem::exists(Journal()));
    EXPECT_EQ(Load_Hozon(), KeptForSum(SampleSum(5)));
    Delete_Hozon();
    return killed;
  });
  EXPECT_GT(journals, 0);
}

TEST_F(KilledSum, ASaveWhoseSystemCallFailsIsWholeOrAFaultThatLeavesTheSumBefore) {
  if (!CanFailCalls()) GTEST_SKIP() << "calls cannot be made to fail on this machine";
  int faults = 0;
  for (int n = 1;; n += FailingCallStep(3)) {
    SCOPED_TRACE(n);
    Delete_Hozon();
    Save_Hozon(SampleSum(3));
    const Ending ending = WithFailingCall(n, [] {
      Save_Hozon(SampleSum(9));
      return true;
    });
    if (ending == Ending::too_few_calls) break;
    EXPECT_TRUE(ending == Ending::well || ending == Ending::fault);
    const TallyTable now = Load_Hozon();
    EXPECT_TRUE(now == KeptForSum(SampleSum(3)) || now == KeptForSum(SampleSum(9)));
    if (ending == Ending::well) {
      EXPECT_EQ(now, KeptForSum(SampleSum(9)));
    } else {
      ++faults;
    }
  }
  EXPECT_GT(faults, 0);
}

}  // namespace rbt::test
