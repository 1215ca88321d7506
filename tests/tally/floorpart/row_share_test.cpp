// SPDX-License-Identifier: MIT
#include "tally/floorpart/row_share.h"

#include <gtest/gtest.h>

#include "data/diameters.h"
#include "support/fault_of.h"
#include "tally/rows/bar_row_samples.h"

namespace rbt {
namespace {

using test::D19Hoop;
using test::D19Row;
using test::FaultOf;
using test::U9Row;

RowShare Share(const BarRow& row, const ShareRules& rules = {}) {
  const std::optional<RowShare> share = ShareOf(row, rules);
  EXPECT_TRUE(share.has_value());
  return share.value_or(RowShare());
}

constexpr ShareRules kNoHoops{.hoops = ShapeFilter::left_out};
constexpr ShareRules kHoopsAlone{.hoops = ShapeFilter::alone};
constexpr ShareRules kNoHoopWelds{.count_hoop_welds = false};

TEST(RowShare, FilesADeformedBarUnderItsDiameterStockAndPart) {
  const RowShare share = Share(D19Row());
  EXPECT_EQ(share.part, 1);
  EXPECT_EQ(share.row, 3);
  EXPECT_EQ(share.column, 5);
  EXPECT_EQ(share.bars, 2);
  EXPECT_EQ(share.installed_kilograms, 4 * 2.25 * 3.0);
}

TEST(RowShare, FilesAThinBarUnderItsUlbonDiameter) {
  const RowShare share = Share(U9Row());
  EXPECT_EQ(share.row, 14);
  EXPECT_EQ(share.column, 4);
  EXPECT_EQ(share.bars, 4);
  EXPECT_EQ(share.installed_kilograms, 10 * 0.5 * 1.5);
}

TEST(RowShare, TakesDiameter16ForThinOnlyWhereItIsMarked) {
  BarRow row = D19Row();
  row.diameter_code = 16;
  EXPECT_EQ(Share(row).row, 2);
  row.kind = 2;
  EXPECT_EQ(Share(row).row, 17);
}

TEST(RowShare, PutsAThinBarWithoutStockLengthIntoTheFirstColumnAndSkipsADeformedOne) {
  BarRow thin = U9Row();
  thin.stock_length_m = 0.0;
  EXPECT_EQ(Share(thin).column, 0);
  BarRow deformed = D19Row();
  deformed.stock_length_m = 0.0;
  EXPECT_EQ(ShareOf(deformed, {}), std::nullopt);
}

TEST(RowShare, SkipsAStockLengthThatHasNoColumn) {
  for (const double metres : {12.5, 3.6, -1.0, 13.5}) {
    BarRow deformed = D19Row();
    deformed.stock_length_m = metres;
    EXPECT_EQ(ShareOf(deformed, {}), std::nullopt) << metres;
    BarRow thin = U9Row();
    thin.stock_length_m = metres;
    EXPECT_EQ(ShareOf(thin, {}), std::nullopt) << metres;
  }
}

TEST(RowShare, SkipsADiameterThatItsKindDoesNotHave) {
  for (const int code : {0, 6, 14, 52}) {
    BarRow deformed = D19Row();
    deformed.diameter_code = code;
    EXPECT_EQ(ShareOf(deformed, {}), std::nullopt) << code;
  }
  for (const int code : {0, 10, 13, 19}) {
    BarRow thin = U9Row();
    thin.diameter_code = code;
    EXPECT_EQ(ShareOf(thin, {}), std::nullopt) << code;
  }
}

TEST(RowShare, FilesEveryPartWithoutANameUnderTheOthers) {
  BarRow row = D19Row();
  for (const int named : {1, 2, 10}) {
    row.part = named;
    EXPECT_EQ(Share(row).part, named);
  }
  for (const int other : {0, 11, 12, 99}) {
    row.part = other;
    EXPECT_EQ(Share(row).part, 11) << other;
  }
  row.part = std::nullopt;
  EXPECT_EQ(Share(row).part, 11);
}

TEST(RowShare, FaultsAtAPartBelow0UnlessTheRowIsSkipped) {
  BarRow row = D19Row();
  row.part = -1;
  EXPECT_EQ(FaultOf([&] { (void)ShareOf(row, {}); }), FaultKind::subscript_out_of_range);
  row.stock_length_m = 12.5;
  EXPECT_EQ(ShareOf(row, {}), std::nullopt);
}

TEST(RowShare, CountsAWeldBetweenTwoDiametersAtTheThicker) {
  BarRow row = D19Row();
  row.welds = 4;
  const auto welds_at = [&](std::optional<std::int32_t> weld_diameter) {
    row.weld_diameter_code = weld_diameter;
    return Share(row).welds;
  };
  EXPECT_EQ(welds_at(25), (FittingShare{5, 4}));
  EXPECT_EQ(welds_at(19), (FittingShare{3, 4}));
  EXPECT_EQ(welds_at(16), (FittingShare{3, 4}));
  EXPECT_EQ(welds_at(0), (FittingShare{3, 4}));
  EXPECT_EQ(welds_at(std::nullopt), (FittingShare{3, 4}));
}

TEST(RowShare, KeepsTheWeldsOfAThinBarAtItsOwnDiameter) {
  BarRow row = U9Row();
  row.welds = 4;
  row.weld_diameter_code = 25;
  EXPECT_EQ(Share(row).welds, (FittingShare{14, 4}));
}

TEST(RowShare, HasNoRowForAWeldAtAThickerCodeThatIsNoDeformedDiameter) {
  BarRow row = D19Row();
  row.weld_diameter_code = 20;
  row.welds = 0;
  EXPECT_EQ(Share(row).welds, (FittingShare{-1, 0}));
  row.weld_diameter_code = 14;  // thinner than the bar: not asked
  EXPECT_EQ(Share(row).welds.row, 3);
}

TEST(RowShare, LeavesBarsWeightAndWeldsOfHoopsOutAndKeepsTheirOtherFittings) {
  BarRow row = D19Hoop();
  row.kind = 4;
  row.threads = 5;
  row.plates = 6;
  row.cuts = 7;
  const RowShare share = Share(row, kNoHoops);
  EXPECT_EQ(share.bars, std::nullopt);
  EXPECT_EQ(share.installed_kilograms, std::nullopt);
  EXPECT_EQ(share.welds.count, std::nullopt);
  EXPECT_EQ(share.threads, (FittingShare{3, 5}));
  EXPECT_EQ(share.plates, (FittingShare{3, 6}));
  EXPECT_EQ(share.cuts, (FittingShare{3, 7}));
}

TEST(RowShare, LeavesThinHoopsOutToo) {
  BarRow row = U9Row();
  row.shape = kWeldedHoopShape;
  EXPECT_EQ(Share(row, kNoHoops).bars, std::nullopt);
  EXPECT_EQ(Share(row, kNoHoops).installed_kilograms, std::nullopt);
}

TEST(RowShare, TakesARowOfNoShapeForNoHoop) {
  BarRow row = D19Row();
  row.shape = std::nullopt;
  row.welds = 4;
  EXPECT_EQ(Share(row, kNoHoops).bars, 2);
  EXPECT_EQ(Share(row, kNoHoops).welds.count, 4);
}

TEST(RowShare, KeepsBarsAndWeightOfHoopsWhoseWeldsDoNotCount) {
  for (ShareRules rules : {kNoHoopWelds, kHoopsAlone}) {
    rules.count_hoop_welds = false;
    const RowShare share = Share(D19Hoop(), rules);
    EXPECT_EQ(share.bars, 2);
    EXPECT_EQ(share.installed_kilograms, 27.0);
    EXPECT_EQ(share.welds.count, std::nullopt);
  }
  EXPECT_EQ(Share(D19Hoop(), kHoopsAlone).welds.count, 4);
  BarRow straight = D19Row();
  straight.welds = 3;
  EXPECT_EQ(Share(straight, kNoHoopWelds).welds.count, 3);
}

TEST(RowShare, CountsThreadsOfThreadedBarsAlone) {
  BarRow row = D19Row();
  row.threads = 4;
  for (const std::optional<std::int32_t> kind : {std::optional<std::int32_t>(), {0}, {1}, {3}, {5}}) {
    row.kind = kind;
    EXPECT_EQ(Share(row).threads.count, std::nullopt) << kind.value_or(-1);
  }
  row.kind = 4;
  EXPECT_EQ(Share(row).threads, (FittingShare{3, 4}));
}

TEST(RowShare, CountsPlatesAndCutsOfEveryKindAtTheBarsDiameter) {
  for (BarRow row : {D19Row(), U9Row()}) {
    row.plates = 2;
    row.cuts = 9;
    const RowShare share = Share(row);
    EXPECT_EQ(share.plates, (FittingShare{share.row, 2}));
    EXPECT_EQ(share.cuts, (FittingShare{share.row, 9}));
  }
}

TEST(RowShare, CountsACutOfADeformedBarOfPart2AtTheDiameterOfItsWeld) {
  BarRow row = D19Row();
  row.cuts = 9;
  row.weld_diameter_code = 13;
  EXPECT_EQ(Share(row).cuts.row, 3);
  row.part = 2;
  EXPECT_EQ(Share(row).cuts, (FittingShare{1, 9}));
  for (const std::optional<std::int32_t> own : {std::optional<std::int32_t>(), {0}}) {
    row.weld_diameter_code = own;
    EXPECT_EQ(Share(row).cuts.row, 3);
  }
  row.weld_diameter_code = 20;
  EXPECT_EQ(Share(row).cuts.row, -1);
}

TEST(RowShare, KeepsACutOfAThinBarOfPart2AtItsOwnDiameter) {
  BarRow row = U9Row();
  row.part = 2;
  row.cuts = 9;
  row.weld_diameter_code = 25;
  EXPECT_EQ(Share(row).cuts, (FittingShare{14, 9}));
}

TEST(RowShare, AddsNothingForNulls) {
  BarRow row = D19Row();
  row.stock_bars = std::nullopt;
  EXPECT_EQ(Share(row).bars, std::nullopt);
  EXPECT_EQ(Share(row).installed_kilograms, 27.0);
  row.pieces = std::nullopt;
  EXPECT_EQ(Share(row).installed_kilograms, std::nullopt);
  row = D19Row();
  row.cut_length_mm = std::nullopt;
  EXPECT_EQ(Share(row).bars, 2);
  EXPECT_EQ(Share(row).installed_kilograms, std::nullopt);
  EXPECT_EQ(Share(row).welds.count, std::nullopt);
  EXPECT_EQ(Share(row).plates.count, std::nullopt);
  EXPECT_EQ(Share(row).cuts.count, std::nullopt);
}

}  // namespace
}  // namespace rbt
