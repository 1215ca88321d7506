// SPDX-License-Identifier: MIT
#include "session/panels/site_head.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "session/startup/startup.h"
#include "shell/context/run_state.h"
#include "shell/context/site_context.h"
#include "support/fault_of.h"
#include "support/site_fixture.h"

namespace rbt::test {

TEST(SiteHead, HasSiteAndClientAndTheTimeOfTheLoad) {
  const SiteFixture site;
  SelectSite(kScheduleFile);
  OpenMasterDatabase();
  RunState.RunDate = "20261121";
  RunState.RunTime = "090000";
  const HeadView head = ReadHead();
  EXPECT_EQ(head.site_number, "001");
  EXPECT_EQ(head.site_name, "試験工事");
  EXPECT_EQ(head.client_code, "1");
  EXPECT_EQ(head.client_name, "試験商店");
  EXPECT_EQ(head.load_date, "20261121");
  EXPECT_EQ(head.load_time, "090000");
}

TEST(SiteHead, AScreenRefusesASiteThatNeedsTheNewerProgramEachTime) {
  const SiteFixture site;
  site.PutProgram("DATA/rbtallyS.exe");
  StartOptions options;
  LoadSite(options);
  std::filesystem::copy_file(site.Data(kScheduleFile), site.Data("GENBA002.MDB"));
  Database newer = Database::Open(site.Data("GENBA002.MDB"));
  newer.Execute("INSERT INTO データーベースバージョン(バージョン) VALUES('7.0')");
  site.SetIni(kSteelFile, "データ", "選択ＤＢ名", "GENBA002.MDB");
  for (int times = 0; times < 2; ++times) {
    EXPECT_NE(FaultTextOf(BindChosenSite).find("GENBA002.MDB: needs the newer program"), std::string::npos);
  }
}

}  // namespace rbt::test
