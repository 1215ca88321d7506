// SPDX-License-Identifier: MIT
// How the screens of floors and parts ask for their floors, tally them, and are left.
#include <gtest/gtest.h>

#include "platform/files/files.h"
#include "session/floorpart/floorpart_driver.h"
#include "shell/config/settings.h"
#include "shell/context/site_context.h"
#include "support/fault_of.h"
#include "tally/selection.h"

namespace rbt::test {

namespace {

std::string Boxes(const FloorPartView& view) { return view.input.boxes[0] + "|" + view.input.boxes[1]; }

/// Enter in a box, and what comes of it.
struct EnterCase {
  const char* start;
  const char* end;
  std::size_t box;
  FloorPartFocus focus;
  bool beeps;
  const char* boxes;
};

}  // namespace

TEST(FloorPartScreens, StartWithEmptyBoxesAndNothingToPressButTheWayOut) {
  for (const FloorPartScreen* screen : kBothScreens) {
    FloorPartPresented js(*screen);
    js.Open();
    const FloorPartView view = js.View();
    EXPECT_TRUE(view.input.shown);
    EXPECT_EQ(view.input.notice, "データは1階 ～ 3階まで登録されています。");
    EXPECT_EQ(Boxes(view), "|");
    EXPECT_EQ(view.scope, "【＊＊階～＊＊階】");
    EXPECT_EQ(MainButtons(view), "leave");
    EXPECT_EQ(FilterButtons(view), "");
    EXPECT_EQ(view.filters.kinds, "異形･高強度･ネジ･スリット");
    EXPECT_EQ(view.filters.forms, "すべて");
    EXPECT_TRUE(view.grid.rows.empty());
    EXPECT_EQ(view.focus, FloorPartFocus::start);
    EXPECT_EQ(js.View().focus, FloorPartFocus::stays) << "it is asked for once";
  }
}

TEST(FloorPartScreens, HeadTellsTheSiteAndTheMomentAsSavesAreStamped) {
  FloorPartPresented js(kFloorScreen);
  js.Open();
  const HeadView head = js.View().head;
  EXPECT_EQ(head.site_number, "001");
  EXPECT_EQ(head.site_name, "試験工事");
  EXPECT_EQ(head.client_code + head.client_name, "1試験商店");
  EXPECT_EQ(head.load_date + " " + head.load_time, "2026/11/21 09:00:00");
}

TEST(FloorPartScreens, HeadLeavesOutAClientWithoutACode) {
  FloorPartPresented js(kFloorScreen);
  js.site.Execute(kMasterFile, "UPDATE 工事テーブル SET 取引先コード = 0, 番号 = 1234");
  js.Open();
  EXPECT_EQ(js.View().head.client_code, "");
  EXPECT_EQ(js.View().head.site_number, "234");
}

TEST(FloorPartScreens, AnEmptyScheduleIsToldAndLeft) {
  for (const FloorPartScreen* screen : kBothScreens) {
    FloorPartPresented js(*screen);
    js.site.Execute(kScheduleFile, "DELETE FROM 加工テーブル");
    js.Open();
    EXPECT_EQ(js.Told(), "データなし: 集計データがありません|");
    EXPECT_TRUE(js.View().left);
    EXPECT_EQ(SiteContext.WorkDatabase, nullptr);
  }
}

TEST(FloorPartScreens, RowsWithoutFloorOrPartAreGivenOneAtTheLoad) {
  FloorPartPresented js(kFloorScreen);
  js.site.AddRow(TenBars(19, 1, 0));
  js.Open();
  EXPECT_EQ(js.site.Column("階").back(), "78");
  EXPECT_EQ(js.site.Column("部位").back(), "0");
}

TEST(FloorPartScreens, TheTableOfSavedFloorsIsMadeWhereItIsMissing) {
  FloorPartPresented js(kFloorScreen);
  FloorPartSite::Load();
  js.site.Execute(kScheduleFile, "DROP TABLE 階別重量集計");
  js.presenter = std::make_unique<FloorPartPresenter>(kFloorScreen, js.parts);
  EXPECT_TRUE(js.site.Rows(kScheduleFile, "SELECT * FROM 階別重量集計").empty());
}

TEST(FloorPartScreens, AScheduleWithoutAnyFloorOfTheCodesIsAFault) {
  FloorPartPresented js(kPartScreen);
  js.site.Execute(kScheduleFile, "UPDATE 加工テーブル SET 階 = 99");
  EXPECT_EQ(FaultTextOf([&] { js.Open(); }), "invalid use of null: 加工テーブル 階");
}

TEST(FloorBoxes, EnterMovesOnWhenTheBoxPassesAndBeepsWhenNot) {
  using F = FloorPartFocus;
  const EnterCase cases[] = {
      {"1", "", 0, F::end, false, "1|"},      {"", "", 0, F::start, true, "|"},
      {"1.6", "", 0, F::start, true, "1.6|"}, {"79", "", 0, F::start, true, "79|"},
      {"76", "", 0, F::run, false, "76|76"},  {"78", "3", 0, F::run, false, "78|78"},
      {"1", "3", 1, F::run, false, "1|3"},    {"1", "", 1, F::end, true, "1|"},
      {"", "3", 1, F::end, true, "|3"},       {"3", "2", 1, F::end, true, "3|2"},
      {"1", "4", 1, F::end, true, "1|4"},     {"1", "77", 1, F::run, false, "1|77"},
  };
  for (const EnterCase& row : cases) {
    FloorPartPresented js(kFloorScreen);
    js.Open().TypeFloor(0, row.start);
    js.presenter->TypeFloor(1, row.end);
    js.presenter->EnterFloorBox(row.box);
    const FloorPartView view = js.View();
    const std::string where = std::string(row.start) + " " + row.end;
    EXPECT_EQ(view.focus, row.focus) << where;
    EXPECT_EQ(view.beep, row.beeps) << where;
    EXPECT_EQ(Boxes(view), row.boxes) << where;
    EXPECT_FALSE(js.View().beep) << "it is asked for once";
    EXPECT_EQ(js.Told(), "");
  }
}

TEST(FloorBoxes, AreFilledByTheButtons) {
  FloorPartPresented js(kPartScreen);
  js.Open().EnterAllFloors();
  const FloorPartView view = js.View();
  EXPECT_EQ(Boxes(view), "1|3");
  EXPECT_EQ(view.focus, FloorPartFocus::run);
  for (std::int16_t floor = 76; floor <= 78; ++floor) {
    js.presenter->EnterSpecialFloor(floor);
    EXPECT_EQ(Boxes(js.View()), std::to_string(floor) + "|" + std::to_string(floor));
  }
}

TEST(FloorBoxes, OfABuildingBelowGroundAloneAreFilledDownwards) {
  FloorPartPresented js(kFloorScreen);
  js.site.Execute(kScheduleFile, "UPDATE 加工テーブル SET 階 = -階");
  js.site.AddRow(On(0, 1, TenBars(19, 1, 0)));
  js.OpenWithAll();
  EXPECT_EQ(Boxes(js.View()), "0|-3");
  EXPECT_EQ(js.Labels(), "基礎階|3Ｂ階|合　計|") << "an end below 0 takes the floors from the lowest to it";
}

TEST(FloorRun, AsksForTheFloorsThatAreMissingTheFirstOneFirst) {
  struct {
    const char* start;
    const char* end;
    const char* text;
  } const cases[] = {{"", "", "開始階が設定されていません"},
                     {"", "3", "開始階が設定されていません"},
                     {"1", "", "終了階が設定されていません"}};
  for (const auto& row : cases) {
    FloorPartPresented js(kFloorScreen);
    js.Open();
    js.Enter(row.start, row.end);
    EXPECT_EQ(js.Told(), std::string("階別集計: ") + row.text + "|");
    EXPECT_TRUE(js.View().input.shown);
  }
}

TEST(FloorRun, OfARangeThatDoesNotPassBeepsAtItsBox) {
  FloorPartPresented js(kFloorScreen);
  js.Open();
  js.Enter("79", "79");
  FloorPartView view = js.View();
  EXPECT_TRUE(view.beep);
  EXPECT_EQ(view.focus, FloorPartFocus::start);
  js.Enter("1", "9");
  view = js.View();
  EXPECT_TRUE(view.beep);
  EXPECT_EQ(view.focus, FloorPartFocus::end);
  EXPECT_TRUE(view.input.shown);
  EXPECT_EQ(js.Told(), "");
}

TEST(FloorRun, ListsAFloorInARow) {
  FloorPartPresented js(kFloorScreen);
  js.Open();
  js.Enter("1", "3");
  EXPECT_EQ(js.Labels(), "1階|2階|3階|合　計|");
  EXPECT_EQ(js.Row("1階"), "135|0|0|0|135");
  EXPECT_EQ(js.Row("2階"), "0|239|0|0|239");
  EXPECT_EQ(js.Row("3階"), "60|0|0|0|60");
  EXPECT_EQ(js.Row("合　計"), "195|239|0|0|434");
  EXPECT_EQ(js.View().grid.columns[2].caption, "部位2");
  EXPECT_EQ(js.View().grid.rows[1][13], "2") << "the row number, which is not seen";
}

TEST(FloorRun, OfTheSecondNamingOfPartsShowsItsNames) {
  FloorPartPresented js(kFloorScreen);
  FloorPartSite::Load();
  Settings.ShippingDate = 2;
  js.presenter = std::make_unique<FloorPartPresenter>(kFloorScreen, js.parts);
  js.Enter("1", "3");
  EXPECT_EQ(js.View().grid.columns[1].caption, "別名1");
}

TEST(PartRun, ListsADiameterInARow) {
  FloorPartPresented js(kPartScreen);
  js.Open();
  js.Enter("1", "3");
  EXPECT_EQ(js.Labels(), "D10|D13|D16|D19|D22|D25|D29|D32|D35|D38|D41|D51|合計|");
  EXPECT_EQ(js.Row("D19"), "135|0|0|0|135");
  EXPECT_EQ(js.Row("D25"), "0|239|0|0|239");
  EXPECT_EQ(js.Row("合計"), "195|239|0|0|434");
}

TEST(FloorRun, LeadsToTheResultWithTheFocusOnItsFirstRow) {
  for (const FloorPartScreen* screen : kBothScreens) {
    FloorPartPresented js(*screen);
    js.Open();
    js.Enter("1", "2");
    const FloorPartView view = js.View();
    EXPECT_FALSE(view.input.shown);
    EXPECT_EQ(view.scope, "【1階～2階】");
    EXPECT_EQ(MainButtons(view), "print floors weights load manage leave");
    EXPECT_EQ(FilterButtons(view), "kinds forms plates") << "floors 1 and 2 have no hoop";
    EXPECT_EQ(view.focus, FloorPartFocus::first_row);
  }
}

TEST(FloorRun, IsOutOfReachMeanwhile) {
  FloorPartPresented js(kFloorScreen);
  js.OpenWithAll();
  ASSERT_EQ(js.meanwhile.size(), 1U);
  EXPECT_TRUE(js.meanwhile[0].busy);
  EXPECT_FALSE(js.meanwhile[0].input.enabled);
  EXPECT_EQ(js.meanwhile[0].raise_note, "");
  EXPECT_FALSE(js.View().busy);
  js.presenter->CyclePlates();
  ASSERT_EQ(js.meanwhile.size(), 2U);
  EXPECT_EQ(MainButtons(js.meanwhile[1]) + FilterButtons(js.meanwhile[1]), "");
}

TEST(SpecialQuestions, AreAskedOfFloorsWithRowsUnderTheTitlesOfTheScreen) {
  FloorPartPresented floors(kFloorScreen);
  floors.site.AddSpecialFloors();
  floors.Open();
  floors.Enter("1", "3");
  EXPECT_EQ(floors.Told(),
            "Ｒ階集計: Ｒ階を含めますか？|Ｐ階集計: Ｐ階を含めますか？|"
            "階無し集計: 階なしを含めますか？|");
  EXPECT_EQ(floors.site.Messages()[0].buttons, MessageButtons::yes_no);
  FloorPartPresented parts(kPartScreen);
  parts.site.AddSpecialFloors();
  parts.Open();
  parts.Enter("1", "3");
  EXPECT_EQ(parts.Told(),
            "部位集計: Ｒ階を含めますか？|部位集計: Ｐ階を含めますか？|"
            "部位集計: 階なしを含めますか？|");
}

TEST(SpecialQuestions, TakeTheFloorsThatAreAnsweredYes) {
  struct {
    bool roof;
    bool penthouse;
    bool none;
    const char* scope;
    const char* labels;
    const char* total;
  } const cases[] = {
      {false, false, false, "【1階～3階】", "1階|2階|3階|合　計|", "195|239|0|0|434"},
      {true, false, false, "Ｒ階を含む。", "1階|2階|3階|Ｒ　階|合　計|", "330|239|0|0|569"},
      {false, true, false, "Ｐ階を含む。", "1階|2階|3階|ＰＨ階|合　計|", "195|374|0|0|569"},
      {false, false, true, "階なしを含む。", "1階|2階|3階|階なし|合　計|", "195|239|0|135|569"},
      {true, true, true, "Ｒ階、Ｐ階、階なしを含む。", "1階|2階|3階|Ｒ　階|ＰＨ階|階なし|合　計|",
       "330|374|0|135|839"},
  };
  for (const auto& row : cases) {
    FloorPartPresented js(kFloorScreen);
    js.site.AddSpecialFloors();
    for (const bool yes : {row.roof, row.penthouse, row.none}) {
      js.site.Answer(yes ? MessageAnswer::yes : MessageAnswer::no);
    }
    js.Open();
    js.Enter("1", "3");
    EXPECT_EQ(js.View().scope, row.scope);
    EXPECT_EQ(js.Labels(), row.labels);
    EXPECT_EQ(js.Row("合　計"), row.total);
  }
}

TEST(SpecialQuestions, AreTakenByThePartTallyToo) {
  FloorPartPresented js(kPartScreen);
  js.site.AddSpecialFloors();
  js.site.Answer(MessageAnswer::no);
  js.site.Answer(MessageAnswer::yes);
  js.site.Answer(MessageAnswer::no);
  js.Open();
  js.Enter("1", "3");
  EXPECT_EQ(js.View().scope, "Ｐ階を含む。");
  EXPECT_EQ(js.Row("D19"), "135|135|0|0|270");
}

TEST(SpecialQuestions, AreNotAskedOfARangeThatReachesThem) {
  for (const char* start : {"1", "76"}) {
    FloorPartPresented js(kFloorScreen);
    js.site.AddSpecialFloors();
    js.Open();
    js.Enter(start, "76");
    EXPECT_EQ(js.Told(), "") << start;
    EXPECT_EQ(js.Row("Ｒ　階"), "135|0|0|0|135") << start;
  }
}

TEST(SpecialQuestions, AreNotAskedOfRowsWithoutFloorAndDiameter) {
  FloorPartPresented js(kFloorScreen);
  js.site.AddRow(On(78, 1, TenBars(0, 1, 0)));
  js.Open();
  js.Enter("1", "3");
  EXPECT_EQ(js.Told(), "");
}

TEST(SpecialQuestions, AreNotAskedAgainWhenTheFiguresAreRaised) {
  for (const FloorPartScreen* screen : kBothScreens) {
    FloorPartPresented js(*screen);
    js.site.AddSpecialFloors();
    js.site.Answer(MessageAnswer::yes);
    js.site.Answer(MessageAnswer::no);
    js.site.Answer(MessageAnswer::no);
    js.OpenWithAll().BeginChange();
    const std::size_t told = js.site.Messages().size();
    js.presenter->TypeUplift("10");
    js.presenter->TakeUplift();
    EXPECT_EQ(js.site.Messages().size(), told);
    EXPECT_EQ(js.View().scope, "Ｒ階を含む。");
    // 149 kg for each D19 of floors 1 and R, 66 and 263.
    const char* const total = screen == &kFloorScreen ? "合　計" : "合計";
    EXPECT_EQ(js.Row(total), screen == &kFloorScreen ? "364|263|0|0|627" : "363|263|0|0|626");
  }
}

TEST(FloorScreen, ChoosesItsWeightAndKeepsTheChoiceAtOnce) {
  FloorPartPresented js(kFloorScreen);
  js.site.Execute(kScheduleFile, "UPDATE 加工テーブル SET 伸切寸 = 3000 WHERE 太さ = 25");
  js.Open();
  EXPECT_EQ(js.View().weight_word, "定尺重量");
  EXPECT_FALSE(js.View().input.installed);
  js.presenter->ChooseWeight(true);
  EXPECT_EQ(ReadSetting(kFloorTallyStockKey), 1);
  EXPECT_EQ(js.View().weight_word, "取付重量");
  js.Enter("1", "3");
  EXPECT_NE(js.Row("2階"), "0|239|0|0|239");
  js.presenter->AskForFloors();
  js.presenter->ChooseWeight(false);
  js.Enter("1", "3");
  EXPECT_EQ(js.Row("2階"), "0|239|0|0|239");
}

TEST(PartScreen, ShowsStockWeightWhateverTheFloorScreenShows) {
  FloorPartPresented js(kPartScreen);
  js.site.Execute(kScheduleFile, "UPDATE 加工テーブル SET 伸切寸 = 3000 WHERE 太さ = 25");
  SaveSetting(kFloorTallyStockKey, 1);
  js.Open();
  js.Enter("1", "3");
  EXPECT_EQ(js.Row("D25"), "0|239|0|0|239");
}

TEST(FloorPartScreens, AFaultOfTheTallyLeadsBackToTheInput) {
  FloorPartPresented js(kFloorScreen);
  js.site.Execute(kScheduleFile, "UPDATE 加工テーブル SET 部位 = -1 WHERE 階 = 2");
  js.Open();
  EXPECT_NE(FaultTextOf([&] { js.Enter("1", "3"); }), "");
  const FloorPartView view = js.View();
  EXPECT_TRUE(view.input.shown);
  EXPECT_FALSE(view.busy);
  EXPECT_EQ(Boxes(view), "1|3") << "what was typed stays";
  EXPECT_EQ(MainButtons(view), "leave");
  js.Enter("1", "1");
  EXPECT_EQ(js.Row("合　計"), "135|0|0|0|135");
}

TEST(FloorPartScreens, AFaultBesideThePrintButtonsLeadsBackToTheInputAlone) {
  for (const FloorPartScreen* screen : kBothScreens) {
    FloorPartPresented js(*screen);
    js.OpenWithAll().OpenPrint();
    js.site.Execute(kScheduleFile, "UPDATE 加工テーブル SET 部位 = -1 WHERE 階 = 2");
    EXPECT_NE(FaultTextOf([&] { js.presenter->CycleHoops(); }), "");
    const FloorPartView view = js.View();
    EXPECT_TRUE(view.input.shown);
    EXPECT_FALSE(view.print_panel.open) << "there is nothing to print";
    EXPECT_TRUE(view.main_buttons_shown);
    EXPECT_EQ(MainButtons(view), "leave");
  }
}

TEST(FloorPartScreens, AskForFloorsAnewWithEverythingTakenBack) {
  for (const FloorPartScreen* screen : kBothScreens) {
    FloorPartPresented js(*screen);
    js.kinds = [] { Selection.MaterialKindMask = KindMask(3); };
    js.forms = [] { Selection.MaterialFormMask = FormMask(1); };
    js.OpenRaised("10").ChooseKinds();
    js.presenter->ChooseForms();
    js.presenter->CycleHoops();
    js.presenter->CyclePlates();
    js.presenter->AskForFloors();
    const FloorPartView view = js.View();
    EXPECT_TRUE(view.input.shown);
    EXPECT_TRUE(view.grid.rows.empty());
    EXPECT_EQ(view.focus, FloorPartFocus::start);
    EXPECT_EQ(Boxes(view), "1|3");
    EXPECT_EQ(MainButtons(view), "leave");
    EXPECT_EQ(FilterButtons(view), "");
    EXPECT_FALSE(view.filters.tells_hoops || view.filters.tells_plates);
    EXPECT_EQ(view.filters.kinds + " " + view.filters.forms, "異形･高強度･ネジ･スリット すべて");
    EXPECT_EQ(view.filters.cycle_hoops.caption, "含む");
    EXPECT_EQ(view.filters.cycle_plates.caption, "含む");
    EXPECT_EQ(view.uplift.text, "");
    SelectionData fresh;
    EXPECT_EQ(Selection.MaterialKindMask, kAllKinds);
    EXPECT_EQ(Selection.MaterialFormMask, kAllForms);
    EXPECT_EQ(Selection.HoopMode, fresh.HoopMode);
    EXPECT_EQ(Selection.AnchorPlateMode, fresh.AnchorPlateMode);
    EXPECT_TRUE(Selection.TokubetuMask.IsNone());
    EXPECT_EQ(Selection.UwanoseRitu + Selection.BuiUwanoseRitu, 0.0);
  }
}

TEST(FloorPartSave, IsOfferedForAllFloorsWithAllSpecialOnesAlone) {
  struct {
    bool by_button;
    MessageAnswer roof;
    bool offered;
  } const cases[] = {
      {true, MessageAnswer::yes, true}, {true, MessageAnswer::no, false}, {false, MessageAnswer::yes, false}};
  for (const FloorPartScreen* screen : kBothScreens) {
    for (const auto& row : cases) {
      FloorPartPresented js(*screen);
      js.site.AddRow(On(76, 1, TenBars(19, 1, 0)));
      js.site.Answer(row.roof);
      if (row.by_button) {
        js.OpenWithAll();
      } else {
        js.Open();
        js.Enter("1", "3");
      }
      EXPECT_EQ(js.View().save.enabled, row.offered) << row.by_button;
    }
  }
}

TEST(FloorPartSave, IsOfferedWhereThereAreSpecialFloorsAlone) {
  FloorPartPresented js(kFloorScreen);
  js.site.Execute(kScheduleFile, "DELETE FROM 加工テーブル");
  js.site.AddSpecialFloors();
  js.OpenWithAll();
  EXPECT_EQ(js.Labels(), "Ｒ　階|ＰＨ階|階なし|合　計|");
  EXPECT_TRUE(js.View().save.enabled);
}

TEST(FloorPartSave, IsNotOfferedAfterAllFloorsWereNarrowed) {
  FloorPartPresented js(kFloorScreen);
  js.Open().EnterAllFloors();
  js.Enter("1", "2");
  EXPECT_FALSE(js.View().save.enabled);
  js.presenter->AskForFloors();
  js.Enter("1", "3");
  EXPECT_FALSE(js.View().save.enabled) << "typed, not entered by the button";
}

TEST(FloorPartSave, StaysOfferedWhileFiguresAreFilteredAndRaised) {
  FloorPartPresented js(kFloorScreen);
  js.site.AddSpecialFloors();
  js.OpenRaised("10").CycleHoops();
  EXPECT_TRUE(js.View().save.enabled);
}

TEST(FloorPartFiles, SayThatTheyAreNotReady) {
  FloorPartPresented js(kPartScreen);
  js.OpenWithAll().Save();
  js.presenter->Load();
  EXPECT_EQ(js.Told(),
            "部位別集計: 「保存」は、まだご利用いただけません。|"
            "部位別集計: 「読込」は、まだご利用いただけません。|");
}

TEST(FloorPartPrint, TakesThePlaceOfTheMainButtonsWithTheDateToType) {
  for (const FloorPartScreen* screen : kBothScreens) {
    FloorPartPresented js(*screen);
    js.OpenWithAll().OpenPrint();
    FloorPartView view = js.View();
    EXPECT_TRUE(view.print_panel.open);
    EXPECT_FALSE(view.print_panel.has_memo);
    EXPECT_EQ(view.print_panel.date.year, "2026");
    EXPECT_FALSE(view.main_buttons_shown);
    EXPECT_EQ(view.focus, FloorPartFocus::year);
    js.presenter->ClosePrint();
    view = js.View();
    EXPECT_FALSE(view.print_panel.open);
    EXPECT_EQ(MainButtons(view), "print floors weights save load manage leave");
  }
}

TEST(FloorPartScreens, AreLeftWithTheSelectionAsTheMenuExpectsIt) {
  for (const FloorPartScreen* screen : kBothScreens) {
    FloorPartPresented js(*screen);
    js.kinds = [] {
      Selection.MaterialKindMask = KindMask();
      Selection.UlbonOnly = true;
    };
    js.OpenRaised("10").ChooseKinds();
    js.presenter->Leave();
    EXPECT_TRUE(js.View().left);
    EXPECT_FALSE(Selection.UlbonOnly);
    EXPECT_EQ(Selection.UwanoseRitu + Selection.BuiUwanoseRitu, 0.0);
    EXPECT_EQ(SiteContext.WorkDatabase, nullptr);
  }
}

TEST(FloorPartScreens, ATallyTakesInWhatOtherProgramsHaveMadeOfTheSchedule) {
  FloorPartPresented js(kFloorScreen);
  js.OpenWithAll();
  EXPECT_EQ(js.Row("1階"), "135|0|0|0|135") << js.Labels();
  // As a thin bar, which D19 never is, and a line without a floor: both have to be worked out again.
  js.site.Execute(kScheduleFile, "UPDATE 加工テーブル SET 予備2 = 2 WHERE 太さ = 19");
  js.site.AddRow(TenBars(19, 1, 0));
  js.presenter->CycleHoops();
  js.presenter->CycleHoops();
  js.presenter->CycleHoops();
  EXPECT_EQ(js.Row("1階"), "135|0|0|0|135") << js.Labels();
  EXPECT_EQ(js.site.Rows(kScheduleFile, "SELECT 階, 部位 FROM 加工テーブル WHERE 行No = 5"),
            (std::vector<std::vector<Value>>{{Value{std::int64_t{78}}, Value{std::int64_t{0}}}}));
}

TEST(FloorPartScreens, OfASiteThatMayOnlyBeReadTallyOnACopyAndLeaveTheFileAsItIs) {
  for (const FloorPartScreen* screen : kBothScreens) {
    FloorPartPresented js(*screen);
    js.site.AddRow(TenBars(19, 1, 0));  // without a floor and a part
    FloorPartSite::Load();
    const std::string before = ReadFileBytes(js.site.Data(kScheduleFile));
    SiteContext.OnlyRead = true;
    js.presenter = std::make_unique<FloorPartPresenter>(*screen, js.parts);
    js.presenter->EnterAllFloors();
    js.presenter->Run();
    EXPECT_FALSE(js.View().input.shown) << screen->name;
    EXPECT_EQ(ReadFileBytes(js.site.Data(kScheduleFile)), before) << screen->name;
    js.presenter->Leave();
  }
}

}  // namespace rbt::test
