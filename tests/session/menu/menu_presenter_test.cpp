// SPDX-License-Identifier: MIT
#include "session/menu/menu_presenter.h"

#include <algorithm>
#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "archive/accumulation/hozon.h"
#include "platform/fault.h"
#include "platform/profile/ini_file.h"
#include "platform/system/paths.h"
#include "session/startup/menu_state.h"
#include "shell/config/settings.h"
#include "shell/context/run_state.h"
#include "support/fault_of.h"
#include "support/kept_services.h"
#include "support/looking_only.h"
#include "support/site_fixture.h"
#include "tally/kinds/tally_kinds.h"
#include "tally/selection.h"
#include "tally/site_sum.h"
#include "tally/tally_grid.h"

namespace rbt::test {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A menu over a root folder without a site. What it asks of its window, and what it starts, is one list of
/// steps.
class Menu : private MenuWindow {
 public:
  explicit Menu(std::int32_t start_mode = kNoStartMode) : presenter(Parts(), *this) {
    Selection.StartMode = TraitsOfStartMode(start_mode);
    for (const char* program : {"rballsites.exe", "rbsitesum.exe", "rbtally2.exe", "rbshopTM/rbledger1.exe",
                                "KAKOU/rbweldcnt.exe", "KAKOU/rbplatecnt.exe", "KAKOU/rbjoincnt.exe",
                                "KAKOU/rbcutcnt.exe", "KAKOU/rbplateprt.exe", "KAKOU/rbstockfit.exe"}) {
      site.PutProgram(program);
    }
    for (const char* key : {"材料明細", "CALL PRG"}) site.SetIni(kNextPrgFile, "データ", key, "-");
    Services.Launch = [this](std::string_view command_line, WindowStyle, bool) {
      steps.push_back("run " + std::string(command_line));
      handed_over = HandOver("材料明細") + " " + HandOver("CALL PRG");
    };
  }

  std::string HandOver(std::string_view key) const {
    return GetProfileText(MapPath(kNextPrgIni), "データ", key, "none");
  }
  std::string Message() const { return site.Messages().empty() ? "" : site.Messages().back().text; }

  SiteFixture site;
  LoadResult loaded;
  MenuState state;
  std::set<std::string, std::less<>> ready{"JS", "KEIJOJS", "PGJS", "PKEIJOJS", "KAIJS", "BUIJS", "SETJS"};
  bool open = false;                          ///< the screen of a tally
  bool faulty = false;                        ///< what is opened, written or activated next throws
  const NumberKey* broken_setting = nullptr;  ///< that the load stumbles over until the settings were open
  std::vector<bool> vital;                    ///< what load and activation knew of themselves
  std::vector<std::string> steps;
  std::string handed_over;  ///< when a program was started
  MenuPresenter presenter;

 private:
  MenuParts Parts() {
    return {.load =
                [this] {
                  vital.push_back(RunState.FaultEndsProgram);
                  if (broken_setting != nullptr) {
                    throw Fault(FaultKind::type_mismatch, PlaceOf(*broken_setting, "abc"));
                  }
                  return loaded;
                },
            .activate =
                [this] {
                  vital.push_back(RunState.FaultEndsProgram);
                  Step("activate");
                  return state;
                },
            .write_accumulated = [this] { Step("write"); },
            .end_program = [this](int status) { steps.push_back("end " + std::to_string(status)); }};
  }
  void Step(const std::string& step) {
    steps.push_back(step);
    if (faulty) throw Fault(FaultKind::overflow, step);
  }

  void ShowLoad(const MenuLoadView& view) override {
    steps.push_back("load " + view.date + view.time + (view.shows_plate_sheet ? " plates" : ""));
  }
  void ShowState(const MenuState&) override { steps.emplace_back("state"); }
  void Hide() override { steps.emplace_back("hide"); }
  void Minimise() override { steps.emplace_back("minimise"); }
  void ShowAgain() override { steps.emplace_back("show"); }
  void AskForActivation() override { steps.emplace_back("turn"); }
  bool HasForm(std::string_view form) const override { return ready.contains(form); }
  bool HasOpenForm() const override { return open; }
  bool RaiseOpenForm() override {
    if (open) steps.emplace_back("raise");
    return open;
  }
  void OpenForm(std::string_view form) override { Step("open " + std::string(form)); }
  void ShowFormModally(std::string_view form) override {
    broken_setting = nullptr;
    Step("modal " + std::string(form));
  }

  KeptServices services_;
};

/// An entry of the menu, and the steps that it takes.
struct EntryCase {
  const char* control;
  std::vector<std::string> steps;
};

const EntryCase kEntryCases[] = {
    {"cmdShuukei", {"open JS"}},
    {"cmdAllSites", {"run \\rbk\\rballsites.exe", "turn"}},
    {"cmdPGShuukei", {"hide", "open PGJS"}},
    {"cmdWeldCount", {"hide", "run \\rbk\\kakou\\rbweldcnt.exe", "turn", "show"}},
    {"cmdKeijoShuukei", {"hide", "open KEIJOJS"}},
    {"cmdPlateCount", {"hide", "run \\rbk\\kakou\\rbplatecnt.exe", "turn", "show"}},
    {"cmdKeijoPGShuukeia", {"hide", "open PKEIJOJS"}},
    {"cmdKaiShuukei", {"hide", "open KAIJS"}},
    {"cmdBuiShuukei", {"hide", "open BUIJS"}},
    {"cmdKaiBuiK", {"run \\rbk\\rbshopTM\\rbledger1.exe 4", "turn"}},
    {"cmdSiteSum", {"run \\rbk\\rbsitesum.exe", "turn"}},
    {"cmdTouroS", {"hide", "run \\rbk\\rbtally2.exe", "turn", "show"}},
    {"cmdCouplerCount", {"hide", "run \\rbk\\kakou\\rbjoincnt.exe", "turn", "show"}},
    {"cmdCutCount", {"hide", "run \\rbk\\kakou\\rbcutcnt.exe", "turn", "show"}},
    {"cmdMeiEfu", {"hide", "run \\rbk\\KAKOU\\rbstockfit.exe", "turn", "show"}},
    {"cmdPlateSheet", {"hide", "run \\rbk\\kakou\\rbplateprt.exe", "turn", "show"}},
    {"Command1", {"modal SETJS"}},
    {"cmdExit", {"hide", "hide", "end 0"}},
};

}  // namespace

TEST(MenuPresenter, EveryEntryStartsWhatItStandsForInEveryStartMode) {
  EXPECT_EQ(std::size(kEntryCases), MenuEntries().size());
  for (const std::int32_t mode : {-1, 0, 7}) {
    for (const EntryCase& row : kEntryCases) {
      Menu menu(mode);
      menu.presenter.Start(row.control);
      EXPECT_EQ(menu.steps, row.steps) << row.control;
      EXPECT_THAT(menu.site.Messages(), IsEmpty()) << row.control;
    }
  }
}

TEST(MenuPresenter, HasAnEntryForEveryMainButtonAndEveryKindOfTallyButThatOfTheCompanion) {
  for (const std::string_view control : MenuControls()) {
    if (control == "FramCSV") continue;  // a frame, not a button
    EXPECT_EQ(FindMenuEntry(control).control, control);
  }
  std::set<TallyKind> kinds;
  for (const MenuEntry& entry : MenuEntries()) {
    if (const auto* tally = std::get_if<OpensTally>(&entry.starts)) kinds.insert(tally->kind);
  }
  for (const TallyKindRow& row : TallyKinds()) {
    EXPECT_EQ(kinds.contains(row.kind), row.kind != TallyKind::names) << row.word;
  }
  EXPECT_EQ(FaultOf([] { FindMenuEntry("FramCSV"); }), FaultKind::subscript_out_of_range);
}

TEST(MenuPresenter, ATallyIsNotedAndHandedOverWhetherItsScreenIsReadyOrNot) {
  for (const bool ready : {true, false}) {
    for (const MenuEntry& entry : MenuEntries()) {
      const auto* tally = std::get_if<OpensTally>(&entry.starts);
      if (tally == nullptr) continue;
      Menu menu;
      if (!ready) menu.ready.clear();
      Selection.TallyKind = TallyKind{9};
      menu.presenter.Start(entry.control);
      EXPECT_EQ(Selection.TallyKind, tally->kind);
      EXPECT_EQ(menu.HandOver("材料明細"), "0");
      if (ready) continue;
      EXPECT_THAT(menu.steps, IsEmpty()) << "the menu stays in sight";
      EXPECT_EQ(menu.Message(),
                "「" + std::string(RowOf(tally->kind).name) + "」の画面は、まだご利用いただけません。");
    }
  }
}

TEST(MenuPresenter, TheSettingsThatAreNotReadySaySo) {
  Menu menu;
  menu.ready.clear();
  menu.presenter.Start("Command1");
  EXPECT_EQ(menu.Message(), "「年号等集計印刷設定」の画面は、まだご利用いただけません。");
  EXPECT_EQ(menu.site.Messages().back().title, "重量集計メニュー");
}

TEST(MenuPresenter, WhileAScreenIsOpenNoEntryStartsAnythingAndTheScreenComesToTheFront) {
  for (const EntryCase& row : kEntryCases) {
    Menu menu;
    menu.open = true;
    Selection.TallyKind = TallyKind::bulk;
    menu.presenter.Start(row.control);
    EXPECT_THAT(menu.steps, ElementsAre("raise")) << row.control;
    EXPECT_EQ(Selection.TallyKind, TallyKind::bulk) << row.control;
    EXPECT_EQ(menu.HandOver("材料明細"), "-") << row.control;
    EXPECT_FALSE(menu.presenter.HasEnded()) << row.control;
  }
}

TEST(MenuPresenter, AnActivationWaitsUntilTheOpenScreenHasGone) {
  Menu menu;
  menu.open = true;
  menu.presenter.Activate();
  EXPECT_THAT(menu.steps, IsEmpty());
  menu.open = false;
  menu.presenter.Activate();
  EXPECT_THAT(menu.steps, ElementsAre("activate", "state"));
}

TEST(MenuPresenter, AClickBesideTheEntriesLeadsBackToTheOpenScreen) {
  Menu menu;
  menu.presenter.LeadBack();
  EXPECT_THAT(menu.steps, IsEmpty());
  menu.open = true;
  menu.presenter.LeadBack();
  EXPECT_THAT(menu.steps, ElementsAre("raise"));
}

TEST(MenuPresenter, ASiteOfANewerFormatThatIsSelectedMeanwhileIsHandedOverAtTheActivation) {
  Menu menu;
  menu.state.hand_over_to = "\\rbk\\rbtally1S.exe";
  menu.presenter.Activate();
  EXPECT_THAT(menu.steps, ElementsAre("activate", "hide", "run \\rbk\\rbtally1S.exe", "hide", "end 0"));
}

TEST(MenuPresenter, EveryEntryTellsWhatItDoes) {
  for (const MenuEntry& entry : MenuEntries()) EXPECT_NE(entry.hint, "") << entry.control;
}

TEST(MenuPresenter, AFaultWhileAFormLoadsBringsTheMenuBackAndHandsNothingOver) {
  Menu menu;
  menu.faulty = true;
  EXPECT_EQ(FaultOf([&] { menu.presenter.Start("cmdKaiShuukei"); }), FaultKind::overflow);
  EXPECT_THAT(menu.steps, ElementsAre("hide", "open KAIJS", "show"));
  EXPECT_EQ(menu.HandOver("材料明細"), "-");
}

TEST(MenuPresenter, ASiblingThatIsNotThereIsNamedAndTheMenuStays) {
  for (const char* control : {"cmdAllSites", "cmdWeldCount", "cmdTouroS", "cmdMeiEfu"}) {
    Menu menu;
    std::filesystem::remove_all(menu.site.Root().Path() / "KAKOU");
    std::filesystem::remove(menu.site.Root().Path() / "rbtally2.exe");
    std::filesystem::remove(menu.site.Root().Path() / "rballsites.exe");
    menu.presenter.Start(control);
    EXPECT_THAT(menu.steps, IsEmpty()) << control;
    EXPECT_THAT(menu.Message(), testing::HasSubstr("が見つかりません。")) << control;
  }
}

TEST(MenuPresenter, ASiblingIsToldWhatItIsCalledForBeforeItStarts) {
  Menu names;
  names.presenter.Start("cmdTouroS");
  EXPECT_EQ(names.handed_over, "1 -");
  Menu fitter;
  fitter.presenter.Start("cmdMeiEfu");
  EXPECT_EQ(fitter.handed_over, "- \\rbk\\rbtally1.exe");
}

TEST(MenuPresenter, WhereTheRootHasNoCompanionForNamesTheOneBesideThisProgramStandsIn) {
  const std::pair<std::int32_t, const char*> cases[] = {
      {-1, "run rbtally2"}, {1, "run rbtally2 0"}, {4, "run rbtally2 4"}};
  for (const auto& [mode, run] : cases) {
    Menu menu(mode);
    std::filesystem::remove(menu.site.Root().Path() / "rbtally2.exe");
    Services.ProgramFolder = menu.site.Root().Put("bin/rbtally2", "").parent_path();
    menu.presenter.Start("cmdTouroS");
    EXPECT_THAT(menu.steps, ElementsAre("hide", run, "turn", "show"));
    EXPECT_EQ(menu.handed_over, "1 -");
    EXPECT_EQ(menu.Message(), "");
  }
}

TEST(MenuPresenter, NothingStandsInForAnotherSibling) {
  Menu menu;
  std::filesystem::remove(menu.site.Root().Path() / "rballsites.exe");
  Services.ProgramFolder = menu.site.Root().Put("bin/rballsites", "").parent_path();
  menu.presenter.Start("cmdAllSites");
  EXPECT_THAT(menu.steps, IsEmpty());
  EXPECT_EQ(menu.Message(), "プログラム「\\rbk\\rballsites.exe」が見つかりません。");
}

TEST(MenuPresenter, AStartModeThatPassesOnRunsWhatStandsInForItsCompanion) {
  Menu menu(2);
  menu.state.pass_on_to = "\\rbk\\rbtally2.exe 2";
  std::filesystem::remove(menu.site.Root().Path() / "rbtally2.exe");
  Services.ProgramFolder = menu.site.Root().Put("bin/rbtally2", "").parent_path();
  menu.presenter.Activate();
  EXPECT_THAT(menu.steps, ElementsAre("minimise", "activate", "state", "run rbtally2 2", "hide", "end 0"));
}

TEST(MenuPresenter, TheCompanionForNamesIsToldTheStartMode) {
  const std::pair<std::int32_t, const char*> cases[] = {
      {-1, "run \\rbk\\rbtally2.exe"}, {1, "run \\rbk\\rbtally2.exe 0"}, {4, "run \\rbk\\rbtally2.exe 4"}};
  for (const auto& [mode, run] : cases) {
    Menu menu(mode);
    menu.presenter.Start("cmdTouroS");
    EXPECT_EQ(menu.steps.at(1), run);
  }
}

TEST(MenuPresenter, TheExitWritesAnAccumulationThatIsOn) {
  Menu menu;
  RunState.AccumulateFlag = 1;
  menu.presenter.Leave();
  EXPECT_THAT(menu.steps, ElementsAre("hide", "write", "hide", "end 0"));
  EXPECT_TRUE(menu.presenter.HasEnded());
}

TEST(MenuPresenter, TheExitWritesTheTallyThatStandsIntoHozon) {
  const SiteFixture site;
  TallyGrid.BarCount[3][5] = 10;
  TallyGrid.StockWeight[3][5] = Currency::FromDouble(135);
  MenuPartsFor({}, [](int) {}).write_accumulated();
  EXPECT_EQ(Load_Hozon(), KeptForSum(TallyGrid));
  EXPECT_EQ(Load_Hozon().BarCount[3][5], 10);
}

TEST(MenuPresenter, ComesBackNoMoreOnceAScreenHasEndedTheProgram) {
  Menu menu;
  RunState.IsEnding = true;
  menu.presenter.Activate();
  EXPECT_THAT(menu.steps, IsEmpty());
  EXPECT_TRUE(menu.presenter.HasEnded());
}

TEST(MenuPresenter, AnExitThatCannotWriteBringsTheMenuBack) {
  Menu menu;
  menu.faulty = true;
  RunState.AccumulateFlag = 1;
  EXPECT_EQ(FaultOf([&] { menu.presenter.Leave(); }), FaultKind::overflow);
  EXPECT_THAT(menu.steps, ElementsAre("hide", "write", "show"));
  EXPECT_FALSE(menu.presenter.HasEnded());
}

TEST(MenuPresenter, TheLoadShowsItsDateAndTime) {
  Menu menu;
  RunState.RunDate = "20261121";
  RunState.RunTime = "090000";
  menu.loaded.shows_plate_sheet = true;
  menu.presenter.Load();
  EXPECT_THAT(menu.steps, ElementsAre("load 20261121090000 plates"));
}

TEST(MenuPresenter, ANewerSiteIsHandedToTheProgramThatReadsIt) {
  Menu menu;
  menu.loaded.hand_over_to = "\\rbk\\rbtally1S.exe";
  menu.presenter.Load();
  menu.presenter.Activate();
  EXPECT_THAT(menu.steps, ElementsAre("hide", "run \\rbk\\rbtally1S.exe", "hide", "end 0"));
}

TEST(MenuPresenter, AnActivationShowsHowTheMenuStands) {
  Menu menu;
  menu.presenter.Activate();
  EXPECT_THAT(menu.steps, ElementsAre("activate", "state"));
}

TEST(MenuPresenter, AStartModeThatPassesOnRunsItsCompanionMinimisedAndEnds) {
  for (const bool there : {true, false}) {
    Menu menu(2);
    menu.state.pass_on_to = "\\rbk\\rbtally2.exe 2";
    if (!there) std::filesystem::remove(menu.site.Root().Path() / "rbtally2.exe");
    menu.presenter.Activate();
    std::vector<std::string> steps{"minimise", "activate", "state"};
    if (there) steps.emplace_back("run \\rbk\\rbtally2.exe 2");
    steps.insert(steps.end(), {"hide", there ? "end 0" : "end 1"});
    EXPECT_EQ(menu.steps, steps);
  }
}

TEST(MenuPresenter, ASettingThatTheSettingsFormShowsCanBeMendedAndTheLoadRunsAgain) {
  Menu menu;
  menu.broken_setting = &kDateStyleKey;
  menu.presenter.Load();
  EXPECT_THAT(menu.steps, ElementsAre("modal SETJS", "load "));
  ASSERT_EQ(menu.site.Messages().size(), 1U);
  EXPECT_EQ(menu.site.Messages()[0].buttons, MessageButtons::yes_no);
  EXPECT_NE(menu.Message().find("日付表記"), std::string::npos);
  EXPECT_NE(menu.Message().find("「その他設定」を開いて選び直しますか。"), std::string::npos);
}

TEST(MenuPresenter, ASettingThatIsNotMendedOrNotShownThereEndsTheLoad) {
  Menu menu;
  menu.broken_setting = &kDateStyleKey;
  menu.site.Answer(MessageAnswer::no);
  EXPECT_EQ(FaultOf([&] { menu.presenter.Load(); }), FaultKind::type_mismatch);
  EXPECT_THAT(menu.steps, IsEmpty());
  menu.broken_setting = &kUse13mColumnKey;
  EXPECT_EQ(FaultOf([&] { menu.presenter.Load(); }), FaultKind::type_mismatch);
  EXPECT_EQ(menu.site.Messages().size(), 1U);
}

TEST(MenuPresenter, LoadAndActivationAreKnownAsThoseWhoseFaultEndsTheProgram) {
  Menu menu;
  EXPECT_FALSE(RunState.FaultEndsProgram);
  menu.presenter.Load();
  menu.presenter.Activate();
  EXPECT_THAT(menu.vital, ElementsAre(true, true));
  EXPECT_FALSE(RunState.FaultEndsProgram);
}

TEST(MenuPresenter, ATallyOpensWhereTheHandOverMayNotBeWritten) {
  Menu menu;
  {
    const LookingOnly looking{menu.site.Root().Path()};
    menu.presenter.Start("cmdShuukei");
    menu.presenter.Start("cmdPGShuukei");
  }
  EXPECT_THAT(menu.steps, ElementsAre("open JS", "hide", "open PGJS"));
  EXPECT_EQ(menu.HandOver("材料明細"), "-");
}

}  // namespace rbt::test
