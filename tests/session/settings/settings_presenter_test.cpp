// SPDX-License-Identifier: MIT
#include "session/settings/settings_presenter.h"

#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "platform/profile/registry.h"
#include "platform/system/colour_choice.h"
#include "session/settings/colours_presenter.h"
#include "shell/config/settings.h"
#include "support/fault_of.h"
#include "support/kept_services.h"
#include "support/site_fixture.h"

namespace rbt::test {

namespace {

std::int32_t Colour(const IniKey& key) {
  UnreadableSettings unreadable;
  return ReadSteelIniColour(key, unreadable);
}

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

}  // namespace

TEST(SettingsPresenter, OpensOnWhatIsStored) {
  const SiteFixture site;
  SaveSetting(kDateStyleKey, 2);
  SaveSetting(kComparisonKindKey, 3);
  SaveSetting(kReportTitleChoiceKey, 2);
  SaveSetting(kWeldedHoopWeldsKey, 0);
  Settings.AlternateRowColours = 0;
  Settings.DetailShowsWeight = 1;
  Settings.PrintEmptyDiameters = 7;
  const SettingsPresenter settings;
  EXPECT_THAT(settings.View().chosen, ElementsAre("optNenGou", "OptTaihiC", "OptTitleB", "OptChangeColor_1",
                                                  "OptShowWeight_0", "OptPrtZero_1"));
  EXPECT_FALSE(settings.View().counts_hoop_welds);
  EXPECT_EQ(settings.FirstOption(), "optNenGou");
}

TEST(SettingsPresenter, LeavesOutAStoredNumberThatNoOptionHas) {
  const SiteFixture site;
  SaveSetting(kDateStyleKey, 9);
  const SettingsPresenter settings;
  EXPECT_THAT(settings.View().chosen, Not(Contains("optAD")));
  EXPECT_THAT(settings.View().chosen, Not(Contains("optNenGou")));
  EXPECT_EQ(settings.FirstOption(), "optAD");
}

TEST(SettingsPresenter, EveryOptionIsSavedInItsChoice) {
  const SiteFixture site;
  SettingsPresenter settings;
  for (const SettingOption& option : SettingOptions()) {
    settings.Choose(option.control);
    EXPECT_EQ(ReadSetting(option.key), option.value) << option.control;
    EXPECT_THAT(settings.View().chosen, Contains(option.control));
  }
  settings.CountHoopWelds(false);
  EXPECT_EQ(ReadSetting(kWeldedHoopWeldsKey), 0);
  settings.CountHoopWelds(true);
  EXPECT_EQ(ReadSetting(kWeldedHoopWeldsKey), 1);
  EXPECT_EQ(FaultOf([] { FindSettingOption("btnExit"); }), FaultKind::subscript_out_of_range);
}

TEST(SettingsPresenter, AChoiceTakenBackShowsWhatIsStoredNow) {
  const SiteFixture site;
  SettingsPresenter settings;
  settings.Choose("optNenGou");
  SaveSetting(kDateStyleKey, 1);
  settings.TakeBack("optNenGou");
  EXPECT_THAT(settings.View().chosen, Contains("optAD"));
  SaveSetting(kWeldedHoopWeldsKey, 0);
  settings.TakeBackHoopWelds();
  EXPECT_FALSE(settings.View().counts_hoop_welds);
}

TEST(SettingsPresenter, ATitleKeepsTenFullWidthCharactersOrTwentyHalfWidthOnes) {
  EXPECT_EQ(SettingsPresenter::KeptTitle("一二三四五六七八九十余"), "一二三四五六七八九十");
  EXPECT_EQ(SettingsPresenter::KeptTitle("1234567890123456789012"), "12345678901234567890");
  EXPECT_EQ(SettingsPresenter::KeptTitle("1一二三四五六七八九十"), "1一二三四五六七八九");
}

TEST(SettingsPresenter, StoresTheTitleOnlyWhereItIsTheUsersOwn) {
  const SiteFixture site;
  SettingsPresenter settings;
  settings.Choose("OptTitleA");
  EXPECT_TRUE(settings.WriteTitle("躯体"));
  EXPECT_EQ(ReadSteelIni(kReportTitleTextKey), "");
  settings.Choose("OptTitleC");
  EXPECT_TRUE(settings.WriteTitle("躯体"));
  EXPECT_TRUE(settings.WriteTitle("")) << "an empty one leaves it";
  EXPECT_EQ(ReadSteelIni(kReportTitleTextKey), "躯体");
}

TEST(SettingsPresenter, RefusesATitleThatTheFamilysFilesCannotHold) {
  const SiteFixture site;
  SettingsPresenter settings;
  settings.Choose("OptTitleC");
  EXPECT_FALSE(settings.WriteTitle("躯体😀"));
  ASSERT_EQ(site.Messages().size(), 1U);
  EXPECT_EQ(site.Messages()[0].text, "印字タイトルに使えない文字があります");
  EXPECT_EQ(site.Messages()[0].title, "その他設定");
  EXPECT_EQ(ReadSteelIni(kReportTitleTextKey), "");
}

TEST(SettingsPresenter, RereadsWhatItMayHaveChanged) {
  const SiteFixture site;
  SettingsPresenter settings;
  for (const char* control : {"optNenGou", "OptTaihiB", "OptChangeColor_1", "OptPrtZero_0", "OptTitleB"}) {
    settings.Choose(control);
  }
  SettingsPresenter::Reread();
  EXPECT_EQ(Settings.DateStyle, 2);
  EXPECT_EQ(Settings.ComparisonKind, 2);
  EXPECT_EQ(Settings.AlternateRowColours, 0);
  EXPECT_EQ(Settings.PrintEmptyDiameters, 1);
  EXPECT_EQ(Settings.ReportTitleChoice, 2);
}

TEST(ColoursPresenter, AsksForColoursAndSavesThemInTheEndAlone) {
  const SiteFixture site;
  const KeptServices services;
  std::vector<std::int32_t> asked;
  std::optional<std::int32_t> answer = 0x0000FF;
  Services.Colours = [&](std::string_view title, std::int32_t colour) {
    EXPECT_EQ(title, "色選択");
    asked.push_back(colour);
    return answer;
  };
  ColoursPresenter colours;
  const std::int32_t fore = colours.Fore();
  colours.ChooseBack();
  answer = std::nullopt;
  colours.ChooseFore();
  EXPECT_EQ(colours.Back(), 0x0000FF);
  EXPECT_EQ(colours.Fore(), fore) << "no answer";
  EXPECT_EQ(asked, (std::vector<std::int32_t>{16777152, fore}));
  EXPECT_EQ(Colour(kGridRowBackColorKey), 16777152);
  colours.Save();
  EXPECT_EQ(Colour(kGridRowBackColorKey), 0x0000FF);
  EXPECT_EQ(Colour(kGridRowForeColorKey), fore);
}

}  // namespace rbt::test
