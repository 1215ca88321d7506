// SPDX-License-Identifier: MIT
// Saving what the screens of floors and parts show, and showing what was saved.
#include <gtest/gtest.h>

#include "archive/store/save_tally.h"
#include "archive/store/site_file.h"
#include "session/floorpart/floorpart_driver.h"
#include "shell/config/settings.h"
#include "support/fault_of.h"
#include "tally/selection.h"

namespace rbt::test {

namespace {

/// A screen whose dialogs save under one name and load it, without asking.
class SavingScreen : public FloorPartPresented {
 public:
  explicit SavingScreen(const FloorPartScreen& screen) : FloorPartPresented(screen) {
    parts.save = [this](const TallyResult& result) {
      saved = result;
      const SaveOrder order{.key = {"20261121", "090000"}, .name = "全階", .supply = {}, .with_13m = false};
      SaveTally(*SiteFile(), result, order);
    };
    parts.load = [this](TallyKind kind) -> std::optional<LoadedTally> {
      if (!loads) return std::nullopt;
      const std::vector<SavedTally> list = SavedTallies(*SiteFile(), kind, false);
      return LoadTally(*SiteFile(), list.front(), false);
    };
  }

  /// All floors without their hoops, saved; then the first floor alone, tallied.
  FloorPartPresenter& SaveAllAndTallyOne() {
    OpenWithAll().CycleHoops();
    presenter->Save();
    presenter->AskForFloors();
    return Enter("1", "1");
  }
  std::string Rows() const {
    std::string rows;
    for (const std::vector<std::string>& row : View().grid.rows) rows += row.front() + "=" + row[12] + "|";
    return rows;
  }

  bool loads = true;
  std::optional<TallyResult> saved;
};

}  // namespace

TEST(FloorPartSaved, TheResultThatIsShownIsSaved) {
  for (const FloorPartScreen* screen : kBothScreens) {
    SavingScreen js(*screen);
    js.OpenWithAll().Save();
    ASSERT_TRUE(js.saved);
    EXPECT_EQ(js.saved->kind, screen->kind);
    EXPECT_EQ(js.saved->selection.KaiStart, 1);
    EXPECT_EQ(js.saved->selection.KaiEnd, 3);
  }
}

TEST(FloorPartSaved, ALoadedTallyTakesThePlaceOfTheOneThatWasTallied) {
  for (const FloorPartScreen* screen : kBothScreens) {
    SavingScreen js(*screen);
    js.OpenWithAll().CycleHoops();
    const std::string rows = js.Rows();
    js.presenter->Save();
    js.presenter->AskForFloors();
    js.Enter("1", "1");
    EXPECT_NE(js.Rows(), rows);
    js.presenter->Load();
    EXPECT_EQ(js.Rows(), rows);
    EXPECT_EQ(js.View().scope, "【1階～3階】");
    EXPECT_EQ(Selection.KaiEnd, 3);
  }
}

TEST(FloorPartSaved, TheCaptionsTellTheMasksAndModesOfTheLoadedTally) {
  SavingScreen js(kFloorScreen);
  js.kinds = [] { Selection.MaterialKindMask = KindMask(3); };
  js.forms = [] { Selection.MaterialFormMask = FormMask(1); };
  js.OpenWithAll().ChooseForms();
  js.presenter->ChooseKinds();
  js.presenter->CycleHoops();
  js.presenter->Save();
  js.presenter->AskForFloors();
  js.Enter("1", "2");
  js.presenter->Load();
  const FloorPartView view = js.View();
  EXPECT_EQ(view.filters.kinds, "異形･ネジ");
  EXPECT_EQ(view.filters.forms, "生材");
  EXPECT_EQ(view.filters.cycle_hoops.caption, "含まず");
  EXPECT_TRUE(view.filters.tells_hoops);
  EXPECT_EQ(view.filters.cycle_plates.caption, "含む");
  EXPECT_EQ(view.focus, FloorPartFocus::first_row);
  EXPECT_EQ(Selection.MaterialKindMask, KindMask(3));
}

TEST(FloorPartSaved, TheScopeTellsTheSpecialFloorsOfTheLoadedTally) {
  SavingScreen js(kFloorScreen);
  js.site.AddSpecialFloors();
  js.OpenWithAll().Save();
  js.presenter->AskForFloors();
  js.site.Answer(MessageAnswer::no);
  js.site.Answer(MessageAnswer::no);
  js.site.Answer(MessageAnswer::no);
  js.Enter("1", "2");
  js.presenter->Load();
  EXPECT_EQ(js.View().scope, "Ｒ階、Ｐ階、階なしを含む。");
  EXPECT_EQ(js.Labels(), "1階|2階|3階|Ｒ　階|ＰＨ階|階なし|合　計|");
}

TEST(FloorPartSaved, ALoadedTallyIsNeitherFilteredNorRaisedNorCorrected) {
  for (const FloorPartScreen* screen : kBothScreens) {
    SavingScreen js(*screen);
    js.SaveAllAndTallyOne().Load();
    EXPECT_EQ(MainButtons(js.View()), "print floors load manage leave") << "one floor was tallied";
    EXPECT_EQ(FilterButtons(js.View()), "");
    EXPECT_TRUE(js.View().filters.choose_kinds.shown);
  }
}

TEST(FloorPartSaved, NoPrintBringsTheSelectionBackToALoadedTally) {
  constexpr std::size_t kSheetOfEachFloor = 1;
  constexpr std::size_t kSheetOfTotals = 2;
  for (const std::size_t sheet : {kSheetOfEachFloor, kSheetOfTotals}) {
    SavingScreen js(kFloorScreen);
    js.SaveAllAndTallyOne().Load();
    js.presenter->OpenPrint();
    js.site.Answer(MessageAnswer::no);
    js.site.Answer(MessageAnswer::no);
    js.presenter->Print(sheet);
    EXPECT_FALSE(js.View().print_panel.open);
    EXPECT_EQ(FilterButtons(js.View()), "");
  }
}

TEST(FloorPartSaved, ALoadedTallyOfAllFloorsCanBeSavedAgainWhereAllWereTallied) {
  SavingScreen js(kFloorScreen);
  js.OpenWithAll().Save();
  js.presenter->Load();
  EXPECT_EQ(MainButtons(js.View()), "print floors save load manage leave");
}

TEST(FloorPartSaved, TheNextRunIsATallyAgain) {
  for (const FloorPartScreen* screen : kBothScreens) {
    SavingScreen js(*screen);
    js.SaveAllAndTallyOne().Load();
    js.presenter->AskForFloors();
    js.Enter("1", "3");
    EXPECT_EQ(MainButtons(js.View()), "print floors weights load manage leave");
    EXPECT_EQ(FilterButtons(js.View()), "kinds forms hoops plates");
  }
}

TEST(FloorPartSaved, AnUpliftGoesWithTheFiguresThatItRaised) {
  for (const FloorPartScreen* screen : kBothScreens) {
    SavingScreen js(*screen);
    js.OpenRaised("10").Save();
    const std::string rows = js.Rows();
    js.presenter->Load();
    EXPECT_EQ(js.Rows(), rows);
    EXPECT_EQ(Selection.UwanoseRitu + Selection.BuiUwanoseRitu, 0.0);
  }
}

TEST(FloorPartSaved, AHeldCorrectionEndsWithTheLoad) {
  SavingScreen js(kFloorScreen);
  js.OpenWithAll().Save();
  js.site.Answer(MessageAnswer::no);
  js.presenter->BeginChange();
  js.presenter->Correct(0, 1, "999");
  js.presenter->EndCorrection();
  js.presenter->Load();
  EXPECT_EQ(js.Row("1階"), "135|0|0|0|135");
  EXPECT_TRUE(js.View().save.enabled);
}

TEST(FloorPartSaved, InstalledWeightsComeBackAsStockWeightsAndAreCalledSo) {
  SaveSetting(kFloorTallyStockKey, 0);
  SavingScreen js(kFloorScreen);
  SaveSetting(kFloorTallyStockKey, 1);
  js.OpenWithAll().Save();
  EXPECT_EQ(js.View().weight_word, "取付重量");
  js.presenter->Load();
  EXPECT_EQ(js.View().weight_word, "定尺重量");
  EXPECT_EQ(js.Row("1階"), "135|0|0|0|135");
}

TEST(FloorPartSaved, ThinBarsAloneComeBackAsTheyWere) {
  for (const FloorPartScreen* screen : kBothScreens) {
    SavingScreen js(*screen);
    js.kinds = [] {
      Selection.MaterialKindMask = KindMask(0);
      Selection.UlbonOnly = true;
    };
    js.OpenWithAll().ChooseKinds();
    const std::string rows = js.Rows();
    js.presenter->Save();
    js.presenter->AskForFloors();
    js.Enter("1", "1");
    js.presenter->Load();
    EXPECT_EQ(js.Rows(), rows);
    EXPECT_EQ(js.View().filters.kinds, "ウルボン");
  }
}

TEST(FloorPartSaved, NothingChangesWhereNoneIsLoaded) {
  SavingScreen js(kFloorScreen);
  js.loads = false;
  js.OpenWithAll().Load();
  EXPECT_EQ(MainButtons(js.View()), "print floors weights save load manage leave");
  EXPECT_EQ(js.Row("1階"), "135|0|0|0|135");
}

TEST(FloorPartSaved, ATallyWithoutRowsLeavesAnEmptyGrid) {
  for (const FloorPartScreen* screen : kBothScreens) {
    SavingScreen js(*screen);
    js.OpenWithAll().Save();
    Database site = Database::Open(js.site.Data(kScheduleFile));
    site.Execute("DELETE * FROM 階部位重量集計");
    site.Execute("DELETE * FROM 部位別本重集計");
    js.presenter->Load();
    EXPECT_EQ(js.Rows(), "");
    EXPECT_FALSE(js.View().input.shown);
  }
}

}  // namespace rbt::test
