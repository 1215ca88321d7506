// SPDX-License-Identifier: MIT
#include "session/panels/date_entry.h"

#include <gtest/gtest.h>

#include "platform/fault.h"
#include "shell/config/settings.h"
#include "support/fault_of.h"
#include "support/site_fixture.h"

namespace rbt::test {

namespace {

std::string Shown(const DateEntry& date) {
  return date.Texts().year + "/" + date.Texts().month + "/" + date.Texts().day;
}

}  // namespace

TEST(YearRule, AnEraHasNoYear32AndAWesternYearMayBeAny) {
  EXPECT_TRUE(YearPasses("2026", 1));
  EXPECT_TRUE(YearPasses("31", 2));
  EXPECT_FALSE(YearPasses("32", 2));
  EXPECT_FALSE(YearPasses("2026", 2));
  EXPECT_TRUE(YearPasses("", 2));
}

TEST(DateEntry, FillsEmptyBoxesWithTodayInTheStyleOfTheSetting) {
  const SiteFixture site;
  DateEntry western;
  western.FillEmpty();
  EXPECT_EQ(Shown(western), "2026/11/21");
  SaveSetting(kDateStyleKey, 2);
  DateEntry era;
  era.FillEmpty();
  EXPECT_EQ(Shown(era), "08/11/21");
}

TEST(DateEntry, KeepsWhatWasTypedUntilTodayIsAskedFor) {
  const SiteFixture site;
  DateEntry date;
  date.Type(0, "1999");
  date.Type(2, "5");
  date.FillEmpty();
  EXPECT_EQ(Shown(date), "1999/11/5");
  date.FillToday();
  EXPECT_EQ(Shown(date), "2026/11/21");
}

TEST(DateEntry, AnotherStyleEmptiesTheYearAloneAndFillsItAnew) {
  const SiteFixture site;
  DateEntry date;
  date.FillEmpty();
  date.Type(0, "1999");
  date.Type(1, "3");
  date.FollowStyle();
  EXPECT_EQ(Shown(date), "1999/3/21");
  SaveSetting(kDateStyleKey, 2);
  date.FollowStyle();
  EXPECT_EQ(Shown(date), "08/3/21");
}

TEST(DateEntry, TestsTheYearByTheStyleThatIsStoredNow) {
  const SiteFixture site;
  DateEntry date;
  date.Type(0, "32");
  EXPECT_TRUE(date.YearPasses());
  SaveSetting(kDateStyleKey, 2);
  EXPECT_FALSE(date.YearPasses());
  SaveSetting("Kakou", "重量集計", "日付表記", "和暦");
  EXPECT_EQ(FaultOf([&] { date.YearPasses(); }), FaultKind::type_mismatch);
}

}  // namespace rbt::test
