// SPDX-License-Identifier: MIT
#include "shell/context/site_context.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "platform/files/files.h"
#include "platform/system/paths.h"
#include "support/fault_of.h"
#include "support/jet_writer.h"
#include "support/root_folder.h"

namespace rbt {
namespace {

class Site : public testing::Test {
 protected:
  ~Site() override { SiteContext = SiteContextData{}; }

  void MakeSite(const std::string& name) const {
    Database::CreateDatabase(root.Data(name)).Execute("CREATE TABLE 加工テーブル (行No long)");
  }

  test::RootFolder root;
};

TEST_F(Site, TakesItsNumberFromCharactersSixToEightOfTheFileName) {
  SelectSite("GENBA001.MDB");
  EXPECT_EQ(SiteContext.SelectedDbName, "GENBA001.MDB");
  EXPECT_EQ(SiteContext.SiteNumberText, "001");
  EXPECT_EQ(CompanionDatabasePath(), "\\RBK\\DATA\\HIROI001.mdb");
}

TEST_F(Site, WithAShortFileNameHasAShortNumber) {
  SelectSite("GENBA1");
  EXPECT_EQ(SiteContext.SiteNumberText, "1");
  EXPECT_EQ(CompanionDatabasePath(), "\\RBK\\DATA\\HIROI1.mdb");
  SelectSite("X.MDB");
  EXPECT_EQ(CompanionDatabasePath(), "\\RBK\\DATA\\HIROI.mdb");
}

TEST_F(Site, CountsCharactersNotBytes) { EXPECT_EQ(SiteNumberOf("現場現場現００１.MDB"), "００１"); }

TEST_F(Site, OpensItsScheduleDatabaseWhateverTheLetterCase) {
  MakeSite("genba001.mdb");
  SelectSite("GENBA001.MDB");
  OpenWorkDatabase();
  ASSERT_TRUE(SiteContext.WorkDatabase);
  EXPECT_EQ(SiteContext.WorkDatabase->File(), root.Data("genba001.mdb"));
}

TEST_F(Site, WithoutAScheduleDatabaseFaultsAndLeavesNoneOpen) {
  MakeSite("GENBA001.MDB");
  SelectSite("GENBA001.MDB");
  OpenWorkDatabase();
  for (const char* name : {"GENBA002.MDB", "", "..\\..\\x.MDB"}) {
    SelectSite(name);
    EXPECT_THROW(OpenWorkDatabase(), Fault) << name;
    EXPECT_FALSE(SiteContext.WorkDatabase) << name;
  }
}

TEST_F(Site, IsNoFileWithoutASchedule) {
  Database::CreateDatabase(root.Data("GENBA001.MDB"));
  SelectSite("GENBA001.MDB");
  EXPECT_THAT(test::FaultTextOf([] { OpenWorkDatabase(); }),
              testing::HasSubstr("GENBA001.MDB: is no site: it has no table 加工テーブル"));
}

TEST_F(Site, IsNoneOfTheFamilysOtherDatabasesWhateverItHolds) {
  for (const char* name : {"SORANO.MDB", "MTTeijyaku.mdb", "MTTeijyaku_ORG.mdb", "JSyukeiORG.mdb",
                           "hozon.MDB", "HIROI001.mdb"}) {
    MakeSite(name);
    const std::string bytes = ReadFileBytes(root.Data(name));
    SelectSite(name);
    EXPECT_THAT(test::FaultTextOf([] { OpenWorkDatabase(); }),
                testing::HasSubstr("is no site but " + std::string(name)));
    EXPECT_FALSE(SiteContext.WorkDatabase);
    EXPECT_EQ(ReadFileBytes(root.Data(name)), bytes);
  }
  std::filesystem::create_symlink("SORANO.MDB", root.Data("GENBA007.MDB"));
  SelectSite("GENBA007.MDB");
  EXPECT_THAT(test::FaultTextOf([] { OpenWorkDatabase(); }), testing::HasSubstr("is no site but SORANO.MDB"));
}

TEST_F(Site, StaysOpenUntilItsNameLeadsElsewhere) {
  MakeSite("GENBA001.MDB");
  SelectSite("GENBA001.MDB");
  OpenWorkDatabase();
  const Database* const first = SiteContext.WorkDatabase.get();
  OpenWorkDatabase();
  EXPECT_EQ(SiteContext.WorkDatabase.get(), first);

  MakeSite("GENBA002.MDB");
  std::filesystem::rename(root.Data("GENBA002.MDB"), root.Data("GENBA001.MDB"));
  EXPECT_TRUE(SiteContext.WorkDatabase->HasMoved());
  OpenWorkDatabase();
  EXPECT_FALSE(SiteContext.WorkDatabase->HasMoved());

  *SiteContext.WorkDatabase = Database::CopyOf(*SiteContext.WorkDatabase);
  OpenWorkDatabase();
  EXPECT_FALSE(SiteContext.WorkDatabase->IsPrivateCopy());
}

TEST_F(Site, IsLookedAtAgainWhenItStandsOpen) {
  MakeSite("GENBA001.MDB");
  SelectSite("GENBA001.MDB");
  OpenWorkDatabase();
  SiteContext.WorkDatabase->Execute("DROP TABLE 加工テーブル");
  EXPECT_THAT(test::FaultTextOf([] { OpenWorkDatabase(); }),
              testing::HasSubstr("is no site: it has no table 加工テーブル"));
  EXPECT_FALSE(SiteContext.WorkDatabase);
}

TEST_F(Site, ThatIsOnlyReadIsOpenedSo) {
  MakeSite("GENBA001.MDB");
  SelectSite("GENBA001.MDB");
  OpenWorkDatabase();
  EXPECT_TRUE(SiteContext.WorkDatabase->MayBeWritten());
  SiteContext.OnlyRead = true;
  OpenWorkDatabase();
  EXPECT_FALSE(SiteContext.WorkDatabase->MayBeWritten());
}

TEST_F(Site, AnywhereBelowTheRootHasItsCompanionBesideIt) {
  SelectSite("\\RBK\\OLD\\GENBA007.MDB");
  EXPECT_EQ(SiteContext.SelectedDbName, "GENBA007.MDB");
  EXPECT_EQ(SiteContext.SiteNumberText, "007");
  EXPECT_EQ(CompanionDatabasePath(), "\\RBK\\OLD\\HIROI007.mdb");
  EXPECT_EQ(SelectedSite(), "\\RBK\\OLD\\GENBA007.MDB");
  EXPECT_EQ(PathOfSite(), root / "OLD" / "GENBA007.MDB");
  SelectSite("GENBA007.MDB");
  EXPECT_EQ(SelectedSite(), "GENBA007.MDB");
  EXPECT_EQ(PathOfSite(), root.Data("GENBA007.MDB"));
}

class JetSite : public Site {
 protected:
  void PutJet(const std::string& name, int lines) const {
    test::JetTable schedule{"加工テーブル", {}, {}};
    schedule.fields.resize(1);
    schedule.fields[0].name = "行No";
    for (int line = 1; line <= lines; ++line) schedule.rows.push_back({Value{std::int64_t{line}}});
    test::WriteJetFile(root.Data(name), jet::JetVersion::jet4, {schedule});
  }
  static std::int64_t Lines() {
    return SiteContext.WorkDatabase->OpenSnapshot("SELECT * FROM 加工テーブル").RecordCount();
  }
};

TEST_F(JetSite, IsReadWhereItIsAndFollowedWhenItChanges) {
  PutJet("GENBA001.MDB", 2);
  SelectSite("GENBA001.MDB");
  OpenWorkDatabase();
  EXPECT_TRUE(SiteIsWorkingCopy());
  EXPECT_EQ(Lines(), 2);
  EXPECT_TRUE(SiteIsAnotherCopy());
  NoteSiteReadied();
  EXPECT_FALSE(SiteIsAnotherCopy());
  PutJet("GENBA001.MDB", 3);
  EXPECT_FALSE(SiteStandsOpen());
  OpenWorkDatabase();
  EXPECT_EQ(Lines(), 3);
  EXPECT_TRUE(SiteIsAnotherCopy()) << "what the load makes of a site has to be made of it again";
}

TEST_F(JetSite, IsRefusedWhereThatIsTheChoice) {
  PutJet("GENBA001.MDB", 2);
  SiteContext.JetFiles = JetChoice::refuse;
  SelectSite("GENBA001.MDB");
  EXPECT_THAT(test::FaultTextOf([] { OpenWorkDatabase(); }), testing::HasSubstr("a real Jet file"));
}

TEST_F(JetSite, IsNoneOfTheFamilysOtherDatabasesAndNoCopyIsMadeOfThem) {
  PutJet("SORANO.MDB", 2);
  SelectSite("SORANO.MDB");
  EXPECT_THAT(test::FaultTextOf([] { OpenWorkDatabase(); }), testing::HasSubstr("is no site but SORANO.MDB"));
  EXPECT_FALSE(std::filesystem::exists(root.Data("SORANO.MDB.work")));
}

TEST_F(JetSite, OfTheMasterIsOutdatedWhenThatChanges) {
  PutJet("SORANO.MDB", 2);
  OpenMasterDatabase();
  EXPECT_TRUE(MasterIsWorkingCopy());
  PutJet("SORANO.MDB", 3);
  EXPECT_TRUE(MasterIsOutdated());
  OpenMasterDatabase();
  EXPECT_EQ(SiteContext.MasterDatabase->OpenSnapshot("SELECT * FROM 加工テーブル").RecordCount(), 3);
}

}  // namespace
}  // namespace rbt
