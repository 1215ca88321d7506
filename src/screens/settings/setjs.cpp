// SPDX-License-Identifier: MIT
#include "screens/settings/setjs.h"

#include <algorithm>

#include <QCloseEvent>
#include <QTimer>

#include "desktop/action.h"
#include "desktop/form.h"
#include "desktop/texts.h"
#include "screens/panels/form_actions.h"
#include "screens/settings/setcolor.h"
#include "ui_setjs.h"

namespace rbt {

namespace {

constexpr int kLeaveKey = Qt::Key_Escape;

}  // namespace

SETJS::SETJS() : ui_(std::make_unique<Ui::SETJS>()) {
  ui_->setupUi(this);
  PrepareForm(*this);
  ConnectControls();
  PrepareHints();
  Show();
  ui_->title->setText(Text(presenter_.View().title));
  findChild<QRadioButton*>(Text(presenter_.FirstOption()))->setFocus();
}

SETJS::~SETJS() = default;

std::vector<int> SETJS::Keys() { return {kLeaveKey}; }

void SETJS::ConnectControls() {
  ConnectChoices();
  connect(ui_->title, &QLineEdit::textEdited, this, &SETJS::CutTitle);
  connect(ui_->title, &QLineEdit::returnPressed, this, [this] { MoveFocusOn(*ui_->title); });
  new FormActions(
      *this, {{"cmdSetColor", 0, [this] { OpenColours(); }}, {"btnExit", kLeaveKey, [this] { Leave(); }}},
      KeysAct::always);
}

void SETJS::ConnectChoices() {
  for (const SettingOption& option : SettingOptions()) {
    auto* button = findChild<QRadioButton*>(Text(option.control));
    connect(button, &QRadioButton::clicked, this, [this, button, control = option.control] {
      const bool chosen = Choose([&] { presenter_.Choose(control); }, [&] { presenter_.TakeBack(control); });
      if (chosen && button == ui_->OptTitleC) LeadToTheTitle();
    });
  }
  connect(ui_->AtsuCheck, &QCheckBox::clicked, this, [this](bool ticked) {
    Choose([&] { presenter_.CountHoopWelds(ticked); }, [this] { presenter_.TakeBackHoopWelds(); });
  });
}

bool SETJS::Choose(const std::function<void()>& choose, const std::function<void()>& take_back) {
  const bool saved = RunAction(*this, choose);
  if (!saved && RunAction(*this, take_back)) Show();
  return saved;
}

void SETJS::Show() {
  const SettingsView view = presenter_.View();
  for (const std::string_view option : view.chosen) findChild<QRadioButton*>(Text(option))->setChecked(true);
  ui_->AtsuCheck->setChecked(view.counts_hoop_welds);
}

void SETJS::LeadToTheTitle() {
  ui_->title->setFocus();
  // A choice by arrow key puts the focus on the option after its click.
  QTimer::singleShot(0, this, [this] {
    if (ui_->OptTitleC->hasFocus()) ui_->title->setFocus();
  });
}

void SETJS::CutTitle() {
  const std::string text = ui_->title->text().toStdString();
  const std::string_view kept = SettingsPresenter::KeptTitle(text);
  if (kept.size() == text.size()) return;
  const int cursor = ui_->title->cursorPosition();
  ui_->title->setText(Text(kept));
  ui_->title->setCursorPosition(cursor);
}

void SETJS::OpenColours() {
  SETCOLOR form;
  ShowModally(form);
}

void SETJS::Leave() {
  if (!presenter_.WriteTitle(ui_->title->text().toStdString())) return ui_->title->setFocus();
  // A stored value that cannot be read is told and the cached one stays: it cannot be mended here.
  RunAction(*this, SettingsPresenter::Reread);
  hide();
}

void SETJS::closeEvent(QCloseEvent* event) {
  event->ignore();
  RunAction(*this, [this] { Leave(); });
}

void SETJS::PrepareHints() {
  int widest = 0;
  for (const SettingHint& row : SettingHints()) {
    auto* control = findChild<QWidget*>(Text(row.control));
    control->setToolTip(Text(row.hint));
    control->installEventFilter(this);
    widest = std::max(widest, ui_->lblMsg->fontMetrics().size(0, Text(row.hint)).width());
  }
  ui_->lblMsg->setMinimumWidth(widest);  // the form keeps its width whatever it tells
}

bool SETJS::eventFilter(QObject* receiver, QEvent* event) {
  if (event->type() == QEvent::Enter || event->type() == QEvent::FocusIn) ShowHint(receiver);
  if (event->type() == QEvent::Leave) ShowHint(focusWidget());
  return false;
}

void SETJS::ShowHint(const QObject* control) {
  for (const SettingHint& row : SettingHints()) {
    if (control->objectName() == Text(row.control)) ui_->lblMsg->setText(Text(row.hint));
  }
}

}  // namespace rbt
