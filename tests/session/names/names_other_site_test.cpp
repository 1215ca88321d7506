// SPDX-License-Identifier: MIT
#include <functional>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "session/names/names_screen.h"

namespace rbt::test {
namespace {

using testing::IsEmpty;

TEST_F(NamesScreen, AnotherSiteThatWasChosenIsListedWithoutAMarkAndNotTallied) {
  site_.AddSecondSite();
  Open().Flip(0);
  site_.Choose(kSecondSchedule);
  screen_->Tally();
  EXPECT_EQ(opened_, "");
  EXPECT_EQ(Told(), "登録名未選択: 登録名を選択して下さい\r　　|");
  const NamesView view = screen_->View();
  EXPECT_EQ(view.head.site_number, "002");
  EXPECT_THAT(view.selected, IsEmpty());
  EXPECT_TRUE(view.to_first_row);
  EXPECT_FALSE(site_.HasTable(kScheduleFile, "WorkTable"));
  screen_->Flip(0);
  screen_->Tally();
  EXPECT_EQ(opened_, "JS ");
  EXPECT_EQ(bars_, 20);
}

TEST_F(NamesScreen, AnotherSiteThatIsChosenWhileATallyIsOpenIsListedAfterIt) {
  site_.AddSecondSite();
  Open().Flip(0);
  meanwhile_ = [this] { site_.Choose(kSecondSchedule); };
  screen_->Tally();
  EXPECT_EQ(bars_, 20);
  EXPECT_EQ(screen_->View().head.site_number, "002");
  EXPECT_EQ(Marks(), "1い0 2あ0 4う0 ");
}

TEST_F(NamesScreen, WhateverIsAskedOfAListWhoseSiteIsBoundNoMoreBeginsItAnew) {
  site_.AddSecondSite();
  Open();
  screen_->TypeRangeStart("1");
  screen_->TypeRangeEnd("4");
  const std::vector<std::function<void()>> intents{
      [this] { screen_->Flip(0); },           [this] { screen_->Sort(); },
      [this] { screen_->EnterRangeStart(); }, [this] { screen_->EnterRangeEnd(); },
      [this] { screen_->SaveCsv(); },         [this] { screen_->Tally(); },
      [this] { screen_->TallyShapes(); }};
  bool second = false;
  for (const auto& intent : intents) {
    second = !second;
    BindElsewhere(second ? kSecondSchedule : kScheduleFile);
    intent();
    ASSERT_NE(SiteContext.NameDatabase, nullptr);
    const NamesView view = screen_->View();
    EXPECT_EQ(view.head.site_number, second ? "002" : "001");
    EXPECT_THAT(view.selected, IsEmpty());
  }
  EXPECT_EQ(opened_, "CSV ");
  EXPECT_EQ(listed_, "い0 あ0 う0 ");
}

TEST_F(NamesScreen, WithoutASiteWhateverNeedsItsNamesIsAFaultUntilThereIsOne) {
  Open();
  screen_->TypeRangeStart("1");
  screen_->TypeRangeEnd("4");
  site_.Choose("GENBA009.MDB");
  EXPECT_THROW(screen_->Tally(), Fault);
  EXPECT_EQ(SiteContext.NameDatabase, nullptr);
  EXPECT_THROW(screen_->Flip(0), Fault);
  EXPECT_THROW(screen_->Sort(), Fault);
  EXPECT_THROW(screen_->EnterRangeStart(), Fault);
  EXPECT_THROW(screen_->EnterRangeEnd(), Fault);
  EXPECT_THROW(screen_->SaveCsv(), Fault);
  site_.Choose(kScheduleFile);
  screen_->Flip(0);  // the list begins anew
  screen_->Flip(0);
  EXPECT_EQ(screen_->View().selected.size(), 1U);
}

TEST_F(NamesScreen, OfASiteWhoseNamesCannotBeReadListsNoneOfTheFormer) {
  site_.AddSecondSite();
  Open();
  site_.Execute("HIROI002.mdb", "DROP TABLE 登録名");
  site_.Execute("HIROI002.mdb", "CREATE TABLE 登録名 (登録AN LONG, 表示番号 LONG)");
  site_.Choose(kSecondSchedule);
  EXPECT_THROW(screen_->Tally(), Fault);
  EXPECT_EQ(screen_->View().head.site_number, "002");
  EXPECT_THAT(screen_->View().rows, IsEmpty());
  EXPECT_EQ(opened_, "");
}

TEST_F(NamesScreen, GoesOnAfterATallyThatFaults) {
  Open().Flip(0);
  meanwhile_ = [] { throw Fault(FaultKind::overflow, "a tally"); };
  EXPECT_THROW(screen_->Tally(), Fault);
  EXPECT_FALSE(screen_->View().busy);
  EXPECT_NE(SiteContext.WorkDatabase, nullptr);
  EXPECT_EQ(Marks(), "1い1 2あ0 4う0 ");
  meanwhile_ = {};
  screen_->Tally();
  EXPECT_EQ(opened_, "JS JS ");
}

}  // namespace
}  // namespace rbt::test
