// SPDX-License-Identifier: MIT
#include "platform/text/date_format.h"

#include <ostream>

#include <gtest/gtest.h>

#include "platform/fault.h"

namespace rbt {
namespace {

struct WordCase {
  const char* format;
  const char* text;

  friend void PrintTo(const WordCase& word, std::ostream* out) { *out << word.format; }
};

class DateWord : public testing::TestWithParam<WordCase> {};

// 3 February 2026 is in 令和 8 (2026 - 2018).
TEST_P(DateWord, Shows) {
  EXPECT_EQ(PlatformFormat({2026, 2, 3, 4, 5, 6}, GetParam().format), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Words, DateWord,
                         testing::Values(WordCase{"yyyy", "2026"}, WordCase{"yy", "26"}, WordCase{"m", "2"},
                                         WordCase{"mm", "02"}, WordCase{"d", "3"}, WordCase{"dd", "03"},
                                         WordCase{"h", "4"}, WordCase{"hh", "04"}, WordCase{"n", "5"},
                                         WordCase{"nn", "05"}, WordCase{"s", "6"}, WordCase{"ss", "06"},
                                         WordCase{"g", "R"}, WordCase{"gg", "令"}, WordCase{"ggg", "令和"},
                                         WordCase{"e", "8"}, WordCase{"ee", "08"}, WordCase{"", ""}));

INSTANTIATE_TEST_SUITE_P(Together, DateWord,
                         testing::Values(WordCase{"yyyymmdd", "20260203"}, WordCase{"hhnnss", "040506"},
                                         WordCase{"yyyy/mm/dd hh:nn:ss", "2026/02/03 04:05:06"},
                                         WordCase{"YYYY/M/D", "2026/2/3"}, WordCase{"gggee", "令和08"},
                                         WordCase{"GgGeE年", "令和08年"}, WordCase{"gemmdd", "R80203"},
                                         WordCase{"ggge年m月d日", "令和8年2月3日"},
                                         WordCase{"g.ee.mm", "R.08.02"}));

INSTANTIATE_TEST_SUITE_P(Literals, DateWord,
                         testing::Values(WordCase{"[$-411]ggge年", "令和8年"}, WordCase{"\\d\\\\d", "d\\3"},
                                         WordCase{"\"year\" yyyy", "year 2026"},
                                         WordCase{"\"open yyyy", "open yyyy"}, WordCase{"\"\"d", "3"},
                                         WordCase{"d\\", "3\\"}, WordCase{"\\年d", "年3"},
                                         WordCase{"αβγΩ", "αβγΩ"}, WordCase{"-x-", "-x-"}));

INSTANTIATE_TEST_SUITE_P(MinutesAreMBehindAnHour, DateWord,
                         testing::Values(WordCase{"hh:mm", "04:05"}, WordCase{"h時m分", "4時5分"},
                                         WordCase{"hh:nn m/d", "04:05 2/3"}, WordCase{"d h", "3 4"},
                                         WordCase{"mm hh", "02 04"}));

INSTANTIATE_TEST_SUITE_P(LongRunsAreReadWordByWord, DateWord,
                         testing::Values(WordCase{"ggggg", "令和令"}, WordCase{"gggeeee", "令和0808"},
                                         WordCase{"ddd", "033"}, WordCase{"yyyyyy", "202626"}));

struct EraCase {
  DateTime at;
  const char* text;

  friend void PrintTo(const EraCase& era, std::ostream* out) { *out << era.text; }
};

class EraChange : public testing::TestWithParam<EraCase> {};

TEST_P(EraChange, FallsOnItsDay) {
  EXPECT_EQ(PlatformFormat(GetParam().at, "ggg ee gg g e"), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Days, EraChange,
    testing::Values(EraCase{{1868, 10, 22}, " 1868   1868"},  // the Western year
                    EraCase{{1868, 10, 23}, "明治 01 明 M 1"}, EraCase{{1912, 7, 29}, "明治 45 明 M 45"},
                    EraCase{{1912, 7, 30}, "大正 01 大 T 1"}, EraCase{{1926, 12, 24}, "大正 15 大 T 15"},
                    EraCase{{1926, 12, 25}, "昭和 01 昭 S 1"}, EraCase{{1989, 1, 7}, "昭和 64 昭 S 64"},
                    EraCase{{1989, 1, 8}, "平成 01 平 H 1"}, EraCase{{2019, 4, 30}, "平成 31 平 H 31"},
                    EraCase{{2019, 5, 1}, "令和 01 令 R 1"}, EraCase{{2020, 1, 1}, "令和 02 令 R 2"}));

TEST(PlatformFormat, AnOldPlatformGoesOnCountingHeisei) {
  EXPECT_EQ(PlatformFormat({2019, 5, 1}, "gemmdd", KnownEras::up_to_heisei), "H310501");
  EXPECT_EQ(PlatformFormat({2019, 5, 1}, "gemmdd", KnownEras::all), "R10501");
  EXPECT_EQ(PlatformFormat({2019, 5, 2}, "gemmdd", KnownEras::up_to_heisei), "H310502");
  EXPECT_EQ(PlatformFormat({2026, 2, 3}, "ggge", KnownEras::up_to_heisei), "平成38");  // 2026 - 1988
  EXPECT_EQ(PlatformFormat({1989, 1, 7}, "ggge", KnownEras::up_to_heisei), "昭和64");
}

TEST(PlatformFormat, RefusesADateThatDoesNotExist) {
  const DateTime wrong[] = {{2019, 2, 29},       {2019, 13, 1},          {2019, 0, 1},    {2019, 4, 31},
                            {99, 12, 31},        {10000, 1, 1},          {2019, 1, 0},    {2019, 1, 1, 24},
                            {2019, 1, 1, 0, 60}, {2019, 1, 1, 0, 0, 60}, {2019, 1, 1, -1}};
  for (const DateTime& at : wrong) {
    try {
      PlatformFormat(at, "yyyymmdd");
      FAIL() << at.year << '-' << at.month << '-' << at.day;
    } catch (const Fault& fault) {
      EXPECT_EQ(fault.Kind(), FaultKind::type_mismatch);
    }
  }
  EXPECT_EQ(PlatformFormat({2020, 2, 29, 23, 59, 59}, "yyyymmddhhnnss"), "20200229235959");
}

}  // namespace
}  // namespace rbt
