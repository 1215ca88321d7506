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

TEST(DateRule, RefusesEraYearsMonthsAndDaysThatThereAreNot) {
  struct Case {
    DateTexts date;
    std::int32_t style;
    std::size_t boxes;
    const char* text;
    std::size_t box;
  };
  const Case cases[] = {
      {{"32", "1", "1"}, 2, 1, "和暦の年は 31 までです。", 0},
      {{"2026", "13", "1"}, 1, 2, "月は 12 までです。", 1},
      {{"2026", "13", "1"}, 1, 1, "", 0},
      {{"2026", "4", "31"}, 1, 3, "4 月は 30 日までです。", 2},
      {{"2026", "4", "31"}, 1, 2, "", 0},
      {{"2026", "2", "29"}, 1, 3, "2 月は 28 日までです。", 2},
      {{"2028", "2", "29"}, 1, 3, "", 0},
      {{"2100", "2", "29"}, 1, 3, "2 月は 28 日までです。", 2},
      {{"7", "2", "29"}, 2, 3, "2 月は 28 日までです。", 2},  // 2025
      {{"10", "2", "29"}, 2, 3, "", 0},                       // 2028
      {{"31", "4", "30"}, 2, 3, "", 0},
      {{"2026", "", "31"}, 1, 3, "", 0},
      {{"2026", "", "32"}, 1, 3, "日は 31 までです。", 2},
      {{"", "", ""}, 2, 3, "", 0},
      {{"", "2", "29"}, 1, 3, "", 0},
      {{"2026", "12", "31"}, 1, 3, "", 0},
  };
  for (const Case& row : cases) {
    const std::optional<DateRefusal> refusal = RefusalOfDate(row.date, row.style, row.boxes);
    const std::string where = row.date.year + "/" + row.date.month + "/" + row.date.day;
    EXPECT_EQ(refusal ? refusal->text : "", row.text) << where;
    EXPECT_EQ(refusal ? refusal->box : 0, row.box) << where;
  }
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
