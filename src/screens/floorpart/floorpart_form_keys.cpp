// SPDX-License-Identifier: MIT
// The tables of the floor and part forms: which control and which key stand for which intent.
#include <QPushButton>

#include "data/floors.h"
#include "screens/floorpart/floorpart_form.h"
#include "screens/panels/boxes.h"
#include "screens/panels/form_actions.h"
#include "ui_floorpart_form.h"

namespace rbt {

struct FloorPartForm::Action {
  const char* control;  ///< empty: the key alone
  int key;              ///< 0 when it has none
  std::function<void(FloorPartPresenter&)> intent;
  ButtonView FloorPartView::*main_view = nullptr;  ///< how a main button stands
};

namespace {

using P = FloorPartPresenter;

template <std::int16_t kFloor>
void EnterFloor(P& screen) {
  screen.EnterSpecialFloor(kFloor);
}

template <std::size_t kSheet>
void PrintSheet(P& screen) {
  screen.Print(kSheet);
}

/// Saved tallies are managed from the dialog that loads them.
void DoNothing(P& /*screen*/) {}

}  // namespace

std::vector<FloorPartForm::Action> FloorPartForm::Actions(const FloorPartScreen& screen) {
  using V = FloorPartView;
  std::vector<Action> actions{
      {"ALLKAIB", Qt::Key_F2, &P::EnterAllFloors},
      {"RkaiB", 0, EnterFloor<kRoofFloor>},
      {"PHkaiB", 0, EnterFloor<kPenthouseFloor>},
      {"NOkaiB", 0, EnterFloor<kNoFloor>},
      {"Command3", 0, &P::ChooseKinds},
      {"ZaishituR", 0, &P::ChooseKinds},
      {"ZairyouR", 0, &P::ChooseForms},
      {"cmdHoop", 0, &P::CycleHoops},
      {"cmdTei", 0, &P::CyclePlates},
      {"Command2", 0, &P::TakeUplift},
      {"cmdMeisaiSakusei", Qt::Key_F1, &P::OpenPrint, &V::open_print},
      {"cmdKaiHenkou", Qt::Key_F3, &P::AskForFloors, &V::change_floors},
      {"cmdJShuusei", Qt::Key_F5, &P::BeginChange, &V::change_weights},
      {"cmdSave", Qt::Key_F6, &P::Save, &V::save},
      {"btnClose", Qt::Key_Escape, &P::ClosePrint},
      {"cmdExit", Qt::Key_Escape, &P::Leave, &V::leave},
      {"", Qt::Key_Escape, &P::EndCorrection},
  };
  const std::vector<Action> of_floors{
      {"cmdKaiJS", Qt::Key_F1, &P::Run},
      {"cmdLoad", Qt::Key_F7, &P::Load, &V::load},
      {"cmdMent", 0, DoNothing, &V::manage},
      {"cmdCutPrint", Qt::Key_F1, PrintSheet<0>},
      {"btnBuiPrint", Qt::Key_F3, PrintSheet<1>},
      {"btnAllBuiPrint", Qt::Key_F5, PrintSheet<2>},
      {"btnPrintKaiBuiFuto", Qt::Key_F7, PrintSheet<3>},
  };
  const std::vector<Action> of_parts{
      {"cmdBuiJS", Qt::Key_F1, &P::Run},           {"cmdMent", Qt::Key_F7, DoNothing, &V::manage},
      {"cmdLoad", Qt::Key_F8, &P::Load, &V::load}, {"btnAllBuiPrint", Qt::Key_F1, PrintSheet<0>},
      {"btnBuiPrint", Qt::Key_F3, PrintSheet<1>},  {"Command1", Qt::Key_F5, PrintSheet<2>},
  };
  const std::vector<Action>& own = screen.kind == TallyKind::floor ? of_floors : of_parts;
  actions.insert(actions.end(), own.begin(), own.end());
  return actions;
}

std::vector<int> FloorPartForm::Keys(const FloorPartScreen& screen) {
  std::vector<int> keys;
  for (const Action& action : Actions(screen)) {
    if (action.key != 0) keys.push_back(action.key);
  }
  return keys;
}

void FloorPartForm::ConnectActions() {
  std::vector<FormAction> actions;
  for (const Action& action : Actions(presenter_.Screen())) {
    actions.push_back({action.control, action.key, [this, intent = action.intent] { Do(intent); }});
  }
  new FormActions(*this, std::move(actions), KeysAct::where_the_control_can_be_pressed);
}

void FloorPartForm::ShowMainButtons(const FloorPartView& view) {
  for (const Action& action : Actions(presenter_.Screen())) {
    if (action.main_view == nullptr) continue;
    ShowButton(*ui_->SSPanel2->findChild<QPushButton*>(action.control), view.*action.main_view);
  }
}

}  // namespace rbt
