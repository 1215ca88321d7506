// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "platform/text/cp932.h"
#include "shell/config/settings.h"
#include "shell/context/fixed_stock.h"
#include "support/fault_of.h"
#include "support/schedule_site.h"
#include "tally/engine/stock_engine.h"
#include "tally/groups/stock_chooser.h"

namespace rbt {
namespace {

using test::FaultOf;
using test::ScheduleSite;

void PutSteelIni(const ScheduleSite& site, const std::string& lines) {
  site.Folder().Put("DATA/STEEL.INI", ToCp932("[加工帳]\r\n" + lines));
}

TEST(GetStockLengthLimits, GiveTheDefaultsWithoutTheFile) {
  const ScheduleSite site;
  const StockLengthLimits limits = GetStockLengthLimits();
  for (const int code : {6, 7, 9, 10, 11, 12, 13, 16, 19, 22, 25, 29, 32, 35, 38, 41, 51}) {
    EXPECT_EQ(limits.Min(code), 3500) << code;
    EXPECT_EQ(limits.Max(code), 12000) << code;
  }
  for (const int code : {8, 14, 50}) {
    EXPECT_EQ(limits.Min(code), 0) << code;
    EXPECT_EQ(limits.Max(code), 0) << code;
  }
  EXPECT_EQ(limits.ones_rounding, 2);
}

TEST(GetStockLengthLimits, TakeTheNumberThatATextBeginsWith) {
  const ScheduleSite site;
  PutSteelIni(
      site,
      "D10最小値=4000mm\r\nD10最大値=9000\r\nD13最小値=なし\r\nD16最大値=1000.5\r\nD51最大値=11000\r\n"
      "１の位まるめ=5\r\n");
  const StockLengthLimits limits = GetStockLengthLimits();
  EXPECT_EQ(limits.Min(10), 4000);
  for (const int thin : {6, 7, 9, 11, 12}) {  // the thin ones follow D10
    EXPECT_EQ(limits.Min(thin), 4000) << thin;
    EXPECT_EQ(limits.Max(thin), 9000) << thin;
  }
  EXPECT_EQ(limits.Min(13), 0);
  EXPECT_EQ(limits.Max(16), 1000);  // halves to even
  EXPECT_EQ(limits.Max(51), 11000);
  EXPECT_EQ(limits.ones_rounding, 5);
}

TEST(ReadPlus, IsALeadingNumberOf16Bits) {
  const ScheduleSite site;
  EXPECT_EQ(ReadPlus(), 0);
  SaveSetting("Kakou", "プラス", "長さ", "10mm");
  EXPECT_EQ(ReadPlus(), 10);
  EXPECT_EQ(EngineState.Plus, 10);
  SaveSetting("Kakou", "プラス", "長さ", "2.5");
  EXPECT_EQ(ReadPlus(), 2);
  SaveSetting("Kakou", "プラス", "長さ", "なし");
  EXPECT_EQ(ReadPlus(), 0);
  SaveSetting("Kakou", "プラス", "長さ", "40000");
  EXPECT_EQ(FaultOf([] { ReadPlus(); }), FaultKind::overflow);
}

TEST(Teijyaku_Keisan, ReadsItsSettingsAtEveryCall) {
  const ScheduleSite site;
  const Currency seven = Currency::FromInteger(7);
  Teijyaku_Keisan(2000, seven, 19);
  EXPECT_EQ(EngineState.TeijyakuResult, (StockResult{4, 2, 4.0}));
  SaveSetting("Kakou", "定尺計算", "ロス優先", "1");
  Teijyaku_Keisan(2000, seven, 19);
  EXPECT_EQ(EngineState.TeijyakuResult, (StockResult{2, 4, 8.0}));
  EXPECT_EQ(EngineState.LossPriority, 1);
  PutSteelIni(site, "D19最小値=6000\r\n");
  Teijyaku_Keisan(2000, seven, 19);
  EXPECT_EQ(EngineState.TeijyakuResult, (StockResult{2, 4, 8.0}));
  SaveSetting("Kakou", "定尺計算", "ロス優先", "0");
  Teijyaku_Keisan(2000, seven, 19);
  EXPECT_EQ(EngineState.TeijyakuResult, (StockResult{3, 3, 6.0}));
}

TEST(Teijyaku_Keisan, LeavesZerosAfterAFault) {
  const ScheduleSite site;
  EngineState.TeijyakuResult = {1, 2, 3.0};
  EXPECT_EQ(FaultOf([] { Teijyaku_Keisan(2000, Currency::FromInteger(7), 5); }),
            FaultKind::subscript_out_of_range);
  EXPECT_EQ(EngineState.TeijyakuResult, StockResult());
}

TEST(Teijyaku_Keisan, FaultsAtALossPriorityThatIsNoNumber) {
  const ScheduleSite site;
  SaveSetting("Kakou", "定尺計算", "ロス優先", "はい");
  EXPECT_EQ(FaultOf([] { Teijyaku_Keisan(2000, Currency::FromInteger(7), 19); }), FaultKind::type_mismatch);
}

TEST(Teijyaku_Keisan, AsksTheFixedTableOnlyWhenItIsInUse) {
  const ScheduleSite site;
  Database fixed = Database::CreateDatabase(site.Folder().Data("MTTeijyaku.mdb"));
  TableDef table{.name = "固定定尺テーブル", .fields = {}, .indexes = {}};
  for (const char* name : {"太さ", "開始切り寸", "終了切り寸", "材質", "定尺"})
    table.fields.push_back({.name = name});
  fixed.CreateTable(table);
  Recordset rows = fixed.OpenDynaset("SELECT * FROM 固定定尺テーブル");
  rows.AddNew();
  const std::pair<const char*, int> fields[] = {
      {"太さ", 19}, {"開始切り寸", 1900}, {"終了切り寸", 2100}, {"材質", 1}, {"定尺", 10000}};
  for (const auto& [name, value] : fields) rows.Set(name, test::Number(value));
  rows.Update();
  OpenFixedStockDatabase();

  const Currency seven = Currency::FromInteger(7);
  Teijyaku_Keisan(2000, seven, 19);
  EXPECT_EQ(EngineState.TeijyakuResult.StockLengthM, 4.0);
  Settings.UseFixedTable = 1;
  Teijyaku_Keisan(2000, seven, 19);
  EXPECT_EQ(EngineState.TeijyakuResult, (StockResult{2, 5, 10.0}));
  Teijyaku_Keisan(2000, seven, 22);
  EXPECT_EQ(EngineState.TeijyakuResult.StockLengthM, 4.0);
  Teijyaku_Keisan(2500, seven, 19);
  EXPECT_EQ(EngineState.TeijyakuResult.StockLengthM, 5.0);
}

TEST(Teijyaku_Shitei, LeavesItsResultForTheCaller) {
  const ScheduleSite site;
  Teijyaku_Shitei(2000, Currency::FromInteger(7), 19, 3, 6.0);
  EXPECT_EQ(EngineState.TeijyakuResult, (StockResult{3, 3, 6.0}));
}

TEST(StockChooser, GivesTheResultsOfTheEngineWithSettingsReadOnce) {
  const ScheduleSite site;
  const auto choose = StockChooser(false);
  BarGroup group;
  group.diameter_code = 19;
  group.cut_length_mm = 2000;
  group.pieces = Currency::FromInteger(7);
  EXPECT_EQ(choose(group), (StockResult{4, 2, 4.0}));
  SaveSetting("Kakou", "定尺計算", "ロス優先", "1");
  EXPECT_EQ(choose(group), (StockResult{4, 2, 4.0}));
  EXPECT_EQ(StockChooser(false)(group), (StockResult{2, 4, 8.0}));
  EXPECT_EQ(EngineState.TeijyakuResult, (StockResult{2, 4, 8.0}));
}

TEST(StockChooser, FaultsAtAGroupWithoutLength) {
  const ScheduleSite site;
  BarGroup group;
  group.diameter_code = 19;
  group.stock_length_m = 6.0;
  group.pieces = Currency::FromInteger(7);
  EXPECT_EQ(FaultOf([&] { StockChooser(false)(group); }), FaultKind::division_by_zero);
  EXPECT_EQ(FaultOf([&] { StockChooser(true)(group); }), FaultKind::division_by_zero);
}

}  // namespace
}  // namespace rbt
