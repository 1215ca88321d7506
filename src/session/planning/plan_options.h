// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "session/planning/plan_choices.h"

namespace rbt {

/// All that the options of a plan show.
struct PlanOptionsView {
  std::map<std::string_view, std::string> texts;  ///< of the boxes, by the controls of `PlanFields`
  bool has_sets = false;                          ///< there are sets to give up
  std::string sets;                               ///< which
  std::string_view to_mend;                       ///< box whose text was refused just now; empty: none
  bool left = false;
};

/// The options of a plan without their window: texts are typed, and taken all together.
class PlanOptionsPresenter {
 public:
  explicit PlanOptionsPresenter(PlanChoices choices);

  PlanOptionsView View() const;

  /// What a box holds now.
  void Type(std::string_view control, std::string text);
  /// Every box as it is where nobody has chosen anything. Sets are given up.
  void TakeDefaults();
  /// Takes all texts, and leaves; the first that is wrong is told instead, and is to be mended.
  void Take();
  void TurnBack() { left_ = true; }

  /// The choices as they were taken; nothing before.
  const std::optional<PlanChoices>& Taken() const { return taken_; }

 private:
  void Show(const PlanChoices& choices);

  PlanChoices choices_;
  std::map<std::string_view, std::string> texts_;
  std::string_view to_mend_;
  std::optional<PlanChoices> taken_;
  bool left_ = false;
};

}  // namespace rbt
