// SPDX-License-Identifier: MIT
#include "session/result/result_presenter.h"

#include <utility>

#include "platform/fault.h"
#include "platform/numbers/number_words.h"
#include "platform/or_as_before.h"
#include "platform/system/message.h"
#include "platform/system/process.h"
#include "session/panels/at_end.h"
#include "session/panels/row_colours.h"
#include "session/panels/site_head.h"
#include "shell/context/reference_names.h"
#include "shell/context/run_state.h"
#include "shell/context/site_context.h"
#include "shell/preparation/classified_schedule.h"
#include "tally/captions.h"
#include "tally/selection.h"
#include "tally/views/result_views.h"

namespace rbt {

namespace {

constexpr std::string_view kAllKindsAfterReset = "異形・高強度・ネジ・スリット";
constexpr std::string_view kSiteAlone = "加算した集計を離れ、この現場だけを集計しました。";

}  // namespace

ResultPresenter::ResultPresenter(const ResultScreen& screen, ResultParts parts)
    : screen_(screen), parts_(std::move(parts)), range_(MakeRangeInput(screen.Range())) {
  print_panel_.OfferPrinters(parts_.choose_printer);
  Load();
  FocusWork();
}

void ResultPresenter::Load() {
  SetSelectionDefaults();
  BindChosenSite();
  head_ = ReadHead();
  BeginWithDefaults();
  filters_.accumulating = screen_.offers.accumulation && RunState.AccumulateFlag != 0;
  if (range_ == nullptr) {
    FirstRun();
  } else {
    range_->FillFromSchedule(*SiteContext.WorkDatabase);
    ShowStage();
  }
}

/// How the screen tells the selection's defaults.
void ResultPresenter::BeginWithDefaults() {
  filters_.kinds = screen_.kinds_at_start;
  filters_.hoops_note = HoopsNote(ShapeFilter::with_others);
  TellForms();
}

void ResultPresenter::FirstRun() {
  Tally();
  Fill();
  TellModes();
  OfferModes();
}

// The tally and what it fills.

/// Over one state of the schedule, whose change counter is looked at first: what other programs have done to
/// it since, another start mode's classes among it, is taken in.
void ResultPresenter::Tally(const std::function<void()>& before) {
  tally_ran_ = false;
  const ClassifiedSchedule held(Selection.StartMode);
  if (before) before();
  result_ = CountTally(screen_.kind);
  added_sites_.clear();
  tally_ran_ = true;
}

void ResultPresenter::Fill() {
  const double percent = std::min(LeadingNumber(filters_.uplift.text), double{kHighestUlbonPercent});
  result_ = WithUlbonRaised(std::move(result_), static_cast<std::int32_t>(percent));
  const ResultView look{ulbon_view_, DiameterGradeNames()};
  rows_ = ResultRows(result_, look);
  totals_ = ResultTotals(result_, look);
  colours_ = AlternateColours();
  // A saved tally does not tell of which rows it was.
  const bool tells_range = range_ != nullptr && range_->GivesWay() && !result_.was_saved;
  filters_.range = tells_range ? range_->Told() : "";
  filters_.warning = screen_.offers.stock_warning ? result_.Grid().StockWarningText : "";
}

void ResultPresenter::Rerun(const std::function<void()>& change) {
  const AtEnd stage([this] {
    if (range_ == nullptr) return;
    if (tally_ran_) return ShowStage();
    AskForRange();  // a fault leaves nothing to look at
  });
  const AtEnd idle([this] { busy_ = false; });
  busy_ = true;
  const bool was_sum = IsSum();
  if (!was_sum) notice_.clear();
  if (show_) show_();
  RunPendingEvents();
  Tally([&] {
    change();
    ResetMeaninglessModes(Selection);
  });
  // A filter is of the bound site: no sum can be tallied anew.
  if (was_sum) notice_ = kSiteAlone;
  Fill();
  // The scoped screens name the kinds after a choice of kinds alone.
  if (range_ == nullptr) TellKinds();
  TellForms();
  TellModes();
  DecideAvailability();
  Selection.PrevMaterialKindMask = Selection.MaterialKindMask;
}

void ResultPresenter::TellKinds() {
  const std::string_view caption = KindCaption(Selection.MaterialKindMask);
  // On the bulk screen the slit word goes in the full program too; the total row keeps it there.
  const bool strips =
      screen_.IsScoped() ? Selection.StartMode.hides_slit : Selection.StartMode.hides_slit_in_bulk_kinds;
  filters_.kinds = strips ? StripSlitWord(caption) : std::string(caption);
}

void ResultPresenter::TellForms() { filters_.forms = screen_.form_caption(Selection.MaterialFormMask); }

void ResultPresenter::TellModes() {
  filters_.cycle_hoops.caption = ShapeFilterCaption(Selection.HoopMode);
  filters_.hoops_note = HoopsNote(Selection.HoopMode);
  filters_.cycle_plates.caption = ShapeFilterCaption(Selection.AnchorPlateMode);
}

/// The buttons of hoops and plates, where the last tally's rows hold such shapes. A mode that leaves none of
/// them must be taken back, so this belongs to the first run alone.
void ResultPresenter::OfferModes() {
  filters_.tells_plates = result_.has_anchor_plate_rows && Selection.StartMode.offers_shape_filters;
  filters_.tells_hoops = result_.has_hoop_rows && Selection.StartMode.offers_shape_filters;
}

void ResultPresenter::DecideAvailability() {
  offers_print_ = ShowsWholePicture(tally_ran_ ? result_.selection : Selection);
  if (print_panel_.IsOpen()) print_panel_.OfferPapers(PapersNow());
}

/// An intent whose tally the user may stop: the screen and the selection are as they were then.
void ResultPresenter::Stoppable(const std::function<void()>& intent) {
  RangeInput::Texts no_range;
  RangeInput::Texts& kept = range_ != nullptr ? range_->Kept() : no_range;
  OrAsBefore(intent, Selection, RunState.HasHoopRows, RunState.HasAnchorPlateRows, kept, filters_,
             taken_uplift_, result_, rows_, totals_, colours_, notice_, added_sites_, ulbon_view_, tally_ran_,
             result_shown_, range_shown_, offers_print_, focus_);
}

// The selection.

void ResultPresenter::Recalculate() {
  Stoppable([this] { Rerun([] {}); });
}

void ResultPresenter::ChooseForms() {
  if (!parts_.choose_forms) return SayNotReady("材料変更");
  Stoppable([this] {
    parts_.choose_forms();
    Rerun([] { Selection.MaterialCalcChoice = CalcChoiceOf(Selection.MaterialKindMask); });
  });
}

void ResultPresenter::ChooseKinds() {
  if (!parts_.choose_kinds) return SayNotReady("材質変更");
  Stoppable([this] {
    parts_.choose_kinds();
    Rerun([] {});
    TellKinds();
  });
}

void ResultPresenter::CycleHoops() {
  Stoppable([this] { Rerun([] { Selection.HoopMode = Next(Selection.HoopMode); }); });
}

void ResultPresenter::CyclePlates() {
  Stoppable([this] { Rerun([] { Selection.AnchorPlateMode = Next(Selection.AnchorPlateMode); }); });
}

// The Ulbon rows.

void ResultPresenter::ShowUlbonView() {
  Stoppable([this] {
    if (!IsSum()) Tally();
    ulbon_view_ = true;
    Fill();
    FocusOn(FocusTarget::grid);
  });
}

void ResultPresenter::ShowNormalView() {
  ulbon_view_ = false;
  Fill();
  FocusOn(FocusTarget::grid);
}

void ResultPresenter::TurnBack() {
  if (filters_.uplift.shown && filters_.uplift.enabled) return GiveUpUplift();
  if (ulbon_view_) return ShowNormalView();
  Leave();
}

void ResultPresenter::BeginUplift() {
  filters_.uplift.shown = true;
  filters_.uplift.enabled = true;
  FocusOn(FocusTarget::uplift);
}

/// Back to what was taken before, whatever has been typed since.
void ResultPresenter::GiveUpUplift() {
  filters_.uplift = {.shown = !taken_uplift_.empty(), .enabled = false, .text = taken_uplift_};
  Fill();
  FocusOn(FocusTarget::grid);
}

void ResultPresenter::TakeUplift() {
  Fill();
  filters_.uplift.enabled = false;
  taken_uplift_ = filters_.uplift.text;
  FocusOn(FocusTarget::grid);
}

void ResultPresenter::RestoreValues() {
  Stoppable([this] {
    filters_.uplift.text.clear();
    taken_uplift_.clear();
    filters_.uplift.shown = false;
    if (!IsSum()) Tally();
    Fill();
    FocusOn(FocusTarget::grid);
  });
}

// The range of a scoped screen.

bool ResultPresenter::Passes(std::size_t box) {
  const std::optional<RangeRefusal> refusal = range_->Refusal(box);
  if (!refusal) return true;
  MsgBox(refusal->text, refusal->title.empty() ? screen_.title : refusal->title);
  range_->TakeBack(*refusal);
  FocusOn(FocusTarget::range, refusal->box);
  return false;
}

void ResultPresenter::EnterRangeBox(std::size_t box) {
  if (box + 1 == range_->Boxes()) {
    TakeRange();
  } else if (Passes(box)) {
    FocusOn(FocusTarget::range, box + 1);
  }
}

void ResultPresenter::TakeRange() {
  if (range_ == nullptr || !range_->HasRows()) return;
  for (std::size_t box = 0; box < range_->Boxes(); ++box) {
    if (!Passes(box)) return;
  }
  Stoppable([this] {
    range_->WriteTo(Selection);
    range_->Keep();
    RunRange();
  });
}

void ResultPresenter::LeaveRange() {
  if (range_ != nullptr && tally_ran_) range_->BringBack();
}

void ResultPresenter::RunRange() {
  if (range_->GivesWay()) range_shown_ = false;
  Rerun([this] {
    if (screen_.Range() == TallyRange::shapes) ResetFilters();
    if (screen_.before_first_run != nullptr) screen_.before_first_run();
  });
  OfferModes();
  FocusWork();
}

void ResultPresenter::AskForRange() {
  ResetFilters();
  Selection.MaterialFormMask = kAllForms;
  RunState.HasAnchorPlateRows = false;
  tally_ran_ = false;
  TellForms();
  DecideAvailability();
  ShowStage();
  FocusWork();
}

void ResultPresenter::ResetFilters() {
  Selection.MaterialKindMask = kAllKinds;
  Selection.IncludeUlbon = true;
  Selection.AnchorPlateMode = ShapeFilter::with_others;
  Selection.HoopMode = ShapeFilter::with_others;
  filters_.kinds = kAllKindsAfterReset;
  TellModes();
}

/// Input or result. While a tally runs the stage before it stays.
void ResultPresenter::ShowStage() {
  result_shown_ = tally_ran_;
  range_shown_ = !tally_ran_ || !range_->GivesWay();
}

void ResultPresenter::FocusWork() {
  if (range_ == nullptr || tally_ran_) return FocusOn(FocusTarget::grid);
  FocusOn(range_->HasRows() ? FocusTarget::range : FocusTarget::leave);
}

}  // namespace rbt
