// SPDX-License-Identifier: MIT
// What the screens of floors and parts show, their print panel and the ways out.
#include <utility>

#include "session/floorpart/floor_texts.h"
#include "session/floorpart/floorpart_presenter.h"
#include "session/panels/not_ready.h"
#include "shell/context/site_context.h"

namespace rbt {

namespace {

constexpr std::string_view kRaising = "上乗せ中です  お待ち下さい";
constexpr std::string_view kStockWord = "定尺重量";
constexpr std::string_view kInstalledWord = "取付重量";

}  // namespace

// Printing, saved tallies, the way out.

void FloorPartPresenter::OpenPrint() {
  print_panel_.Open(Papers::all);
  focus_ = FloorPartFocus::year;
}

void FloorPartPresenter::ClosePrint() {
  print_panel_.Close();
  focus_ = FloorPartFocus::first_row;
}

void FloorPartPresenter::Save() const { SayNotReady("保存", screen_.title); }

void FloorPartPresenter::Load() const { SayNotReady("読込", screen_.title); }

void FloorPartPresenter::Leave() {
  if (std::exchange(left_, true)) return;
  Selection.UlbonOnly = false;
  Uplift() = 0.0;
  SiteContext.WorkDatabase.reset();
}

// The view.

/// A tally of everything, which alone can be saved.
bool FloorPartPresenter::HoldsAllFloors() const {
  return all_ && range_ == all_ && SpecialSeen == SpecialTaken && !HoseiZumi;
}

FloorPartView FloorPartPresenter::View() {
  FloorPartView view;
  view.head = head_;
  view.scope = scope_;
  view.weight_word = installed_ ? kInstalledWord : kStockWord;
  view.input = {.shown = !result_shown_,
                .enabled = !busy_,
                .notice = empty_ ? "" : FloorsOfSchedule(extent_),
                .boxes = input_.AsTyped(),
                .installed = installed_};
  view.filters = Filters();
  view.grid = grid_;
  view.grid.open = change_ == Change::correction;
  view.busy = busy_;
  if (busy_ && Uplift() != 0.0) view.raise_note = kRaising;
  view.main_buttons_shown = !print_panel_.IsOpen();
  SetMainButtons(view);
  view.uplift = uplift_;
  view.print_panel = print_panel_.View();
  view.print_panel.has_memo = false;
  view.focus = std::exchange(focus_, FloorPartFocus::stays);
  view.beep = std::exchange(beep_, false);
  view.left = left_;
  return view;
}

FilterView FloorPartPresenter::Filters() const {
  FilterView view = filters_;
  // The figures stay while sheets of them are printed.
  const bool in_reach = !busy_ && change_ == Change::none && !print_panel_.IsOpen() && !filters_locked_;
  view.tells_hoops = result_shown_ && filters_.tells_hoops;
  view.tells_plates = result_shown_ && filters_.tells_plates;
  view.choose_kinds = {result_shown_, in_reach};
  view.choose_forms = {result_shown_, in_reach};
  view.cycle_hoops = {view.tells_hoops, in_reach, filters_.cycle_hoops.caption};
  view.cycle_plates = {view.tells_plates, in_reach, filters_.cycle_plates.caption};
  return view;
}

void FloorPartPresenter::SetMainButtons(FloorPartView& view) const {
  const bool in_reach = !busy_ && change_ == Change::none;
  const ButtonView of_result{true, in_reach && result_shown_};
  view.open_print = of_result;
  view.change_floors = of_result;
  view.change_weights = of_result;
  view.save = {true, of_result.enabled && HoldsAllFloors()};
  view.load = of_result;
  view.manage = of_result;
  view.leave = {true, in_reach};
}

}  // namespace rbt
