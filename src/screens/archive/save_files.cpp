// SPDX-License-Identifier: MIT
#include "screens/archive/save_files.h"

#include <algorithm>
#include <array>
#include <utility>

#include <QCheckBox>
#include <QLineEdit>

#include "desktop/action.h"
#include "desktop/form.h"
#include "desktop/texts.h"
#include "screens/panels/boxes.h"
#include "screens/panels/form_actions.h"
#include "session/panels/at_end.h"
#include "ui_save_files.h"

namespace rbt {

struct SaveFiles::Action {
  const char* control;
  int key;
  void (SavePresenter::*intent)();
};

std::vector<SaveFiles::Action> SaveFiles::Actions() {
  return {{"SaveButton", Qt::Key_F1, &SavePresenter::Save},
          {"csvSave", Qt::Key_F2, &SavePresenter::ExportCsv},
          {"QuitButoon", Qt::Key_Escape, &SavePresenter::Leave}};
}

std::vector<int> SaveFiles::Keys() {
  std::vector<int> keys;
  for (const Action& action : Actions()) keys.push_back(action.key);
  return keys;
}

SaveFiles::SaveFiles(TallyResult result, SavedMemos memos, SaveParts parts)
    : presenter_(std::move(result), std::move(memos), std::move(parts)),
      ui_(std::make_unique<Ui::SaveFiles>()) {
  ui_->setupUi(this);
  setWindowTitle(Text(kSaveTitle));
  PrepareForm(*this);
  Fill();
  BindFields();
  BindActions();
  Show();
}

SaveFiles::~SaveFiles() = default;

void SaveFiles::Fill() {
  const std::array<QLineEdit*, 3> boxes{ui_->txtMemo_0, ui_->txtMemo_1, ui_->txtMemo_2};
  const SaveView view = presenter_.View();
  ui_->lblKind->setText(Text(view.kind));
  ui_->List1->Show(view.names);
  for (std::size_t i = 0; i < boxes.size(); ++i) boxes.at(i)->setText(Text(view.memos.at(i)));
  ui_->SaveMemoChk->setChecked(view.keeps_memos);
  ui_->SaveMemoChk->setVisible(view.offers_memos);
  ui_->SaveNameText->setText(Text(view.name));
  FocusText(*ui_->SaveNameText);
}

void SaveFiles::BindFields() {
  connect(ui_->SaveNameText, &QLineEdit::textEdited, this, [this](const QString& text) {
    RunAction(*this, [this, name = text.toStdString()] {
      if (!presenter_.TakesName(name)) TakeBack(*ui_->SaveNameText, presenter_.Name());
      presenter_.TypeName(name);
    });
  });
  ui_->List1->OnSelection([this](const std::vector<std::size_t>& entries) {
    presenter_.Select(entries.empty() ? std::nullopt : std::optional(entries.front()));
  });
  const std::array<QLineEdit*, 3> boxes{ui_->txtMemo_0, ui_->txtMemo_1, ui_->txtMemo_2};
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    connect(boxes.at(i), &QLineEdit::textChanged, this,
            [this, i](const QString& text) { presenter_.TypeMemo(i, text.toStdString()); });
  }
  connect(ui_->SaveMemoChk, &QCheckBox::toggled, this, [this](bool ticked) { presenter_.KeepMemos(ticked); });
}

void SaveFiles::BindActions() {
  std::vector<FormAction> actions;
  for (const Action& action : Actions()) {
    actions.push_back({action.control, action.key, [this, intent = action.intent] { Do(intent); }});
  }
  new FormActions(*this, std::move(actions), KeysAct::where_the_control_can_be_pressed);
}

void SaveFiles::Do(const std::function<void(SavePresenter&)>& intent) {
  const AtEnd show([this] { Show(); });
  intent(presenter_);
}

void SaveFiles::Show() {
  const SaveView view = presenter_.View();
  ShowText(*ui_->SaveNameText, view.name);
  if (view.focus_on_name) FocusText(*ui_->SaveNameText);
  if (view.left) close();
}

void TakeBack(QLineEdit& box, std::string_view before) {
  const QString text = Text(before);
  const qsizetype cursor = box.cursorPosition() - (box.text().size() - text.size());
  box.setText(text);
  box.setCursorPosition(static_cast<int>(std::clamp<qsizetype>(cursor, 0, text.size())));
}

}  // namespace rbt
