// SPDX-License-Identifier: MIT
#include "session/startup/jet_files.h"

#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "jet/jet_file.h"
#include "platform/files/files.h"
#include "session/startup/startup.h"
#include "shell/context/run_state.h"
#include "shell/context/site_context.h"
#include "shell/live/jet_folder.h"
#include "support/child_process.h"
#include "support/fault_of.h"
#include "support/jet_site.h"
#include "support/looking_only.h"
#include "support/sample.h"
#include "support/site_fixture.h"

namespace rbt::test {
namespace {

namespace fs = std::filesystem;

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class JetFiles : public ::testing::Test {
 protected:
  void MakeJet(const std::string& name) { TurnIntoJet(site_.Data(name)); }
  static void Settle(const std::string& name) { SettleJetFiles({"\\RBK\\DATA\\" + name}); }
  /// The program ends and starts anew.
  static void EndRun() { SiteFixture::ResetGlobalState(); }
  std::size_t Questions() const {
    return static_cast<std::size_t>(std::ranges::count_if(site_.Messages(), [](const ShownMessage& message) {
      return message.buttons == MessageButtons::import_or_read;
    }));
  }
  bool IsJet(const std::string& name) const { return jet::IsJetFile(site_.Data(name)); }

  SiteFixture site_;
};

TEST_F(JetFiles, AreReadAsTheyAreUnlessTheUserWantsOtherwise) {
  MakeJet(kScheduleFile);
  Settle(kScheduleFile);
  ASSERT_THAT(site_.Messages(), SizeIs(1));
  EXPECT_EQ(site_.Messages()[0].buttons, MessageButtons::import_or_read);
  EXPECT_THAT(site_.Messages()[0].text,
              AllOf(HasSubstr("GENBA001.MDB は元のままの Jet 形式のデータベースです。\n"
                              "このプログラムの形式に取り込みますか？"),
                    HasSubstr("元のファイルは GENBA001.MDB.jet として残ります。"),
                    HasSubstr((site_.Root() / "DATA").string())));
  EXPECT_TRUE(IsJet(kScheduleFile));
  EXPECT_FALSE(fs::exists(site_.Data("GENBA001.MDB.jet")));
}

TEST_F(JetFiles, AreTakenOverWhereTheUserWantsThat) {
  MakeJet(kScheduleFile);
  const std::string before = ReadFileBytes(site_.Data(kScheduleFile));
  site_.Answer(MessageAnswer::yes);
  Settle(kScheduleFile);
  EXPECT_THAT(site_.Messages(), SizeIs(1));
  EXPECT_NO_THROW(Database::Open(site_.Data(kScheduleFile)));
  EXPECT_EQ(ReadFileBytes(site_.Data("GENBA001.MDB.jet")), before);
  EXPECT_THAT(ReadFileBytes(site_.Data("GENBA001.MDB.jet.txt")), HasSubstr("table 加工テーブル: 0 rows"));
}

TEST_F(JetFiles, AreAskedForOnceInAFolder) {
  MakeJet(kScheduleFile);
  MakeJet(kCompanionFile);
  Settle(kScheduleFile);
  Settle(kCompanionFile);
  EndRun();
  Settle(kScheduleFile);
  EXPECT_EQ(Questions(), 1U);
  EXPECT_EQ(RememberedJetChoice(site_.Root() / "DATA"), JetChoice::read_in_place);
}

TEST_F(JetFiles, ThatComeLaterAreTakenOverByTheChoiceOfThenAndTold) {
  MakeJet(kScheduleFile);
  site_.Answer(MessageAnswer::yes);
  Settle(kScheduleFile);
  EndRun();
  MakeJet(kCompanionFile);
  Settle(kCompanionFile);
  EXPECT_FALSE(IsJet(kCompanionFile));
  EXPECT_EQ(Questions(), 1U);
  ASSERT_THAT(site_.Messages(), SizeIs(2));
  EXPECT_THAT(site_.Messages()[1].text,
              AllOf(HasSubstr("HIROI001.mdb をこのプログラムの形式に取り込みました。"),
                    HasSubstr("元のファイルは HIROI001.mdb.jet として残ります。")));
}

TEST_F(JetFiles, OfAnotherFolderAreAskedForOnTheirOwn) {
  MakeJet(kScheduleFile);
  fs::create_directories(site_.Root() / "OLD");
  fs::copy_file(site_.Data(kScheduleFile), site_.Root() / "OLD/GENBA001.MDB");
  Settle(kScheduleFile);
  SettleJetFiles({"\\RBK\\OLD\\GENBA001.MDB"});
  EXPECT_EQ(Questions(), 2U);
  EXPECT_THAT(site_.Messages().back().text, HasSubstr((site_.Root() / "OLD").string()));
}

TEST_F(JetFiles, AreAskedForOnceInARunWhereTheAnswerCannotBeKept) {
  MakeJet(kScheduleFile);
  // Whoever the test goes on as may write among the files, but no settings.
  fs::permissions(site_.Root().Path(), fs::perms{0755});
  fs::permissions(site_.Root() / "DATA", fs::perms{0777});
  const LookingOnly looking{site_.Root().SettingsFile().parent_path()};
  Settle(kScheduleFile);
  Settle(kScheduleFile);
  EXPECT_EQ(Questions(), 1U);
  EXPECT_FALSE(RememberedJetChoice(site_.Root() / "DATA").has_value());
}

TEST_F(JetFiles, InAFolderThatTakesNoFilesAreReadWithoutAWord) {
  MakeJet(kScheduleFile);
  {
    const LookingOnly looking{site_.Root().Path()};
    Settle(kScheduleFile);
  }
  EXPECT_THAT(site_.Messages(), IsEmpty());
  EXPECT_TRUE(IsJet(kScheduleFile));
}

TEST_F(JetFiles, AreNotAskedForWhereFilesAreOfTheStoreOrMissing) {
  Settle(kScheduleFile);
  Settle("GENBA999.MDB");
  EXPECT_THAT(site_.Messages(), IsEmpty());
}

TEST_F(JetFiles, RowsThatWereRefusedAreTold) {
  fs::remove(site_.Data(kCompanionFile));
  FieldDef name;
  name.name = "登録名";
  name.type = FieldType::text;
  name.size = 2;
  WriteJetFile(site_.Data(kCompanionFile), jet::JetVersion::jet4,
               {{"登録名", {name}, {{Value{"柱と梁"}}, {Value{"柱"}}}}});
  site_.Answer(MessageAnswer::yes);
  Settle(kCompanionFile);
  ASSERT_THAT(site_.Messages(), SizeIs(2));
  EXPECT_THAT(site_.Messages()[1].text,
              AllOf(HasSubstr("取り込めなかった行 1 行"), HasSubstr("HIROI001.mdb.jet.txt")));
  EXPECT_THAT(ReadFileBytes(site_.Data("HIROI001.mdb.jet.txt")),
              HasSubstr("refused: page 4, row 1, 登録名 柱と梁"));
}

TEST_F(JetFiles, OneThatCannotBeTakenOverIsToldAndStays) {
  MakeJet(kScheduleFile);
  fs::resize_file(site_.Data(kScheduleFile), 8192);
  const std::string before = ReadFileBytes(site_.Data(kScheduleFile));
  site_.Answer(MessageAnswer::yes);
  Settle(kScheduleFile);
  ASSERT_THAT(site_.Messages(), SizeIs(2));
  EXPECT_EQ(site_.Messages()[1].buttons, MessageButtons::ok_to_warning);
  EXPECT_THAT(site_.Messages()[1].text,
              AllOf(HasSubstr("今回は元のファイルをそのまま読みます"), HasSubstr("GENBA001.MDB")));
  EXPECT_EQ(ReadFileBytes(site_.Data(kScheduleFile)), before);
  EXPECT_FALSE(fs::exists(site_.Data("GENBA001.MDB.jet")));
}

TEST_F(JetFiles, TheLoadTakesOverEveryFileThatItOpens) {
  site_.AddRow({{"太さ", Value{std::int64_t{19}}}});
  for (const char* name : {kScheduleFile, kCompanionFile, kMasterFile, kFixedStockFile, kTemplateFile})
    MakeJet(name);
  site_.Answer(MessageAnswer::yes);
  LoadSite({});
  EXPECT_EQ(Questions(), 1U);
  for (const char* name : {kScheduleFile, kCompanionFile, kMasterFile, kFixedStockFile, kTemplateFile})
    EXPECT_FALSE(IsJet(name)) << name;
  EXPECT_EQ(site_.Rows(kScheduleFile, "SELECT 太さ FROM 加工テーブル").size(), 1U);
}

TEST_F(JetFiles, TheCommandLineIsAskedNothing) {
  MakeJet(kScheduleFile);
  StartOptions options;
  options.command_line = true;
  LoadSite(options);
  EXPECT_THAT(site_.Messages(), IsEmpty());
  EXPECT_TRUE(IsJet(kScheduleFile));
}

TEST_F(JetFiles, TheCommandLineThatRefusesThemNamesTheCommandThatTakesThemOver) {
  MakeJet(kScheduleFile);
  StartOptions options;
  options.command_line = true;
  options.jet = JetChoice::refuse;
  EXPECT_THAT(FaultTextOf([&] { LoadSite(options); }), HasSubstr("to take it over: rbtally import "));
  EXPECT_THAT(site_.Messages(), IsEmpty());
  EXPECT_TRUE(IsJet(kScheduleFile));
}

TEST_F(JetFiles, KilledAtAnyMomentOfTheImportTheNextStartWorks) {
  site_.AddRow({{"太さ", Value{std::int64_t{19}}}});
  MakeJet(kScheduleFile);
  const fs::path file = site_.Data(kScheduleFile);
  const std::string before = ReadFileBytes(file);
  RememberJetChoice(site_.Root() / "DATA", JetChoice::import);
  const auto settle = [&] { Settle(kScheduleFile); };
  int taken_again = 0;
  int taken_over = 0;
  TryMoments([&](int n) {
    SCOPED_TRACE(n);
    const bool killed = KilledBeforeChange(n, settle);
    const std::size_t messages = site_.Messages().size();
    settle();
    if (killed) (site_.Messages().size() > messages ? taken_again : taken_over) += 1;
    EXPECT_EQ(site_.Rows(kScheduleFile, "SELECT 太さ FROM 加工テーブル").size(), 1U);
    EXPECT_EQ(ReadFileBytes(site_.Data("GENBA001.MDB.jet")), before);
    fs::remove(site_.Data("GENBA001.MDB.jet"));
    fs::remove(site_.Data("GENBA001.MDB.jet.txt"));
    WriteFileAtomically(file, before);
    return killed;
  });
  EXPECT_GT(taken_again, 10 / SampleStep(8));
  EXPECT_GT(taken_over, 0);
}

class ReadingInPlace : public JetFiles {
 protected:
  void SetUp() override {
    MakeJet(kScheduleFile);
    RememberJetChoice(site_.Root() / "DATA", JetChoice::read_in_place);
  }
};

TEST_F(ReadingInPlace, IsToldOnceForEachSite) {
  LoadSite({});
  ASSERT_THAT(site_.Messages(), SizeIs(1));
  EXPECT_EQ(site_.Messages()[0].buttons, MessageButtons::ok);
  EXPECT_THAT(site_.Messages()[0].text,
              AllOf(HasSubstr("「GENBA001.MDB」は元のままの Jet 形式なので、読むだけにします。"),
                    HasSubstr("保存した集計は、このプログラムの中にだけ残り、")));
  ActivateMenu({});
  EndRun();
  LoadSite({});
  ActivateMenu({});
  EXPECT_THAT(site_.Messages(), SizeIs(1));
}

TEST_F(ReadingInPlace, IsToldOfAnotherSiteWhenThatIsFollowed) {
  LoadSite({});
  fs::copy_file(site_.Data(kScheduleFile), site_.Data("GENBA002.MDB"));
  fs::copy_file(site_.Data(kCompanionFile), site_.Data("HIROI002.mdb"));
  site_.Add(kMasterFile, "工事テーブル",
            {{"番号", std::int64_t{2}}, {"工事名", "次の現場"}, {"データパス", "GENBA002.MDB"}});
  site_.SetIni(kSteelFile, "データ", "選択ＤＢ名", "GENBA002.MDB");
  EXPECT_EQ(ActivateMenu({}).site, "002　次の現場　（Jet 形式・読むだけ）");
  ASSERT_THAT(site_.Messages(), SizeIs(2));
  EXPECT_THAT(site_.Messages()[1].text, HasSubstr("「GENBA002.MDB」"));
}

TEST_F(ReadingInPlace, ShowsInTheMenu) {
  LoadSite({});
  EXPECT_EQ(ActivateMenu({}).site, "001　試験工事　（Jet 形式・読むだけ）");
}

TEST_F(ReadingInPlace, IsNotToldOfAFileOfTheStore) {
  TellOfReadingInPlace(site_.Data(kMasterFile));
  EXPECT_THAT(site_.Messages(), IsEmpty());
}

}  // namespace
}  // namespace rbt::test
