// SPDX-License-Identifier: MIT
#include <concepts>
#include <cstdint>

#include <gtest/gtest.h>

#include "data/form_mask.h"
#include "data/kind_mask.h"
#include "data/spiral_mask.h"

namespace rbt {
namespace {

using enum MaterialKind;

// One is never taken for the other, nor a number for either.
static_assert(!std::convertible_to<KindMask, FormMask> && !std::convertible_to<FormMask, KindMask>);
static_assert(!std::convertible_to<KindMask, SpiralMask>);
static_assert(!std::convertible_to<int, KindMask> && !std::convertible_to<KindMask, int>);
static_assert(sizeof(KindMask) == sizeof(std::int32_t) && sizeof(FormMask) == sizeof(std::int16_t));

TEST(KindMask, CountsDeformedThreadedHighStrengthAndSlitAs1And2And4And8) {
  EXPECT_EQ(KindMask::Of({deformed}).AsNumber(), 1);
  EXPECT_EQ(KindMask::Of({threaded}).AsNumber(), 2);
  EXPECT_EQ(KindMask::Of({high_strength}).AsNumber(), 4);
  EXPECT_EQ(KindMask::Of({slit}).AsNumber(), 8);
  EXPECT_EQ(kAllKinds.AsNumber(), 15);
  EXPECT_EQ(KindMask().AsNumber(), 0);
}

TEST(KindMask, HasTheKindsOfItsNumber) {
  for (std::int32_t number = 0; number <= 15; ++number) {
    const KindMask mask(number);
    EXPECT_EQ(mask.Has(deformed), number % 2 == 1) << number;
    EXPECT_EQ(mask.Has(threaded), number / 2 % 2 == 1) << number;
    EXPECT_EQ(mask.Has(high_strength), number / 4 % 2 == 1) << number;
    EXPECT_EQ(mask.Has(slit), number / 8 == 1) << number;
    EXPECT_FALSE(mask.Has(ulbon)) << number;
  }
}

TEST(KindMask, HasNoPlaceForUlbon) { EXPECT_TRUE(KindMask::Of({ulbon}).IsNone()); }

TEST(FormMask, CountsTheFormsInTheirOrderAs1And2And4And8) {
  EXPECT_EQ(FormMask::Of({MaterialForm::raw}).AsNumber(), 1);
  EXPECT_EQ(FormMask::Of({MaterialForm::raw_bent}).AsNumber(), 2);
  EXPECT_EQ(FormMask::Of({MaterialForm::cut}).AsNumber(), 4);
  EXPECT_EQ(FormMask::Of({MaterialForm::cut_bent}).AsNumber(), 8);
  EXPECT_EQ(kAllForms.AsNumber(), 15);
  EXPECT_TRUE(FormMask::Of({MaterialForm::unclassified}).IsNone());
}

TEST(SpiralMask, HasPlacesOfItsOwn) {
  EXPECT_EQ(SpiralMask::Of({deformed}).AsNumber(), 1);
  EXPECT_EQ(SpiralMask::Of({ulbon}).AsNumber(), 2);
  EXPECT_EQ(SpiralMask::Of({high_strength}).AsNumber(), 4);
  EXPECT_EQ(SpiralMask::All().AsNumber(), 7);
}

TEST(CodeMask, IsTickedInTheOrderOfItsCodes) {
  EXPECT_EQ(KindMask(1).AsTicks(), (KindMask::Ticks{true, false, false, false}));
  EXPECT_EQ(KindMask(6).AsTicks(), (KindMask::Ticks{false, true, true, false}));
  EXPECT_EQ(FormMask(8).AsTicks(), (FormMask::Ticks{false, false, false, true}));
  EXPECT_EQ(KindMask::OfTicks({true, false, true, true}).AsNumber(), 13);
}

TEST(CodeMask, ComesBackFromItsTicks) {
  for (std::int16_t number = 0; number <= 15; ++number) {
    EXPECT_EQ(KindMask::OfTicks(KindMask(number).AsTicks()), KindMask(number));
    EXPECT_EQ(FormMask::OfTicks(FormMask(number).AsTicks()), FormMask(number));
  }
}

TEST(CodeMask, TellsNoneAndOneAndAll) {
  for (std::int32_t number = 0; number <= 16; ++number) {
    EXPECT_EQ(KindMask(number).IsNone(), number == 0) << number;
    EXPECT_EQ(KindMask(number).IsOne(), number == 1 || number == 2 || number == 4 || number == 8) << number;
    EXPECT_EQ(KindMask(number).IsAll(), number == 15) << number;
  }
}

TEST(CodeMask, IsWithinAnotherWhenItHasSomethingAndNothingElse) {
  const KindMask others = KindMask::Of({high_strength, slit});
  for (std::int32_t number = 0; number <= 16; ++number) {
    EXPECT_EQ(KindMask(number).IsWithin(others), number == 4 || number == 8 || number == 12) << number;
  }
}

TEST(CodeMask, KeepsANumberBeyondItsCodes) {
  EXPECT_EQ(KindMask(16).AsNumber(), 16);
  EXPECT_EQ(KindMask(-1).AsNumber(), -1);
  EXPECT_FALSE(KindMask(31).IsAll());
}

}  // namespace
}  // namespace rbt
