// SPDX-License-Identifier: MIT
#include <QLabel>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "screens/menu/menu_driver.h"
#include "shell/context/run_state.h"

namespace rbt::test {

namespace {

using testing::IsEmpty;
using testing::UnorderedElementsAre;

struct OwnSite {
  SiteFixture site;
};

/// The menu's real load and activation over a small site.
class SiteMenu : public OwnSite, public MenuDriver {
 public:
  explicit SiteMenu(std::int32_t start_mode = -1) : MenuDriver(site.Root(), start_mode, "") {
    StartOptions options;
    options.start_mode = TraitsOfStartMode(start_mode);
    const MenuParts real = MenuPartsFor(options, [](int) {});
    parts.load = real.load;
    parts.activate = real.activate;
  }

  std::vector<std::string> ShownControls() const {
    std::vector<std::string> shown;
    for (const std::string_view control : MenuControls()) {
      if (Shows(std::string(control).c_str())) shown.emplace_back(control);
    }
    return shown;
  }
};

}  // namespace

TEST(MenuOverASite, ShowsDateAndTimeOfTheLoad) {
  SiteMenu driver;
  driver.Open();
  EXPECT_EQ(driver.menu->findChild<QLabel*>("LabelCD")->text(), "20261121");
  EXPECT_EQ(driver.menu->findChild<QLabel*>("LabelCT")->text(), "090000");
  EXPECT_THAT(driver.messages, IsEmpty());
}

TEST(MenuOverASite, NamesItsSite) {
  SiteMenu driver;
  driver.Open();
  EXPECT_EQ(driver.menu->findChild<QLabel*>("lblSite")->text(), "001　試験工事");
  EXPECT_EQ(driver.menu->windowTitle(), "重量集計メニュー");
}

TEST(MenuOverASite, WithoutACommandLineShowsEverythingButTheShippingDates) {
  SiteMenu driver;
  driver.Open();
  EXPECT_EQ(driver.ShownControls().size(), MenuControls().size() - 1);
  EXPECT_FALSE(driver.Shows("cmdKaiBuiK"));
}

TEST(MenuOverASite, HidesTheCountersThatAreNotOnDisk) {
  SiteMenu driver;
  for (const char* program : {"rbweldcnt.exe", "rbplatecnt.exe", "rbjoincnt.exe"}) {
    std::filesystem::remove(driver.Root() / "KAKOU" / program);
  }
  driver.Open();
  EXPECT_FALSE(driver.Shows("cmdWeldCount"));
  EXPECT_FALSE(driver.Shows("cmdPlateCount"));
  EXPECT_FALSE(driver.Shows("cmdCouplerCount"));
  EXPECT_TRUE(driver.Shows("cmdCutCount"));
}

TEST(MenuOverASite, ModeOneShowsTheFirstFiveAndTheWeldCounter) {
  SiteMenu driver(1);
  driver.Open();
  EXPECT_THAT(driver.ShownControls(),
              UnorderedElementsAre("cmdShuukei", "cmdPGShuukei", "cmdKeijoShuukei", "cmdKeijoPGShuukeia",
                                   "cmdTouroS", "cmdWeldCount"));
}

TEST(MenuOverASite, ModeFourAddsTheCouplersButNotThePlates) {
  SiteMenu driver(4);
  driver.Open();
  EXPECT_TRUE(driver.Shows("cmdCouplerCount"));
  EXPECT_FALSE(driver.Shows("cmdPlateCount"));
}

TEST(MenuOverASite, ModeZeroShowsNothingButTheCounters) {
  SiteMenu driver(0);
  driver.Open();
  EXPECT_THAT(driver.ShownControls(),
              UnorderedElementsAre("cmdWeldCount", "cmdPlateCount", "cmdCouplerCount"));
  EXPECT_TRUE(driver.Shows("cmdExit"));
  ASSERT_NE(driver.menu->focusWidget(), nullptr);
  EXPECT_TRUE(driver.menu->focusWidget()->isVisible()) << "the focus is not left on a hidden button";
}

TEST(MenuOverASite, TheCallerRestrictsItAtTheNextActivation) {
  SiteMenu driver;
  JSMENU& menu = driver.Open();
  EXPECT_TRUE(driver.Shows("FramCSV"));
  driver.site.SetIni(kNextPrgFile, "データ", "重量集計", "j");
  Press(menu, Qt::Key_F4);
  Settle();
  EXPECT_FALSE(driver.Shows("FramCSV"));
  EXPECT_FALSE(driver.Shows("cmdTouroS"));
  EXPECT_TRUE(driver.Shows("cmdKaiShuukei"));
}

TEST(MenuOverASite, WithoutASiteDatabaseEndsWithStatusOneAfterAMessageThatNamesIt) {
  SiteMenu driver;
  std::filesystem::remove(driver.site.Data(kScheduleFile));
  driver.Open();
  ASSERT_EQ(driver.messages.size(), 1U);
  EXPECT_THAT(driver.messages[0].text, testing::HasSubstr(kScheduleFile));
  EXPECT_EQ(driver.end_status, 1);
}

TEST(MenuOverASite, WithoutSteelIniEndsWithStatusOneAfterAMessageThatNamesIt) {
  SiteMenu driver;
  std::filesystem::remove(driver.site.Data(kSteelFile));
  driver.Open();
  ASSERT_EQ(driver.messages.size(), 1U);
  EXPECT_THAT(driver.messages[0].text, testing::HasSubstr(kSteelFile));
  EXPECT_EQ(driver.end_status, 1);
}

}  // namespace rbt::test
