// SPDX-License-Identifier: MIT
#include "session/planning/plan_options.h"

#include <utility>

#include "platform/system/message.h"

namespace rbt {
namespace {

constexpr std::string_view kOptionsTitle = "計画の条件";

}  // namespace

PlanOptionsPresenter::PlanOptionsPresenter(PlanChoices choices) : choices_(std::move(choices)) {
  Show(choices_);
}

void PlanOptionsPresenter::Show(const PlanChoices& choices) {
  for (const PlanField& field : PlanFields()) {
    if (!field.control.empty()) texts_[field.control] = field.text(choices);
  }
}

PlanOptionsView PlanOptionsPresenter::View() const {
  PlanOptionsView view;
  view.texts = texts_;
  view.has_sets = !choices_.sets.empty();
  view.sets = SetsText(choices_);
  view.to_mend = to_mend_;
  view.left = left_;
  return view;
}

void PlanOptionsPresenter::Type(std::string_view control, std::string text) {
  to_mend_ = {};
  texts_.at(control) = std::move(text);
}

void PlanOptionsPresenter::TakeDefaults() {
  to_mend_ = {};
  Show(PlanChoices());
}

void PlanOptionsPresenter::Take() {
  to_mend_ = {};
  PlanChoices taken = choices_;
  for (const PlanField& field : PlanFields()) {
    if (field.control.empty() || field.take(taken, texts_.at(field.control))) continue;
    to_mend_ = field.control;
    MsgBox(field.wrong, kOptionsTitle, MessageButtons::ok_to_warning);
    return;
  }
  taken_ = std::move(taken);
  left_ = true;
}

}  // namespace rbt
