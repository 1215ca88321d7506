// SPDX-License-Identifier: MIT
#include "screens/settings/setjs.h"

#include <algorithm>
#include <string>

#include <QCloseEvent>
#include <QTimer>

#include "desktop/action.h"
#include "desktop/form.h"
#include "desktop/key_table.h"
#include "platform/pass_over_faults.h"
#include "platform/system/message.h"
#include "platform/text/cp932.h"
#include "screens/settings/setcolor.h"
#include "screens/settings/setjs_tables.h"
#include "shell/config/settings.h"
#include "ui_setjs.h"

namespace rbt {

namespace {

constexpr std::array<KeyBinding<SETJS>, 1> kKeyTable{{{Qt::Key_Escape, &SETJS::btnExit_Click}}};

/// Ten full-width characters, which the report's title has room for.
constexpr std::size_t kTitleBytes = 20;

std::int32_t OneOrZero(bool on) { return on ? 1 : 0; }

bool CodePageHolds(std::string_view text) {
  return !PassOverFaults([&] { ToCp932(text); });
}

/// What the form may have changed, as it is stored now.
void RereadSettings() {
  LoadGridColours();
  RereadTitleSettings();
  Settings.AlternateRowColours = ReadSetting(kAlternateRowColoursKey);
  Settings.PrintEmptyDiameters = ReadSetting(kPrintEmptyDiametersKey);
  Settings.DateStyle = ReadSetting(kDateStyleKey);
  Settings.ComparisonKind = ReadSetting(kComparisonKindKey);
}

}  // namespace

SETJS::SETJS() : ui_(std::make_unique<Ui::SETJS>()) {
  ui_->setupUi(this);
  PrepareForm(*this);
  ConnectControls();
  PrepareHints();
  Load();
}

SETJS::~SETJS() = default;

std::vector<int> SETJS::Keys() { return KeysOf<SETJS>(kKeyTable); }

void SETJS::ConnectControls() {
  connect(ui_->OptTitleC, &QRadioButton::toggled, ui_->title, &QLineEdit::setEnabled);
  connect(ui_->OptChangeColor_0, &QRadioButton::toggled, ui_->cmdSetColor, &QPushButton::setEnabled);
  ConnectChoices();
  connect(ui_->title, &QLineEdit::textEdited, this, &SETJS::title_Change);
  connect(ui_->title, &QLineEdit::returnPressed, this, [this] { MoveFocusOn(*ui_->title); });
  connect(ui_->cmdSetColor, &QPushButton::clicked, this,
          [this] { RunAction(*this, [this] { cmdSetColor_Click(); }); });
  connect(ui_->btnExit, &QPushButton::clicked, this,
          [this] { RunAction(*this, [this] { btnExit_Click(); }); });
  new KeyPreview(*this, [this](const QKeyEvent& press) { return AnswerKey<SETJS>(*this, kKeyTable, press); });
}

void SETJS::ConnectChoices() {
  for (const SettingOption& option : kSettingOptions) {
    connect((*ui_).*option.button, &QRadioButton::clicked, this, [this, &option] {
      if (Save(option.key, option.value) && option.button == &Ui::SETJS::OptTitleC) OptTitleC_Click();
    });
  }
  connect(ui_->AtsuCheck, &QCheckBox::clicked, this, &SETJS::AtsuCheck_Click);
}

void SETJS::PrepareHints() {
  int widest = 0;
  for (const SettingHint& row : kSettingHints) {
    findChild<QWidget*>(QString::fromUtf8(row.control))->installEventFilter(this);
    widest = std::max(widest, ui_->lblMsg->fontMetrics().size(0, QString::fromUtf8(row.hint)).width());
  }
  ui_->lblMsg->setMinimumWidth(widest);  // the form keeps its width whatever it tells
}

void SETJS::Load() {
  for (const NumberKey& key :
       {kDateStyleKey, kComparisonKindKey, kReportTitleChoiceKey, kWeldedHoopWeldsKey}) {
    ShowStored(key, ReadSetting(key));
  }
  ShowStored(kAlternateRowColoursKey, OneOrZero(Settings.AlternateRowColours == 1));
  ShowStored(kDetailShowsWeightKey, OneOrZero(Settings.DetailShowsWeight == 1));
  ShowStored(kPrintEmptyDiametersKey, OneOrZero(Settings.PrintEmptyDiameters == 1));
  ui_->title->setText(QString::fromStdString(ReadSteelIni(kReportTitleTextKey)));
  (ui_->optNenGou->isChecked() ? ui_->optNenGou : ui_->optAD)->setFocus();
}

void SETJS::ShowStored(const NumberKey& key, std::int32_t value) {
  for (const SettingOption& option : kSettingOptions) {
    if (option.key.key == key.key && option.value == value) ((*ui_).*option.button)->setChecked(true);
  }
  if (key.key == kWeldedHoopWeldsKey.key) ui_->AtsuCheck->setChecked(value == 1);
}

bool SETJS::Save(const NumberKey& key, std::int32_t value) {
  const bool saved = RunAction(*this, [&] { SaveSetting(key, value); });
  if (!saved) RunAction(*this, [&] { ShowStored(key, ReadSetting(key)); });
  return saved;
}

void SETJS::AtsuCheck_Click() { Save(kWeldedHoopWeldsKey, OneOrZero(ui_->AtsuCheck->isChecked())); }

void SETJS::OptTitleC_Click() {
  ui_->title->setFocus();
  // A choice by arrow key puts the focus on the option after its click.
  QTimer::singleShot(0, this, [this] {
    if (ui_->OptTitleC->hasFocus()) ui_->title->setFocus();
  });
}

void SETJS::title_Change() {
  const std::string text = ui_->title->text().toStdString();
  const std::string_view kept = Cp932Prefix(text, kTitleBytes);
  if (kept.size() == text.size()) return;
  const int cursor = ui_->title->cursorPosition();
  ui_->title->setText(QString::fromUtf8(kept));
  ui_->title->setCursorPosition(cursor);
}

void SETJS::cmdSetColor_Click() {
  SETCOLOR form;
  ShowModally(form);
}

/// False, after a message, when the title has a character that the family's files cannot hold.
bool SETJS::WriteTitle() {
  const std::string text = ui_->title->text().toStdString();
  if (!ui_->OptTitleC->isChecked() || text.empty()) return true;
  if (!CodePageHolds(text)) {
    MsgBox("印字タイトルに使えない文字があります", windowTitle().toStdString());
    ui_->title->setFocus();
    return false;
  }
  WriteSteelIni(kReportTitleTextKey, text);
  return true;
}

void SETJS::btnExit_Click() {
  if (!WriteTitle()) return;
  // A stored value that cannot be read is told and the cached one stays: it cannot be mended here.
  RunAction(*this, RereadSettings);
  hide();
}

void SETJS::closeEvent(QCloseEvent* event) {
  event->ignore();
  RunAction(*this, [this] { btnExit_Click(); });
}

bool SETJS::eventFilter(QObject* receiver, QEvent* event) {
  if (event->type() == QEvent::Enter || event->type() == QEvent::FocusIn) ShowHint(receiver);
  if (event->type() == QEvent::Leave) ShowHint(focusWidget());
  return false;
}

void SETJS::ShowHint(const QObject* control) {
  for (const SettingHint& row : kSettingHints) {
    if (control->objectName() == QString::fromUtf8(row.control))
      ui_->lblMsg->setText(QString::fromUtf8(row.hint));
  }
}

}  // namespace rbt
