// SPDX-License-Identifier: MIT
#pragma once

#include <exception>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

#include "planning/problem/plan.h"
#include "planning/problem/problem.h"
#include "session/planning/plan_request.h"
#include "session/planning/plan_sheets.h"
#include "session/planning/plan_view.h"

namespace rbt {

/// What the plan screen leans on.
struct PlanParts {
  PlanRequest request = {};
  double time_limit = 60.0;  ///< seconds that the search may take
  /// Prints a sheet, or shows it first; gives the printer that took it, empty for none.
  std::function<std::string(PlanSheet sheet, const planning::Outcome& outcome)> print;
};

/// The plan screen without its window: the cutting plan of the site that the bulk screen shows, under its
/// selection. The greedy plan stands at once; a thread improves it until it is done, out of time or told to
/// stop.
class PlanPresenter {
 public:
  /// Reads the bound site as the bulk tally does and plans it greedily. Throws what the tally throws, and
  /// `planning::Refusal` where no plan can be made.
  explicit PlanPresenter(PlanParts parts);
  PlanPresenter(const PlanPresenter&) = delete;
  PlanPresenter& operator=(const PlanPresenter&) = delete;
  /// Stops the search and waits for its end.
  ~PlanPresenter();

  PlanScreenView View() const;

  /// Begins the search, once. `news` is called by its thread whenever there is something to take.
  void Improve(std::function<void()> news);
  /// Takes what the search has found. Throws what has ended it.
  void TakeNews();

  /// The patterns of a cell of the grid.
  void OpenCell(std::size_t row, std::size_t column);
  void Print(PlanSheet sheet);
  /// One step back: from the patterns of a cell, else the search ends with the best so far, else off the
  /// screen.
  void TurnBack();

  const planning::Outcome& Outcome() const { return outcome_; }

 private:
  struct News {
    planning::Plan plan;
    std::size_t done = 0;
    std::size_t of = 0;
    bool ended = false;
    std::exception_ptr fault;
  };

  void Search(const std::stop_token& stop, const std::function<void()>& news);
  void Put(News found);

  PlanParts parts_;
  planning::Problem problem_;
  planning::Outcome outcome_;
  std::string progress_;
  std::string notice_;
  std::optional<std::pair<std::size_t, std::size_t>> cell_;  ///< whose patterns are shown
  bool left_ = false;

  std::mutex mutex_;
  std::optional<News> found_;  ///< by the thread, not taken yet
  bool improving_ = false;     ///< of the screen's own thread alone
  std::jthread search_;        ///< goes first
};

}  // namespace rbt
