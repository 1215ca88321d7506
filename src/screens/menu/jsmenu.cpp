// SPDX-License-Identifier: MIT
#include "screens/menu/jsmenu.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <utility>

#include <QApplication>
#include <QCloseEvent>
#include <QKeySequence>
#include <QTimer>

#include "desktop/action.h"
#include "desktop/form.h"
#include "desktop/form_place.h"
#include "desktop/message_box.h"
#include "desktop/texts.h"
#include "screens/panels/busy_notice.h"
#include "screens/panels/form_actions.h"
#include "screens/panels/hint_line.h"
#include "session/menu/menu_entries.h"
#include "ui_jsmenu.h"

namespace rbt {

namespace {

/// Of the Qt::Key enumeration; 0 for an entry without one.
int KeyOf(const MenuEntry& entry) {
  if (entry.key.empty()) return 0;
  return QKeySequence::fromString(Text(entry.key), QKeySequence::PortableText)[0].key();
}

}  // namespace

JSMENU::JSMENU(MenuParts parts, std::span<const MenuScreen> screens)
    : ui_(std::make_unique<Ui::JSMENU>()), presenter_(std::move(parts), *this), screens_(screens) {
  ui_->setupUi(this);
  PrepareForm(*this);
  std::vector<FormAction> actions;
  actions.reserve(MenuEntries().size());
  for (const MenuEntry& entry : MenuEntries()) {
    actions.push_back(
        {std::string(entry.control), KeyOf(entry), [this, &entry] { presenter_.Start(entry.control); }});
  }
  new FormActions(*this, std::move(actions), KeysAct::always);
  std::vector<ControlHint> hints;
  for (const MenuEntry& entry : MenuEntries()) hints.push_back({entry.control, entry.hint});
  new HintLine(*this, *ui_->lblHelp, hints);
}

JSMENU::~JSMENU() {
  if (!HasOpenForm()) return;
  open_form_->disconnect(this);
  delete open_form_.data();
}

std::vector<int> JSMENU::Keys() {
  std::vector<int> keys;
  for (const MenuEntry& entry : MenuEntries()) {
    if (const int key = KeyOf(entry); key != 0) keys.push_back(key);
  }
  return keys;
}

void JSMENU::Open() {
  start_notice_ = std::make_unique<StartNotice>();
  if (!RunAction(*this, [this] { presenter_.Load(); })) presenter_.End(EXIT_FAILURE);
  if (presenter_.HasEnded()) return;
  Activate();
  if (presenter_.HasEnded()) return;
  PlaceForm(*this);
  show();
  activateWindow();
}

void JSMENU::Activate() {
  if (presenter_.HasEnded()) return;
  focus_served_ = true;
  if (!RunAction(*this, [this] { presenter_.Activate(); })) presenter_.End(EXIT_FAILURE);
}

void JSMENU::ShowLoad(const MenuLoadView& view) {
  ui_->cmdPlateSheet->setVisible(view.shows_plate_sheet);
  ui_->LabelCD->setText(Text(view.date));
  ui_->LabelCT->setText(Text(view.time));
}

void JSMENU::Hide() {
  start_notice_.reset();
  hide();
}

void JSMENU::ShowState(const MenuState& state) {
  start_notice_.reset();
  for (const std::string_view control : MenuControls()) {
    findChild<QWidget*>(Text(control))->setVisible(state.Shows(control));
  }
  ui_->lblSite->setText(Text(state.site));
  if (state.status_text) ui_->JSMENUMS->setText(Text(*state.status_text));
  FocusFirstButton();
}

void JSMENU::FocusFirstButton() {
  const auto live = [this](const QWidget& control) {
    return (control.focusPolicy() & Qt::TabFocus) && control.isVisibleTo(this) && control.isEnabledTo(this);
  };
  const QWidget* focused = focusWidget();
  if (focused != nullptr && live(*focused)) return;
  QWidget* next = ui_->cmdShuukei;
  // Frames and labels stand in the chain too; the exit is always live.
  while (!live(*next)) next = next->nextInFocusChain();
  next->setFocus();
}

const MenuScreen* JSMENU::FindScreen(std::string_view form) const {
  const auto screen = std::find_if(screens_.begin(), screens_.end(),
                                   [form](const MenuScreen& row) { return row.form == form; });
  return screen == screens_.end() ? nullptr : &*screen;
}

bool JSMENU::RaiseOpenForm() {
  if (!HasOpenForm()) return false;
  if (open_form_->isMinimized()) open_form_->showNormal();
  open_form_->raise();
  open_form_->activateWindow();
  return true;
}

void JSMENU::OpenForm(std::string_view form) {
  QWidget* opened = FindScreen(form)->make().release();
  opened->setAttribute(Qt::WA_DeleteOnClose);
  opened->setObjectName(Text(form));
  connect(opened, &QObject::destroyed, this, &JSMENU::ShowAgain);
  open_form_ = opened;
  PlaceForm(*opened);
  opened->show();
  opened->activateWindow();
}

void JSMENU::ShowFormModally(std::string_view form) {
  start_notice_.reset();
  const std::unique_ptr<QWidget> shown = FindScreen(form)->make();
  ShowModally(*shown);
}

void JSMENU::ShowAgain() {
  if (presenter_.HasEnded()) return;
  show();
  raise();
  activateWindow();
  // Without a window manager the loss of the focus by hiding may be told only now; it is asked for again.
  constexpr std::chrono::milliseconds kFocusSettled{300};
  QTimer::singleShot(kFocusSettled, this, [this] {
    if (isVisible() && QApplication::activeWindow() == nullptr) activateWindow();
  });
  AskForActivation();
}

bool JSMENU::event(QEvent* event) {
  // A message box takes the focus only for a while; everything else that takes it ends the turn.
  if (event->type() == QEvent::WindowDeactivate && !MessageBoxOpen()) focus_served_ = false;
  if (event->type() == QEvent::WindowActivate && !focus_served_) AskForActivation();
  return QWidget::event(event);
}

void JSMENU::AskForActivation() {
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
  Activate();
}

void JSMENU::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (!presenter_.HasEnded()) RunAction(*this, [this] { presenter_.Start("cmdExit"); });
}

void JSMENU::mousePressEvent(QMouseEvent* event) {
  QWidget::mousePressEvent(event);
  presenter_.LeadBack();
}

}  // namespace rbt
