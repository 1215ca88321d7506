// SPDX-License-Identifier: MIT
#include "session/planning/plan_choices.h"

#include <filesystem>
#include <set>
#include <stdexcept>
#include <utility>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "planning/problem/refusal.h"
#include "platform/system/services.h"
#include "shell/config/settings.h"
#include "shell/context/site_context.h"
#include "support/schedule_site.h"

namespace rbt {
namespace {

using test::ScheduleSite;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

/// Every choice other than usual.
PlanChoices Others() {
  PlanChoices choices;
  choices.kerf = 3;
  choices.trim = 10;
  choices.plus = 20;
  choices.mix = 2;
  choices.max_lengths = 4;
  choices.usable = 800;
  choices.time_limit = 5;
  choices.scope = "-1..2/3..5";
  choices.keep_welded = true;
  choices.by_money = true;
  choices.greedy = true;
  choices.lengths = {6000, 12000};
  choices.lengths_file = "/data/定尺 表.csv";
  choices.rests_file = "/data/rests.csv";
  choices.sets = {{{16, 1, false}, {6000, 9000}}, {{19, 2, true}, {7000}}};
  return choices;
}

const PlanField& Field(std::string_view control) {
  for (const PlanField& field : PlanFields()) {
    if (field.control == control) return field;
  }
  throw std::out_of_range(std::string(control));
}

/// Where the choices of the site are stored.
std::string SectionOf(const ScheduleSite& site) {
  return "切断計画 " + site.Folder().Data("GENBA001.MDB").string();
}

/// What a box makes of a text; nothing where it is refused.
std::optional<std::string> Taken(std::string_view control, std::string_view text) {
  PlanChoices choices;
  const PlanField& field = Field(control);
  if (!field.take(choices, text)) return std::nullopt;
  return field.text(choices);
}

TEST(PlanChoices, AreRememberedForEachSite) {
  const ScheduleSite site;
  RememberChoices(Others());
  EXPECT_EQ(RememberedChoices().choices, Others());
  EXPECT_THAT(RememberedChoices().unreadable, IsEmpty());
  SiteContext.SelectedDbName = "GENBA002.MDB";
  EXPECT_EQ(RememberedChoices().choices, PlanChoices());
}

TEST(PlanChoices, AreNotThoseOfTheSiteOfTheSameNameBelowAnotherRoot) {
  const ScheduleSite site;
  RememberChoices(Others());
  const test::TemporaryFolder other;
  const std::filesystem::path bracket = other / "a]b%";
  std::filesystem::create_directories(bracket / "DATA");
  const std::filesystem::path first = std::exchange(Services.Root, bracket);
  EXPECT_EQ(RememberedChoices().choices, PlanChoices());
  PlanChoices choices;
  choices.kerf = 7;
  RememberChoices(choices);
  EXPECT_EQ(RememberedChoices().choices, choices);
  Services.Root = first;
  EXPECT_EQ(RememberedChoices().choices, Others());
}

TEST(PlanChoices, LetASearchTakeTenSecondsWhereNobodySaysOtherwise) {
  EXPECT_EQ(PlanChoices().time_limit, 10);
}

TEST(PlanChoices, AreStoredOnlyWhereTheyChange) {
  const ScheduleSite site;
  PlanChoices choices;
  choices.kerf = 3;
  RememberChoices(choices);
  EXPECT_EQ(ReadSetting("Kakou", SectionOf(site), "切断しろ", "none"), "3");
  EXPECT_EQ(ReadSetting("Kakou", SectionOf(site), "端切り", "none"), "none");
  RememberChoices({});
  EXPECT_EQ(ReadSetting("Kakou", SectionOf(site), "切断しろ", "none"), "0");
}

TEST(PlanChoices, ThatCannotBeReadHaveTheirDefaultsAndAreNamed) {
  const ScheduleSite site;
  RememberChoices(Others());
  SaveSetting("Kakou", SectionOf(site), "切断しろ", "-3");
  SaveSetting("Kakou", SectionOf(site), "助言の定尺", "16 1:6000");
  const RememberedPlan remembered = RememberedChoices();
  EXPECT_EQ(remembered.choices.kerf, 0);
  EXPECT_EQ(remembered.choices.trim, 10);
  EXPECT_THAT(remembered.choices.sets, IsEmpty());
  EXPECT_THAT(remembered.unreadable, ElementsAre(HasSubstr("\"-3\""), HasSubstr("\"16 1:6000\"")));
}

TEST(PlanFields, HaveControlsAndKeysOfTheirOwn) {
  std::set<std::string_view> names;
  std::size_t given = 0;
  for (const PlanField& field : PlanFields()) {
    for (const std::string_view name : {field.control, field.key}) {
      if (name.empty()) continue;
      names.insert(name);
      ++given;
    }
  }
  EXPECT_THAT(names, SizeIs(given));
}

TEST(PlanFields, TakeWhatTheyTell) {
  const PlanChoices others = Others();
  PlanChoices taken = others;
  for (const PlanField& field : PlanFields())
    EXPECT_TRUE(field.take(taken, field.text(others))) << field.control;
  EXPECT_EQ(taken, others);
}

TEST(PlanFields, TakeFullWidthCharactersAndAnySeparator) {
  EXPECT_EQ(Taken("txtKerf", "３"), "3");
  EXPECT_EQ(Taken("txtLengths", "１２０００、6000 　9000,6000"), "6000,9000,12000");
  EXPECT_EQ(Taken("txtScope", "－１．．２／３．．５"), "-1..2/3..5");
  EXPECT_EQ(Taken("txtPlus", " "), "");
  EXPECT_EQ(Taken("txtLengths", ""), "");
}

TEST(PlanFields, RefuseWhatTheyCannotBeAndSayWhatTheyTake) {
  for (const auto& [control, text] : {std::pair<const char*, const char*>{"txtKerf", "3x"},
                                      {"txtKerf", ""},
                                      {"txtTrim", "-1"},
                                      {"txtPlus", "x"},
                                      {"txtMix", "1001"},
                                      {"txtUsable", "1000001"},
                                      {"txtMaxLengths", "1.5"},
                                      {"txtLengths", "6000,0"},
                                      {"txtScope", "roof"},
                                      {"txtTimeLimit", "3601"}}) {
    EXPECT_FALSE(Taken(control, text)) << control << " " << text;
    EXPECT_FALSE(Field(control).wrong.empty()) << control;
  }
}

TEST(RequestOf, AsksForEveryChoice) {
  const ScheduleSite site;
  PlanChoices choices = Others();
  choices.lengths_file =
      site.Folder().Put("l.csv", "diameter,length,price,min_kg\n0,6000,98500,500\n").string();
  choices.rests_file = site.Folder().Put("r.csv", "diameter,kind,length,count\n16,1,3000,2\n").string();
  const PlanRequest request = RequestOf(choices);
  EXPECT_EQ(request.offer.lengths, choices.lengths);
  ASSERT_TRUE(request.offer.length_lines);
  EXPECT_EQ(request.offer.length_lines->front().price, 98500);
  EXPECT_THAT(request.offer.rests, SizeIs(1));
  EXPECT_EQ(request.offer.sets, choices.sets);
  EXPECT_EQ(request.options.bar, (planning::BarRule{3, 10, 20}));
  EXPECT_EQ(request.options.mix, 2);
  EXPECT_EQ(request.options.max_lengths, 4);
  EXPECT_EQ(request.options.usable, 800);
  EXPECT_EQ(request.options.scope, "-1..2/3..5");
  EXPECT_TRUE(request.options.keep_welded);
  EXPECT_EQ(request.options.aim, planning::Aim::money);
  EXPECT_EQ(request.options.effort, planning::Effort::greedy);
}

TEST(RequestOf, TakesThePlusOfTheSettingsWhereNoneIsChosen) {
  const ScheduleSite site;
  SaveSetting(kPlusKey, "15");
  EXPECT_EQ(RequestOf({}).options.bar.plus, 15);
  EXPECT_FALSE(RequestOf({}).offer.lengths);
}

TEST(RequestOf, NamesTheFileWhoseLineIsRefused) {
  const ScheduleSite site;
  PlanChoices choices;
  choices.rests_file = site.Folder().Put("r.csv", "diameter,kind,length,count\n16,1,12x,2\n").string();
  try {
    RequestOf(choices);
    FAIL() << "no refusal";
  } catch (const planning::Refusal& refusal) {
    EXPECT_EQ(refusal.what(), choices.rests_file + ": line 2: not a whole number: 12x");
  }
}

TEST(ChoicesText, TellsWhatIsNotAsUsual) {
  EXPECT_EQ(ChoicesText({}), "");
  PlanChoices choices;
  choices.kerf = 3;
  choices.keep_welded = true;
  choices.rests_file = "/data/rests.csv";
  choices.sets[{16, 1, true}] = {6000, 9000};
  EXPECT_EQ(ChoicesText(choices),
            "切断しろ 3   残材の表 rests.csv   助言の定尺 D16 異形 フープ 6000,9000   圧接は加工帳のまま");
}

}  // namespace
}  // namespace rbt
