// SPDX-License-Identifier: MIT
#include "session/startup/offer_import.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "jet/jet_file.h"
#include "platform/fault.h"
#include "platform/files/files.h"
#include "session/startup/startup.h"
#include "shell/context/site_context.h"
#include "support/child_process.h"
#include "support/jet_writer.h"
#include "support/sample.h"
#include "support/site_fixture.h"

namespace rbt::test {
namespace {

namespace fs = std::filesystem;

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class OfferedImport : public ::testing::Test {
 protected:
  /// Puts a real Jet file with the same tables and rows under the name of a store file.
  void MakeJet(const std::string& name) {
    const fs::path file = site_.Data(name);
    std::vector<JetTable> tables;
    {
      Database database = Database::Open(file);
      tables = JetTablesOf(database);
    }
    fs::remove(file);
    WriteJetFile(file, jet::JetVersion::jet4, tables);
  }

  SiteFixture site_;
};

TEST_F(OfferedImport, YesTakesTheFileOverAndKeepsTheJetFile) {
  MakeJet(kScheduleFile);
  const std::string before = ReadFileBytes(site_.Data(kScheduleFile));
  site_.Answer(MessageAnswer::yes);
  EXPECT_TRUE(OfferImport(site_.Data(kScheduleFile)));
  ASSERT_THAT(site_.Messages(), SizeIs(1));
  EXPECT_EQ(site_.Messages()[0].buttons, MessageButtons::yes_no);
  EXPECT_THAT(site_.Messages()[0].text,
              AllOf(HasSubstr("GENBA001.MDB は"), HasSubstr("GENBA001.MDB.jet として")));
  EXPECT_NO_THROW(Database::Open(site_.Data(kScheduleFile)));
  EXPECT_EQ(ReadFileBytes(site_.Data("GENBA001.MDB.jet")), before);
  EXPECT_THAT(ReadFileBytes(site_.Data("GENBA001.MDB.jet.txt")), HasSubstr("table 加工テーブル: 0 rows"));
}

TEST_F(OfferedImport, NoLeavesTheFileAlone) {
  MakeJet(kScheduleFile);
  site_.Answer(MessageAnswer::no);
  EXPECT_FALSE(OfferImport(site_.Data(kScheduleFile)));
  EXPECT_TRUE(jet::IsJetFile(site_.Data(kScheduleFile)));
  EXPECT_FALSE(fs::exists(site_.Data("GENBA001.MDB.jet")));
}

TEST_F(OfferedImport, FilesOfTheStoreAndMissingFilesAskNothing) {
  EXPECT_FALSE(OfferImport(site_.Data(kScheduleFile)));
  EXPECT_FALSE(OfferImport(site_.Data("GENBA999.MDB")));
  EXPECT_THAT(site_.Messages(), IsEmpty());
}

TEST_F(OfferedImport, RefusedRowsAreTold) {
  fs::remove(site_.Data(kCompanionFile));
  FieldDef name;
  name.name = "登録名";
  name.type = FieldType::text;
  name.size = 2;
  WriteJetFile(site_.Data(kCompanionFile), jet::JetVersion::jet4,
               {{"登録名", {name}, {{Value{"柱と梁"}}, {Value{"柱"}}}}});
  EXPECT_TRUE(OfferImport(site_.Data(kCompanionFile)));
  ASSERT_THAT(site_.Messages(), SizeIs(2));
  EXPECT_THAT(site_.Messages()[1].text,
              AllOf(HasSubstr("取り込めなかった行 1 行"), HasSubstr("HIROI001.mdb.jet.txt")));
  EXPECT_THAT(ReadFileBytes(site_.Data("HIROI001.mdb.jet.txt")),
              HasSubstr("refused: page 4, row 1, 登録名 柱と梁"));
}

TEST_F(OfferedImport, ADamagedFileIsAFaultAndStays) {
  MakeJet(kScheduleFile);
  fs::resize_file(site_.Data(kScheduleFile), 8192);
  const std::string before = ReadFileBytes(site_.Data(kScheduleFile));
  EXPECT_THROW(OfferImport(site_.Data(kScheduleFile)), Fault);
  EXPECT_EQ(ReadFileBytes(site_.Data(kScheduleFile)), before);
  EXPECT_FALSE(fs::exists(site_.Data("GENBA001.MDB.jet")));
}

TEST_F(OfferedImport, TheLoadOffersEveryFileThatItOpens) {
  site_.AddRow({{"太さ", Value{std::int64_t{19}}}});
  for (const char* name : {kScheduleFile, kCompanionFile, kMasterFile, kFixedStockFile, kTemplateFile})
    MakeJet(name);
  LoadSite({});
  std::size_t questions = 0;
  for (const ShownMessage& message : site_.Messages())
    questions += message.buttons == MessageButtons::yes_no ? 1 : 0;
  EXPECT_EQ(questions, 5U);
  EXPECT_EQ(site_.Rows(kScheduleFile, "SELECT 太さ FROM 加工テーブル").size(), 1U);
}

TEST_F(OfferedImport, KilledAtAnyMomentTheNextStartWorks) {
  site_.AddRow({{"太さ", Value{std::int64_t{19}}}});
  MakeJet(kScheduleFile);
  const fs::path file = site_.Data(kScheduleFile);
  const std::string before = ReadFileBytes(file);
  const auto offer = [&] { OfferImport(file); };
  int asked_again = 0;
  int taken_over = 0;
  TryMoments([&](int n) {
    SCOPED_TRACE(n);
    const bool killed = KilledBeforeChange(n, offer);
    const std::size_t messages = site_.Messages().size();
    offer();
    if (killed) (site_.Messages().size() > messages ? asked_again : taken_over) += 1;
    EXPECT_EQ(site_.Rows(kScheduleFile, "SELECT 太さ FROM 加工テーブル").size(), 1U);
    EXPECT_EQ(ReadFileBytes(site_.Data("GENBA001.MDB.jet")), before);
    fs::remove(site_.Data("GENBA001.MDB.jet"));
    fs::remove(site_.Data("GENBA001.MDB.jet.txt"));
    WriteFileAtomically(file, before);
    return killed;
  });
  EXPECT_GT(asked_again, 10 / SampleStep(8));
  EXPECT_GT(taken_over, 0);
}

TEST_F(OfferedImport, ARefusalNamesTheCommand) {
  MakeJet(kScheduleFile);
  StartOptions options;
  options.command_line = true;
  options.jet = JetChoice::refuse;
  try {
    LoadSite(options);
    FAIL() << "no fault";
  } catch (const Fault& fault) {
    EXPECT_THAT(fault.what(), HasSubstr("to take it over: rbtally import "));
  }
  EXPECT_THAT(site_.Messages(), IsEmpty());
  EXPECT_TRUE(jet::IsJetFile(site_.Data(kScheduleFile)));
}

}  // namespace
}  // namespace rbt::test
