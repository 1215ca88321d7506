// SPDX-License-Identifier: MIT
// The result screen's panel of print buttons, its ways out, and the view.
#include <optional>
#include <utility>

#include "platform/system/message.h"
#include "session/panels/at_end.h"
#include "session/panels/not_ready.h"
#include "session/panels/print_or_show.h"
#include "session/result/result_presenter.h"
#include "shell/context/run_state.h"
#include "shell/context/site_context.h"
#include "tally/selection.h"

namespace rbt {

namespace {

constexpr std::string_view kTotalsPrintCaption = "合計表印字(F1)";
constexpr std::string_view kUlbonPrintCaption = "ｳﾙﾎﾞﾝ印字(F1)";

/// The number that reports take.
std::int32_t NumberOf(SheetBody body) { return body == SheetBody::with_ulbon ? 1 : 0; }

}  // namespace

void ResultPresenter::OpenPrint(SheetBody body) {
  RunState.ReportBody = NumberOf(body);
  notice_.clear();
  FocusOn(print_panel_.Open(PapersNow()));
}

Papers ResultPresenter::PapersNow() const {
  if (!tally_ran_ || IsSum() || !ShowsWholePicture(result_.selection)) return Papers::none;
  return ulbon_view_ ? Papers::ulbon : Papers::all;
}

void ResultPresenter::ClosePrint() {
  print_panel_.Close();
  FocusWork();
}

void ResultPresenter::Print(ReportPaper paper) {
  if (const std::optional<DateRefusal> refusal = print_panel_.Date().Refusal()) {
    MsgBox(refusal->text, screen_.title);
    return FocusOn(FocusTarget::year, refusal->box);
  }
  const bool printed = PrintSheet(Order(paper, ulbon_view_));
  // The scoped screens stay in the panel, for another sheet.
  if (printed && !screen_.IsScoped()) ClosePrint();
}

void ResultPresenter::PrintUlbonOfToday() {
  RunState.ReportBody = NumberOf(SheetBody::with_ulbon);
  print_panel_.Date().FillToday();
  PrintSheet(Order(ReportPaper::a4y, true));
}

PrintOrder ResultPresenter::Order(ReportPaper paper, bool ulbon) const {
  const PrintPanelView panel = print_panel_.View();
  return {.result = result_,
          .paper = paper,
          .ulbon = ulbon,
          .body = RunState.ReportBody,
          .date = panel.date,
          .sub_project = panel.memo,
          .preview = panel.preview};
}

bool ResultPresenter::PrintSheet(const PrintOrder& order) {
  if (!parts_.print) {
    SayNotReady("印字");
    return false;
  }
  const std::string printer = parts_.print(order);
  notice_ = SentNotice(printer);
  return true;
}

void ResultPresenter::OpenSettings() {
  if (!parts_.open_settings) return SayNotReady("設定");
  parts_.open_settings();
  print_panel_.Date().FollowStyle();
  Fill();
}

void ResultPresenter::ShowDetail() {
  if (!parts_.open_detail) return SayNotReady("明細表示");
  const KindMask kinds_before = result_.selection.MaterialKindMask;
  {
    // The purchase list selects all kinds, and is of them once it was tallied anew there. What this screen
    // names, offers and tallies next goes by the result that it shows.
    const AtEnd kinds([this] { Selection.MaterialKindMask = result_.selection.MaterialKindMask; });
    result_ = parts_.open_detail(result_);
  }
  Fill();
  // A saved tally that was loaded there has brought its own selection.
  if (result_.selection.MaterialKindMask != kinds_before) TellKinds();
  TellForms();
  TellModes();
  DecideAvailability();
  FocusOn(FocusTarget::grid);
}

void ResultPresenter::ShowPlan() {
  if (!parts_.open_plan) return SayNotReady("切断計画");
  parts_.open_plan();
  FocusOn(FocusTarget::grid);
}

void ResultPresenter::Leave() {
  if (std::exchange(left_, true)) return;
  Selection.MaterialCalcChoice = CalcChoice::without_high_strength;
  Selection.MaterialFormMask = kAllForms;
  SiteContext.WorkDatabase.reset();
}

void ResultPresenter::SayNotReady(std::string_view what) const { rbt::SayNotReady(what, screen_.title); }

ResultScreenView ResultPresenter::View() {
  ResultScreenView view;
  view.head = head_;
  if (range_ != nullptr) view.range = range_->View();
  view.range.shown = range_ != nullptr && range_shown_;
  view.range.enabled = !busy_ && !print_panel_.IsOpen();
  view.result_shown = result_shown_;
  view.filters = Filters();
  view.rows = rows_;
  view.totals = totals_;
  view.colours = colours_;
  view.ulbon_view = ulbon_view_;
  view.busy = busy_;
  view.main_buttons_shown = !print_panel_.IsOpen();
  SetMainButtons(view);
  view.print_panel = print_panel_.View();
  view.notice = notice_;
  view.focus = std::exchange(focus_, {});
  view.left = left_;
  return view;
}

FilterView ResultPresenter::Filters() const {
  FilterView view = filters_;
  view.choose_kinds.shown = !busy_;
  view.choose_forms.shown = !busy_ && screen_.offers.form_choice;
  view.cycle_hoops.shown = !busy_ && filters_.tells_hoops;
  view.cycle_plates.shown = !busy_ && filters_.tells_plates;
  return view;
}

/// Empty on a screen without the Ulbon view: as it is designed.
std::string_view ResultPresenter::PrintCaption() const {
  if (!screen_.offers.ulbon_view) return "";
  return ulbon_view_ ? kUlbonPrintCaption : kTotalsPrintCaption;
}

void ResultPresenter::SetMainButtons(ResultScreenView& view) const {
  const ResultOffers& offers = screen_.offers;
  const bool idle = !busy_;
  const bool idle_result = idle && result_shown_;
  const bool of_this_site = !IsSum();  // sheets and saves go by the bound site
  view.print = {offers_print_ && of_this_site, idle, PrintCaption()};
  view.show_ulbon_view = {offers.ulbon_view && !ulbon_view_};
  view.ulbon = {offers.uplift || (offers.ulbon_print && offers_print_), idle_result};
  view.print_deformed = {offers.deformed_print && offers_print_ && of_this_site && !ulbon_view_, idle};
  view.restore_values = {offers.uplift};
  view.show_detail = {of_this_site, idle_result};
  view.change_range = {offers.range_change, idle_result};
  view.toggle_accumulation = {offers.accumulation && MayBeAddedTo(), idle};
  // A plan is of one site.
  view.show_plan = {offers.plan && of_this_site && !ulbon_view_, idle_result};
  view.leave = {true, idle};
}

}  // namespace rbt
