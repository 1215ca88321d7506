// SPDX-License-Identifier: MIT
#include "tally/engine/stock_engine.h"

#include <limits>
#include <optional>
#include <random>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "platform/fault.h"
#include "support/fault_of.h"

namespace rbt {
namespace {

EngineSettings WithLimits(std::int32_t min_mm, std::int32_t max_mm) {
  EngineSettings settings;
  for (const int code : {6, 7, 9, 10, 11, 12, 13, 16, 19, 22, 25, 29, 32, 35, 38, 41, 51}) {
    settings.limits.Set(code, min_mm, max_mm);
  }
  return settings;
}

EngineSettings Usual(std::int32_t loss_priority = 0) {
  EngineSettings settings = WithLimits(3500, 12000);
  settings.loss_priority = loss_priority;
  return settings;
}

StockResult Stock(std::int32_t cut_mm, std::int32_t count, const EngineSettings& settings) {
  return ComputeStock(cut_mm, Currency::FromInteger(count), 10, settings);
}

std::optional<FaultKind> FaultOf(std::int32_t cut_mm, std::int32_t count, std::int32_t diameter_code,
                                 const EngineSettings& settings) {
  try {
    ComputeStock(cut_mm, Currency::FromInteger(count), diameter_code, settings);
  } catch (const Fault& fault) {
    return fault.Kind();
  }
  return std::nullopt;
}

struct WorkedResult {
  std::int32_t cut;
  std::int32_t count;
  std::int32_t loss_priority;
  double stock_m;
  std::int32_t bars;
};

TEST(StockEngine, GivesTheWorkedResults) {
  constexpr WorkedResult kResults[] = {
      {6000, 7, 0, 6.0, 7},    // a stock length itself
      {1200, 2, 0, 3.5, 1},    // 2400 fit the shortest bar
      {1300, 5, 0, 6.5, 1},    // 6500 end to end
      {1310, 5, 0, 7.0, 1},    // 6550 end to end, up to the next half metre
      {2400, 10, 0, 12.0, 2},  // no remainder first at 12.0 m
      {2000, 7, 0, 4.0, 4},    // no remainder first at 4.0 m
      {2000, 7, 1, 8.0, 2},    // one piece wasted at 4.0 m and at 8.0 m: the longer
      {3300, 5, 0, 10.0, 2},   // 100 mm left over at 10.0 m
      {3300, 5, 1, 3.5, 5},    // 200 mm left over five times
  };
  for (const WorkedResult& r : kResults) {
    const StockResult result = Stock(r.cut, r.count, Usual(r.loss_priority));
    EXPECT_EQ(result.StockLengthM, r.stock_m) << r.cut << " x " << r.count << ", " << r.loss_priority;
    EXPECT_EQ(result.StockBars, r.bars) << r.cut << " x " << r.count << ", " << r.loss_priority;
  }
}

TEST(StockEngine, TakesACutLongerThan12MetresAs12Metres) {
  EXPECT_EQ(Stock(12500, 2, Usual()), Stock(12000, 2, Usual()));
  EXPECT_EQ(Stock(12500, 2, Usual()), (StockResult{2, 1, 12.0}));
}

TEST(StockEngine, TakesNoStockBelowTheShortestForAnExactMultiple) {
  EXPECT_EQ(Stock(3000, 1, Usual()), (StockResult{1, 1, 3.5}));
}

TEST(StockEngine, TakesAStockLengthAsItIsThoughAllPiecesWouldFitOneBar) {
  EXPECT_EQ(Stock(4000, 3, Usual()), (StockResult{3, 1, 4.0}));
  EXPECT_EQ(Stock(3500, 2, Usual()), (StockResult{2, 1, 3.5}));  // the shortest itself too, not one of 7.0 m
}

TEST(StockEngine, ComparesTheShortestStockInFullWithTheHalfMetresOfACut) {
  // 3.6 m is 7.2 half metres, more than the 7 of the cut: no stock of 3.5 m, one bar of the shortest
  EXPECT_EQ(Stock(3500, 1, WithLimits(3600, 12000)), (StockResult{1, 1, 3.6}));
}

TEST(StockEngine, BuysOneBarForPiecesThatFillItToItsEnd) {
  EXPECT_EQ(Stock(1800, 2, WithLimits(3600, 12000)), (StockResult{1, 2, 3.6}));  // 3600 of the shortest
  EXPECT_EQ(Stock(2000, 6, Usual()), (StockResult{1, 6, 12.0}));                 // 12000 of the longest
}

TEST(StockEngine, TakesTheNextHalfMetreForOneMillimetre) {
  EXPECT_EQ(Stock(3501, 1, Usual()), (StockResult{1, 1, 4.0}));
  EXPECT_EQ(Stock(1167, 3, Usual()), (StockResult{1, 3, 4.0}));  // 3501 end to end
}

TEST(StockEngine, CountsPlusAsLengthOfEveryBar) {
  EngineSettings settings = Usual();
  settings.plus = 10;
  EXPECT_EQ(Stock(3005, 5, settings), (StockResult{3, 2, 6.0}));
  // 7005 end to end is 5 mm over 7.0 m, which 10 mm allow
  EXPECT_EQ(Stock(1401, 5, settings), (StockResult{1, 5, 7.0}));
  EXPECT_EQ(Stock(1401, 5, Usual()), (StockResult{1, 5, 7.5}));
}

TEST(StockEngine, RefusesAStockWhosePiecesDoNotComeOutEvenWhenTheLossHasPriority) {
  EXPECT_EQ(Stock(1500, 10, Usual(1)), (StockResult{2, 5, 7.5}));
  EXPECT_EQ(Stock(1500, 10, Usual(0)), (StockResult{4, 3, 4.5}));
}

TEST(StockEngine, ClaimsNoMorePiecesPerBarThanThereAre) {
  EXPECT_EQ(Stock(1000, 2, Usual()), (StockResult{1, 2, 3.5}));
}

TEST(StockEngine, LooksAtTheLongestStockOnlyInTheSearch) {
  EXPECT_EQ(Stock(11500, 2, WithLimits(3500, 11000)), (StockResult{2, 1, 11.5}));
  EXPECT_EQ(Stock(11700, 2, WithLimits(3500, 11000)), (StockResult{2, 1, 12.0}));
}

TEST(StockEngine, RunsOnTo12MetresWhenTheStepsMissTheLongestStock) {
  // 3500, 4000, ... never is 10800, so 11.0 m is tried too: 11.0 m leaves 200 mm of three pieces of 3600
  EXPECT_EQ(Stock(3600, 9, WithLimits(3500, 10800)), (StockResult{3, 3, 11.0}));
  EXPECT_EQ(Stock(3600, 9, WithLimits(3500, 10500)).StockLengthM, 7.5);  // 300 mm at 7.5 m
}

TEST(StockEngine, RunsOnPastALongestStockThatLiesBetweenTwoSteps) {
  // 9.5 m and 10.0 m miss 9800; 11.0 m leaves 200 mm where 7.5 m leaves 300
  EXPECT_EQ(Stock(3600, 9, WithLimits(3500, 9800)), (StockResult{3, 3, 11.0}));
}

TEST(StockEngine, NeverTries12AndAHalfMetres) {
  // two pieces would fill 12.5 m; 6.5 m leaves 250 mm, the least of the lengths that are tried
  EXPECT_EQ(Stock(6250, 4, WithLimits(3500, 12500)), (StockResult{4, 1, 6.5}));
}

TEST(StockEngine, LetsLengthsThatWereNotTriedTakePartWithALossOf5Metres) {
  // 10.5 m alone is tried and leaves 5100 of 5400: every other length counts as 5000, 12.5 m is the last
  EXPECT_EQ(Stock(5400, 3, WithLimits(10500, 10500)), (StockResult{2, 2, 12.5}));
  EXPECT_EQ(Stock(5300, 3, WithLimits(10100, 10100)).StockLengthM, 10.0);  // 4800 is less: place 14, 10.0 m
}

TEST(StockEngine, HasPlacesFrom3MetresTo13MetresToBeginAt) {
  EXPECT_EQ(Stock(5400, 3, WithLimits(13000, 13000)), (StockResult{2, 2, 12.5}));  // 13.0 m takes no part
  EXPECT_EQ(FaultOf(5400, 3, 10, WithLimits(13500, 13500)), FaultKind::subscript_out_of_range);
  EXPECT_EQ(Stock(2900, 9, WithLimits(3000, 3000)),
            (StockResult{3, 4, 12.5}));  // nor does 3.0 m, which loses 100
  EXPECT_EQ(FaultOf(2400, 9, 10, WithLimits(2500, 2500)), FaultKind::subscript_out_of_range);
}

TEST(StockEngine, NamesTheSettingOfAShortestStockWhereNoSearchBegins) {
  const std::pair<std::int32_t, const char*> cases[] = {
      {10, "STEEL.INI [加工帳] D10最小値"}, {6, "STEEL.INI [加工帳] D10最小値"}, {8, "diameter 8"}};
  for (const auto& each : cases) {
    const std::int32_t code = each.first;
    EXPECT_EQ(
        test::FaultTextOf([&] { ComputeStock(2400, Currency::FromInteger(9), code, WithLimits(0, 1000)); }),
        "subscript out of range: " + std::string(each.second) + ": no stock is as short or as long as 0 mm");
  }
}

TEST(StockEngine, TakesAStockWhoseRemainderIsTheTolerance) {
  EngineSettings settings = Usual();
  settings.plus = 10;
  EXPECT_EQ(Stock(2000, 99, settings), (StockResult{50, 2, 4.0}));  // 4010 leaves 10
}

TEST(StockEngine, FaultsWhereAToleranceBelow0LeavesTheStockOfACutWithoutAPiece) {
  for (const std::int32_t loss_priority : {0, 1}) {
    EngineSettings settings = WithLimits(3600, 3600);
    settings.plus = -10;
    settings.loss_priority = loss_priority;
    EXPECT_EQ(FaultOf(3600, 2, 10, settings), FaultKind::division_by_zero) << loss_priority;
  }
}

TEST(StockEngine, AllowsTheToleranceToACutLongerThanAnyStock) {
  EngineSettings settings = WithLimits(3500, 8000);
  settings.plus = 10;
  EXPECT_EQ(Stock(9010, 2, settings), (StockResult{2, 1, 9.0}));
  EXPECT_EQ(Stock(9011, 2, settings), (StockResult{2, 1, 9.5}));
}

TEST(StockEngine, BeginsTheSearchAtTheNearestPlaceAndAnswersInPlaces) {
  // 3300 stands at the place of 3.5 m, so 9800, which leaves 50 of 3250, at that of 10.0 m
  EXPECT_EQ(Stock(3250, 99, WithLimits(3300, 12300)), (StockResult{33, 3, 10.0}));
  // 3250 is half way and goes to the even place, 3.0 m: 10250, which leaves 50 of 1700, is at that of 10.0 m
  EXPECT_EQ(Stock(1700, 99, WithLimits(3250, 12250)), (StockResult{20, 5, 10.0}));
}

TEST(StockEngine, TakesTheStockThatLosesLeast) {
  // remainders of 1050 from 3.5 m up: 350, 850, 300, 800, 250, 750, 200, ... and 0 at 10.5 m
  EXPECT_EQ(Stock(1050, 99, Usual()).StockLengthM, 10.5);
  // of 2450: 100 at 5.0 m, 150 at 7.5 m, 200 at 10.0 m
  EXPECT_EQ(Stock(2450, 9, Usual()).StockLengthM, 5.0);
  // of 4700: 300 at 5.0 m, 100 at 9.5 m
  EXPECT_EQ(Stock(4700, 9, Usual()).StockLengthM, 9.5);
}

// A tie needs the waste of a whole group: two stock lengths whose remainder is the same are a multiple of the
// cut apart, and a stock length without remainder lies between them.
TEST(StockEngine, TakesTheLongerOfTwoStocksThatWasteTheSame) {
  EXPECT_EQ(Stock(2000, 7, Usual(1)), (StockResult{2, 4, 8.0}));  // one piece of 2000 at 4.0 m and at 8.0 m
}

TEST(StockEngine, LeavesTheRemainderOfTheLastBarOutOfTheWaste) {
  // 4.5 m: six bars lose 300 each, the seventh one piece of 2100: 3900. 10.5 m: the third loses two pieces:
  // 4200. With the seventh bar's 300 both would be 4200 and the longer would win.
  EXPECT_EQ(Stock(2100, 13, Usual(1)), (StockResult{7, 2, 4.5}));
}

TEST(StockEngine, AsksTheFixedTableFirstAndReturnsItsStockAsItStands) {
  EngineSettings settings = Usual();
  settings.plus = 500;
  std::int32_t asked_cut = 0;
  settings.fixed_stock = [&](std::int32_t cut_mm, std::int32_t diameter_code) {
    asked_cut = cut_mm;
    return diameter_code == 10 ? 12500 : 0;
  };
  EXPECT_EQ(Stock(6000, 7, settings), (StockResult{4, 2, 12.5}));  // no limit, no plus, no clamp
  EXPECT_EQ(Stock(6000, 1, settings), (StockResult{1, 2, 12.5}));
  Stock(12345, 1, settings);
  EXPECT_EQ(asked_cut, 12000);
}

TEST(StockEngine, GoesOnWithoutTheFixedTableWhenItHasNoStock) {
  for (const std::int32_t none : {0, -1}) {
    EngineSettings settings = Usual();
    settings.fixed_stock = [none](std::int32_t, std::int32_t) { return none; };
    EXPECT_EQ(Stock(2400, 10, settings), (StockResult{2, 5, 12.0}));
  }
}

TEST(StockEngine, RoundsTheFullBarsOfAFixedStockDown) {
  EngineSettings settings = Usual();
  settings.fixed_stock = [](std::int32_t, std::int32_t) { return 7500; };
  // -7 / 2 is -3.5: -4 full bars and one for the piece left over; cut off it would be -3 and one
  EXPECT_EQ(Stock(2716, -7, settings), (StockResult{-3, 2, 7.5}));
}

TEST(StockEngine, FaultsAtTheSmallestCountAndAFixedStockOfMinusOnePiece) {
  EngineSettings settings = Usual();
  settings.fixed_stock = [](std::int32_t, std::int32_t) { return 4000; };
  // 2147483648 bars leave 32 bits; the remainder alone must not end the program
  EXPECT_EQ(FaultOf(-4000, std::numeric_limits<std::int32_t>::min(), 10, settings), FaultKind::overflow);
}

TEST(StockEngine, FaultsAtAFixedStockShorterThanTheCut) {
  EngineSettings settings = Usual();
  settings.fixed_stock = [](std::int32_t, std::int32_t) { return 5000; };
  EXPECT_EQ(FaultOf(6000, 1, 10, settings), FaultKind::division_by_zero);
}

TEST(StockEngine, FaultsAtADiameterOutside6To51) {
  for (const int code : {5, 52, 0, -1}) {
    EXPECT_EQ(FaultOf(3700, 99, code, Usual()), FaultKind::subscript_out_of_range) << code;
  }
}

TEST(StockEngine, FaultsAtATotalBeyond32BitsBeforeItLooksAtTheDiameter) {
  EXPECT_EQ(FaultOf(3500, 2147483647, 5, Usual()), FaultKind::overflow);
}

TEST(StockEngine, FaultsAtADiameterWithoutStockUnlessTheCutIsAMultipleOf500) {
  for (const int code : {8, 14}) {
    EXPECT_EQ(ComputeStock(4000, Currency::FromInteger(3), code, Usual()), (StockResult{3, 1, 4.0}));
    EXPECT_EQ(FaultOf(3700, 99, code, Usual()), FaultKind::subscript_out_of_range);
  }
}

TEST(StockEngine, FaultsAtACutOf0) {
  EXPECT_EQ(FaultOf(0, 5, 10, Usual()), FaultKind::division_by_zero);
  const Currency beyond_32_bits = Currency::FromInteger(3'000'000'000);
  try {
    ComputeStock(0, beyond_32_bits, 10, Usual());
    FAIL() << "no fault";
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.Kind(), FaultKind::division_by_zero);
  }
}

TEST(StockEngine, FaultsWhenTheTotalLengthLeaves32Bits) {
  EXPECT_EQ(FaultOf(11000, 200000, 10, Usual()), FaultKind::overflow);
  EXPECT_EQ(FaultOf(11000, 195000, 10, Usual()), std::nullopt);
}

TEST(StockEngine, ReturnsAStockLengthWithoutColumnAsItIs) {
  EXPECT_EQ(Stock(1000, 2, WithLimits(3600, 12000)).StockLengthM, 3.6);
}

TEST(BarsOfGivenStock, CountsBarsOfTheScheduleStock) {
  const Currency seven = Currency::FromInteger(7);
  EXPECT_EQ(BarsOfGivenStock(seven, 1, 6.0), (StockResult{7, 1, 6.0}));
  EXPECT_EQ(BarsOfGivenStock(seven, 2, 6.0), (StockResult{4, 2, 6.0}));
  EXPECT_EQ(BarsOfGivenStock(seven, 7, 6.0), (StockResult{1, 7, 6.0}));
  EXPECT_EQ(BarsOfGivenStock(seven, 8, 6.0), (StockResult{1, 8, 6.0}));
}

TEST(BarsOfGivenStock, IsAll0WhenTheStockIsShorterThanTheCut) {
  EXPECT_EQ(BarsOfGivenStock(Currency::FromInteger(7), 0, 6.0), StockResult());
}

TEST(PiecesOfGivenStock, RoundsTheUsableLengthAndDividesWholeNumbers) {
  EXPECT_EQ(PiecesOfGivenStock(6.0, 2000, 0), 3);
  EXPECT_EQ(PiecesOfGivenStock(6.0, 2001, 0), 2);
  EXPECT_EQ(PiecesOfGivenStock(6.0, 2001, 3), 3);
  EXPECT_EQ(PiecesOfGivenStock(0.0, 2000, 0), 0);
  EXPECT_EQ(PiecesOfGivenStock(5.9996, 2000, 0), 3);
  EXPECT_THROW(PiecesOfGivenStock(6.0, 0, 0), Fault);
  EXPECT_THROW(PiecesOfGivenStock(-2147483.648, -1, 0), Fault);  // 2147483648 pieces leave 32 bits
}

TEST(Get_KiriHonsu, IsTheTextOfTheWholePieces) {
  EXPECT_EQ(Get_KiriHonsu(2000, 6999), "3");
  EXPECT_EQ(Get_KiriHonsu(7000, 6999), "0");
  EXPECT_THROW(Get_KiriHonsu(0, 6000), Fault);
}

TEST(StockLengthLimits, HoldZeroForACodeThatNoBarHas) {
  const StockLengthLimits limits = Usual().limits;
  EXPECT_EQ(limits.Min(8), 0);
  EXPECT_EQ(limits.Max(51), 12000);
  EXPECT_THROW(limits.Min(5), Fault);
  EXPECT_THROW(limits.Max(52), Fault);
}

/// What a purchaser relies on: a bar holds the pieces claimed, and the bars hold the whole group. A cut that
/// was longer than 12 m is exempt, as the rules shorten it.
void ExpectHoldsItsPieces(std::int32_t cut, std::int32_t count, const EngineSettings& settings) {
  SCOPED_TRACE(std::to_string(cut) + " x " + std::to_string(count) + ", plus " +
               std::to_string(settings.plus) + ", loss priority " + std::to_string(settings.loss_priority) +
               ", limits " + std::to_string(settings.limits.Min(10)) + " " +
               std::to_string(settings.limits.Max(10)));
  const StockResult result = Stock(cut, count, settings);
  const double bar_mm = result.StockLengthM * 1000.0 + settings.plus;
  const auto pieces_in_a_bar = static_cast<std::int64_t>(bar_mm / cut);
  EXPECT_GE(result.StockBars, 1);
  EXPECT_GE(pieces_in_a_bar, 1);
  EXPECT_LE(result.PiecesPerBar, pieces_in_a_bar);
  EXPECT_GE(result.StockBars * pieces_in_a_bar, count);
  EXPECT_LT((result.StockBars - 1) * pieces_in_a_bar, count);  // and not one bar too many
}

TEST(StockEngine, BuysBarsThatHoldEveryPieceOfTheGroup) {
  std::mt19937 random(20261121);
  const auto pick = [&](int low, int high) { return std::uniform_int_distribution(low, high)(random); };
  for (int round = 0; round < 20000; ++round) {
    const std::int32_t min_mm = 3500 + 500 * pick(0, 4);
    EngineSettings settings = WithLimits(min_mm, min_mm + 500 * pick(4, 12));
    settings.plus = static_cast<std::int16_t>(pick(0, 3) * pick(0, 20));
    settings.loss_priority = pick(0, 1);
    const std::int32_t cut = pick(0, 3) == 0 ? 100 * pick(1, 120) : pick(150, 12000);
    ExpectHoldsItsPieces(cut, pick(1, 400), settings);
    if (HasFailure()) return;
  }
}

}  // namespace
}  // namespace rbt
