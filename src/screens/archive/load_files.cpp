// SPDX-License-Identifier: MIT
#include "screens/archive/load_files.h"

#include <utility>

#include "desktop/action.h"
#include "desktop/form.h"
#include "desktop/texts.h"
#include "screens/archive/save_files.h"
#include "screens/panels/boxes.h"
#include "screens/panels/form_actions.h"
#include "session/panels/at_end.h"
#include "ui_load_files.h"

namespace rbt {

struct LoadFiles::Action {
  const char* control;
  int key;
  void (LoadPresenter::*intent)();
};

std::vector<LoadFiles::Action> LoadFiles::Actions() {
  return {{"LoadButton", Qt::Key_F1, &LoadPresenter::Load},
          {"DelButton", Qt::Key_F2, &LoadPresenter::Delete},
          {"RenameButton", Qt::Key_F3, &LoadPresenter::Rename},
          {"ExitButton", Qt::Key_Escape, &LoadPresenter::Leave}};
}

std::vector<int> LoadFiles::Keys() {
  std::vector<int> keys;
  for (const Action& action : Actions()) keys.push_back(action.key);
  return keys;
}

LoadFiles::LoadFiles(TallyKind kind) : presenter_(kind), ui_(std::make_unique<Ui::LoadFiles>()) {
  ui_->setupUi(this);
  setWindowTitle(Text(kLoadTitle));
  // The dialog keeps its size while the name is out of sight.
  QSizePolicy room = ui_->FileNameText->sizePolicy();
  room.setRetainSizeWhenHidden(true);
  ui_->FileNameText->setSizePolicy(room);
  PrepareForm(*this);
  BindFields();
  BindActions();
  Show();
}

LoadFiles::~LoadFiles() = default;

void LoadFiles::BindFields() {
  ui_->List1->OnSelection(
      [this](std::vector<std::size_t> entries) { presenter_.Select(std::move(entries)); });
  connect(ui_->FileNameText, &QLineEdit::textEdited, this, [this](const QString& text) {
    RunAction(*this, [this, name = text.toStdString()] {
      if (!presenter_.TakesNewName(name)) TakeBack(*ui_->FileNameText, presenter_.NewName());
      presenter_.TypeNewName(name);
    });
  });
}

void LoadFiles::BindActions() {
  std::vector<FormAction> actions;
  for (const Action& action : Actions()) {
    actions.push_back({action.control, action.key, [this, intent = action.intent] { Do(intent); }});
  }
  new FormActions(*this, std::move(actions), KeysAct::where_the_control_can_be_pressed);
}

void LoadFiles::Do(const std::function<void(LoadPresenter&)>& intent) {
  const AtEnd show([this] { Show(); });
  intent(presenter_);
}

void LoadFiles::Show() {
  const LoadView view = presenter_.View();
  ui_->List1->Show(view.entries, view.selected, view.notice);
  ui_->List1->setEnabled(!view.naming);
  ui_->LoadButton->setEnabled(!view.naming);
  ui_->DelButton->setEnabled(!view.naming);
  ui_->RenameButton->setText(Text(view.rename_caption));
  ShowText(*ui_->FileNameText, view.new_name);
  ui_->FileNameText->setVisible(view.naming);
  if (view.focus == LoadFocus::list) ui_->List1->setFocus();
  if (view.focus == LoadFocus::new_name) FocusText(*ui_->FileNameText);
  if (view.left) close();
}

}  // namespace rbt
