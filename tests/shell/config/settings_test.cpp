// SPDX-License-Identifier: MIT
#include "shell/config/settings.h"

#include <gtest/gtest.h>

#include "platform/fault.h"
#include "platform/files/files.h"
#include "platform/system/clock.h"
#include "platform/system/paths.h"
#include "platform/text/cp932.h"
#include "support/root_folder.h"

namespace rbt {
namespace {

class Configuration : public testing::Test {
 protected:
  Configuration() {
    Settings = SettingsData{};
    Services.Clock = test::StandingClock({2026, 11, 21, 9, 0, 0});
  }
  ~Configuration() override { Settings = SettingsData{}; }
  void PutSteelIni(const std::string& text) const { root.Put("DATA/STEEL.INI", ToCp932(text)); }

  test::RootFolder root;
};

TEST_F(Configuration, IsAtItsDefaultsWithoutFiles) {
  Settings.GridRowBackColor = Settings.GridRowForeColor = -7;
  LoadGridColours();
  LoadTallySettings();
  LoadRemainingSettings();
  EXPECT_EQ(Settings.GridRowBackColor, 16777152);
  EXPECT_EQ(Settings.GridRowForeColor, 0);
  EXPECT_EQ(Settings.UseFixedTable, 0);
  EXPECT_EQ(Settings.AlternateRowColours, 1);
  EXPECT_EQ(Settings.PrintEmptyDiameters, 0);
  EXPECT_EQ(Settings.Use13mColumn, 0);
  EXPECT_EQ(Settings.CapInstalledWeight, 0);
  EXPECT_EQ(Settings.StockCheck, 0);
  EXPECT_EQ(Settings.LedgerWeight, 0);
  EXPECT_EQ(Settings.DetailShowsWeight, 0);
  EXPECT_EQ(Settings.ReportTitleChoice, 1);
  EXPECT_EQ(Settings.ReportTitleText, "");
  EXPECT_EQ(Settings.DateStyle, 1);
  EXPECT_EQ(Settings.ComparisonKind, 1);
  EXPECT_EQ(Settings.DetailDatePosition, 0);
  EXPECT_EQ(Settings.FloorTallyStock, 0);
  EXPECT_EQ(Settings.DetailPrint, 0);
  EXPECT_EQ(Settings.MemoPosition, 0);
  EXPECT_EQ(Settings.ShippingDate, 0);
  EXPECT_EQ(Settings.TallyPrinter, "EPSON VP-4200");
  EXPECT_EQ(Settings.TagPrinter, "EPSON VP-4200");
  EXPECT_EQ(Settings.TagLines, 0);
  EXPECT_EQ(Settings.TagMethod, 0);
  EXPECT_EQ(Settings.PrintOwnCompany, 0);
  EXPECT_EQ(Settings.StockOrInstalled, "1");
  EXPECT_TRUE(Settings.EraCalendar);
  EXPECT_EQ(Settings.EraName, "平成");
  EXPECT_EQ(Settings.EraStartYear, "1989");
  EXPECT_EQ(Settings.EraStartMonth, "1");
  EXPECT_EQ(Settings.EraStartDay, "1");
  EXPECT_EQ(Settings.ClosingMonth, "1");
  EXPECT_EQ(Settings.ClosingDay, "1");
  EXPECT_EQ(ReadSetting(kWeldedHoopWeldsKey), 1);
  EXPECT_EQ(ReadSetting(kAccumulateFlagKey), 0);
  EXPECT_EQ(ReadSetting(kLossPriorityKey), 0);
  EXPECT_EQ(ReadSetting(kPlusKey), "0");
  EXPECT_EQ(ReadSteelIni(kSelectedDbNameKey), "");
  EXPECT_EQ(ReadSteelIni(kOnesRoundingKey), "2");
}

TEST_F(Configuration, TakesTheYearAfterTheCurrentOneAsClosingYear) {
  LoadRemainingSettings();
  EXPECT_EQ(Settings.ClosingYear, "2027");
  SaveSetting(kClosingYearKey, "2030");
  LoadRemainingSettings();
  EXPECT_EQ(Settings.ClosingYear, "2030");
}

struct NumberCase {
  NumberKey key;
  std::int32_t SettingsData::*field = nullptr;
};

TEST_F(Configuration, KeepsEachStoredNumberInItsField) {
  constexpr NumberCase kCases[] = {
      {kUseFixedTableKey, &SettingsData::UseFixedTable},
      {kAlternateRowColoursKey, &SettingsData::AlternateRowColours},
      {kPrintEmptyDiametersKey, &SettingsData::PrintEmptyDiameters},
      {kUse13mColumnKey, &SettingsData::Use13mColumn},
      {kCapInstalledWeightKey, &SettingsData::CapInstalledWeight},
      {kStockCheckKey, &SettingsData::StockCheck},
      {kLedgerWeightKey, &SettingsData::LedgerWeight},
      {kDetailShowsWeightKey, &SettingsData::DetailShowsWeight},
      {kReportTitleChoiceKey, &SettingsData::ReportTitleChoice},
      {kDateStyleKey, &SettingsData::DateStyle},
      {kComparisonKindKey, &SettingsData::ComparisonKind},
      {kDetailDatePositionKey, &SettingsData::DetailDatePosition},
      {kFloorTallyStockKey, &SettingsData::FloorTallyStock},
      {kDetailPrintKey, &SettingsData::DetailPrint},
      {kMemoPositionKey, &SettingsData::MemoPosition},
      {kShippingDateKey, &SettingsData::ShippingDate},
      {kTagLinesKey, &SettingsData::TagLines},
      {kTagMethodKey, &SettingsData::TagMethod},
      {kPrintOwnCompanyKey, &SettingsData::PrintOwnCompany},
  };
  std::int32_t value = 100;
  for (const NumberCase& each : kCases) SaveSetting(each.key, value++);
  LoadTallySettings();
  LoadRemainingSettings();
  value = 100;
  for (const NumberCase& each : kCases) EXPECT_EQ(Settings.*each.field, value++) << each.key.key;
}

struct TextCase {
  TextKey key;
  std::string SettingsData::*field = nullptr;
};

TEST_F(Configuration, KeepsEachStoredTextInItsField) {
  constexpr TextCase kCases[] = {
      {kTallyPrinterKey, &SettingsData::TallyPrinter},
      {kTagPrinterKey, &SettingsData::TagPrinter},
      {kStockOrInstalledKey, &SettingsData::StockOrInstalled},
      {kEraNameKey, &SettingsData::EraName},
      {kEraStartYearKey, &SettingsData::EraStartYear},
      {kEraStartMonthKey, &SettingsData::EraStartMonth},
      {kEraStartDayKey, &SettingsData::EraStartDay},
      {kClosingYearKey, &SettingsData::ClosingYear},
      {kClosingMonthKey, &SettingsData::ClosingMonth},
      {kClosingDayKey, &SettingsData::ClosingDay},
  };
  for (const TextCase& each : kCases) SaveSetting(each.key, "の" + std::string(each.key.key));
  LoadRemainingSettings();
  for (const TextCase& each : kCases) EXPECT_EQ(Settings.*each.field, "の" + std::string(each.key.key));
}

TEST_F(Configuration, ReadsOnlyItsOwnGroupOfSettingsAtEachStep) {
  SaveSetting(kUseFixedTableKey, 1);
  SaveSetting(kDateStyleKey, 2);
  LoadTallySettings();
  EXPECT_EQ(Settings.UseFixedTable, 1);
  EXPECT_EQ(Settings.DateStyle, 1);
}

TEST_F(Configuration, SharesKeysUnderTheSpellingsOfTheFamily) {
  SaveSetting(kStockCheckKey, 1);
  SaveSetting(kUse13mColumnKey, 1);
  EXPECT_EQ(ReadFileBytes(root.SettingsFile()),
            "[kakou\\定尺チェック]\r\n定尺=1\r\n[Jyuryo\\定尺]\r\n定尺13有無=1\r\n");
}

TEST_F(Configuration, ReadsTrueAndFalseForTheInputCalendar) {
  for (const auto& [text, era] : {std::pair{"True", true}, {"False", false}, {"-1", true}, {"0", false}}) {
    SaveSetting("Zaiko", "日付", "入力暦", text);
    LoadRemainingSettings();
    EXPECT_EQ(Settings.EraCalendar, era) << text;
  }
  SaveSetting(kEraCalendarKey, false);
  EXPECT_EQ(ReadSetting("Zaiko", "日付", "入力暦", ""), "False");
}

void ExpectFault(FaultKind kind, const std::string& place, void (*action)()) {
  try {
    action();
    ADD_FAILURE() << "no fault at " << place;
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.Kind(), kind);
    EXPECT_NE(fault.Where().find(place), std::string::npos) << fault.what();
  }
}

TEST_F(Configuration, FaultsAtANumberSettingThatIsNoNumberAndNamesIt) {
  for (const char* text : {"abc", "", "1x"}) {
    SaveSetting("Kakou", "重量集計", "日付表記", text);
    ExpectFault(FaultKind::type_mismatch, "Kakou\\重量集計\\日付表記", [] { LoadRemainingSettings(); });
  }
  SaveSetting("Kakou", "定尺", "テーブル有無", "有");
  ExpectFault(FaultKind::type_mismatch, "Kakou\\定尺\\テーブル有無", [] { LoadTallySettings(); });
}

TEST_F(Configuration, TakesTheDefaultsOfYesAndNoSettingsThatTellHowThingsLook) {
  SaveSetting("Kakou", "重量集計", "一行おきの色分け", "有");
  SaveSetting("Kakou", "重量集計", "重量の無い太さの印字", "99999999999");
  EXPECT_EQ(LoadTallySettings().size(), 2U);
  EXPECT_EQ(Settings.AlternateRowColours, 1);
  EXPECT_EQ(Settings.PrintEmptyDiameters, 0);
  SaveSetting("Kakou", "自社名登録", "自社名印刷", "する");
  SaveSetting("Zaiko", "日付", "入力暦", "西暦");
  SaveSetting("Kakou", "重量集計", "明細画面重量表示", "x");
  const UnreadableSettings unreadable = LoadRemainingSettings();
  ASSERT_EQ(unreadable.size(), 3U);
  EXPECT_NE(unreadable[0].find("Kakou\\自社名登録\\自社名印刷 \"する\""), std::string::npos) << unreadable[0];
  EXPECT_EQ(Settings.PrintOwnCompany, 0);
  EXPECT_TRUE(Settings.EraCalendar);
  EXPECT_EQ(Settings.DetailShowsWeight, 0);
}

TEST_F(Configuration, RoundsNumbersHalvesToEvenAndFaultsBeyondTheirWidth) {
  SaveSetting("Kakou", "エフ印字行", "エフ行", "2.5");
  EXPECT_EQ(ReadSetting(kTagLinesKey), 2);
  SaveSetting("Kakou", "エフ印字行", "エフ行", "2147483648");
  ExpectFault(FaultKind::overflow, "エフ行", [] { ReadSetting(kTagLinesKey); });
  SaveSetting(kTagLinesKey, 0);
  SaveSetting(kStockCheckKey, 32768);
  ExpectFault(FaultKind::overflow, "kakou\\定尺チェック\\定尺", [] { LoadRemainingSettings(); });
}

TEST_F(Configuration, TakesTheDefaultOfAColourThatCannotBeReadAndNamesIt) {
  PutSteelIni("[加工帳]\r\n行の背景色=99999999999\r\n文字の色=赤\r\n");
  EXPECT_EQ(LoadGridColours(), (UnreadableSettings{"STEEL.INI [加工帳] 行の背景色 \"99999999999\"",
                                                   "STEEL.INI [加工帳] 文字の色 \"赤\""}));
  EXPECT_EQ(Settings.GridRowBackColor, 16777152);
  EXPECT_EQ(Settings.GridRowForeColor, 0);
}

TEST_F(Configuration, ReadsTheGridColoursAsDecimalNumbers) {
  PutSteelIni("[加工帳]\r\n行の背景色=255\r\n文字の色= 65280 緑\r\n");
  EXPECT_TRUE(LoadGridColours().empty());
  EXPECT_EQ(Settings.GridRowBackColor, 255);
  EXPECT_EQ(Settings.GridRowForeColor, 65280);
}

TEST_F(Configuration, TakesTheDefaultForAnEmptyColour) {
  PutSteelIni("[加工帳]\r\n行の背景色=\r\n");
  EXPECT_TRUE(LoadGridColours().empty());
  EXPECT_EQ(Settings.GridRowBackColor, 16777152);
  EXPECT_EQ(Settings.GridRowForeColor, 0);
}

TEST_F(Configuration, ReadsTheTitleTextOnlyForTheThirdChoice) {
  PutSteelIni("[加工帳]\r\n数量表印字タイトル=鉄筋数量表\r\n");
  SaveSetting(kReportTitleChoiceKey, 3);
  SaveSetting(kDetailShowsWeightKey, 1);
  RereadTitleSettings();
  EXPECT_EQ(Settings.ReportTitleText, "鉄筋数量表");
  EXPECT_EQ(Settings.DetailShowsWeight, 1);
  SaveSetting(kReportTitleChoiceKey, 2);
  RereadTitleSettings();
  EXPECT_EQ(Settings.ReportTitleText, "");
}

TEST_F(Configuration, ReadsIniTextsIntoAnEightyCharacterBuffer) {
  PutSteelIni("[データ]\r\n選択ＤＢ名=" + std::string(90, 'x') + "\r\n[b]\r\nk=a" + [] {
    std::string kana;
    for (int i = 0; i < 45; ++i) kana += "鉄";
    return kana;
  }() + "\r\n");
  EXPECT_EQ(ReadSteelIni(kSelectedDbNameKey), std::string(79, 'x'));
  // One byte and 39 characters of two bytes fill the 79 bytes.
  EXPECT_EQ(Cp932Length(ReadIniText(kSteelIni, "b", "k", "")), 79U);
}

TEST_F(Configuration, NamesTheStockLimitsOfTheTwelveDeformedDiameters) {
  for (const StockLimitKey& limit : StockLimitKeys) {
    const std::string name = "D" + std::to_string(limit.diameter_code);
    EXPECT_EQ(limit.shortest.key, name + "最小値");
    EXPECT_EQ(limit.longest.key, name + "最大値");
    EXPECT_EQ(ReadSteelIni(limit.shortest), "3500");
    EXPECT_EQ(ReadSteelIni(limit.longest), "12000");
  }
}

}  // namespace
}  // namespace rbt
