// SPDX-License-Identifier: MIT
#include "screens/planning/plan_options_form.h"

#include <string>
#include <utility>

#include "desktop/form.h"
#include "desktop/texts.h"
#include "screens/panels/boxes.h"
#include "screens/panels/form_actions.h"
#include "screens/planning/csv_choice.h"
#include "session/panels/at_end.h"
#include "ui_plan_options_form.h"

namespace rbt {

namespace {

constexpr const char* kTicked = "1";
constexpr const char* kNotTicked = "0";

}  // namespace

struct PlanOptionsForm::Action {
  const char* control;
  int key;
  void (PlanOptionsPresenter::*intent)();
};

std::vector<PlanOptionsForm::Action> PlanOptionsForm::Actions() {
  return {{"cmdTake", Qt::Key_F1, &PlanOptionsPresenter::Take},
          {"cmdDefaults", Qt::Key_F2, &PlanOptionsPresenter::TakeDefaults},
          {"cmdExit", Qt::Key_Escape, &PlanOptionsPresenter::TurnBack}};
}

std::vector<int> PlanOptionsForm::Keys() {
  std::vector<int> keys;
  for (const Action& action : Actions()) keys.push_back(action.key);
  return keys;
}

PlanOptionsForm::PlanOptionsForm(PlanChoices choices)
    : ui_(std::make_unique<Ui::PlanOptionsForm>()), presenter_(std::move(choices)) {
  ui_->setupUi(this);
  PrepareForm(*this);
  BindBoxes();
  BindActions();
  Show();
  FocusText(*ui_->txtKerf);
}

PlanOptionsForm::~PlanOptionsForm() = default;

void PlanOptionsForm::BindBoxes() {
  for (const PlanField& field : PlanFields()) {
    if (field.control.empty()) continue;
    if (field.kind == PlanFieldKind::tick) {
      connect(findChild<QCheckBox*>(Text(field.control)), &QCheckBox::clicked, this,
              [this, control = field.control](bool ticked) {
                presenter_.Type(control, ticked ? kTicked : kNotTicked);
              });
      continue;
    }
    auto* box = findChild<QLineEdit*>(Text(field.control));
    connect(box, &QLineEdit::textEdited, this, [this, control = field.control](const QString& text) {
      presenter_.Type(control, text.toStdString());
    });
    connect(box, &QLineEdit::returnPressed, this, [box] { MoveFocusOn(*box); });
  }
}

void PlanOptionsForm::BindActions() {
  std::vector<FormAction> actions;
  for (const Action& action : Actions()) {
    actions.push_back({action.control, action.key, [this, intent = action.intent] { Do(intent); }});
  }
  actions.push_back({"cmdLengthsFile", 0, [this] { Browse(*ui_->txtLengthsFile); }});
  actions.push_back({"cmdRestsFile", 0, [this] { Browse(*ui_->txtRestsFile); }});
  new FormActions(*this, std::move(actions), KeysAct::where_the_control_can_be_pressed);
}

void PlanOptionsForm::Browse(QLineEdit& box) {
  const std::optional<std::string> file = AskCsvFile(*this, box.text().toStdString());
  if (!file) return;
  Do([&](PlanOptionsPresenter& screen) { screen.Type(box.objectName().toStdString(), *file); });
  FocusText(box);
}

void PlanOptionsForm::Do(const std::function<void(PlanOptionsPresenter&)>& intent) {
  const AtEnd show([this] { Show(); });
  intent(presenter_);
}

void PlanOptionsForm::Show() {
  const PlanOptionsView view = presenter_.View();
  for (const PlanField& field : PlanFields()) {
    if (field.control.empty()) continue;
    const std::string& text = view.texts.at(field.control);
    if (field.kind == PlanFieldKind::tick) {
      findChild<QCheckBox*>(Text(field.control))->setChecked(text == kTicked);
    } else {
      ShowText(*findChild<QLineEdit*>(Text(field.control)), text);
    }
  }
  ui_->chkSets->setEnabled(view.has_sets);
  if (view.has_sets) ui_->chkSets->setToolTip(Text("外すと全ての定尺に戻す： " + view.sets));
  if (!view.to_mend.empty()) FocusText(*findChild<QLineEdit*>(Text(view.to_mend)));
  if (view.left) hide();
}

}  // namespace rbt
