// SPDX-License-Identifier: MIT
#include "screens/planning/plan_form.h"

#include <utility>

#include <QKeyEvent>

#include "desktop/action.h"
#include "desktop/form.h"
#include "desktop/key_table.h"
#include "desktop/texts.h"
#include "screens/panels/form_actions.h"
#include "screens/panels/hint_line.h"
#include "session/panels/at_end.h"
#include "ui_plan_form.h"

namespace rbt {

struct PlanForm::Action {
  const char* control;
  int key;
  std::function<void(PlanPresenter&)> intent;
};

std::vector<PlanForm::Action> PlanForm::Actions() {
  return {{"cmdPurchase", Qt::Key_F1, [](PlanPresenter& screen) { screen.Print(PlanSheet::purchase); }},
          {"cmdOptions", Qt::Key_F2, &PlanPresenter::ChangeChoices},
          {"cmdShop", Qt::Key_F3, [](PlanPresenter& screen) { screen.Print(PlanSheet::shop); }},
          {"cmdAdvice", Qt::Key_F5, &PlanPresenter::Advise},
          {"cmdExit", Qt::Key_Escape, &PlanPresenter::TurnBack}};
}

std::vector<int> PlanForm::Keys() {
  std::vector<int> keys;
  for (const Action& action : Actions()) keys.push_back(action.key);
  return keys;
}

PlanForm::PlanForm(PlanParts parts, SitePlan plan)
    : ui_(std::make_unique<Ui::PlanForm>()), presenter_(std::move(parts), std::move(plan)) {
  ui_->setupUi(this);
  PrepareForm(*this);
  ConnectActions();
  new HintLine(*this, *ui_->lblHelp, PlanHints());
  Show();
  ui_->dbgPlan->setFocus();
  presenter_.Improve([this] {
    QMetaObject::invokeMethod(
        this, [this] { Do(&PlanPresenter::TakeNews); }, Qt::QueuedConnection);
  });
  Show();
}

PlanForm::~PlanForm() = default;

void PlanForm::ConnectActions() {
  std::vector<FormAction> actions;
  for (const Action& action : Actions()) {
    actions.push_back({action.control, action.key, [this, intent = action.intent] { Do(intent); }});
  }
  new FormActions(*this, std::move(actions), KeysAct::where_the_control_can_be_pressed);
  new KeyPreview(*this, [this](const QKeyEvent& press) {
    if (!ui_->dbgPlan->hasFocus()) return false;
    if (!IsPress(press, Qt::Key_Return) && !IsPress(press, Qt::Key_Enter)) return false;
    if (!IsRepeat(press)) OpenCell();
    return true;
  });
}

void PlanForm::OpenCell() {
  const QModelIndex at = ui_->dbgPlan->currentIndex();
  if (!at.isValid()) return;
  Do([&](PlanPresenter& screen) {
    screen.OpenCell(static_cast<std::size_t>(at.row()), static_cast<std::size_t>(at.column()));
  });
}

void PlanForm::Do(const std::function<void(PlanPresenter&)>& intent) {
  RunAction(*this, [&] {
    const AtEnd show([this] { Show(); });
    intent(presenter_);
  });
}

void PlanForm::Show() {
  const PlanScreenView view = presenter_.View();
  if (view.left) {
    close();
    return;
  }
  setWindowTitle(Text(view.title));
  ui_->dbgPlan->Show(view);
  QStringList losses;
  for (const std::string& loss : view.losses) losses << Text(loss);
  ui_->lblLosses->setText("ロス　" + losses.join("　→　"));
  ui_->lblBound->setText(Text(view.bound));
  ui_->lblCounts->setText(Text(view.counts));
  ui_->lblChoices->setText(Text(view.choices));
  ui_->lblChoices->setToolTip(Text(view.choices));
  ui_->lblChoices->setVisible(!view.choices.empty());
  ui_->lblProgress->setText(Text(view.progress));
  ui_->lblPatterns->setText(Text(view.patterns_of));
  ui_->lblPatterns->setVisible(!view.patterns_of.empty());
  ui_->picture->setVisible(!view.bars.empty());
  ui_->picture->Show(view.bars, view.longest_mm);
  ui_->lblNotice->setText(Text(view.notice));
}

}  // namespace rbt
