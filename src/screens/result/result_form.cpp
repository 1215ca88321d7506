// SPDX-License-Identifier: MIT
#include "screens/result/result_form.h"

#include <array>
#include <utility>

#include <QCloseEvent>
#include <QLineEdit>

#include "desktop/form.h"
#include "desktop/texts.h"
#include "screens/panels/date_boxes.h"
#include "screens/panels/hint_line.h"
#include "screens/panels/page_range_panel.h"
#include "screens/panels/shape_range_panel.h"
#include "session/panels/at_end.h"
#include "session/result/result_hints.h"
#include "ui_result_form.h"

namespace rbt {

ResultForm::ResultForm(const ResultScreen& screen, ResultParts parts)
    : presenter_(screen, std::move(parts)), ui_(std::make_unique<Ui::ResultForm>()) {
  ui_->setupUi(this);
  setObjectName(Text(screen.name));
  setWindowTitle(Text(screen.title));
  TakeControls();
  PlaceRange();
  PrepareForm(*this);
  ui_->SSPanel1->Bind(presenter_.PrintPanel());
  ui_->SSPanel3->Bind(presenter_.PrintPanel());
  ui_->filterPanel->OnUplift([this](std::string text) { presenter_.TypeUplift(std::move(text)); },
                             [this] { Do(&ResultPresenter::TakeUplift); });
  ConnectActions();
  ui_->SSPanel4->Float(*ui_->formLayout);
  new HintLine(*this, *ui_->lblHelp, ResultHints());
  presenter_.OnShow([this] { Show(); });
  Show();
}

ResultForm::~ResultForm() = default;

void ResultForm::TakeControls() {
  const auto control = [this](std::string_view name) { return findChild<QWidget*>(Text(name)); };
  for (const auto& [name, text] : presenter_.Screen().captions) {
    control(name)->setProperty("text", Text(text));
  }
  for (const auto& [name, own] : presenter_.Screen().names) control(name)->setObjectName(Text(own));
}

void ResultForm::PlaceRange() {
  // Positions stand in the grid's place until the tally has run, shapes above the filters all the time.
  QWidget* before = nullptr;
  switch (presenter_.Screen().Range()) {
    case TallyRange::whole_site:
    case TallyRange::floors:
    case TallyRange::names:
      return;
    case TallyRange::positions:
      before = ui_->filterPanel->LastControl();
      range_ = new PageRangePanel(this);
      range_->setObjectName("SSPanel4");
      ui_->formLayout->insertWidget(ui_->formLayout->indexOf(ui_->dbgJS), range_);
      break;
    case TallyRange::shapes:
      before = ui_->SSPanel1->Dates().LastBox();
      range_ = new ShapeRangePanel(this);
      ui_->formLayout->insertWidget(ui_->formLayout->indexOf(ui_->filterPanel), range_, 0, Qt::AlignTop);
      break;
  }
  for (QLineEdit* box : range_->Boxes()) {
    setTabOrder(before, box);
    before = box;
  }
  range_->Bind(
      {.type = [this](std::size_t box, std::string text) { presenter_.TypeRange(box, std::move(text)); },
       .enter =
           [this](std::size_t box) { Do([box](ResultPresenter& screen) { screen.EnterRangeBox(box); }); },
       .leave = [this] { Do(&ResultPresenter::LeaveRange); }});
}

void ResultForm::ShowBusy(bool busy) {
  ui_->SSPanel4->ShowOver(ui_->dbgJS->isVisible() ? ui_->dbgJS->geometry() : rect(), busy);
}

void ResultForm::Do(const std::function<void(ResultPresenter&)>& intent) {
  const AtEnd show([this] { Show(); });
  intent(presenter_);
}

void ResultForm::TakeRange() { Do(&ResultPresenter::TakeRange); }

void ResultForm::Show() {
  const ResultScreenView view = presenter_.View();
  if (view.left) {
    close();
    return;
  }
  focus_over_work_.Show(view.busy, [&] {
    ShowPanels(view);
    ShowMainButtons(view);
  });
  Focus(view.focus);
}

void ResultForm::ShowPanels(const ResultScreenView& view) {
  ui_->SSPanel1->Show(view.head, view.print_panel);
  ui_->filterPanel->Show(view.filters);
  ui_->dbgJS->Show(view);
  ui_->SSPanel3->Show(view.print_panel);
  std::vector<std::pair<QWidget*, bool>> panels{{ui_->filterPanel, view.result_shown},
                                                {ui_->dbgJS, view.result_shown},
                                                {ui_->SSPanel2, view.main_buttons_shown},
                                                {ui_->SSPanel3, view.print_panel.open}};
  if (range_ != nullptr) {
    range_->Show(view.range);
    ui_->formLayout->setStretchFactor(range_, view.result_shown ? 0 : 1);
    panels.emplace_back(range_, view.range.shown);
  }
  ShowBusy(view.busy);
  ui_->lblNotice->setText(Text(view.notice));
  SwitchPanels(panels);
}

void ResultForm::Focus(const FocusRequest& request) {
  switch (request.target) {
    case FocusTarget::stays:
      return;
    case FocusTarget::grid:
      return ui_->dbgJS->setFocus();
    case FocusTarget::uplift:
      return ui_->filterPanel->FocusUplift();
    case FocusTarget::range:
      return range_->FocusBox(request.box);
    case FocusTarget::leave:
      return ui_->cmdExit->setFocus();
    case FocusTarget::year:
      return ui_->SSPanel1->Dates().FocusBox(request.box);
    case FocusTarget::a4_landscape:
    case FocusTarget::a4_portrait:
    case FocusTarget::settings:
      return ui_->SSPanel3->Focus(request.target);
  }
}

void ResultForm::closeEvent(QCloseEvent* event) {
  presenter_.Leave();
  QWidget::closeEvent(event);
}

}  // namespace rbt
