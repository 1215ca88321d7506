// SPDX-License-Identifier: MIT
#include "screens/detail/detail_form.h"

#include <array>
#include <utility>

#include <QCloseEvent>
#include <QLineEdit>
#include <QPushButton>

#include "desktop/action.h"
#include "desktop/form.h"
#include "desktop/texts.h"
#include "screens/panels/boxes.h"
#include "screens/panels/digit_box.h"
#include "screens/panels/form_actions.h"
#include "screens/panels/hint_line.h"
#include "session/panels/at_end.h"
#include "ui_detail_form.h"

namespace rbt {

namespace {

constexpr int kPercentCharacters = 12;

}  // namespace

struct DetailForm::Action {
  std::string_view control;  ///< empty: the key alone
  int key;                   ///< 0: none
  std::function<void(DetailPresenter&)> intent;
};

std::vector<DetailForm::Action> DetailForm::Actions() {
  std::vector<Action> actions;
  actions.reserve(kDetailButtonCount + 3);
  for (const DetailButtonRow& row : DetailButtons()) {
    actions.push_back({row.control, row.key == 0 ? Qt::Key_Escape : Qt::Key_F1 + row.key - 1,
                       [button = row.button](DetailPresenter& presenter) { presenter.Press(button); }});
  }
  actions.push_back(
      {"chkPreview", Qt::Key_F8, [](DetailPresenter& presenter) { presenter.PrintPanel().TogglePreview(); }});
  actions.push_back(
      {"btnPrinter", Qt::Key_F9, [](DetailPresenter& presenter) { presenter.PrintPanel().ChoosePrinter(); }});
  // Behind the buttons that Esc presses: it ends what has none.
  actions.push_back({"", Qt::Key_Escape, &DetailPresenter::Escape});
  return actions;
}

std::vector<int> DetailForm::Keys() {
  const std::vector<Action> actions = Actions();
  std::vector<int> keys;
  keys.reserve(actions.size());
  for (const Action& action : actions) keys.push_back(action.key);
  return keys;
}

DetailForm::DetailForm(TallyResult result, DetailParts parts)
    : presenter_(std::move(result), std::move(parts)), ui_(std::make_unique<Ui::DetailForm>()) {
  ui_->setupUi(this);
  setWindowTitle(Text(kDetailTitle));
  TakeCaptions();
  PrepareForm(*this);
  BindPanels();
  BindPercent();
  BindGrid();
  ConnectActions();
  ui_->SSPanel4->Float(*ui_->formLayout);
  // Each panel of buttons has a line of its own below the list.
  for (QLabel* line : {ui_->MSGB, ui_->MSGB1}) new HintLine(*this, *line, DetailHints(), kDetailHelp);
  presenter_.OnShow([this] { Show(); });
  Show();
}

DetailForm::~DetailForm() = default;

void DetailForm::TakeCaptions() {
  // The memos of this form stand together; the one in the head that screens share stays out of sight.
  ui_->SSPanel1->findChild<QWidget*>("txtSubKojNa")->setObjectName("txtHeadMemo");
  for (const DetailButtonRow& row : DetailButtons()) {
    auto* button = findChild<QPushButton*>(Text(row.control));
    button->setText(Text(row.caption));
  }
  KeepRoomOf(*ui_->picPercent);
}

void DetailForm::BindPanels() {
  ui_->SSPanel1->Bind(presenter_.PrintPanel());
  ui_->SSPanel3->Bind(presenter_.PrintPanel());
  ui_->fields->Bind(
      [this](const std::function<void(DetailPresenter&)>& intent) { RunAction(*this, [&] { Do(intent); }); });
}

void DetailForm::BindPercent() {
  TakeNumberOnly(*ui_->txtPercent, kPercentCharacters);
  connect(ui_->txtPercent, &QLineEdit::textChanged, this,
          [this](const QString& text) { presenter_.TypePercent(text.toStdString()); });
  connect(ui_->txtPercent, &QLineEdit::returnPressed, this,
          [this] { RunAction(*this, [this] { Do(&DetailPresenter::TakePercent); }); });
}

void DetailForm::BindGrid() {
  DetailGrid& grid = *ui_->dbgZaimei;
  grid.OnBeforeEdit([this](int line, int column) { return presenter_.MayEdit(line, column); });
  // A box that was opened and left as it was is no correction.
  grid.OnBeforeUpdate(
      [&grid](int line, int column, const std::string& text) { return text != grid.Cell(line, column); });
  grid.OnAfterEdit([this, &grid](int line, int column) {
    RunAction(*this, [&] {
      Do([&](DetailPresenter& presenter) { presenter.EditCell(line, column, grid.Cell(line, column)); });
    });
  });
}

void DetailForm::ConnectActions() {
  const std::vector<Action> actions = Actions();
  std::vector<FormAction> form_actions;
  form_actions.reserve(actions.size());
  for (const Action& action : actions) {
    form_actions.push_back(
        {std::string(action.control), action.key, [this, intent = action.intent] { Do(intent); }});
  }
  new FormActions(*this, std::move(form_actions), KeysAct::where_the_control_can_be_pressed);
}

void DetailForm::Do(const std::function<void(DetailPresenter&)>& intent) {
  const AtEnd show([this] { Show(); });
  intent(presenter_);
}

void DetailForm::Show() {
  const DetailView view = presenter_.View();
  if (view.left) {
    close();
    return;
  }
  focus_over_work_.Show(view.busy, [&] { ShowPanels(view); });
  Focus(view.focus);
}

void DetailForm::ShowPanels(const DetailView& view) {
  PrintPanelView head_panel = view.print_panel;
  head_panel.open = view.fields_enabled;
  ui_->SSPanel1->Show(view.head, head_panel);
  ui_->fields->Show(view);
  ui_->lblMaterial->setText(Text(view.material));
  ui_->lblTotalWeight->setText(Text(view.total_weight));
  ui_->lblNotice->setText(Text(view.notice));
  ShowText(*ui_->txtPercent, view.percent);
  ui_->dbgZaimei->Show(view);
  ui_->SSPanel3->Show(view.print_panel);
  for (const DetailButtonRow& row : DetailButtons()) {
    if (row.in_print_panel) continue;
    ui_->SSPanel2->findChild<QPushButton*>(Text(row.control))->setEnabled(view.IsEnabled(row.button));
  }
  const bool printing = view.mode == DetailMode::printing;
  const std::array<std::pair<QWidget*, bool>, 5> panels{{{ui_->picPercent, view.mode == DetailMode::percent},
                                                         {ui_->MSGB, !printing},
                                                         {ui_->SSPanel2, !printing},
                                                         {ui_->MSGB1, printing},
                                                         {ui_->SSPanel3, printing}}};
  SwitchPanels(panels);
  ui_->SSPanel4->ShowOver(ui_->dbgZaimei->geometry(), view.busy);
}

void DetailForm::Focus(std::string_view control) {
  if (control.empty()) return;
  auto* target = findChild<QWidget*>(Text(control));
  if (auto* box = qobject_cast<QLineEdit*>(target)) return FocusText(*box);
  target->setFocus();
}

void DetailForm::closeEvent(QCloseEvent* event) {
  RunAction(*this, [this] { presenter_.Leave(); });
  QWidget::closeEvent(event);
}

}  // namespace rbt
