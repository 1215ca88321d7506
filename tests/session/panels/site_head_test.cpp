// SPDX-License-Identifier: MIT
#include "session/panels/site_head.h"

#include <gtest/gtest.h>

#include "shell/context/run_state.h"
#include "shell/context/site_context.h"
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

}  // namespace rbt::test
