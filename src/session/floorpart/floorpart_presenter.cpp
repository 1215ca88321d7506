// SPDX-License-Identifier: MIT
#include "session/floorpart/floorpart_presenter.h"

#include <algorithm>
#include <utility>
#include <variant>

#include "archive/check_jsyukei.h"
#include "data/table_layouts.h"
#include "platform/fault.h"
#include "platform/numbers/number_words.h"
#include "platform/or_as_before.h"
#include "platform/system/message.h"
#include "platform/system/process.h"
#include "platform/text/characters.h"
#include "session/floorpart/floor_texts.h"
#include "session/panels/at_end.h"
#include "session/panels/site_head.h"
#include "shell/calendar/new_era_function.h"
#include "shell/config/settings.h"
#include "shell/context/reference_names.h"
#include "shell/context/site_context.h"
#include "shell/preparation/classified_schedule.h"
#include "tally/captions.h"
#include "tally/floorpart/hand_correction.h"
#include "tally/kinds/tally_kinds.h"
#include "tally/selection.h"
#include "tally/views/result_views.h"

namespace rbt {

namespace {

constexpr std::string_view kAllKindsText = "異形･高強度･ネジ･スリット";
constexpr std::string_view kScopeAtDesign = "【＊＊階～＊＊階】";
constexpr std::string_view kFloorArchive = "階別重量集計";

constexpr std::string_view kChoiceTitle = "操作選択";
constexpr std::string_view kRaiseOrCorrect = "％入力しますか＝はい、重量修正＝いいえ";
constexpr std::string_view kNoSecondRaise =
    "再度の％増しは出来ません。一度終了するか重量修正をしてください\n\nはい＝終了、いいえ＝重量修正";
constexpr std::string_view kEscEndsCorrection = "重量修正作業を中断する場合は、ESCキーを押して下さい";

/// What an all-floors range counts its special floors from.
constexpr std::int32_t kAllTaken = SpecialMask::All().AsNumber();
constexpr double kPercent = 100.0;

/// Saved tallies need their table. Where the load could bring the site up to date, it is there.
void ProvideFloorArchive(Database& site) {
  if (!site.MayBeWritten()) return;
  if (Table_Exists(kFloorArchive, site)) return;
  for (const TableDef& table : ArchiveTables()) {
    if (table.name == kFloorArchive) site.CreateTable(table);
  }
}

SpecialMask SpecialFloorsNow() {
  const ClassifiedSchedule held(Selection.StartMode, FloorsAndParts::filled);
  return SpecialFloorsOf(*SiteContext.WorkDatabase);
}

/// As the site's head has it, in the room that these screens give it.
HeadView ReadFloorPartHead() {
  HeadView head = ReadHead();
  head.site_number = Right(head.site_number, 3);
  if (head.client_code == "0") head.client_code.clear();
  return head;
}

// The columns of the parts 1 to 11 bear their numbers.
bool MayCorrectCell(const TallyTable& /*tables*/, int /*row*/, int /*part*/) { return false; }
template <typename Tables>
bool MayCorrectCell(const Tables& tables, int row, int part) {
  return rbt::MayCorrect(tables, row, part);
}
void CorrectCellOf(TallyTable& /*tables*/, int /*row*/, int /*part*/, Currency /*kilograms*/) {}
template <typename Tables>
void CorrectCellOf(Tables& tables, int row, int part, Currency kilograms) {
  CorrectCell(tables, row, part, kilograms);
}

}  // namespace

FloorPartPresenter::FloorPartPresenter(const FloorPartScreen& screen, FloorPartParts parts)
    : screen_(screen), parts_(std::move(parts)), scope_(kScopeAtDesign) {
  TakeAllBack();
  installed_ = ReadSetting(kFloorTallyStockKey) == 1;
  BindChosenSite();
  ReadSchedule();
  head_ = ReadFloorPartHead();
  StampTime();
}

void FloorPartPresenter::ReadSchedule() {
  empty_ = !SiteContext.WorkDatabase->HasRows("SELECT * FROM 加工テーブル");
  if (empty_) return;
  ProvideFloorArchive(*SiteContext.WorkDatabase);
  const ClassifiedSchedule held(Selection.StartMode, FloorsAndParts::filled);
  const std::optional<FloorExtent> extent = ReadFloorExtent(*SiteContext.WorkDatabase);
  if (!extent) throw Fault(FaultKind::invalid_use_of_null, "加工テーブル 階");
  extent_ = *extent;
  input_ = FloorInput(extent_);
}

void FloorPartPresenter::Activate() {
  if (!empty_) return StampTime();
  MsgBox("集計データがありません", "データなし");
  Leave();
}

void FloorPartPresenter::StampTime() {
  const DateTime now = Now();
  head_.load_date = FormatSaveDate(now);
  head_.load_time = FormatSaveTime(now);
}

/// The whole selection, nothing raised.
void FloorPartPresenter::TakeAllBack() {
  Selection.MaterialKindMask = kAllKinds;
  Selection.MaterialFormMask = kAllForms;
  Selection.UlbonOnly = false;
  Selection.HoopMode = ShapeFilter::with_others;
  Selection.AnchorPlateMode = ShapeFilter::with_others;
  Selection.TokubetuMask = SpecialMask();
  SetUplift("");
  uplift_.shown = false;
  filters_.kinds = kAllKindsText;
  filters_.forms = FloorPartFormCaption(kAllForms);
  filters_.tells_hoops = false;
  filters_.tells_plates = false;
  TellModes();
}

// The floors.

void FloorPartPresenter::Refuse(FloorPartFocus stays_on) {
  beep_ = true;
  focus_ = stays_on;
}

void FloorPartPresenter::EnterFloorBox(std::size_t box) {
  if (box == FloorInput::kStart) {
    if (!input_.StartPasses()) return Refuse(FloorPartFocus::start);
    focus_ = FloorPartFocus::end;
    if (!input_.StartIsSpecial()) return;
    input_.CopyStartToEnd();
  } else if (!input_.Range()) {
    return Refuse(FloorPartFocus::end);
  }
  focus_ = FloorPartFocus::run;
}

void FloorPartPresenter::EnterAllFloors() {
  all_ = AllFloors(extent_);
  input_.Fill(*all_);
  SpecialTaken = kAllTaken;
  focus_ = FloorPartFocus::run;
}

void FloorPartPresenter::EnterSpecialFloor(std::int16_t floor) { input_.Fill({floor, floor}); }

void FloorPartPresenter::ChooseWeight(bool installed) {
  installed_ = installed;
  SaveSetting(kFloorTallyStockKey, installed ? 1 : 0);
}

/// An intent whose tally the user may stop: the screen and the selection are as they were then.
void FloorPartPresenter::Stoppable(const std::function<void()>& intent) {
  OrAsBefore(intent, Selection, scope_, installed_, filters_, uplift_, result_, grid_, result_shown_, range_,
             all_, SpecialSeen, SpecialTaken, HoseiZumi, LoadZumi, change_, filters_locked_, focus_);
}

void FloorPartPresenter::Run() {
  if (input_.IsEmpty(FloorInput::kStart)) {
    MsgBox("開始階が設定されていません", screen_.title);
    return;
  }
  if (input_.IsEmpty(FloorInput::kEnd)) {
    MsgBox("終了階が設定されていません", screen_.title);
    return;
  }
  const std::optional<FloorRange> range = input_.Range();
  if (!range) return Refuse(input_.StartPasses() ? FloorPartFocus::end : FloorPartFocus::start);
  Stoppable([&] { AskAndRun(*range); });
}

void FloorPartPresenter::AskAndRun(const FloorRange& range) {
  scope_ = AskedScope(input_.AsTyped());
  SpecialMask specials;
  SpecialSeen = kAllTaken;
  if (!IsSpecialFloor(range.end)) {
    const SpecialMask found = SpecialFloorsNow();
    specials = AskAboutSpecialFloors(found, screen_.question_titles);
    SpecialSeen += found.AsNumber();
    SpecialTaken += specials.AsNumber();
  }
  RunOver(range, specials);
}

void FloorPartPresenter::RunOver(const FloorRange& range, SpecialMask specials) {
  range_ = range;
  TakeFloors(Selection, range, specials, extent_);
  installed_ = ReadSetting(kFloorTallyStockKey) == 1;
  if (screen_.starts_from_all) {
    Selection.MaterialKindMask = kAllKinds;
    Selection.UlbonOnly = false;
    Selection.HoopMode = ShapeFilter::with_others;
    Selection.AnchorPlateMode = ShapeFilter::with_others;
    filters_.kinds = kAllKindsText;
  }
  Tally();
  filters_.forms = FloorPartFormCaption(Selection.MaterialFormMask);
  scope_ = TalliedScope(input_.AsTyped(), specials);
  focus_ = FloorPartFocus::first_row;
}

void FloorPartPresenter::AskForFloors() { BackToInput(); }

void FloorPartPresenter::BackToInput() {
  TakeAllBack();
  result_ = {};
  grid_ = {};
  result_shown_ = false;
  range_.reset();
  all_.reset();
  SpecialSeen = 0;
  SpecialTaken = 0;
  HoseiZumi = false;
  LoadZumi = false;
  change_ = Change::none;
  print_panel_.Close();
  focus_ = FloorPartFocus::start;
}

// The tally and what it fills.

void FloorPartPresenter::Tally() {
  bool done = false;
  const AtEnd stage([&] {
    if (!done) BackToInput();  // a fault leaves nothing to look at
  });
  const AtEnd idle([this] { busy_ = false; });
  busy_ = true;
  if (show_) show_();
  RunPendingEvents();
  Count();
  HoseiZumi = false;
  filters_locked_ = false;
  LoadZumi = false;
  Fill();
  StampTime();
  TellModes();
  OfferModes();
  result_shown_ = true;
  done = true;
}

/// Over one state of the schedule, with what other programs have done to it since.
void FloorPartPresenter::Count() {
  const ClassifiedSchedule held(Selection.StartMode, FloorsAndParts::filled);
  result_ = CountTally(screen_.kind);
}

void FloorPartPresenter::Fill() {
  grid_.colours = AlternateColours();
  grid_.columns = screen_.columns(NamesOfParts(), grid_.colours.has_value());
  grid_.rows = ResultRows(result_, {});
  for (std::size_t row = 0; row < grid_.rows.size(); ++row) {
    if (grid_.columns.size() > grid_.rows[row].size()) grid_.rows[row].push_back(std::to_string(row + 1));
  }
}

void FloorPartPresenter::TellModes() {
  filters_.cycle_hoops.caption = ShapeFilterCaption(Selection.HoopMode);
  filters_.hoops_note = HoopsNote(Selection.HoopMode);
  filters_.cycle_plates.caption = ShapeFilterCaption(Selection.AnchorPlateMode);
}

/// A mode may leave no such shape and must be taken back, so what was once offered stays.
void FloorPartPresenter::OfferModes() {
  filters_.tells_hoops = filters_.tells_hoops || result_.has_hoop_rows;
  filters_.tells_plates = filters_.tells_plates || result_.has_anchor_plate_rows;
}

// The selection.

void FloorPartPresenter::ChooseKinds() {
  Stoppable([this] {
    const KindMask kinds = Selection.MaterialKindMask;
    const FormMask forms = Selection.MaterialFormMask;
    parts_.choose_kinds();
    if (Selection.MaterialKindMask == kinds && Selection.MaterialFormMask == forms) return;
    Tally();
    filters_.kinds = FloorPartKindCaption(Selection.MaterialKindMask);
    filters_.forms = ShortFormCaption(Selection.MaterialFormMask);
  });
}

void FloorPartPresenter::ChooseForms() {
  Stoppable([this] {
    const FormMask forms = Selection.MaterialFormMask;
    parts_.choose_forms();
    if (Selection.MaterialFormMask == forms) return;
    Tally();
    filters_.forms = ShortFormCaption(Selection.MaterialFormMask);
  });
}

void FloorPartPresenter::CycleHoops() {
  Stoppable([this] {
    Selection.HoopMode = Next(Selection.HoopMode);
    Tally();
  });
}

void FloorPartPresenter::CyclePlates() {
  Stoppable([this] {
    Selection.AnchorPlateMode = Next(Selection.AnchorPlateMode);
    Tally();
  });
}

// Raising by a percentage, and correcting by hand.

void FloorPartPresenter::BeginChange() {
  const auto asked = [](std::string_view question) {
    return MsgBox(question, kChoiceTitle, MessageButtons::yes_no) == MessageAnswer::yes;
  };
  if (Uplift() != 0.0) {
    if (asked(kNoSecondRaise)) return;
  } else if (asked(kRaiseOrCorrect)) {
    change_ = Change::uplift;
    uplift_.shown = true;
    focus_ = FloorPartFocus::uplift;
    return;
  }
  BeginCorrection();
}

void FloorPartPresenter::BeginCorrection() {
  MsgBox(kEscEndsCorrection, screen_.title);
  change_ = Change::correction;
  HoseiZumi = true;
  focus_ = FloorPartFocus::first_cell;
}

void FloorPartPresenter::SetUplift(std::string text) {
  uplift_.text = std::move(text);
  Uplift() = LeadingNumber(uplift_.text) / kPercent;
}

void FloorPartPresenter::TypeUplift(std::string text) { SetUplift(std::move(text)); }

void FloorPartPresenter::TakeUplift() {
  if (change_ != Change::uplift) return;
  Stoppable([this] {
    change_ = Change::none;
    uplift_.shown = false;
    // `range_` is set anew on the way.
    RunOver(FloorRange(*range_), Selection.TokubetuMask);
  });
}

bool FloorPartPresenter::MayCorrect(int row, int column) const {
  if (change_ != Change::correction) return false;
  return std::visit([&](const auto& tables) { return MayCorrectCell(tables, row, column); }, result_.tables);
}

bool FloorPartPresenter::IsWeight(std::string_view text) {
  const auto is_digit = [](char c) { return c >= '0' && c <= '9'; };
  return std::any_of(text.begin(), text.end(), is_digit) &&
         std::all_of(text.begin(), text.end(), [&](char c) { return c == ',' || is_digit(c); });
}

void FloorPartPresenter::Correct(int row, int column, std::string_view text) {
  if (!MayCorrect(row, column) || !IsWeight(text)) return;
  const Currency kilograms = Currency::FromDouble(LeadingNumber(ReplaceAll(text, ",", "")));
  std::visit([&](auto& tables) { CorrectCellOf(tables, row, column, kilograms); }, result_.tables);
  result_.origin = ResultOrigin::corrected;
  Fill();
}

void FloorPartPresenter::EndCorrection() {
  if (change_ != Change::correction) return;
  change_ = Change::none;
  focus_ = FloorPartFocus::first_row;
}

}  // namespace rbt
