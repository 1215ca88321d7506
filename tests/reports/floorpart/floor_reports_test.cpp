// SPDX-License-Identifier: MIT
#include "reports/floorpart/floor_reports.h"

#include <gmock/gmock.h>

#include "reports/floorpart/floorpart_paper.h"
#include "reports/floorpart/part_reports.h"
#include "shell/config/settings.h"
#include "shell/context/site_context.h"
#include "tally/floorpart/hand_correction.h"

namespace rbt::test {
namespace {

using testing::ElementsAre;

/// The routines over a bound site.
class FloorReports : public FloorPartPaper {
 protected:
  FloorReports() {
    SelectSite(kScheduleFile);
    OpenMasterDatabase();
    Settings = {};
  }
  ~FloorReports() override { Settings = {}; }

  ReportArguments Of(std::int32_t floor_or_part) const {
    ReportArguments arguments = arguments_;
    arguments.FloorOrPart = floor_or_part;
    return arguments;
  }
};

TEST_F(FloorReports, AFloorsSheetTellsItsOwnWeightAndBars) {
  FloorBars bars;
  const TallyResult result = bars.Add(2, 1, kD19, 10).Add(3, 1, kD19, 20).Result(1, 3);
  Kai_Kakukai_Print(page_.Printer, Of(2), result);
  EXPECT_EQ(page_.TextThatStarts("階重量").text, "階重量          135 Kg");
  EXPECT_TRUE(page_.Has("【2階分】"));
  EXPECT_TRUE(page_.Has("階 別 合 計 数 量 表"));
  EXPECT_EQ(Count("       10"), 0);
  EXPECT_EQ(Count("     10"), 1);
}

TEST_F(FloorReports, TheRangesSheetTellsAllFloors) {
  FloorBars bars;
  const TallyResult result = bars.Add(2, 1, kD19, 10).Add(3, 1, kD19, 20).Result(1, 3, 2);
  Kai_Meisai_Print(page_.Printer, arguments_, result);
  EXPECT_EQ(page_.TextThatStarts("総重量").text, "総重量          405 Kg");
  EXPECT_TRUE(page_.Has("【1階～3階】(P階 を含む)"));
  EXPECT_TRUE(page_.Has("重 量"));
  Kai_Meisai_Honsu(page_.Printer, arguments_, result);
  EXPECT_FALSE(page_.Has("重 量"));
  EXPECT_EQ(Count("     30"), 1);
}

TEST_F(FloorReports, APartsSheetNamesThePartAndTheGrandWeight) {
  const TallyResult result = PartBars().Add(1, kD19, 10).Add(11, kD19, 20).Result();
  Bui_Kakubui_Print(page_.Printer, Of(11), result);
  EXPECT_TRUE(page_.Has("［その他］分"));
  EXPECT_EQ(page_.TextThatStarts("総重量").text, "総重量          405 Kg");
  EXPECT_EQ(Count("     20"), 1);
  EXPECT_TRUE(page_.Has("部 位 別 合 計 数 量 表"));
}

TEST_F(FloorReports, APartWithoutWeightGetsAPageOfBlanks) {
  const TallyResult result = PartBars().Add(1, kD32, 10).Result();
  Bui_Kakubui_Print(page_.Printer, Of(2), result);
  ASSERT_EQ(Pages(), 1U) << "the second page goes by the part's own bars";
  EXPECT_EQ(Count("D 10"), 1);
  EXPECT_EQ(Count("     10"), 0);
  Bui_Kakubui_Print(page_.Printer, Of(1), result);
  EXPECT_EQ(Pages(), 2U);
}

TEST_F(FloorReports, TheSettingDecidesAbout13Metres) {
  FloorBars bars;
  const TallyResult result = bars.Add(1, 1, kD19, 10).Result(1, 1);
  Kai_Kakukai_Print(page_.Printer, Of(1), result);
  EXPECT_FALSE(page_.Has("13.0"));
  Settings.Use13mColumn = 1;
  Kai_Kakukai_Print(page_.Printer, Of(1), result);
  EXPECT_TRUE(page_.Has("13.0"));
}

TEST_F(FloorReports, ListedFloorsAreThoseOfTheListWithoutItsTotal) {
  FloorBars bars;
  EXPECT_THAT(ListedFloorsOf(bars.Add(1, 1, kD19, 10).Result(1, 2, 1)), ElementsAre(1, 2, 76));
}

TEST_F(FloorReports, AFloorWithoutWeightIsToldByItsName) {
  FloorBars bars;
  TallyResult result = bars.Add(1, 1, kD19, 10).Result(1, 2, 2);
  EXPECT_TRUE(HasFloorWeight(result, 1));
  EXPECT_FALSE(HasFloorWeight(result, 2));
  CorrectCell(std::get<FloorTables>(result.tables), 1, 4, Kilograms(5));
  EXPECT_TRUE(HasFloorWeight(result, 2)) << "a weight that a hand put in counts";
  TellFloorIsSkipped(77);
  EXPECT_EQ(root_.Messages().back().text, "ＰＨ階を飛ばします");
  EXPECT_EQ(root_.Messages().back().title, "印刷確認");
}

}  // namespace
}  // namespace rbt::test
