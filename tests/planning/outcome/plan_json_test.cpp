// SPDX-License-Identifier: MIT
#include "planning/outcome/plan_json.h"

#include <gtest/gtest.h>

#include "planning/outcome/outcome_sample.h"

namespace rbt::planning {
namespace {

TEST(PlanJson, TellsEveryFigureByItsName) {
  const Outcome outcome = Describe(test::SampleProblem(), test::SamplePlan());
  EXPECT_EQ(PlanJson(outcome), R"({
  "kind": "plan",
  "stopped": "",
  "options": { "kerf": 0, "trim": 0, "plus": 0, "mix": 0, "maxLengths": 0, "usable": 1000, "scope": "site", "welded": "plan", "aim": "steel" },
  "groups": [{ "scope": "site", "diameter": 16, "kind": 1, "hoop": false, "lengths": [6000, 12000], "pieces": [[2340, 5, [[1, 1, 5]]], [1200, 2, [[1, 2, 2]]]], "patterns": [{ "stock": 6000, "rest": true, "bars": 1, "pieces": [[1200, 2]], "used": 2400, "left": 3600, "cuts": 2 }, { "stock": 12000, "rest": false, "bars": 1, "pieces": [[2340, 5]], "used": 11700, "left": 300, "cuts": 5 }], "method": "greedy", "cost": 12000, "steelKg": 18.719999999999999, "tableKg": 18.699999999999999, "installedKg": 21.995999999999999, "lossPercent": -14.893617021276595, "bound": { "cost": 12000, "prices": [[1200, 0], [2340, 2400000000]] } }],
  "kept": [[null, 9, "welded"]],
  "short": [[1, 1, 3]],
  "purchase": [{ "diameter": 16, "kind": 1, "hoop": false, "stock": 12000, "planned": 1, "kept": 4, "bars": 5, "tableKg": 93.5, "yen": 9350 }],
  "rests": [{ "diameter": 16, "kind": 1, "hoop": false, "length": 3600, "count": 1 }],
  "figures": { "schedule": null, "perRow": { "TotalStockWeight": null, "TotalInstalledWeight": null, "LossRatePercent": null, "bars": 2, "steelKg": 28.079999999999998, "tableKg": 28.059999999999999, "lossPercent": 27.659574468085111, "cuts": 7 }, "plan": { "TotalStockWeight": null, "TotalInstalledWeight": null, "LossRatePercent": null, "bars": 1, "steelKg": 18.719999999999999, "tableKg": 18.699999999999999, "lossPercent": -14.893617021276595, "cuts": 7, "patterns": 2, "lengths": 1, "usableKg": 5.6159999999999997 } },
  "bound": { "cost": 18.719999999999999, "planCost": 18.719999999999999, "gapPercent": 0, "lossPercent": -14.893617021276595 }
}
)");
}

TEST(PlanJson, TellsMoneyInYen) {
  Problem problem = test::SampleProblem();
  problem.options.aim = Aim::money;
  problem.supplies[0].lengths[1].cost = 1'870'500'000;
  const std::string json = PlanJson(Describe(problem, test::SamplePlan()));
  EXPECT_NE(json.find(R"("aim": "money")"), std::string::npos);
  EXPECT_NE(json.find(R"("method": "greedy", "cost": 1870.5,)"), std::string::npos) << json;
  EXPECT_NE(json.find(R"("planCost": 1870.5, "gapPercent": )"), std::string::npos);
  EXPECT_NE(json.find(R"("lossPercent": null })"), std::string::npos);
}

TEST(PlanJson, HasAdviceWhereItWasAskedFor) {
  Problem problem = test::SampleProblem();
  problem.options.advise = 2;
  Plan plan = test::SamplePlan();
  plan.advice = {{{16, 1, false}, {{1, {12000}, 24000}}}};
  EXPECT_NE(
      PlanJson(Describe(problem, plan))
          .find(
              R"("advice": [{ "diameter": 16, "kind": 1, "hoop": false, "curve": [{ "count": 1, "lengths": )"
              R"([12000], "steelKg": 37.439999999999998, "lossPercent": 70.212765957446)"),
      std::string::npos);
}

}  // namespace
}  // namespace rbt::planning
