// SPDX-License-Identifier: MIT
#include "screens/archive/frm_back_up.h"

#include <utility>

#include <QApplication>
#include <QSignalBlocker>

#include "desktop/action.h"
#include "desktop/file_choice.h"
#include "desktop/form.h"
#include "desktop/texts.h"
#include "screens/panels/boxes.h"
#include "screens/panels/form_actions.h"
#include "session/panels/at_end.h"
#include "ui_frm_back_up.h"

namespace rbt {

struct FrmBackUp::Action {
  const char* control;
  int key;
  void (BackUpPresenter::*intent)();
};

std::vector<FrmBackUp::Action> FrmBackUp::Actions() {
  return {{"btnDir", 0, &BackUpPresenter::ChooseFolder},
          {"btnSave", 0, &BackUpPresenter::Save},
          {"saveDeskTop", 0, &BackUpPresenter::SaveOnDesktop},
          {"saveMyDoc", 0, &BackUpPresenter::SaveInDocuments},
          {"btnEsc", Qt::Key_Escape, &BackUpPresenter::Leave}};
}

std::vector<int> FrmBackUp::Keys() {
  std::vector<int> keys;
  for (const Action& action : Actions()) {
    if (action.key != 0) keys.push_back(action.key);
  }
  return keys;
}

FrmBackUp::FrmBackUp(CsvSubject subject, BackUpParts parts)
    : presenter_(std::move(subject), std::move(parts)), ui_(std::make_unique<Ui::FrmBackUp>()) {
  ui_->setupUi(this);
  setWindowTitle(Text(kBackUpTitle));
  PrepareForm(*this);
  for (const std::string& drive : presenter_.View().drives) ui_->Drive1->addItem(Text(drive));
  BindDrives();
  BindActions();
  Show();
  ui_->btnSave->setFocus();
}

FrmBackUp::~FrmBackUp() = default;

void FrmBackUp::BindDrives() {
  connect(ui_->Drive1, &QComboBox::activated, this, [this](int entry) {
    RunAction(*this, [this, entry] {
      Do([entry](BackUpPresenter& presenter) { presenter.SelectDrive(static_cast<std::size_t>(entry)); });
    });
  });
}

void FrmBackUp::BindActions() {
  std::vector<FormAction> actions;
  for (const Action& action : Actions()) {
    actions.push_back({action.control, action.key, [this, intent = action.intent] { Do(intent); }});
  }
  new FormActions(*this, std::move(actions), KeysAct::where_the_control_can_be_pressed);
}

void FrmBackUp::Do(const std::function<void(BackUpPresenter&)>& intent) {
  const AtEnd show([this] { Show(); });
  intent(presenter_);
}

void FrmBackUp::Show() {
  const BackUpView view = presenter_.View();
  const QSignalBlocker silent(ui_->Drive1);
  ui_->Drive1->setCurrentIndex(view.drive ? static_cast<int>(*view.drive) : -1);
  ShowText(*ui_->Dir1, view.folder);
  if (view.left) close();
}

std::optional<std::filesystem::path> AskBackUpFolder(const std::filesystem::path& from) {
  FileChoice dialog(QApplication::activeWindow(), QStringLiteral("バックアップ先のフォルダ"));
  dialog.setObjectName("cdgFolder");
  dialog.setAcceptMode(QFileDialog::AcceptOpen);
  dialog.setFileMode(QFileDialog::Directory);
  dialog.setOption(QFileDialog::ShowDirsOnly);
  dialog.setDirectory(QString::fromStdString(from.string()));
  return dialog.Ask(QStringLiteral("選択"));
}

}  // namespace rbt
