// SPDX-License-Identifier: MIT
#include "screens/names/touroku.h"

#include <utility>

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLineEdit>

#include "desktop/action.h"
#include "desktop/form.h"
#include "desktop/key_table.h"
#include "desktop/texts.h"
#include "screens/panels/boxes.h"
#include "screens/panels/digit_box.h"
#include "screens/panels/form_actions.h"
#include "session/panels/at_end.h"
#include "ui_touroku.h"

namespace rbt {

namespace {

constexpr int kNumberDigits = 9;
constexpr int kItemDigits = 1;

}  // namespace

struct Touroku::Action {
  const char* control;
  int key;  ///< 0: none
  void (NamesPresenter::*intent)();
};

std::vector<Touroku::Action> Touroku::Actions() {
  return {{"btnA4Y", Qt::Key_F1, &NamesPresenter::Tally},
          {"cmdCsv", Qt::Key_F2, &NamesPresenter::SaveCsv},
          {"btnKeijyo", Qt::Key_F3, &NamesPresenter::TallyShapes},
          {"Command1", 0, &NamesPresenter::Sort},
          {"btnReturn", Qt::Key_Escape, &NamesPresenter::Leave}};
}

std::vector<int> Touroku::Keys() {
  std::vector<int> keys;
  for (const Action& action : Actions()) {
    if (action.key != 0) keys.push_back(action.key);
  }
  return keys;
}

Touroku::Touroku(NamesParts parts) : presenter_(std::move(parts)), ui_(std::make_unique<Ui::Touroku>()) {
  ui_->setupUi(this);
  setWindowTitle(Text(kNamesTitle));
  KeepRoomOf(*ui_->ACTMsg);
  PrepareForm(*this);
  BindFields();
  BindActions();
  presenter_.OnShow([this] { Show(); });
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, const QWidget* now) { Reach(now); });
  Show();
}

Touroku::~Touroku() {
  // The focus moves once more while the controls go.
  disconnect(qApp, nullptr, this, nullptr);
}

void Touroku::BindFields() {
  ui_->tourokumei->OnMark([this](std::size_t row) {
    RunAction(*this, [&] { Do([row](NamesPresenter& presenter) { presenter.Flip(row); }); });
  });
  const auto bind = [this](QLineEdit& box, int digits, void (NamesPresenter::*type)(std::string),
                           void (NamesPresenter::*enter)()) {
    TakeDigitsOnly(box, digits);
    connect(&box, &QLineEdit::textChanged, this,
            [this, type](const QString& text) { (presenter_.*type)(text.toStdString()); });
    connect(&box, &QLineEdit::returnPressed, this,
            [this, enter] { RunAction(*this, [&] { Do(std::mem_fn(enter)); }); });
  };
  bind(*ui_->DelSNo, kNumberDigits, &NamesPresenter::TypeRangeStart, &NamesPresenter::EnterRangeStart);
  bind(*ui_->DelENo, kNumberDigits, &NamesPresenter::TypeRangeEnd, &NamesPresenter::EnterRangeEnd);
  bind(*ui_->TaihiKmkT, kItemDigits, &NamesPresenter::TypeItem, &NamesPresenter::EnterItem);
  ui_->DelENo->installEventFilter(this);
}

void Touroku::BindActions() {
  std::vector<FormAction> actions;
  for (const Action& action : Actions()) {
    actions.push_back(
        {action.control, action.key, [this, intent = action.intent] { Do(std::mem_fn(intent)); }});
  }
  new FormActions(*this, std::move(actions), KeysAct::where_the_control_can_be_pressed);
}

bool Touroku::eventFilter(QObject* receiver, QEvent* event) {
  if (receiver == ui_->DelENo && event->type() == QEvent::KeyPress &&
      IsPress(*static_cast<QKeyEvent*>(event), Qt::Key_Up)) {
    RunAction(*this, [this] { Do(&NamesPresenter::BackToRangeStart); });
    return true;
  }
  return QWidget::eventFilter(receiver, event);
}

void Touroku::Do(const std::function<void(NamesPresenter&)>& intent) {
  const AtEnd show([this] { Show(); });
  intent(presenter_);
}

void Touroku::Show() {
  const NamesView view = presenter_.View();
  if (view.left) {
    close();
    return;
  }
  ui_->lblKojNo->setText(Text(view.head.site_number));
  ui_->lblKojNa->setText(Text(view.head.site_name));
  ui_->lblKykCd->setText(Text(view.head.client_code));
  ui_->lblKykNa->setText(Text(view.head.client_name));
  ui_->tourokumei->Show(view);
  ShowSelected(view.selected);
  ShowText(*ui_->DelSNo, view.range_start);
  ShowText(*ui_->DelENo, view.range_end);
  ShowText(*ui_->TaihiKmkT, view.item);
  ui_->MSGB->setText(Text(view.message));
  ui_->ACTMsg->setVisible(view.busy);
  Focus(view.focus);
}

void Touroku::ShowSelected(const std::vector<std::string>& lines) {
  QStringList texts;
  texts.reserve(static_cast<qsizetype>(lines.size()));
  for (const std::string& line : lines) texts.append(Text(line));
  ui_->List1->clear();
  ui_->List1->addItems(texts);
}

void Touroku::Focus(std::string_view control) {
  if (control.empty()) return;
  auto* target = findChild<QWidget*>(Text(control));
  if (auto* box = qobject_cast<QLineEdit*>(target)) return FocusText(*box);
  target->setFocus();
}

void Touroku::Reach(const QWidget* focused) {
  if (focused == nullptr || focused->window() != this) return;
  presenter_.Reach(focused->objectName().toStdString());
  ui_->MSGB->setText(Text(presenter_.Message()));
}

void Touroku::closeEvent(QCloseEvent* event) {
  RunAction(*this, [this] { presenter_.Leave(); });
  QWidget::closeEvent(event);
  if (left_) left_();
}

}  // namespace rbt
