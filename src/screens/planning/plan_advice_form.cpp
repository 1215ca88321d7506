// SPDX-License-Identifier: MIT
#include "screens/planning/plan_advice_form.h"

#include <string>
#include <utility>

#include <QItemSelectionModel>
#include <QKeyEvent>

#include "desktop/action.h"
#include "desktop/form.h"
#include "desktop/key_table.h"
#include "desktop/texts.h"
#include "screens/panels/form_actions.h"
#include "screens/panels/hint_line.h"
#include "session/panels/at_end.h"
#include "ui_plan_advice_form.h"

namespace rbt {

namespace {

constexpr int kTakeKey = Qt::Key_F1;
constexpr int kLeaveKey = Qt::Key_Escape;
/// Widths of the columns of `AdviceCaptions`, in half-width characters.
constexpr int kCharacters[] = {4, 15, 4, 9, 7, 47};

}  // namespace

std::vector<int> PlanAdviceForm::Keys() { return {kTakeKey, kLeaveKey}; }

PlanAdviceForm::PlanAdviceForm(PlanChoices choices)
    : ui_(std::make_unique<Ui::PlanAdviceForm>()), presenter_(std::move(choices)) {
  ui_->setupUi(this);
  PrepareForm(*this);
  LayOutGrid();
  BindActions();
  new HintLine(*this, *ui_->lblHelp, AdviceHints());
  ui_->dbgAdvice->setFocus();
  presenter_.Search([this] {
    QMetaObject::invokeMethod(
        this, [this] { Do(&PlanAdvicePresenter::TakeNews); }, Qt::QueuedConnection);
  });
  Show();
}

PlanAdviceForm::~PlanAdviceForm() = default;

void PlanAdviceForm::LayOutGrid() {
  std::vector<GridColumn> columns;
  columns.reserve(AdviceCaptions().size());
  for (const std::string_view caption : AdviceCaptions()) {
    GridColumn column{.caption = std::string(caption)};
    column.characters = kCharacters[columns.size()];
    columns.push_back(std::move(column));
  }
  columns[0].alignment = Qt::AlignHCenter;
  columns[1].alignment = Qt::AlignLeft;
  columns.back().alignment = Qt::AlignLeft;
  ui_->dbgAdvice->SetColumns(std::move(columns));
  ui_->dbgAdvice->setSelectionBehavior(QAbstractItemView::SelectRows);
  connect(ui_->dbgAdvice->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this] { ShowCurve(); });
}

void PlanAdviceForm::BindActions() {
  new FormActions(*this,
                  {{"cmdTake", kTakeKey, [this] { Take(); }},
                   {"cmdExit", kLeaveKey, [this] { Do(&PlanAdvicePresenter::TurnBack); }}},
                  KeysAct::where_the_control_can_be_pressed);
  new KeyPreview(*this, [this](const QKeyEvent& press) {
    if (!ui_->dbgAdvice->hasFocus()) return false;
    if (!IsPress(press, Qt::Key_Return) && !IsPress(press, Qt::Key_Enter)) return false;
    if (!IsRepeat(press)) Take();
    return true;
  });
}

void PlanAdviceForm::Take() {
  const QModelIndex at = ui_->dbgAdvice->currentIndex();
  if (!at.isValid()) return;
  Do([&](PlanAdvicePresenter& screen) { screen.Take(static_cast<std::size_t>(at.row())); });
}

void PlanAdviceForm::Do(const std::function<void(PlanAdvicePresenter&)>& intent) {
  RunAction(*this, [&] {
    const AtEnd show([this] { Show(); });
    intent(presenter_);
  });
}

void PlanAdviceForm::Show() {
  const PlanAdviceView view = presenter_.View();
  ui_->dbgAdvice->SetRows(view.rows);
  ui_->lblProgress->setText(Text(view.progress));
  ui_->cmdTake->setEnabled(!view.rows.empty());
  ShowCurve();
  if (view.left) hide();
}

void PlanAdviceForm::ShowCurve() {
  const QModelIndex at = ui_->dbgAdvice->currentIndex();
  ui_->picture->Show(at.isValid() ? presenter_.CurveOf(static_cast<std::size_t>(at.row())) : AdviceCurve());
}

}  // namespace rbt
