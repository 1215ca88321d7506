// SPDX-License-Identifier: MIT
#include "tally/views/tally_json.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace rbt {
namespace {

using nlohmann::ordered_json;

ordered_json Parsed(const TallyTable& table) {
  return ordered_json::parse(TallyJson(table, "bulk", true, false));
}

TEST(TallyJson, HoldsTheFieldsOfTheTallyInTheirOrder) {
  const ordered_json json = Parsed({});
  std::vector<std::string> names;
  for (const auto& field : json.items()) names.push_back(field.key());
  EXPECT_EQ(names, (std::vector<std::string>{"kind",
                                             "BarCount",
                                             "StockWeight",
                                             "InstalledWeight",
                                             "CutLengthM",
                                             "StockWeightByDia",
                                             "InstalledWeightByDia",
                                             "WeldCount",
                                             "ThreadCount",
                                             "PlateCount",
                                             "CutCount",
                                             "UlbonLengthM",
                                             "UlbonWeight",
                                             "UlbonWeldCount",
                                             "UlbonThreadCount",
                                             "UlbonPlateCount",
                                             "SpiralWeight",
                                             "SpiralUlbonByDia",
                                             "SpiralKinds",
                                             "SpiralTotal",
                                             "TotalStockWeight",
                                             "TotalInstalledWeight",
                                             "TotalWeldCount",
                                             "TotalThreadCount",
                                             "TotalPlateCount",
                                             "TotalCutCount",
                                             "LossRatePercent",
                                             "HighStrengthRowCount",
                                             "StockWarningText",
                                             "HasHoopRows",
                                             "HasAnchorPlateRows"}));
}

TEST(TallyJson, GivesDenseArraysTheirLengthAndSparseOnesOnlyWhatIsThere) {
  const ordered_json json = Parsed({});
  for (const char* name : {"StockWeightByDia", "InstalledWeightByDia"})
    EXPECT_EQ(json[name].size(), 12U) << name;
  for (const char* name :
       {"WeldCount", "ThreadCount", "PlateCount", "CutCount", "UlbonLengthM", "UlbonWeight", "UlbonWeldCount",
        "UlbonThreadCount", "UlbonPlateCount", "SpiralUlbonByDia"}) {
    EXPECT_EQ(json[name].size(), 18U) << name;
  }
  EXPECT_EQ(json["SpiralWeight"].size(), 3U);
  for (const char* name : {"BarCount", "StockWeight", "InstalledWeight", "CutLengthM"}) {
    EXPECT_TRUE(json[name].empty()) << name;
  }
}

TEST(TallyJson, ListsCellsInAscendingOrderOfTheirIndices) {
  TallyTable table;
  table.BarCount[3][5] = 2;
  table.BarCount[0][18] = 1;
  table.BarCount[3][4] = -7;
  EXPECT_NE(TallyJson(table, "bulk", false, false).find("\"BarCount\": [[0, 18, 1], [3, 4, -7], [3, 5, 2]],"),
            std::string::npos);
}

TEST(TallyJson, WritesCurrencyWithFourDecimalsAtMostAndDoublesWith17Figures) {
  TallyTable table;
  table.StockWeight[3][5] = Currency::FromTenThousandths(270001);
  table.InstalledWeight[3][5] = Currency::FromTenThousandths(-5000);
  table.CutLengthM[3][5] = 0.1;
  table.UlbonWeight[12] = 12.0;
  table.LossRatePercent = 4.0 / 23.0 * 100.0;
  const std::string json = TallyJson(table, "shape", false, false);
  EXPECT_NE(json.find("\"StockWeight\": [[3, 5, 27.0001]]"), std::string::npos) << json;
  EXPECT_NE(json.find("\"InstalledWeight\": [[3, 5, -0.5]]"), std::string::npos);
  EXPECT_NE(json.find("\"CutLengthM\": [[3, 5, 0.10000000000000001]]"), std::string::npos);
  EXPECT_NE(json.find("\"LossRatePercent\": 17.391304347826086"), std::string::npos);
  EXPECT_EQ(ordered_json::parse(json)["UlbonWeight"][12], 12.0);
  EXPECT_EQ(ordered_json::parse(json)["kind"], "shape");
}

TEST(TallyJson, ReadsBackToTheSameDoubles) {
  TallyTable table;
  table.CutLengthM[0][0] = 1001 / 1000.0 * 3;
  table.UlbonLengthM[14] = 1.0 / 3.0;
  table.LossRatePercent = 1e-7;
  const ordered_json json = Parsed(table);
  EXPECT_EQ(json["CutLengthM"][0][2].get<double>(), table.CutLengthM[0][0]);
  EXPECT_EQ(json["UlbonLengthM"][14].get<double>(), table.UlbonLengthM[14]);
  EXPECT_EQ(json["LossRatePercent"].get<double>(), table.LossRatePercent);
}

TEST(TallyJson, TellsTheWarningAndTheFlags) {
  TallyTable table;
  table.StockWarningText = " 3頁の12行目の定尺を確認";
  const ordered_json json = Parsed(table);
  EXPECT_EQ(json["StockWarningText"], table.StockWarningText);
  EXPECT_EQ(json["HasHoopRows"], true);
  EXPECT_EQ(json["HasAnchorPlateRows"], false);
}

TEST(StockJson, IsOneObjectOnOneLine) {
  EXPECT_EQ(StockJson({3, 2, 5.5}), "{ \"StockBars\": 3, \"PiecesPerBar\": 2, \"StockLengthM\": 5.5 }\n");
}

}  // namespace
}  // namespace rbt
