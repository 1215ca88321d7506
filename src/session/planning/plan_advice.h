// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "planning/outcome/outcome.h"
#include "session/panels/views.h"
#include "session/planning/plan_search.h"
#include "session/planning/site_plan.h"
#include "tally/views/result_grid.h"

namespace rbt {

/// What so many lengths of a steel lose.
struct AdviceMark {
  int count = 0;
  double loss_percent = 0.0;

  friend bool operator==(const AdviceMark&, const AdviceMark&) = default;
};

/// The curve of a steel, as it is drawn.
struct AdviceCurve {
  std::string steel;
  std::vector<AdviceMark> marks;  ///< by rising count
  std::size_t current = 0;        ///< index of the mark that the row stands for
};

/// All that the advice shows.
struct PlanAdviceView {
  GridRows rows;  ///< curve by curve a row for each mark, by `AdviceCaptions`
  std::string progress;
  bool searching = false;
  bool left = false;
};

std::span<const std::string_view> AdviceCaptions();

/// The advice without its window: what each steel of the site loses when no more than one, two, ... lengths
/// are bought of it. A thread works it out; one set can be taken.
class PlanAdvicePresenter {
 public:
  /// Reads the site by the choices, but for the sets that were taken before; no more lengths are compared
  /// than the choices let a plan buy. Throws what `RequestOf` and `TalliedProblem` throw.
  explicit PlanAdvicePresenter(PlanChoices choices, PlanSearch::Work make_plan = planning::MakePlan);
  PlanAdvicePresenter(const PlanAdvicePresenter&) = delete;
  PlanAdvicePresenter& operator=(const PlanAdvicePresenter&) = delete;
  /// Stops the search and waits for its end.
  ~PlanAdvicePresenter();

  PlanAdviceView View() const;
  /// The curve that a row belongs to; without marks where there is no such row.
  AdviceCurve CurveOf(std::size_t row) const;

  /// Begins the search, once; see `PlanPresenter`. Curves are shown as they come.
  void Search(std::function<void()> news);
  void TakeNews();

  /// Takes the set of a row for its steel, and leaves. Nothing where there is no such row.
  void Take(std::size_t row);
  /// One step back: the search ends with what it has, else off the screen.
  void TurnBack();

  /// The choices with the set; nothing when none was taken.
  const std::optional<PlanChoices>& Taken() const { return taken_; }

 private:
  PlanChoices choices_;
  planning::Problem problem_;
  std::vector<planning::OutcomeAdvice> advice_;
  std::string progress_;
  std::optional<PlanChoices> taken_;
  bool left_ = false;
  PlanSearch search_;  ///< goes first: it works on the problem
};

/// What the controls of the advice do.
std::span<const ControlHint> AdviceHints();

}  // namespace rbt
