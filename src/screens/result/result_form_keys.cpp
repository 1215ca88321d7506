// SPDX-License-Identifier: MIT
// The table of the result form: which control and which key stand for which intent.
#include <QPushButton>

#include "screens/panels/boxes.h"
#include "screens/panels/form_actions.h"
#include "screens/result/result_form.h"
#include "ui_result_form.h"

namespace rbt {

struct ResultForm::Action {
  const char* control;
  int key;  ///< 0 when it has none
  std::function<void(ResultPresenter&)> intent;
  bool ResultOffers::*offered = nullptr;  ///< null: on every screen
  ButtonView ResultScreenView::*main_view =
      nullptr;  ///< how a main button stands; panels show their own buttons

  bool IsOn(const ResultScreen& screen) const { return offered == nullptr || screen.offers.*offered; }
};

const std::vector<ResultForm::Action>& ResultForm::Actions() {
  using P = ResultPresenter;
  using V = ResultScreenView;
  using O = ResultOffers;
  static const std::vector<Action> actions{
      {"cmdPrint", Qt::Key_F1, [](P& screen) { screen.OpenPrint(SheetBody::with_ulbon); }, nullptr,
       &V::print},
      {"cmdUSum", Qt::Key_F2, &P::ShowUlbonView, &O::ulbon_view, &V::show_ulbon_view},
      {"cmdurubon", Qt::Key_F3, &P::BeginUplift, &O::uplift, &V::ulbon},
      {"cmdurubon", Qt::Key_F3, &P::PrintUlbonOfToday, &O::ulbon_print, &V::ulbon},
      {"cmdPrint2", 0, [](P& screen) { screen.OpenPrint(SheetBody::deformed_alone); }, &O::deformed_print,
       &V::print_deformed},
      {"CmdVReturn", Qt::Key_F4, &P::RestoreValues, &O::uplift, &V::restore_values},
      {"cmdMeisai", Qt::Key_F5, &P::ShowDetail, nullptr, &V::show_detail},
      {"cmdPGChange", Qt::Key_F7, &P::AskForRange, &O::range_change, &V::change_range},
      {"Command6", Qt::Key_F6, &P::ToggleAccumulation, &O::accumulation, &V::toggle_accumulation},
      {"cmdPlan", Qt::Key_F8, &P::ShowPlan, &O::plan, &V::show_plan},
      {"cmdExit", Qt::Key_Escape, &P::TurnBack, nullptr, &V::leave},
      {"Command1", 0, &P::Recalculate},
      {"Command2", 0, &P::ChooseForms, &O::form_choice},
      {"Command3", 0, &P::ChooseKinds},
      {"cmdHoop", 0, &P::CycleHoops},
      {"cmdTei", 0, &P::CyclePlates},
      {"btnA4Y", Qt::Key_F1, [](P& screen) { screen.Print(ReportPaper::a4y); }},
      {"btnA4T", Qt::Key_F3, [](P& screen) { screen.Print(ReportPaper::a4t); }},
      {"btnB5Y", Qt::Key_F5, [](P& screen) { screen.Print(ReportPaper::b5y); }},
      {"chkPreview", Qt::Key_F8, [](P& screen) { screen.PrintPanel().TogglePreview(); }},
      {"btnPrinter", Qt::Key_F9, [](P& screen) { screen.PrintPanel().ChoosePrinter(); }},
      {"btnSettei", Qt::Key_F7, &P::OpenSettings},
      {"btnReturn", Qt::Key_Escape, &P::ClosePrint},
  };
  return actions;
}

std::vector<int> ResultForm::Keys(const ResultScreen& screen) {
  std::vector<int> keys;
  for (const Action& action : Actions()) {
    if (action.key != 0 && action.IsOn(screen)) keys.push_back(action.key);
  }
  return keys;
}

void ResultForm::ConnectActions() {
  std::vector<FormAction> actions;
  for (const Action& action : Actions()) {
    if (!action.IsOn(presenter_.Screen())) continue;
    actions.push_back({action.control, action.key, [this, &action] { Do(action.intent); }});
    // A main button that goes for a while leaves its room: the others stay where the hand knows them.
    if (action.main_view != nullptr) KeepRoomOf(*findChild<QPushButton*>(action.control));
  }
  new FormActions(*this, std::move(actions), KeysAct::where_the_control_can_be_pressed);
}

void ResultForm::ShowMainButtons(const ResultScreenView& view) {
  for (const Action& action : Actions()) {
    if (action.main_view == nullptr) continue;
    ShowButton(*ui_->SSPanel2->findChild<QPushButton*>(action.control), view.*action.main_view);
  }
}

}  // namespace rbt
