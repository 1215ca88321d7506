// SPDX-License-Identifier: MIT
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tally/floorpart/floor_statement.h"
#include "tally/floorpart/part_statement.h"

namespace rbt {
namespace {

FloorScope FloorScopeOf(std::int16_t start, std::int16_t end, std::int16_t lowest = 1,
                        std::int16_t mask = 0) {
  return {start, end, lowest, SpecialMask(mask)};
}

TEST(FloorStatement, ClosesTheFloorsWithWhatARowMustHaveFormsAndKinds) {
  EXPECT_EQ(FloorStatementSoFar(FloorScopeOf(1, 5), FormMask(5), KindMask(2)),
            "SELECT * FROM 加工テーブル WHERE (((階 >= 1 AND 階 <= 5) ) AND (太さ Is Not Null AND 伸定尺 Is "
            "Not Null AND 本数 Is Not Null) AND (予備3 = 1 OR 予備3 = 3)) AND 予備2=4");
  EXPECT_EQ(FloorStatementSoFar(FloorScopeOf(0, 0), kAllForms, KindMask(0)),
            "SELECT * FROM 加工テーブル WHERE  ((階=0 ) AND (太さ Is Not Null AND 伸定尺 Is Not Null AND "
            "本数 Is Not Null) ) AND 予備2=2");
}

TEST(FloorStatement, AsksForTheFloorsCaseByCase) {
  EXPECT_EQ(FloorClause(FloorScopeOf(76, 76)), "WHERE (((階 = 76)");
  EXPECT_EQ(FloorClause(FloorScopeOf(76, 78)), "WHERE (((階 >= 76 and 階 <= 78) ");
  EXPECT_EQ(FloorClause(FloorScopeOf(77, 77)), "WHERE (((階 = 77)");
  EXPECT_EQ(FloorClause(FloorScopeOf(77, 78)), "WHERE (((階 >= 77 and 階 <= 78) ");
  EXPECT_EQ(FloorClause(FloorScopeOf(78, 78)), "WHERE (((階 = 78)");
  EXPECT_EQ(FloorClause(FloorScopeOf(-2, 3)), "WHERE (((階 >= -2 AND 階 <= 3 AND 階<>0) ");
  EXPECT_EQ(FloorClause(FloorScopeOf(-3, -2)), "WHERE (((階 >= -3 AND 階 <= -2 AND 階<>0) ");
  EXPECT_EQ(FloorClause(FloorScopeOf(1, 75)), "WHERE (((階 >= 1 AND 階 <= 75) ");
  EXPECT_EQ(FloorClause(FloorScopeOf(0, 0, -2)), "WHERE  ((階=0 ");
  EXPECT_EQ(FloorClause(FloorScopeOf(0, 4, -2)), "WHERE (((階 >= -2 AND 階 <= 4) OR 階=0 ");
}

TEST(FloorStatement, AddsTheSpecialFloorsToAStartBelow76) {
  const std::string texts[] = {"",
                               "OR 階 = 76 ",
                               "OR 階 = 77 ",
                               "OR (階 = 76 OR 階 = 77) ",
                               "OR 階 = 78 ",
                               "OR (階 = 76 OR 階 = 78) ",
                               "OR (階 = 77 OR 階 = 78) ",
                               "OR (階 = 76 OR 階 = 77 OR 階 = 78) "};
  for (std::int16_t mask = 0; mask <= 7; ++mask) {
    EXPECT_EQ(FloorClause(FloorScopeOf(1, 5, 1, mask)), "WHERE (((階 >= 1 AND 階 <= 5) " + texts[mask])
        << mask;
    EXPECT_EQ(FloorClause(FloorScopeOf(76, 76, 1, mask)), "WHERE (((階 = 76)") << mask;
  }
}

TEST(FloorStatement, ListsTheFormsInRisingOrderAndNothingForAllAndNone) {
  EXPECT_EQ(FloorFormClause(FormMask(0)), " ");
  EXPECT_EQ(FloorFormClause(FormMask(15)), " ");
  EXPECT_EQ(FloorFormClause(FormMask(1)), " AND (予備3 = 1)");
  EXPECT_EQ(FloorFormClause(FormMask(8)), " AND (予備3 = 4)");
  EXPECT_EQ(FloorFormClause(FormMask(14)), " AND (予備3 = 2 OR 予備3 = 3 OR 予備3 = 4)");
}

TEST(FloorStatement, NeverMixesThinBarsWithTheKinds) {
  EXPECT_EQ(FloorKindClause(KindMask(0)), " AND 予備2=2");
  for (int mask = 1; mask <= 15; ++mask) {
    const std::string clause(FloorKindClause(KindMask(mask)));
    EXPECT_EQ(clause.find("予備2=2"), std::string::npos) << mask;
    EXPECT_EQ(clause.find("予備2<=1 or IsNull(予備2)") != std::string::npos, (mask & 1) != 0) << mask;
    EXPECT_EQ(clause.find("予備2=4") != std::string::npos, (mask & 2) != 0) << mask;
    EXPECT_EQ(clause.find("予備2=3") != std::string::npos, (mask & 4) != 0) << mask;
    EXPECT_EQ(clause.find("予備2=5") != std::string::npos, (mask & 8) != 0) << mask;
  }
  EXPECT_EQ(FloorKindClause(KindMask(4)), " AND 予備2=3");
  EXPECT_EQ(FloorKindClause(KindMask(8)), " AND 予備2=5");
  EXPECT_EQ(FloorKindClause(KindMask(13)), " AND (予備2<=1 or IsNull(予備2) or 予備2=3 or 予備2=5)");
}

PartScope PartScopeOf(std::int16_t start, std::int16_t end, bool from_0 = false, std::int16_t mask = 0) {
  return {start, end, from_0, SpecialMask(mask)};
}

TEST(PartStatement, ClosesTheFloorsWithWhatARowMustHaveFormsAndKinds) {
  EXPECT_EQ(
      PartStatementSoFar(PartScopeOf(-1, 5, true), FormMask(5), KindMask(4)),
      "SELECT * FROM 加工テーブル WHERE (階=0 OR 階 >= -1 AND 階 <= 5) AND (太さ is not NULL AND 伸定尺 "
      "is not NULL AND 本数 is not NULL) AND (予備3 = 1 OR 予備3 = 3) AND (予備2=3)");
}

TEST(PartStatement, AsksForTheFloorsCaseByCase) {
  EXPECT_EQ(PartFloorClause(PartScopeOf(1, 5)), "WHERE (階 >= 1 AND 階 <= 5 AND 階<>0) ");
  EXPECT_EQ(PartFloorClause(PartScopeOf(0, 5, true)), "WHERE (階=0 OR 階 >= 0 AND 階 <= 5) ");
  EXPECT_EQ(PartFloorClause(PartScopeOf(-2, 5, true, 4)),
            "WHERE (階=0 OR (階 >= -2 AND 階 <= 5) OR 階 = 78) ");
  EXPECT_EQ(PartFloorClause(PartScopeOf(1, 5, false, 4)),
            "WHERE ((階 >= 1 AND 階 <= 5 AND 階<>0) OR 階 = 78) ");
}

TEST(PartStatement, TakesASpecialStartAloneWhateverTheEndAndTheMask) {
  for (std::int16_t start = 76; start <= 78; ++start) {
    const std::string alone = "WHERE (階 = " + std::to_string(start) + ")";
    EXPECT_EQ(PartFloorClause(PartScopeOf(start, start)), alone);
    EXPECT_EQ(PartFloorClause(PartScopeOf(start, 78, false, 7)), alone);
    EXPECT_EQ(PartFloorClause(PartScopeOf(start, 78, true, 7)), alone);
  }
}

TEST(PartStatement, ClosesItsParenthesisBehindTheSpecialFloors) {
  const std::string texts[] = {"",
                               "OR 階 = 76) ",
                               "OR 階 = 77) ",
                               "OR (階 = 76 OR 階 = 77)) ",
                               "OR 階 = 78) ",
                               "OR (階 = 76 OR 階 = 78)) ",
                               "OR (階 = 77 OR 階 = 78)) ",
                               "OR (階 = 76 OR 階 = 77 OR 階 = 78)) "};
  for (std::int16_t mask = 1; mask <= 7; ++mask) {
    EXPECT_EQ(PartFloorClause(PartScopeOf(1, 5, false, mask)),
              "WHERE ((階 >= 1 AND 階 <= 5 AND 階<>0) " + texts[mask]);
  }
}

TEST(PartStatement, HasTheKindsOfTheFloorTallySaveOneBracket) {
  for (int mask = 0; mask <= 15; ++mask) {
    if (mask == 4) continue;
    EXPECT_EQ(PartKindClause(KindMask(mask)), FloorKindClause(KindMask(mask))) << mask;
  }
  EXPECT_EQ(PartKindClause(KindMask(4)), " AND (予備2=3)");
}

constexpr std::string_view kHoops = " AND 形状No=87";

FilteredStatement Filtered(ShapeFilter hoops, ShapeFilter plates, bool has_hoops, bool has_plates,
                           const ShapeFilterClauses& clauses = kFloorShapeFilters) {
  std::vector<std::string> asked;
  const FilteredStatement statement =
      FilterShapes("SO FAR", hoops, plates, clauses, [&](const std::string& text) {
        asked.push_back(text);
        return asked.size() == 1 ? has_hoops : has_plates;
      });
  const bool hoops_alone = has_hoops && hoops == ShapeFilter::alone;
  EXPECT_EQ(asked, (std::vector<std::string>{"SO FAR" + std::string(clauses.hoop_probe),
                                             std::string("SO FAR") + std::string(hoops_alone ? kHoops : "") +
                                                 std::string(kAnchorPlateClause)}));
  EXPECT_EQ(statement.HoopAri, has_hoops);
  EXPECT_EQ(statement.TeiAri, has_plates);
  return statement;
}

TEST(ShapeFilters, FilterNothingWhileAllAreIncluded) {
  for (const bool found : {false, true}) {
    EXPECT_EQ(Filtered(ShapeFilter::with_others, ShapeFilter::with_others, found, found).text, "SO FAR");
  }
}

TEST(ShapeFilters, NeverLeaveHoopsOutByTheStatement) {
  EXPECT_EQ(Filtered(ShapeFilter::left_out, ShapeFilter::with_others, true, true).text, "SO FAR");
}

TEST(ShapeFilters, FilterNothingByShapesThatAreNotThere) {
  EXPECT_EQ(Filtered(ShapeFilter::alone, ShapeFilter::alone, false, false).text, "SO FAR");
  EXPECT_EQ(Filtered(ShapeFilter::alone, ShapeFilter::left_out, false, false).text, "SO FAR");
}

TEST(ShapeFilters, AskForPlatesAmongTheHoopsWhereHoopsStandAlone) {
  EXPECT_EQ(Filtered(ShapeFilter::alone, ShapeFilter::alone, true, true).text,
            "SO FAR" + std::string(kHoops) + std::string(kAnchorPlateClause));
  EXPECT_EQ(Filtered(ShapeFilter::alone, ShapeFilter::alone, true, false).text,
            "SO FAR" + std::string(kHoops));
}

TEST(ShapeFilters, SpeakInTheWordsOfTheirTally) {
  const std::string floor = Filtered(ShapeFilter::with_others, ShapeFilter::left_out, true, true).text;
  EXPECT_NE(floor.find("形状No=0 or 形状No<138"), std::string::npos);
  const std::string part =
      Filtered(ShapeFilter::with_others, ShapeFilter::left_out, true, true, kPartShapeFilters).text;
  EXPECT_NE(part.find("形状No=0 or  形状No<138"), std::string::npos);
  EXPECT_EQ(kFloorShapeFilters.hoop_probe, " AND 形状No=87");
  EXPECT_EQ(kPartShapeFilters.hoop_probe, " AND (形状No=87)");
}

}  // namespace
}  // namespace rbt
