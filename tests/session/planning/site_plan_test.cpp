// SPDX-License-Identifier: MIT
#include "session/planning/site_plan.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "platform/system/services.h"
#include "shell/config/settings.h"
#include "support/schedule_site.h"

namespace rbt {
namespace {

using test::Number;
using test::ScheduleSite;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

/// Two pieces of 4.0 m of D16 out of bars of 6.0 m; messages are kept.
class SitePlans : public ::testing::Test {
 protected:
  SitePlans() {
    Services.Messages = [this](std::string_view text, std::string_view, MessageButtons) {
      messages_.emplace_back(text);
      return MessageAnswer::ok;
    };
    site_.AddRow({{"太さ", Number(16)},
                  {"伸定尺", Value{6.0}},
                  {"伸切寸", Number(4000)},
                  {"合計", Number(2)},
                  {"伸総計", Number(2)}});
  }

  static PlanChoices Of(std::vector<int> lengths) {
    PlanChoices choices;
    choices.lengths = std::move(lengths);
    return choices;
  }

  /// Gives these choices one after the other, then nothing; keeps what it was called with.
  AskChoices Asked(const std::vector<PlanChoices>& answers) {
    return [this, answers](const PlanChoices& choices) -> std::optional<PlanChoices> {
      const std::size_t turn = shown_.size();
      shown_.push_back(choices);
      if (turn >= answers.size()) return std::nullopt;
      return answers[turn];
    };
  }

  ScheduleSite site_;
  std::vector<std::string> messages_;
  std::vector<PlanChoices> shown_;
};

TEST_F(SitePlans, OpenByTheRememberedChoicesWithoutAWord) {
  RememberChoices(Of({12000}));
  const std::optional<SitePlan> plan = OpenSitePlan(Asked({}));
  ASSERT_TRUE(plan);
  EXPECT_EQ(plan->choices, Of({12000}));
  ASSERT_THAT(plan->outcome.purchase, SizeIs(1));
  EXPECT_EQ(plan->outcome.purchase[0].stock_mm, 12000);
  EXPECT_THAT(shown_, IsEmpty());
  EXPECT_THAT(messages_, IsEmpty());
}

TEST_F(SitePlans, AskForOtherChoicesUntilOnesAreNotRefused) {
  RememberChoices(Of({5250}));
  const std::optional<SitePlan> plan = OpenSitePlan(Asked({Of({5255}), Of({6000})}));
  ASSERT_TRUE(plan);
  EXPECT_EQ(plan->choices, Of({6000}));
  EXPECT_THAT(shown_, ElementsAre(Of({5250}), Of({5255}))) << "what was refused is there to be mended";
  EXPECT_THAT(messages_, ElementsAre(HasSubstr("length 5250 has no column"), HasSubstr("length 5255")));
  EXPECT_EQ(RememberedChoices().choices, Of({6000}));
}

TEST_F(SitePlans, DoNotOpenWhenTheUserLeavesItAtARefusal) {
  RememberChoices(Of({5250}));
  EXPECT_FALSE(OpenSitePlan(Asked({})));
  EXPECT_THAT(shown_, SizeIs(1));
  EXPECT_EQ(RememberedChoices().choices, Of({5250}));
}

TEST_F(SitePlans, TellOfAFileThatIsGoneAndAskAgain) {
  PlanChoices choices;
  choices.rests_file = (site_.Folder() / "gone.csv").string();
  EXPECT_TRUE(ChangeSitePlan(Asked({choices, PlanChoices()}), {}));
  EXPECT_THAT(messages_, ElementsAre(HasSubstr("「gone.csv」\n")));
}

TEST_F(SitePlans, TellOfSettingsThatCannotBeReadAndAsk) {
  SaveSetting("Kakou", "切断計画 " + site_.Folder().Data("GENBA001.MDB").string(), "切断しろ", "abc");
  EXPECT_TRUE(OpenSitePlan(Asked({PlanChoices()})));
  EXPECT_THAT(messages_, ElementsAre(HasSubstr("切断しろ \"abc\"")));
  EXPECT_THAT(RememberedChoices().unreadable, IsEmpty());
}

TEST_F(SitePlans, LetFaultsOfTheTallyPass) {
  site_.PutText("伸総計", "abc");
  EXPECT_THROW(OpenSitePlan(Asked({})), Fault);
  EXPECT_THAT(shown_, IsEmpty());
}

}  // namespace
}  // namespace rbt
