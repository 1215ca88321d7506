// SPDX-License-Identifier: MIT
#include "screens/floorpart/floorpart_form.h"

#include <array>
#include <utility>

#include <QApplication>
#include <QCloseEvent>
#include <QTimer>

#include "desktop/action.h"
#include "desktop/form.h"
#include "desktop/texts.h"
#include "screens/panels/boxes.h"
#include "screens/panels/date_boxes.h"
#include "screens/panels/digit_box.h"
#include "screens/panels/hint_line.h"
#include "session/floorpart/floorpart_hints.h"
#include "session/panels/at_end.h"
#include "ui_floorpart_form.h"

namespace rbt {

namespace {

constexpr int kPercentCharacters = 8;

/// The panels that other screens share bear the names of these screens; one after the other.
constexpr std::array<ControlText, 7> kFilterNames{{{"Label8", "ZaishituTXT"},
                                                   {"Label9", "ZairyouTXT"},
                                                   {"Label4", "Label8"},
                                                   {"Label3", "Label9"},
                                                   {"Label5", "Label12"},
                                                   {"Command2", "ZairyouR"},
                                                   {"Command1", "ZaishituR"}}};
constexpr std::array<ControlText, 3> kSharedCaptions{
    {{"lblKojNoCaption", "工事名"}, {"lblKykCaption", "取引先名"}, {"Label12", "定着板"}}};

QWidget* Control(QWidget& form, std::string_view name) { return form.findChild<QWidget*>(Text(name)); }

void Rename(QWidget& form, std::span<const ControlText> names) {
  for (const auto& [name, own] : names) Control(form, name)->setObjectName(Text(own));
}

void Caption(QWidget& form, std::span<const ControlText> captions) {
  for (const auto& [name, text] : captions) Control(form, name)->setProperty("text", Text(text));
}

}  // namespace

FloorPartForm::FloorPartForm(const FloorPartScreen& screen, FloorPartParts parts)
    : presenter_(screen, std::move(parts)), ui_(std::make_unique<Ui::FloorPartForm>()) {
  ui_->setupUi(this);
  setObjectName(Text(screen.name));
  setWindowTitle(Text(screen.title));
  TakeControls();
  PrepareForm(*this);
  Bind();
  BindCorrection();
  ConnectActions();
  ui_->SSPanel4->Float(*ui_->formLayout);
  new HintLine(*this, *ui_->lblHelp, FloorPartHints(screen));
  presenter_.OnShow([this] { Show(); });
  Show();
}

FloorPartForm::~FloorPartForm() = default;

void FloorPartForm::TakeControls() {
  const FloorPartScreen& screen = presenter_.Screen();
  Rename(*ui_->filterPanel, kFilterNames);
  Caption(*this, kSharedCaptions);
  for (const std::string_view name : screen.without) Control(*this, name)->hide();
  Rename(*this, screen.names);
  Caption(*this, screen.captions);
}

void FloorPartForm::Bind() {
  ui_->SSPanel1->Bind(presenter_.PrintPanel());
  ui_->pnlInputKai->Bind(
      {.type = [this](std::size_t box, std::string text) { presenter_.TypeFloor(box, std::move(text)); },
       .enter =
           [this](std::size_t box) {
             Do([box](FloorPartPresenter& screen) { screen.EnterFloorBox(box); });
           }});
  ui_->pnlInputKai->OnWeight([this](bool installed) {
    Do([installed](FloorPartPresenter& screen) { screen.ChooseWeight(installed); });
  });
  TakeNumberOnly(*ui_->Text1, kPercentCharacters);
  SelectAtFocus(*ui_->Text1, SelectAt::getting_and_losing_focus);
  connect(ui_->Text1, &QLineEdit::textChanged, this,
          [this](const QString& text) { presenter_.TypeUplift(text.toStdString()); });
  connect(ui_->Text1, &QLineEdit::returnPressed, this,
          [this] { RunAction(*this, [this] { Do(&FloorPartPresenter::TakeUplift); }); });
}

void FloorPartForm::BindCorrection() {
  FloorPartGrid& grid = *ui_->dbgKai;
  grid.OnBeforeEdit([this](int row, int column) { return presenter_.MayCorrect(row, column); });
  grid.OnBeforeUpdate([](int /*row*/, int /*column*/, const std::string& text) {
    return FloorPartPresenter::IsWeight(text);
  });
  grid.OnAfterEdit([this, &grid](int row, int column) {
    RunAction(*this, [&] {
      Do([&](FloorPartPresenter& screen) { screen.Correct(row, column, grid.Cell(row, column)); });
    });
  });
}

void FloorPartForm::Do(const std::function<void(FloorPartPresenter&)>& intent) {
  const AtEnd show([this] { Show(); });
  intent(presenter_);
}

void FloorPartForm::CorrectByHand() { Do(&FloorPartPresenter::BeginCorrection); }

void FloorPartForm::Show() {
  const FloorPartView view = presenter_.View();
  if (view.left) {
    close();
    return;
  }
  focus_over_work_.Show(view.busy, [&] {
    ShowPanels(view);
    ShowMainButtons(view);
  });
  Focus(view.focus);
  if (view.beep) QApplication::beep();
}

void FloorPartForm::ShowPanels(const FloorPartView& view) {
  ui_->SSPanel1->Show(view.head, view.print_panel);
  ui_->lblkai->setText(Text(view.scope));
  ui_->lblJsyu->setText(Text(view.weight_word));
  ui_->Label10->setVisible(view.busy);
  ui_->filterPanel->Show(view.filters);
  ui_->pnlInputKai->ShowInput(view.input);
  ui_->dbgKai->Show(view.grid);
  if (!view.raise_note.empty()) ui_->SSPanel4->Tell(view.raise_note);
  ShowText(*ui_->Text1, view.uplift.text);
  const std::array<std::pair<QWidget*, bool>, 5> panels{{{ui_->pnlInputKai, view.input.shown},
                                                         {ui_->dbgKai, !view.input.shown},
                                                         {ui_->upliftGroup, view.uplift.shown},
                                                         {ui_->SSPanel2, view.main_buttons_shown},
                                                         {ui_->SSPanel3, view.print_panel.open}}};
  SwitchPanels(panels);
  ui_->SSPanel4->ShowOver(ui_->dbgKai->isVisible() ? ui_->dbgKai->geometry() : rect(),
                          !view.raise_note.empty());
}

void FloorPartForm::Focus(FloorPartFocus target) {
  switch (target) {
    case FloorPartFocus::stays:
      return;
    case FloorPartFocus::start:
      return ui_->pnlInputKai->FocusBox(FloorInput::kStart);
    case FloorPartFocus::end:
      return ui_->pnlInputKai->FocusBox(FloorInput::kEnd);
    case FloorPartFocus::run:
      return ui_->pnlInputKai->FocusRun();
    case FloorPartFocus::first_row:
      return ui_->dbgKai->GoToFirstRow(0);
    case FloorPartFocus::first_cell:
      return ui_->dbgKai->GoToFirstRow(1);
    case FloorPartFocus::uplift:
      return FocusText(*ui_->Text1);
    case FloorPartFocus::year:
      return ui_->SSPanel1->Dates().FocusYear();
    case FloorPartFocus::month:
      return ui_->SSPanel1->Dates().FocusBox(1);
    case FloorPartFocus::day:
      return ui_->SSPanel1->Dates().FocusBox(2);
  }
}

void FloorPartForm::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (std::exchange(activated_, true)) return;
  // A message of the activation stands over the form that is shown.
  QTimer::singleShot(0, this, [this] { RunAction(*this, [this] { Do(&FloorPartPresenter::Activate); }); });
}

void FloorPartForm::closeEvent(QCloseEvent* event) {
  presenter_.Leave();
  QWidget::closeEvent(event);
}

}  // namespace rbt
