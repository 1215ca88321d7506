// SPDX-License-Identifier: MIT
#include "tally/names/name_list.h"

#include <chrono>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "platform/system/services.h"
#include "support/fault_of.h"
#include "support/schedule_site.h"

namespace rbt {
namespace {

using test::kNull;
using test::Number;
using test::ScheduleSite;
using testing::ElementsAre;
using testing::IsEmpty;

class NameList : public testing::Test {
 protected:
  NameList() {
    site_.AddName(Number(2), "あ", Number(1));
    site_.AddName(Number(1), "い", Number(0));
    site_.AddName(kNull, "う", Number(1));
    site_.AddName(Number(3), "え", kNull);
  }

  Database Companion() const { return Database::Open(site_.Folder().Data("HIROI001.mdb")); }

  std::string Names(NameOrder order) const {
    Database companion = Companion();
    std::string text;
    for (const RegisteredName& name : ReadNames(companion, order)) text += name.name;
    return text;
  }

  ScheduleSite site_;
};

TEST_F(NameList, StandsByItsNumbersNullsFirstOrByItsNames) {
  EXPECT_EQ(Names(NameOrder::by_number), "ういあえ");
  EXPECT_EQ(Names(NameOrder::by_name), "あいうえ");
}

TEST_F(NameList, OfAFileWithoutWeightsHasNone) {
  Database companion = Companion();
  EXPECT_EQ(ReadNames(companion, NameOrder::by_number).at(2),
            (RegisteredName{.number = 2, .name = "あ", .marked = true}));
}

TEST_F(NameList, TellsTheWeightsAndAMarkOfOneAlone) {
  Database companion = Companion();
  companion.Execute("ALTER TABLE 登録名 ADD COLUMN 定尺重量合計 Currency;");
  companion.Execute("ALTER TABLE 登録名 ADD COLUMN 取付重量合計 Currency;");
  companion.Execute("UPDATE 登録名 SET 定尺重量合計=1200.5 ,表示番号=2 WHERE 登録AN=1");
  EXPECT_EQ(ReadNames(companion, NameOrder::by_number).at(1),
            (RegisteredName{.number = 1, .name = "い", .stock = Currency::FromDouble(1200.5)}));
}

TEST_F(NameList, GivesTheNumbersOfItsMarkedRowsAndOfNoneWithoutANumber) {
  Database companion = Companion();
  EXPECT_THAT(MarkedNumbers(companion), ElementsAre(2));
}

TEST_F(NameList, IsMarkedAndUnmarkedByNumbersAndPassesOverThoseItLacks) {
  Database companion = Companion();
  MarkNames(companion, std::vector<std::int32_t>{3, 9, 1}, true);
  EXPECT_THAT(MarkedNumbers(companion), ElementsAre(1, 2, 3));
  MarkNames(companion, std::vector<std::int32_t>{2, 3, 1}, false);
  EXPECT_THAT(MarkedNumbers(companion), IsEmpty());
}

TEST_F(NameList, HoldsTheMarksOfSomeNumbersAndOfNoOther) {
  Database companion = Companion();
  HoldMarks(companion, std::vector<std::int32_t>{3, 1});
  Services.LockPatience = std::chrono::milliseconds(0);
  Database elsewhere = Companion();
  const auto mark_elsewhere = [&] { MarkNames(elsewhere, std::vector<std::int32_t>{2}, true); };
  EXPECT_EQ(test::FaultOf(mark_elsewhere), FaultKind::locked);
  EXPECT_THAT(MarkedNumbers(companion), ElementsAre(1, 3));
  companion.LetGo();
  EXPECT_THAT(MarkedNumbers(elsewhere), ElementsAre(1, 3));
  EXPECT_EQ(test::FaultOf(mark_elsewhere), std::nullopt);
}

TEST_F(NameList, IsMarkedFromANumberToAnotherAndKeepsItsOtherMarks) {
  Database companion = Companion();
  MarkNamesBetween(companion, 3, 9);
  EXPECT_THAT(MarkedNumbers(companion), ElementsAre(2, 3));
  EXPECT_TRUE(HasName(companion, 3));
  EXPECT_FALSE(HasName(companion, 4));
}

}  // namespace
}  // namespace rbt
