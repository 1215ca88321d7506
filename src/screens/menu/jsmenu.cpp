// SPDX-License-Identifier: MIT
#include "screens/menu/jsmenu.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <string>

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPushButton>
#include <QTimer>

#include "desktop/action.h"
#include "desktop/form.h"
#include "desktop/key_table.h"
#include "desktop/message_box.h"
#include "platform/fault.h"
#include "platform/profile/ini_file.h"
#include "platform/system/message.h"
#include "platform/system/paths.h"
#include "platform/system/process.h"
#include "session/menu/captions.h"
#include "session/menu/siblings.h"
#include "shell/config/settings.h"
#include "shell/context/run_state.h"
#include "tally/selection.h"
#include "ui_jsmenu.h"

namespace rbt {

namespace {

struct MenuAction {
  QPushButton* Ui::JSMENU::*button;
  KeyBinding<JSMENU> binding;
};

constexpr int kNoKey = 0;

constexpr std::array<MenuAction, 18> kActions{{
    {&Ui::JSMENU::cmdShuukei, {Qt::Key_F1, &JSMENU::cmdShuukei_Click}},
    {&Ui::JSMENU::cmdAllSites, {Qt::Key_F2, &JSMENU::cmdAllSites_Click}},
    {&Ui::JSMENU::cmdPGShuukei, {Qt::Key_F3, &JSMENU::cmdPGShuukei_Click}},
    {&Ui::JSMENU::cmdWeldCount, {Qt::Key_F4, &JSMENU::cmdWeldCount_Click}},
    {&Ui::JSMENU::cmdKeijoShuukei, {Qt::Key_F5, &JSMENU::cmdKeijoShuukei_Click}},
    {&Ui::JSMENU::cmdPlateCount, {Qt::Key_F6, &JSMENU::cmdPlateCount_Click}},
    {&Ui::JSMENU::cmdKeijoPGShuukeia, {Qt::Key_F7, &JSMENU::cmdKeijoPGShuukeia_Click}},
    {&Ui::JSMENU::cmdKaiShuukei, {Qt::Key_F8, &JSMENU::cmdKaiShuukei_Click}},
    {&Ui::JSMENU::cmdBuiShuukei, {Qt::Key_F9, &JSMENU::cmdBuiShuukei_Click}},
    {&Ui::JSMENU::cmdKaiBuiK, {Qt::Key_F10, &JSMENU::cmdKaiBuiK_Click}},
    {&Ui::JSMENU::cmdSiteSum, {Qt::Key_F11, &JSMENU::cmdSiteSum_Click}},
    {&Ui::JSMENU::cmdTouroS, {Qt::Key_F12, &JSMENU::cmdTouroS_Click}},
    {&Ui::JSMENU::cmdCouplerCount, {Qt::Key_0, &JSMENU::cmdCouplerCount_Click}},
    {&Ui::JSMENU::cmdCutCount, {Qt::Key_1, &JSMENU::cmdCutCount_Click}},
    {&Ui::JSMENU::cmdMeiEfu, {Qt::Key_2, &JSMENU::cmdMeiEfu_Click}},
    {&Ui::JSMENU::cmdPlateSheet, {Qt::Key_3, &JSMENU::cmdPlateSheet_Click}},
    {&Ui::JSMENU::Command1, {kNoKey, &JSMENU::Command1_Click}},
    {&Ui::JSMENU::cmdExit, {Qt::Key_Escape, &JSMENU::cmdExit_Click}},
}};

const std::vector<KeyBinding<JSMENU>>& KeyTable() {
  static const std::vector<KeyBinding<JSMENU>> table = [] {
    std::vector<KeyBinding<JSMENU>> bindings;
    for (const MenuAction& action : kActions) {
      if (action.binding.key != kNoKey) bindings.push_back(action.binding);
    }
    return bindings;
  }();
  return table;
}

void WriteHandOver(std::string_view key, std::string_view value) {
  WriteProfileText(MapPath(kNextPrgIni), kHandOverSection, key, value);
}

QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

/// The menu out of sight; it is shown again whatever ends the action, unless a screen takes its place.
class JSMENU::Hidden {
 public:
  explicit Hidden(JSMENU& menu) : menu_(menu) {
    menu_.hide();
    RunPendingEvents();
  }
  Hidden(const Hidden&) = delete;
  Hidden& operator=(const Hidden&) = delete;
  ~Hidden() {
    if (!given_over_) menu_.ShowAgain();
  }
  void GiveOver() { given_over_ = true; }

 private:
  JSMENU& menu_;
  bool given_over_ = false;
};

MenuParts MenuPartsFor(const StartOptions& options) {
  return {
      .load = [options] { return LoadSite(options); },
      .activate = [options] { return ActivateMenu(options); },
      .write_accumulated =
          [] { throw Fault(FaultKind::file, "\\RBK\\DATA\\hozon.MDB: no accumulation can be written yet"); },
      .screens = MenuScreens(),
      .end_program = [](int status) { QApplication::exit(status); }};
}

JSMENU::JSMENU(MenuParts parts) : ui_(std::make_unique<Ui::JSMENU>()), parts_(std::move(parts)) {
  ui_->setupUi(this);
  PrepareForm(*this);
  for (const MenuAction& action : kActions) {
    connect((*ui_).*action.button, &QPushButton::clicked, this,
            [this, handler = action.binding.handler] { RunAction(*this, [&] { (this->*handler)(); }); });
  }
  new KeyPreview(*this,
                 [this](const QKeyEvent& press) { return AnswerKey<JSMENU>(*this, KeyTable(), press); });
}

JSMENU::~JSMENU() {
  for (const QPointer<QWidget>& form : open_screens_) {
    if (form.isNull()) continue;
    form->disconnect(this);
    delete form.data();
  }
}

std::vector<int> JSMENU::Keys() { return KeysOf<JSMENU>(KeyTable()); }

void JSMENU::Open() {
  const bool loaded = RunAction(*this, [this] {
    const LoadResult result = parts_.load();
    if (result.hand_over_to) {
      RunAndWait(*result.hand_over_to, WindowStyle::normal);
      EndProgram(EXIT_SUCCESS);
      return;
    }
    ui_->cmdPlateSheet->setVisible(result.shows_plate_sheet);
    ui_->LabelCD->setText(Text(RunState.RunDate));
    ui_->LabelCT->setText(Text(RunState.RunTime));
  });
  if (!loaded) EndProgram(EXIT_FAILURE);
  if (ended_) return;
  Center_Form(*this);
  Form_Activate();
  if (ended_) return;
  show();
  activateWindow();
}

void JSMENU::Form_Activate() {
  if (ended_) return;
  focus_served_ = true;
  const bool activated = RunAction(*this, [this] {
    if (Selection.StartMode.PassesOn()) showMinimized();
    const MenuState state = parts_.activate();
    ShowState(state);
    if (state.pass_on_to) PassOn(*state.pass_on_to);
  });
  if (!activated) EndProgram(EXIT_FAILURE);
}

void JSMENU::PassOn(const std::string& command_line) {
  const bool there = RequireSibling(command_line);
  if (there) RunSibling({"\\rbk", command_line, WindowStyle::maximised, true, false});
  EndProgram(there ? EXIT_SUCCESS : EXIT_FAILURE);
}

void JSMENU::ShowState(const MenuState& state) {
  for (const std::string_view control : MenuControls()) {
    findChild<QWidget*>(Text(control))->setVisible(state.Shows(control));
  }
  if (state.status_text) ui_->JSMENUMS->setText(Text(*state.status_text));
  FocusFirstButton();
}

void JSMENU::FocusFirstButton() {
  const QWidget* focused = focusWidget();
  if (focused != nullptr && focused->isVisibleTo(this)) return;
  QWidget* next = ui_->cmdShuukei;
  while (next != nullptr && !next->isVisibleTo(this)) next = next->nextInFocusChain();
  if (next != nullptr) next->setFocus();
}

void JSMENU::cmdShuukei_Click() { OpenTally(TallyKind::bulk, "JS"); }
void JSMENU::cmdKeijoShuukei_Click() { OpenTally(TallyKind::shape, "KEIJOJS"); }
void JSMENU::cmdPGShuukei_Click() { OpenTally(TallyKind::page, "PGJS"); }
void JSMENU::cmdKeijoPGShuukeia_Click() { OpenTally(TallyKind::page_shape, "PKEIJOJS"); }
void JSMENU::cmdKaiShuukei_Click() { OpenTally(TallyKind::floor, "KAIJS"); }
void JSMENU::cmdBuiShuukei_Click() { OpenTally(TallyKind::part, "BUIJS"); }

void JSMENU::cmdAllSites_Click() { CallSibling(kAllSites); }
void JSMENU::cmdSiteSum_Click() { CallSibling(kSiteSum); }
void JSMENU::cmdKaiBuiK_Click() { CallSibling(kLedger); }
void JSMENU::cmdWeldCount_Click() { CallSibling(kWeldCounter); }
void JSMENU::cmdPlateCount_Click() { CallSibling(kPlateCounter); }
void JSMENU::cmdCouplerCount_Click() { CallSibling(kCouplerCounter); }
void JSMENU::cmdCutCount_Click() { CallSibling(kCutCounter); }
void JSMENU::cmdPlateSheet_Click() { CallSibling(kPlateSheet); }

void JSMENU::cmdTouroS_Click() {
  const Sibling companion = NameCompanion(Selection.StartMode);
  ChangeFamilyDirectory(companion.directory);
  WriteHandOver(kMaterialDetailKey, "1");
  CallSibling(companion);
}

void JSMENU::cmdMeiEfu_Click() {
  WriteHandOver(kCallingProgramKey, "\\rbk\\rbtally1.exe");
  CallSibling(kStockFit);
}

void JSMENU::Command1_Click() {
  const MenuScreen* screen = ReadyScreen("SETJS");
  if (screen == nullptr) return;
  const std::unique_ptr<QWidget> form = screen->make();
  ShowModally(*form);
}

void JSMENU::cmdExit_Click() {
  Hidden hidden(*this);
  if (RunState.AccumulateFlag == 1) parts_.write_accumulated();
  hidden.GiveOver();
  EndProgram(EXIT_SUCCESS);
}

void JSMENU::OpenTally(TallyKind tally_kind, std::string_view form) {
  Selection.TallyKind = tally_kind;
  // Without its form the menu stays in sight; the hand-over is the same.
  if (const MenuScreen* screen = ReadyScreen(form)) OpenScreen(*screen, tally_kind != TallyKind::bulk);
  WriteHandOver(kMaterialDetailKey, "0");
}

const MenuScreen* JSMENU::ReadyScreen(std::string_view form) const {
  const auto screen = std::find_if(parts_.screens.begin(), parts_.screens.end(),
                                   [form](const MenuScreen& row) { return row.form == form; });
  if (screen == parts_.screens.end()) return nullptr;
  if (screen->make != nullptr) return &*screen;
  MsgBox("「" + std::string(screen->caption) + "」の画面は、まだご利用いただけません。", kMenuTitle);
  return nullptr;
}

void JSMENU::OpenScreen(const MenuScreen& screen, bool hides_menu) {
  std::erase_if(open_screens_, [](const QPointer<QWidget>& form) { return form.isNull(); });
  for (const QPointer<QWidget>& form : open_screens_) {
    if (form->objectName() != Text(screen.form)) continue;
    form->raise();
    form->activateWindow();
    return;
  }
  std::unique_ptr<Hidden> hidden;
  if (hides_menu) hidden = std::make_unique<Hidden>(*this);
  QWidget* form = screen.make().release();
  form->setAttribute(Qt::WA_DeleteOnClose);
  form->setObjectName(Text(screen.form));
  connect(form, &QObject::destroyed, this, &JSMENU::ShowAgain);
  open_screens_.emplace_back(form);
  Center_Form(*form);
  form->show();
  form->activateWindow();
  if (hidden) hidden->GiveOver();
}

void JSMENU::CallSibling(const Sibling& sibling) {
  if (!RequireSibling(sibling.command_line)) return;
  std::unique_ptr<Hidden> hidden;
  if (sibling.hides_menu) hidden = std::make_unique<Hidden>(*this);
  RunSibling(sibling);
  RequestActivation();
}

void JSMENU::ShowAgain() {
  if (ended_) return;
  show();
  raise();
  activateWindow();
  // Without a window manager the loss of the focus by hiding may be told only now; it is asked for again.
  constexpr std::chrono::milliseconds kFocusSettled{300};
  QTimer::singleShot(kFocusSettled, this, [this] {
    if (isVisible() && QApplication::activeWindow() == nullptr) activateWindow();
  });
  RequestActivation();
}

bool JSMENU::event(QEvent* event) {
  // A message box takes the focus only for a while; everything else that takes it ends the turn.
  if (event->type() == QEvent::WindowDeactivate && !MessageBoxOpen()) focus_served_ = false;
  if (event->type() == QEvent::WindowActivate && !focus_served_) RequestActivation();
  return QWidget::event(event);
}

void JSMENU::RequestActivation() {
  if (activation_due_) return;
  activation_due_ = true;
  QTimer::singleShot(0, this, &JSMENU::ServeActivation);
}

void JSMENU::ServeActivation() {
  constexpr std::chrono::milliseconds kLater{20};
  if (ActionRunning()) {
    QTimer::singleShot(kLater, this, &JSMENU::ServeActivation);
    return;
  }
  activation_due_ = false;
  if (!isVisible()) return;
  Form_Activate();
}

void JSMENU::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (!ended_) RunAction(*this, [this] { cmdExit_Click(); });
}

void JSMENU::EndProgram(int status) {
  ended_ = true;
  hide();
  parts_.end_program(status);
}

}  // namespace rbt
