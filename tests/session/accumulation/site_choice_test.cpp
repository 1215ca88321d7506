// SPDX-License-Identifier: MIT
#include "session/accumulation/site_choice.h"

#include <filesystem>
#include <fstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "session/accumulation/more_sites.h"
#include "session/result/result_site.h"
#include "shell/config/settings.h"
#include "shell/context/run_state.h"
#include "shell/context/site_context.h"
#include "support/fault_of.h"

namespace rbt::test {

namespace {

using testing::ElementsAre;

/// Sites 1, 2 and 5, of which site 1 is bound.
class SiteChoice : public testing::Test {
 protected:
  SiteChoice() {
    AddSiteLikeTheFirst(site_, 5);
    AddSiteLikeTheFirst(site_, 2);
    ResultSite::Load();
  }

  ResultSite site_;
};

}  // namespace

TEST_F(SiteChoice, ListsAllSitesByNumberAndStandsOnTheBoundOne) {
  SiteChoicePresenter dialog;
  const SiteChoiceView view = dialog.View();
  EXPECT_THAT(view.rows, ElementsAre(ElementsAre("1", "試験工事"), ElementsAre("2", "工事2"),
                                     ElementsAre("5", "工事5")));
  EXPECT_EQ(view.current, 0U);
  EXPECT_EQ(view.number, "1");
  EXPECT_EQ(view.focus, SiteChoiceFocus::sites);
  EXPECT_FALSE(view.left);
}

TEST_F(SiteChoice, ANumberGoesToItsSiteAndARowGivesItsNumber) {
  SiteChoicePresenter dialog;
  dialog.TypeNumber(" 5");
  EXPECT_EQ(dialog.View().current, 2U);
  dialog.TypeNumber("57");
  EXPECT_EQ(dialog.View().current, 2U);
  EXPECT_EQ(dialog.View().number, "57");
  dialog.GoTo(1);
  EXPECT_EQ(dialog.View().number, "2");
}

TEST_F(SiteChoice, ExecuteTakesTheSiteOfTheNumber) {
  SiteChoicePresenter dialog;
  dialog.TypeNumber("5");
  dialog.Execute();
  EXPECT_TRUE(dialog.View().left);
  ASSERT_TRUE(Chosen(dialog));
  EXPECT_EQ(Chosen(dialog)->number, 5);
  EXPECT_EQ(Chosen(dialog)->name, "工事5");
  EXPECT_EQ(Chosen(dialog)->KasanDataPath, "GENBA005.MDB");
}

TEST_F(SiteChoice, ANumberOfNoSiteIsToldAndTheDialogStays) {
  SiteChoicePresenter dialog;
  for (const char* number : {"9", "", "  "}) {
    dialog.TypeNumber(number);
    dialog.Execute();
    EXPECT_FALSE(dialog.View().left) << number;
    EXPECT_FALSE(Chosen(dialog));
  }
  EXPECT_EQ(site_.Messages().size(), 3U);
  EXPECT_EQ(site_.Messages().back().title, "集計を加算する現場");
}

TEST_F(SiteChoice, ASiteWithoutDataIsTold) {
  site_.Execute(kMasterFile, "UPDATE 工事テーブル SET データパス=' ' WHERE 番号=5");
  SiteChoicePresenter dialog;
  dialog.TypeNumber("5");
  dialog.Execute();
  EXPECT_FALSE(Chosen(dialog));
  EXPECT_EQ(site_.Messages().back().text, "この工事にはデータがありません。");
}

TEST_F(SiteChoice, BlanksAroundADataPathAreNoPartOfTheFileName) {
  site_.Execute(kMasterFile, "UPDATE 工事テーブル SET データパス=' GENBA005.MDB  ' WHERE 番号=5");
  SiteChoicePresenter dialog;
  dialog.TypeNumber("5");
  dialog.Execute();
  ASSERT_TRUE(Chosen(dialog));
  EXPECT_EQ(Chosen(dialog)->KasanDataPath, "GENBA005.MDB");
}

TEST_F(SiteChoice, LeavingChoosesNothing) {
  SiteChoicePresenter dialog;
  dialog.TypeNumber("5");
  dialog.Leave();
  EXPECT_TRUE(dialog.View().left);
  EXPECT_FALSE(Chosen(dialog));
}

TEST_F(SiteChoice, PutsTheHandOverThatIsMissingInItsPlaceAndLeavesTheOther) {
  site_.SetIni(kNextPrgFile, kHandOverSection, kSiteNumberKey, "3");
  const SiteChoicePresenter dialog;
  EXPECT_EQ(ReadHandOver(kSiteNumberKey), "3");
  EXPECT_EQ(ReadHandOver(kPickOrBendKey), "hiroi");
}

TEST_F(SiteChoice, TellsAGradeThatIsMissing) {
  site_.Execute(kMasterFile, "DELETE * FROM T_SD WHERE SDコード=3");
  const SiteChoicePresenter dialog;
  ASSERT_EQ(site_.Messages().size(), 1U);
  EXPECT_EQ(site_.Messages().front().text, "ＳＤ名が登録されていません。");
}

TEST_F(SiteChoice, AFolderThatCannotBeReadIsAFaultAndSendsNobodyForSites) {
  SiteContext.MasterDatabase.reset();
  SiteContext.WorkDatabase.reset();
  std::filesystem::rename(site_.Data(""), site_.Root().Path() / "ELSEWHERE");
  std::ofstream(site_.Root().Path() / "DATA") << "a file where the folder should be";
  const std::string told = FaultTextOf([] { const SiteChoicePresenter dialog; });
  EXPECT_NE(told.find("cannot be read"), std::string::npos) << told;
  EXPECT_TRUE(site_.Messages().empty());
  EXPECT_TRUE(site_.Launches().empty());
}

TEST_F(SiteChoice, WithoutAnySiteDatabaseTheToolThatMakesThemIsRunAndTheProgramEnds) {
  site_.PutProgram("DBTOOL/rbdbtool.exe");
  for (const char* file : {"GENBA001.MDB", "GENBA002.MDB", "GENBA005.MDB"})
    std::filesystem::remove(site_.Data(file));
  SiteChoicePresenter dialog;
  ASSERT_EQ(site_.Messages().size(), 1U);
  EXPECT_EQ(site_.Messages().front().text, "データーベースファイルが存在しません。\n作成して下さい。");
  ASSERT_EQ(site_.Launches().size(), 1U);
  EXPECT_EQ(site_.Launches().front().command_line, "\\RBK\\DBTOOL\\rbdbtool.exe");
  EXPECT_TRUE(std::holds_alternative<ProgramEnds>(dialog.Choice()));
  EXPECT_TRUE(dialog.View().left);
  EXPECT_TRUE(RunState.IsEnding);
}

}  // namespace rbt::test
