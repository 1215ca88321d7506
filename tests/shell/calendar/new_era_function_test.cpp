// SPDX-License-Identifier: MIT
#include "shell/calendar/new_era_function.h"

#include <ostream>

#include <gtest/gtest.h>

#include "platform/fault.h"
#include "support/kept_services.h"

namespace rbt {
namespace {

constexpr auto kNumber = FirstYearStyle::number;
constexpr auto kWord = FirstYearStyle::word;
constexpr DateTime kLastDayOfHeisei{2019, 4, 30};
constexpr DateTime kFirstDayOfReiwa{2019, 5, 1};

/// What holds on a platform that knows the new era and on one that does not.
class OnEachPlatform : public testing::TestWithParam<KnownEras> {
 protected:
  static std::string Format(const DateTime& date, std::string_view format, FirstYearStyle style = kNumber) {
    return FormatDate(date, format, style, GetParam());
  }
};

INSTANTIATE_TEST_SUITE_P(NewAndOld, OnEachPlatform, testing::Values(KnownEras::all, KnownEras::up_to_heisei),
                         [](const auto& eras) { return eras.param == KnownEras::all ? "New" : "Old"; });

TEST_P(OnEachPlatform, TheLastDayOfAprilStaysInHeisei31) {
  EXPECT_EQ(Format(kLastDayOfHeisei, "ggge年m月d日"), "平成31年4月30日");
  EXPECT_EQ(Format(kLastDayOfHeisei, "ggge年m月d日", kWord), "平成31年4月30日");
  EXPECT_EQ(Format(kLastDayOfHeisei, "g.ee.mm.dd"), "H.31.04.30");
}

TEST_P(OnEachPlatform, TheFirstOfMayIsTheFirstYearOfReiwaByStyle) {
  EXPECT_EQ(Format(kFirstDayOfReiwa, "ggge年m月d日"), "令和1年5月1日");
  EXPECT_EQ(Format(kFirstDayOfReiwa, "ggge年m月d日", kWord), "令和元年5月1日");
  EXPECT_EQ(Format(kFirstDayOfReiwa, "gggee年"), "令和01年");
  EXPECT_EQ(Format(kFirstDayOfReiwa, "gggee年", kWord), "令和元年");
}

TEST_P(OnEachPlatform, TheFirstYearIsAWordBehindShortNamesAndLettersToo) {
  EXPECT_EQ(Format(kFirstDayOfReiwa, "gge年", kWord), "令元年");
  EXPECT_EQ(Format(kFirstDayOfReiwa, "ggee年", kWord), "令元年");
  EXPECT_EQ(Format(kFirstDayOfReiwa, "ge年", kWord), "R元年");
  EXPECT_EQ(Format(kFirstDayOfReiwa, "gee年", kWord), "R元年");
  EXPECT_EQ(Format(kFirstDayOfReiwa, "gge年"), "令1年");
  EXPECT_EQ(Format(kFirstDayOfReiwa, "gee年"), "R01年");
}

TEST_P(OnEachPlatform, AYearWithoutItsEraOrWithoutTheYearSignStays) {
  EXPECT_EQ(Format(kFirstDayOfReiwa, "e年", kWord), "1年");
  EXPECT_EQ(Format(kFirstDayOfReiwa, "ggge", kWord), "令和1");
  EXPECT_EQ(Format(kFirstDayOfReiwa, "gg.e年", kWord), "令.1年");
}

TEST_P(OnEachPlatform, TheFirstYearEndsWithDecember) {
  EXPECT_EQ(Format({2019, 12, 31}, "gggee年", kWord), "令和元年");
  EXPECT_EQ(Format({2020, 1, 1}, "gggee年", kWord), "令和02年");
  EXPECT_EQ(Format({2029, 1, 1}, "ggge年", kWord), "令和11年");
}

TEST_P(OnEachPlatform, EraWordsAreReadInAnyLetterCase) {
  for (const char* name : {"ggg", "Ggg", "gGg", "ggG", "GGg", "GgG", "gGG", "GGG"}) {
    EXPECT_EQ(Format({2026, 11, 21}, name), "令和") << name;
  }
  for (const char* name : {"gg", "gG", "Gg", "GG"}) EXPECT_EQ(Format({2026, 11, 21}, name), "令") << name;
  for (const char* letter : {"g", "G"}) EXPECT_EQ(Format({2026, 11, 21}, letter), "R") << letter;
  for (const char* year : {"ee", "eE", "Ee", "EE"}) EXPECT_EQ(Format({2026, 11, 21}, year), "08") << year;
  for (const char* year : {"e", "E"}) EXPECT_EQ(Format({2026, 11, 21}, year), "8") << year;
}

TEST_P(OnEachPlatform, TheLetterRIsTheEraYearAndTwiceTheEraToo) {
  for (const char* both : {"rr", "rR", "Rr", "RR"}) EXPECT_EQ(Format({2026, 11, 21}, both), "令和08") << both;
  for (const char* year : {"r", "R"}) EXPECT_EQ(Format({2026, 11, 21}, year), "08") << year;
  EXPECT_EQ(Format({2026, 11, 21}, "rrr"), "令和0808");
  EXPECT_EQ(Format({2018, 11, 21}, "rr年mm月"), "平成30年11月");
}

TEST_P(OnEachPlatform, AFormatWithoutEraLettersPassesUnchangedAndKeepsItsPoints) {
  EXPECT_EQ(Format({2026, 11, 21, 9, 8, 7}, "yyyy.mm.dd"), "2026.11.21");
  EXPECT_EQ(Format({2026, 11, 21, 9, 8, 7}, "yyyy/mm/dd hh:nn:ss"), "2026/11/21 09:08:07");
  EXPECT_EQ(Format({2026, 11, 21}, "."), ".");
}

TEST_P(OnEachPlatform, TheLocaleMarkShowsNothing) {
  EXPECT_EQ(Format({2026, 11, 21}, "[$-411]ggge年"), "令和8年");
  EXPECT_EQ(Format({2026, 11, 21}, "[$-411]"), "");
  EXPECT_EQ(Format({2026, 11, 21}, ""), "");
}

TEST_P(OnEachPlatform, AWordForTheFirstYearInTheFormatBecomesItsNumber) {
  // Some platforms write the word by themselves; here it stands in the format.
  EXPECT_EQ(Format({2019, 6, 1}, "令和元年m月"), "令和1年6月");
  EXPECT_EQ(Format({2019, 6, 1}, "令元年"), "令1年");
  EXPECT_EQ(Format({2019, 6, 1}, "g元年"), "R1年");
  EXPECT_EQ(Format({2019, 6, 1}, "平成元年"), "平成元年");
  EXPECT_EQ(Format({2020, 6, 1}, "令和元年"), "令和元年");
}

struct FirstYear {
  DateTime before, first, last, after;
  const char* before_text;
  const char* first_number;
  const char* first_word;
  const char* after_text;

  friend void PrintTo(const FirstYear& year, std::ostream* out) { *out << year.first_word; }
};

class FirstYearOfEachEra : public testing::TestWithParam<FirstYear> {};

TEST_P(FirstYearOfEachEra, RunsFromTheChangeToTheEndOfTheYear) {
  const FirstYear& year = GetParam();
  constexpr const char* kFormat = "gggee年 ggee年 ge年";
  for (const FirstYearStyle style : {kNumber, kWord}) {
    EXPECT_EQ(FormatDate(year.before, kFormat, style), year.before_text);
    EXPECT_EQ(FormatDate(year.after, kFormat, style), year.after_text);
  }
  for (const DateTime& date : {year.first, year.last}) {
    EXPECT_EQ(FormatDate(date, kFormat, kNumber), year.first_number);
    EXPECT_EQ(FormatDate(date, kFormat, kWord), year.first_word);
  }
}

// The year of an era counts from 1 in the Western year of its first day: 1912 is 1868 + 44, so 明治 45.
INSTANTIATE_TEST_SUITE_P(Eras, FirstYearOfEachEra,
                         testing::Values(FirstYear{{1868, 10, 22},
                                                   {1868, 10, 23},
                                                   {1868, 12, 31},
                                                   {1869, 1, 1},
                                                   "1868年 1868年 1868年",
                                                   "明治01年 明01年 M1年",
                                                   "明治元年 明元年 M元年",
                                                   "明治02年 明02年 M2年"},
                                         FirstYear{{1912, 7, 29},
                                                   {1912, 7, 30},
                                                   {1912, 12, 31},
                                                   {1913, 1, 1},
                                                   "明治45年 明45年 M45年",
                                                   "大正01年 大01年 T1年",
                                                   "大正元年 大元年 T元年",
                                                   "大正02年 大02年 T2年"},
                                         FirstYear{{1926, 12, 24},
                                                   {1926, 12, 25},
                                                   {1926, 12, 31},
                                                   {1927, 1, 1},
                                                   "大正15年 大15年 T15年",
                                                   "昭和01年 昭01年 S1年",
                                                   "昭和元年 昭元年 S元年",
                                                   "昭和02年 昭02年 S2年"},
                                         FirstYear{{1989, 1, 7},
                                                   {1989, 1, 8},
                                                   {1989, 12, 31},
                                                   {1990, 1, 1},
                                                   "昭和64年 昭64年 S64年",
                                                   "平成01年 平01年 H1年",
                                                   "平成元年 平元年 H元年",
                                                   "平成02年 平02年 H2年"},
                                         FirstYear{{2019, 4, 30},
                                                   {2019, 5, 1},
                                                   {2019, 12, 31},
                                                   {2020, 1, 1},
                                                   "平成31年 平31年 H31年",
                                                   "令和01年 令01年 R1年",
                                                   "令和元年 令元年 R元年",
                                                   "令和02年 令02年 R2年"}));

TEST(FormatDate, ThePlatformOfTheRunningProgramKnowsTheNewEra) {
  EXPECT_EQ(FormatDate(kFirstDayOfReiwa, "gemmdd"), "R10501");
}

TEST(FormatDate, ThePlatformIsProbedOnEachCall) {
  // An escaped "g" tells the roads apart: only the old platform's takes it for the era's letter.
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(FormatDate(kFirstDayOfReiwa, "\\ge", kNumber, KnownEras::all), "g1");
    EXPECT_EQ(FormatDate(kFirstDayOfReiwa, "\\ge", kNumber, KnownEras::up_to_heisei), "R1");
    EXPECT_EQ(FormatDate(kLastDayOfHeisei, "\\ge", kNumber, KnownEras::up_to_heisei), "g31");
  }
}

TEST(FormatDate, ADateThatThePlatformRefusesComesBackAsItStands) {
  EXPECT_EQ(FormatDate({2019, 2, 30}, "ggge年"), "2019/2/30");
  EXPECT_EQ(FormatDate({2018, 2, 30}, "ggge年", kWord, KnownEras::up_to_heisei), "2018/2/30");
}

TEST(FormatDate, OnAnOldPlatformARefusedDateOfTheNewEraIsAFault) {
  EXPECT_THROW(FormatDate({2020, 2, 30}, "ggge年", kNumber, KnownEras::up_to_heisei), Fault);
}

TEST(FormatDate, TheNewEraBeginsWithDay43586) {
  EXPECT_EQ(DayNumber(kFirstDayOfReiwa), 43586.0);
  const DateTime last_second{2019, 4, 30, 23, 59, 59};
  EXPECT_EQ(FormatDate(last_second, "gee", kNumber, KnownEras::up_to_heisei), "H31");
}

TEST(EraNameOfYear, TellsTheErasAroundTheChangeOf2019) {
  EXPECT_EQ(EraNameOfYear("301231"), "平成");
  EXPECT_EQ(EraNameOfYear("300601"), "平成");
  EXPECT_EQ(EraNameOfYear("310101"), "平成");
  EXPECT_EQ(EraNameOfYear("310430"), "平成");
  EXPECT_EQ(EraNameOfYear("310501"), "令和");
  EXPECT_EQ(EraNameOfYear("311231"), "令和");
  EXPECT_EQ(EraNameOfYear("010501"), "令和");
  EXPECT_EQ(EraNameOfYear("290101"), "令和");
  EXPECT_EQ(EraNameOfYear("320101"), "令和");
  EXPECT_EQ(EraNameOfYear("081121"), "令和");
}

TEST(EraNameOfYear, ABlankCountsAsZero) {
  EXPECT_EQ(EraNameOfYear("31 4 1"), "平成");
  EXPECT_EQ(EraNameOfYear("31 5 1"), "令和");
  EXPECT_EQ(EraNameOfYear("3  1 1"), "平成");
  EXPECT_EQ(EraNameOfYear(" 1 5 1"), "令和");
  EXPECT_EQ(EraNameOfYear(""), "令和");
}

/// The clock stands still for a test.
class Stamps : public testing::Test {
 protected:
  void SetUp() override { Services.Clock = test::StandingClock({2026, 1, 2, 3, 4, 5}); }

 private:
  test::KeptServices services_;
};

TEST_F(Stamps, AreTheDateAndTheTimeInDigits) {
  EXPECT_EQ(TodayStamp(), "20260102");
  EXPECT_EQ(TimeStamp(), "030405");
}

TEST_F(Stamps, OfAGivenMomentDoNotAskTheClock) {
  const DateTime moment{2026, 12, 31, 23, 59, 58};
  EXPECT_EQ(TodayStamp(moment) + TimeStamp(moment), "20261231235958");
}

TEST_F(Stamps, OfASaveHaveSignsBetween) {
  EXPECT_EQ(FormatSaveDate() + " " + FormatSaveTime(), "2026/01/02 03:04:05");
}

TEST_F(Stamps, GoFromMidnightToTheLastSecond) {
  Services.Clock = test::StandingClock({2026, 12, 31, 0, 0, 0});
  EXPECT_EQ(TodayStamp() + TimeStamp(), "20261231000000");
  Services.Clock = test::StandingClock({2026, 12, 31, 23, 59, 59});
  EXPECT_EQ(TodayStamp() + TimeStamp(), "20261231235959");
}

}  // namespace
}  // namespace rbt
