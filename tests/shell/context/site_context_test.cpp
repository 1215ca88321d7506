// SPDX-License-Identifier: MIT
#include "shell/context/site_context.h"

#include <gtest/gtest.h>

#include "platform/fault.h"
#include "platform/system/paths.h"
#include "support/root_folder.h"

namespace rbt {
namespace {

class Site : public testing::Test {
 protected:
  ~Site() override { SiteContext = SiteContextData{}; }

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
  Database::CreateDatabase(root.Data("genba001.mdb"));
  SelectSite("GENBA001.MDB");
  OpenWorkDatabase();
  ASSERT_TRUE(SiteContext.WorkDatabase);
  EXPECT_EQ(SiteContext.WorkDatabase->File(), root.Data("genba001.mdb"));
}

TEST_F(Site, WithoutAScheduleDatabaseFaultsAndLeavesNoneOpen) {
  Database::CreateDatabase(root.Data("GENBA001.MDB"));
  SelectSite("GENBA001.MDB");
  OpenWorkDatabase();
  for (const char* name : {"GENBA002.MDB", "", "..\\..\\x.MDB"}) {
    SelectSite(name);
    EXPECT_THROW(OpenWorkDatabase(), Fault) << name;
    EXPECT_FALSE(SiteContext.WorkDatabase) << name;
  }
}

}  // namespace
}  // namespace rbt
