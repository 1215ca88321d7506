// SPDX-License-Identifier: MIT
#include <set>

#include <gtest/gtest.h>

#include "data/floors.h"
#include "data/materials.h"
#include "data/parts.h"
#include "data/quoted_text.h"
#include "data/shapes.h"
#include "platform/fault.h"

namespace rbt {
namespace {

TEST(FloorLabel, NamesEveryKindOfFloor) {
  EXPECT_EQ(FloorLabel(-5), "Ｂ５階");
  EXPECT_EQ(FloorLabel(-1), "Ｂ１階");
  EXPECT_EQ(FloorLabel(0), "基礎階");
  EXPECT_EQ(FloorLabel(1), "１階");
  EXPECT_EQ(FloorLabel(75), "７５階");
  EXPECT_EQ(FloorLabel(76), "Ｒ階");
  EXPECT_EQ(FloorLabel(77), "ＰＨ階");
  EXPECT_EQ(FloorLabel(78), "階なし");
}

TEST(FloorLabel, FaultsForACodeThatIsNoFloor) {
  EXPECT_THROW(FloorLabel(-6), Fault);
  EXPECT_THROW(FloorLabel(79), Fault);
}

TEST(FloorIndex, RunsFromTheDeepestBasementToNoFloor) {
  EXPECT_EQ(FloorIndex(-5), 0);
  EXPECT_EQ(FloorIndex(0), 5);
  EXPECT_EQ(FloorIndex(78), kFloorCount - 1);
  EXPECT_THROW(FloorIndex(79), Fault);
}

TEST(Shapes, TellTheAnchorPlatesOfABar) {
  const std::set<int> one{138, 140, 144, 145, 147, 161, 164, 165, 166, 167, 168, 169, 175, 176};
  const std::set<int> two{143, 146};
  for (int shape = 0; shape <= 300; ++shape) {
    EXPECT_EQ(PlatesPerBar(shape), two.contains(shape) ? 2 : one.contains(shape) ? 1 : 0) << shape;
    EXPECT_EQ(IsAnchorPlateShape(shape), one.contains(shape) || two.contains(shape)) << shape;
  }
}

TEST(Shapes, TellTheThreadedOnes) {
  std::set<int> threaded{138, 139, 140, 141, 142, 143, 162, 163};
  for (int shape = 166; shape <= 177; ++shape) threaded.insert(shape);
  for (int shape = 0; shape <= 300; ++shape)
    EXPECT_EQ(IsThreadedShape(shape), threaded.contains(shape)) << shape;
}

TEST(Shapes, CountThreadedAndAnchoredEndsAsStraightUnlessTheStartModeForbids) {
  for (const int mode : {-1, 0, 2, 5}) {
    for (const int shape : {1, 138, 139, 140, 143})
      EXPECT_TRUE(IsStraightShape(shape, TraitsOfStartMode(mode))) << shape;
    for (const int shape : {0, 2, 87, 141, 142, 144})
      EXPECT_FALSE(IsStraightShape(shape, TraitsOfStartMode(mode))) << shape;
  }
  for (const int mode : {1, 3, 4}) {
    EXPECT_TRUE(IsStraightShape(1, TraitsOfStartMode(mode)));
    for (const int shape : {138, 139, 140, 143})
      EXPECT_FALSE(IsStraightShape(shape, TraitsOfStartMode(mode))) << shape;
  }
}

TEST(StockCutLengths, RunFromThreeAndAHalfToTwelveMetres) {
  EXPECT_TRUE(IsStockCutLength(3500));
  EXPECT_TRUE(IsStockCutLength(12000));
  for (const int length : {3000, 3501, 7250, 12500, 13000}) EXPECT_FALSE(IsStockCutLength(length)) << length;
  for (std::size_t i = 0; i < kStockCutLengths.size(); ++i) {
    EXPECT_EQ(kStockCutLengths[i], 3500 + 500 * static_cast<int>(i));
  }
}

TEST(SlitNames, EndInOneIdeographicBlank) {
  for (const std::string_view name : kSlitNames) {
    EXPECT_TRUE(name.ends_with("筋　"));
    EXPECT_FALSE(name.ends_with("　　"));
  }
}

TEST(QuotedText, DoublesItsOwnQuotesAlone) {
  EXPECT_EQ(QuotedText("GENBA001.MDB", '\''), "'GENBA001.MDB'");
  EXPECT_EQ(QuotedText("a'b\"c", '\''), "'a''b\"c'");
  EXPECT_EQ(QuotedText("a'b\"c", '"'), "\"a'b\"\"c\"");
}

}  // namespace
}  // namespace rbt
