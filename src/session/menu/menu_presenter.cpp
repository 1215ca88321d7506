// SPDX-License-Identifier: MIT
#include "session/menu/menu_presenter.h"

#include <cstdlib>
#include <optional>

#include <fmt/format.h>

#include "archive/accumulation/hozon.h"
#include "platform/fault.h"
#include "platform/system/message.h"
#include "platform/system/paths.h"
#include "platform/system/process.h"
#include "session/menu/captions.h"
#include "session/panels/at_end.h"
#include "session/panels/fault_words.h"
#include "session/settings/setting_options.h"
#include "shell/config/settings.h"
#include "shell/context/run_state.h"
#include "tally/kinds/tally_kinds.h"
#include "tally/selection.h"
#include "tally/tally_grid.h"

namespace rbt {

namespace {

constexpr std::string_view kSettingsForm = "SETJS";
constexpr std::string_view kSettingsCaption = "年号等集計印刷設定";
constexpr std::string_view kOwnProgram = "\\rbk\\rbtally1.exe";

}  // namespace

/// The menu out of sight; it is shown again whatever ends the action, unless something takes its place.
class MenuPresenter::OutOfSight {
 public:
  explicit OutOfSight(MenuPresenter& menu) : menu_(menu) {
    menu_.window_.Hide();
    RunPendingEvents();
  }
  OutOfSight(const OutOfSight&) = delete;
  OutOfSight& operator=(const OutOfSight&) = delete;
  ~OutOfSight() {
    if (!given_over_) menu_.window_.ShowAgain();
  }
  void GiveOver() { given_over_ = true; }

 private:
  MenuPresenter& menu_;
  bool given_over_ = false;
};

MenuParts MenuPartsFor(const StartOptions& options, std::function<void(int status)> end_program) {
  return {.load = [options] { return LoadSite(options); },
          .activate = [options] { return ActivateMenu(options); },
          .write_accumulated = [] { Save_Hozon(TallyGrid); },
          .end_program = std::move(end_program)};
}

/// A step whose fault ends the program: told so to whoever asks the user to wait. Should the fault lie in a
/// setting that the settings form shows, it can be mended there first.
template <typename Result>
Result MenuPresenter::Vitally(const std::function<Result()>& step) {
  const AtEnd ended([] { RunState.FaultEndsProgram = false; });
  for (;;) {
    try {
      RunState.FaultEndsProgram = true;
      return step();
    } catch (const Fault& fault) {
      RunState.FaultEndsProgram = false;
      if (!MendsSetting(fault)) throw;
    }
  }
}

bool MenuPresenter::MendsSetting(const Fault& fault) {
  if (!IsOfShownSetting(fault) || !window_.HasForm(kSettingsForm)) return false;
  const std::string question = FaultWords(fault) + "\n\n「その他設定」を開いて選び直しますか。";
  if (MsgBox(question, kMenuTitle, MessageButtons::yes_no) != MessageAnswer::yes) return false;
  window_.ShowFormModally(kSettingsForm);
  return true;
}

void MenuPresenter::Load() {
  const LoadResult result = Vitally(parts_.load);
  if (result.hand_over_to) return HandOver(*result.hand_over_to);
  window_.ShowLoad({result.shows_plate_sheet, RunState.RunDate, RunState.RunTime});
}

/// The program that reads a newer site takes this one's place.
void MenuPresenter::HandOver(const std::string& program) {
  window_.Hide();
  RunAndWait(program, WindowStyle::normal);
  End(EXIT_SUCCESS);
}

void MenuPresenter::Activate() {
  if (HasEnded() || window_.HasOpenForm()) return;
  if (Selection.StartMode.PassesOn()) window_.Minimise();
  const MenuState state = Vitally(parts_.activate);
  if (state.hand_over_to) return HandOver(*state.hand_over_to);
  window_.ShowState(state);
  if (state.pass_on_to) PassOn(*state.pass_on_to);
}

void MenuPresenter::PassOn(const std::string& command_line) {
  const bool there = RequireSibling(command_line);
  if (there) RunSibling({"\\rbk", command_line, WindowStyle::maximised, true, false});
  End(there ? EXIT_SUCCESS : EXIT_FAILURE);
}

void MenuPresenter::Start(std::string_view control) {
  if (window_.RaiseOpenForm()) return;
  std::visit([this](const auto& starts) { Begin(starts); }, FindMenuEntry(control).starts);
}

void MenuPresenter::Begin(const OpensTally& tally) {
  Selection.TallyKind = tally.kind;
  // Without its form the menu stays in sight; the hand-over is the same.
  if (RequireForm(tally.form, RowOf(tally.kind).name)) {
    std::optional<OutOfSight> hidden;
    if (tally.kind != TallyKind::bulk) hidden.emplace(*this);
    window_.OpenForm(tally.form);
    if (hidden) hidden->GiveOver();
  }
  if (HandOverMayBeWritten()) WriteHandOver(kMaterialDetailKey, "0");
}

void MenuPresenter::Begin(const RunsSibling& entry) { CallSibling(entry.sibling); }

void MenuPresenter::Begin(const RunsNameCompanion&) {
  const Sibling companion = NameCompanion(Selection.StartMode);
  ChangeFamilyDirectory(companion.directory);
  WriteHandOver(kMaterialDetailKey, "1");
  CallSibling(companion);
}

void MenuPresenter::Begin(const RunsStockFitter&) {
  WriteHandOver(kCallingProgramKey, kOwnProgram);
  CallSibling(kStockFit);
}

void MenuPresenter::Begin(const OpensSettings&) {
  if (RequireForm(kSettingsForm, kSettingsCaption)) window_.ShowFormModally(kSettingsForm);
}

void MenuPresenter::Begin(const Leaves&) { Leave(); }

void MenuPresenter::Leave() {
  OutOfSight hidden(*this);
  if (RunState.AccumulateFlag == 1) parts_.write_accumulated();
  hidden.GiveOver();
  End(EXIT_SUCCESS);
}

void MenuPresenter::CallSibling(const Sibling& sibling) {
  if (!RequireSibling(sibling.command_line)) return;
  std::optional<OutOfSight> hidden;
  if (sibling.hides_menu) hidden.emplace(*this);
  RunSibling(sibling);
  window_.AskForActivation();
}

/// False, after a message, while a form cannot be used yet.
bool MenuPresenter::RequireForm(std::string_view form, std::string_view caption) const {
  if (window_.HasForm(form)) return true;
  MsgBox(fmt::format("「{}」の画面は、まだご利用いただけません。", caption), kMenuTitle);
  return false;
}

bool MenuPresenter::HasEnded() const { return ended_ || RunState.IsEnding; }

void MenuPresenter::End(int status) {
  ended_ = true;
  window_.Hide();
  parts_.end_program(status);
}

}  // namespace rbt
