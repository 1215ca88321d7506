// SPDX-License-Identifier: MIT
#include "planning/input/bar_offer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "planning/input/refusal_of.h"

namespace rbt::planning {
namespace {

using test::RefusalOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<int> Mm(const std::vector<StockLength>& lengths) {
  std::vector<int> mm;
  for (const StockLength& length : lengths) mm.push_back(length.mm);
  return mm;
}

SiteLengths LengthsOfSite(int min, int max) {
  SiteLengths site;
  site.limits.Set(16, min, max);
  return site;
}

TEST(AllowedLengths, AreTheColumnsWithinTheLimitsOfASite) {
  SiteLengths site = LengthsOfSite(4200, 5500);
  EXPECT_THAT(Mm(AllowedLengths({}, &site, 16, Aim::steel)), ElementsAre(4500, 5000, 5500));
  site.of_rows[16] = {12000, 5000};
  site.use_13m = true;
  EXPECT_THAT(Mm(AllowedLengths({}, &site, 16, Aim::steel)), ElementsAre(4500, 5000, 5500, 12000, 13000));
}

TEST(AllowedLengths, AreThoseOfTheUserBeforeThoseOfTheSite) {
  const SiteLengths site = LengthsOfSite(4200, 5500);
  BarOffer offer;
  offer.lengths = {{12000, 6000, 6000}};
  EXPECT_THAT(Mm(AllowedLengths(offer, &site, 16, Aim::steel)), ElementsAre(6000, 12000));
}

TEST(AllowedLengths, CostTheirMmOrTheirTableWeightByThePrice) {
  BarOffer offer;
  offer.length_lines = {{0, 6500, 100'000, 0}, {16, 6500, 98'500, 500}};
  const StockLength by_mm = AllowedLengths(offer, nullptr, 16, Aim::steel).front();
  EXPECT_EQ(by_mm.cost, 6'500'000'000);
  EXPECT_EQ(by_mm.table_weight, 10'100'000);
  EXPECT_EQ(by_mm.least_lot, 500'000'000);
  EXPECT_EQ(AllowedLengths(offer, nullptr, 16, Aim::money).front().cost, 994'850'000);  // 10.1 kg by 98.5 JPY
  EXPECT_EQ(AllowedLengths(offer, nullptr, 13, Aim::money).front().cost, 647'000'000);  // 6.47 kg by 100 JPY
}

TEST(AllowedLengths, AreRefusedWhereThereAreNoneOrAPriceIsMissing) {
  BarOffer offer;
  offer.length_lines = {{13, 6500, std::nullopt, 0}};
  EXPECT_EQ(RefusalOf([&] { AllowedLengths(offer, nullptr, 16, Aim::steel); }),
            "no stock length is allowed for D16");
  EXPECT_EQ(RefusalOf([&] { AllowedLengths(offer, nullptr, 13, Aim::money); }), "no price for D13 6500");
}

TEST(LengthsOfSteel, AreThoseOfItsSetWhereOneWasTaken) {
  BarOffer offer;
  offer.lengths = {{6000, 9000, 12000}};
  offer.sets[{16, 1, false}] = {5000, 9000, 12000};
  EXPECT_THAT(Mm(LengthsOfSteel(offer, nullptr, {16, 1, false}, Aim::steel)), ElementsAre(9000, 12000));
  EXPECT_THAT(Mm(LengthsOfSteel(offer, nullptr, {16, 1, true}, Aim::steel)), ElementsAre(6000, 9000, 12000));
  offer.sets[{16, 1, false}] = {5000};
  EXPECT_EQ(RefusalOf([&] {
              LengthsOfSteel(offer, nullptr, {16, 1, false}, Aim::steel);
            }),
            "no stock length is allowed for D16");
}

TEST(CheckColumns, RefusesALengthThatTheTallyHasNoColumnFor) {
  BarOffer offer;
  offer.lengths = {{6000, 5250}};
  EXPECT_EQ(RefusalOf([&] { CheckColumns(offer, false); }), "length 5250 has no column");
  offer.lengths = {{13000}};
  EXPECT_EQ(RefusalOf([&] { CheckColumns(offer, false); }), "length 13000 has no column");
  EXPECT_EQ(RefusalOf([&] { CheckColumns(offer, true); }), "");
  offer.lengths.reset();
  offer.length_lines = {{16, 3000, 1, 0}};
  EXPECT_EQ(RefusalOf([&] { CheckColumns(offer, true); }), "length 3000 has no column");
}

TEST(RestsOf, AreThoseOfTheSteelAddedUp) {
  BarOffer offer;
  offer.rests = {{16, 1, 3000, 2}, {16, 1, 2000, 0}, {16, 3, 3000, 9},
                 {13, 1, 3000, 9}, {16, 1, 3000, 1}, {16, 1, 900, 4}};
  EXPECT_THAT(RestsOf(offer, {16, 1, false}), ElementsAre(RestBar{900, 4}, RestBar{3000, 3}));
  EXPECT_THAT(RestsOf(offer, {16, 1, true}), IsEmpty());
}

}  // namespace
}  // namespace rbt::planning
