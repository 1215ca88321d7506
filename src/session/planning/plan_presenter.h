// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "session/planning/plan_search.h"
#include "session/planning/plan_sheets.h"
#include "session/planning/plan_view.h"
#include "session/planning/site_plan.h"

namespace rbt {

/// What the plan screen leans on.
struct PlanParts {
  AskChoices ask_choices;  ///< shows the choices and lets the user change them
  AskChoices advise;  ///< shows what fewer lengths would lose; gives the choices with the set that was taken
  PlanSearch::Work make_plan = planning::MakePlan;
  std::string subject = {};  ///< what the plan is of, for the title: the site, and what is left out of it
  /// Prints a sheet, or shows it first; gives the printer that took it, empty for none.
  std::function<std::string(PlanSheet sheet, const planning::Outcome& outcome)> print;
};

/// The plan screen without its window: the cutting plan of the site that the bulk screen shows, under its
/// selection. A quick plan stands at once; a thread improves it until it is done, out of time or told to
/// stop. No other plan takes the place of one that costs less.
class PlanPresenter {
 public:
  PlanPresenter(PlanParts parts, SitePlan plan);
  PlanPresenter(const PlanPresenter&) = delete;
  PlanPresenter& operator=(const PlanPresenter&) = delete;
  /// Stops the search and waits for its end.
  ~PlanPresenter();

  PlanScreenView View() const;

  /// Begins the search, once, and again with every other plan. `news` is called by its thread whenever there
  /// is something to take.
  void Improve(std::function<void()> news);
  /// Takes what the search has found. Throws what has ended it; the best plan so far stands.
  void TakeNews();

  /// Asks for other choices and plans by them. Throws what the tally throws; the plan stays as it is then.
  void ChangeChoices();
  /// The same with a set of lengths out of the advice.
  void Advise();
  /// The patterns of a cell of the grid, and how many of its bars are those of rows that stay as scheduled.
  void OpenCell(std::size_t row, std::size_t column);
  /// A search ends with the best so far: all sheets are of one plan.
  void Print(PlanSheet sheet);
  /// One step back: from the patterns of a cell, else the search ends with the best so far, else off the
  /// screen.
  void TurnBack();

  const planning::Outcome& Outcome() const { return plan_.outcome; }
  const PlanChoices& Choices() const { return plan_.choices; }

 private:
  void PlanAnew(const AskChoices& ask);
  void Begin();
  /// The plan that was found, where it is no worse than the one that stands.
  void TakePlan(const planning::Plan& plan);
  /// What the search has found; `at_end` is told where it has ended before it was done.
  void Take(const PlanSearch::News& found, std::string_view at_end);
  /// The patterns of a cell that holds no bars any more are put away.
  void CloseEmptyCell();

  PlanParts parts_;
  SitePlan plan_;
  std::string progress_;
  std::string notice_;
  std::optional<std::pair<std::size_t, std::size_t>> cell_;  ///< whose patterns are shown
  bool left_ = false;
  std::function<void()> news_;
  PlanSearch search_;  ///< goes first: it works on the problem
};

}  // namespace rbt
