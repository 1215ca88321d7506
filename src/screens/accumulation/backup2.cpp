// SPDX-License-Identifier: MIT
#include "screens/accumulation/backup2.h"

#include <string>

#include "desktop/form.h"
#include "desktop/texts.h"
#include "screens/panels/boxes.h"
#include "screens/panels/form_actions.h"
#include "session/panels/at_end.h"
#include "ui_backup2.h"

namespace rbt {

namespace {

QString DigitsAndBlanks(const QString& text) {
  QString kept;
  for (const QChar character : text) {
    if (character.digitValue() >= 0) kept += QChar('0' + character.digitValue());
    if (character.isSpace()) kept += QChar(' ');
  }
  return kept;
}

}  // namespace

struct BACKUP2::Action {
  const char* control;
  int key;
  void (SiteChoicePresenter::*intent)();
};

std::vector<BACKUP2::Action> BACKUP2::Actions() {
  return {{"cmdBackUp", Qt::Key_F1, &SiteChoicePresenter::Execute},
          {"cmdExit", Qt::Key_Escape, &SiteChoicePresenter::Leave}};
}

std::vector<int> BACKUP2::Keys() {
  std::vector<int> keys;
  for (const Action& action : Actions()) keys.push_back(action.key);
  return keys;
}

BACKUP2::BACKUP2() : ui_(std::make_unique<Ui::BACKUP2>()) {
  ui_->setupUi(this);
  setWindowTitle(Text(kSiteChoiceTitle));
  PrepareForm(*this);
  BindFields();
  BindActions();
  Show();
}

BACKUP2::~BACKUP2() = default;

void BACKUP2::BindFields() {
  ui_->dbgKoj->OnRow(
      [this](std::size_t row) { Do([row](SiteChoicePresenter& dialog) { dialog.GoTo(row); }); });
  connect(ui_->txtKojNo, &QLineEdit::textEdited, this, [this](const QString& text) {
    Do([number = DigitsAndBlanks(text).toStdString()](SiteChoicePresenter& dialog) {
      dialog.TypeNumber(number);
    });
  });
}

void BACKUP2::BindActions() {
  std::vector<FormAction> actions;
  for (const Action& action : Actions()) {
    actions.push_back({action.control, action.key, [this, intent = action.intent] { Do(intent); }});
  }
  new FormActions(*this, std::move(actions), KeysAct::where_the_control_can_be_pressed);
}

void BACKUP2::Do(const std::function<void(SiteChoicePresenter&)>& intent) {
  const AtEnd show([this] { Show(); });
  intent(presenter_);
}

void BACKUP2::Show() {
  const SiteChoiceView view = presenter_.View();
  ui_->dbgKoj->Show(view);
  ShowText(*ui_->txtKojNo, view.number);
  if (view.focus == SiteChoiceFocus::sites) ui_->dbgKoj->setFocus();
  if (view.focus == SiteChoiceFocus::number) FocusText(*ui_->txtKojNo);
  if (view.left) close();
}

}  // namespace rbt
