// SPDX-License-Identifier: MIT
#include "session/detail/detail_presenter.h"

#include <utility>
#include <variant>

#include "data/reference.h"
#include "platform/system/message.h"
#include "platform/system/process.h"
#include "session/panels/at_end.h"
#include "session/panels/not_ready.h"
#include "session/panels/site_head.h"
#include "shell/config/settings.h"
#include "shell/context/site_context.h"
#include "shell/preparation/classified_schedule.h"
#include "tally/detail/detail_change.h"
#include "tally/detail/detail_entry.h"
#include "tally/kinds/tally_kinds.h"
#include "tally/selection.h"

namespace rbt {

namespace {

constexpr std::string_view kAttention = "注意";
constexpr std::string_view kPercentWarning = "上乗せ作業を中断する場合は、ESCキーを押して下さい";
constexpr std::string_view kEditWarning =
    "重量は修正出来ません。本数のみ修正出来ます。\r\n本数･圧接入力作業を中断する場合は、ESCキーを押して下さ"
    "い";
constexpr std::string_view kNoRestoreTitle = "値戻し出来ません";
constexpr std::string_view kNoRestore = "値戻しは出来ません。\r\n再度頁行を指定して計算し直してください。";
constexpr std::string_view kRestoreQuestion = "全てのデータを上乗せ前の値に戻します。";

std::string_view MaterialOfSite() {
  const SteelSupply supply = ReadSteelSupply(*SiteContext.MasterDatabase, SiteContext.SelectedDbName);
  return supply == SteelSupply::supplied ? "支給材" : "自給材";
}

/// What the fields start from is read at each load: other programs of the family share these settings.
void ReadFieldSettings() {
  Settings.DetailPrint = ReadSetting(kDetailPrintKey);
  Settings.MemoPosition = ReadSetting(kMemoPositionKey);
  Settings.DetailDatePosition = ReadSetting(kDetailDatePositionKey);
}

/// The number that a field of "0" and "1" was given; nothing for another text.
std::optional<std::int32_t> ZeroOrOne(std::string_view text) {
  if (text == "0") return 0;
  if (text == "1") return 1;
  return std::nullopt;
}

void NoteFitting(CorrectionMarkers& markers, const DetailCell& cell, std::int32_t count) {
  const auto* fitting = std::get_if<FittingCell>(&cell);
  if (fitting == nullptr) return;
  if (fitting->fitting == Fitting::cuts) markers.cuts = count;
  if (fitting->fitting == Fitting::plates) markers.plates = count;
  if (fitting->fitting == Fitting::threads) markers.threads = count;
}

}  // namespace

DetailPresenter::DetailPresenter(TallyResult result, DetailParts parts)
    : result_(std::move(result)), parts_(std::move(parts)), head_(ReadHead()), material_(MaterialOfSite()) {
  ReadFieldSettings();
  installed_ = DetailArgumentsOf(Settings).Installed;
  Selection.MaterialKindMask = kAllKinds;
  TallyGrid = result_.Grid();
  print_panel_.OfferPrinters(parts_.choose_printer);
  print_panel_.Date().FillEmpty();
  FocusOn(DetailButton::percent);
}

// Buttons and keys.

bool DetailPresenter::IsWithinReach(DetailButton button) const {
  if (busy_) return false;
  if (RowOf(button).in_print_panel) return mode_ == DetailMode::printing;
  // A tally of registered names is of names that are marked now: it is neither kept nor brought back.
  const bool keeps = button == DetailButton::save || button == DetailButton::load;
  if (keeps && result_.kind == TallyKind::names) return false;
  // In the middle of a percentage its button brings back to the box.
  return mode_ == DetailMode::buttons || (mode_ == DetailMode::percent && button == DetailButton::percent);
}

void DetailPresenter::Press(DetailButton button) {
  if (!IsWithinReach(button)) return;
  switch (button) {
    case DetailButton::percent:
      return BeginPercent();
    case DetailButton::correct:
      return BeginEditing();
    case DetailButton::restore:
      return RestoreValues();
    case DetailButton::print:
      return OpenPrint();
    case DetailButton::save:
      return Save();
    case DetailButton::load:
      return Load();
    case DetailButton::manage:
      return;  // it has no action: saved tallies are renamed and deleted where they are loaded
    case DetailButton::leave:
      return Leave();
    case DetailButton::a4_landscape:
      return Print(ReportPaper::a4y);
    case DetailButton::a4_portrait:
      return Print(ReportPaper::a4t);
    case DetailButton::settings:
      return OpenSettings();
    case DetailButton::close_print:
      return ClosePrint();
  }
}

void DetailPresenter::Escape() {
  if (busy_) return;
  switch (mode_) {
    case DetailMode::percent:
      return BackToButtons(DetailButton::percent);
    case DetailMode::editing:
      return BackToButtons(DetailButton::correct);
    case DetailMode::printing:
      return ClosePrint();
    case DetailMode::buttons:
      return Leave();
  }
}

void DetailPresenter::BackToButtons(DetailButton focus) {
  mode_ = DetailMode::buttons;
  FocusOn(focus);
}

void DetailPresenter::Take(TallyResult result) {
  result_ = std::move(result);
  TallyGrid = result_.Grid();
}

// Percentage.

void DetailPresenter::BeginPercent() {
  if (mode_ != DetailMode::percent) {
    MsgBox(kPercentWarning, kAttention);
    percent_.clear();
    mode_ = DetailMode::percent;
  }
  FocusOn(kPercentBox);
}

bool DetailPresenter::TypePercent(std::string text) {
  if (!IsPercentText(text)) return false;
  percent_ = std::move(text);
  return true;
}

void DetailPresenter::TakePercent() {
  if (mode_ != DetailMode::percent) return;
  Take(RaiseBars(result_, PercentOfText(percent_), StockColumnsOf(DetailLayoutOf(Settings))));
  BackToButtons(DetailButton::percent);
}

// Counts in the grid.

void DetailPresenter::BeginEditing() {
  MsgBox(kEditWarning, kAttention);
  mode_ = DetailMode::editing;
  FocusOn(kDetailGrid);
}

bool DetailPresenter::MayEdit(int line, int column) const {
  return mode_ == DetailMode::editing && CellAt(DetailLayoutOf(Settings), line, column).has_value();
}

bool DetailPresenter::EditCell(int line, int column, std::string_view text) {
  if (!MayEdit(line, column) || !IsCountText(text)) return false;
  const DetailLayout layout = DetailLayoutOf(Settings);
  const DetailCell cell = CellAt(layout, line, column).value();
  const std::int32_t count = CountOfText(text);
  Take(CorrectCell(result_, cell, count, StockColumnsOf(layout)));
  NoteFitting(markers_, cell, count);
  return true;
}

// The tally once more.

void DetailPresenter::RestoreValues() {
  if (rbt::RowOf(result_.kind).range == TallyRange::positions) {
    MsgBox(kNoRestore, kNoRestoreTitle);
    return;
  }
  if (MsgBox(kRestoreQuestion, kDetailTitle, MessageButtons::yes_no) != MessageAnswer::yes) return;
  // A tally that faults leaves nothing in the place of the current result, and the list stays.
  const AtEnd place([this] { TallyGrid = result_.Grid(); });
  const AtEnd idle([this] { busy_ = false; });
  busy_ = true;
  notice_.clear();
  if (show_) show_();
  RunPendingEvents();
  const ClassifiedSchedule held(Selection.StartMode);
  result_ = WithUlbonRaised(CountTally(result_.kind), result_.ulbon_percent);
  markers_ = {};
}

// Printing.

void DetailPresenter::OpenPrint() {
  mode_ = DetailMode::printing;
  notice_.clear();
  print_panel_.Open(Papers::a4);
  FocusOn(DetailButton::a4_landscape);
}

void DetailPresenter::ClosePrint() {
  print_panel_.Close();
  BackToButtons(DetailButton::print);
}

void DetailPresenter::Print(ReportPaper paper) {
  if (const std::optional<DateRefusal> refusal = print_panel_.Date().Refusal()) {
    MsgBox(refusal->text, kDetailTitle);
    return FocusOn(kDateBoxes.at(refusal->box));
  }
  if (!parts_.print) return SayNotReady("印字", kDetailTitle);
  DetailArguments detail = DetailArgumentsOf(Settings);
  detail.Memos = memos_;
  detail.Installed = installed_;
  const PrintPanelView panel = print_panel_.View();
  const std::string printer = parts_.print(
      {.result = result_, .paper = paper, .date = panel.date, .detail = detail, .preview = panel.preview});
  notice_ = SentNotice(printer);
  ClosePrint();
}

void DetailPresenter::OpenSettings() {
  if (!parts_.open_settings) return SayNotReady("設定", kDetailTitle);
  parts_.open_settings();
  print_panel_.Date().FollowStyle();
}

// Fields.

bool DetailPresenter::TypeMemoPosition(std::string_view text) {
  const auto position = ZeroOrOne(text);
  if (!position) return false;
  SaveSetting(kMemoPositionKey, *position);
  Settings.MemoPosition = *position;
  return true;
}

bool DetailPresenter::TypeInstalled(std::string_view text) {
  const auto installed = ZeroOrOne(text);
  if (installed) installed_ = *installed == 1;
  return installed.has_value();
}

void DetailPresenter::ChooseDatePlace(DatePlace place) {
  const std::int32_t position = place == DatePlace::right ? 1 : 0;
  SaveSetting(kDetailDatePositionKey, position);
  Settings.DetailDatePosition = position;
}

// Saved tallies, and the way out.

void DetailPresenter::Save() {
  if (!parts_.save) return SayNotReady("保存", kDetailTitle);
  parts_.save(result_, memos_);
}

void DetailPresenter::Load() {
  if (!parts_.load) return SayNotReady("読込", kDetailTitle);
  // So does a saved tally that cannot be read; the dialog tells of the fault and ends without one.
  const AtEnd place([this] { TallyGrid = result_.Grid(); });
  std::optional<LoadedTally> loaded = parts_.load(result_.kind);
  if (!loaded) return;
  result_ = std::move(loaded->result);
  memos_ = std::move(loaded->memos);
  markers_ = {};
}

void DetailPresenter::Leave() {
  if (std::exchange(left_, true)) return;
  // A call for the material detail that another program has left open is answered now.
  if (ReadHandOver(kMaterialDetailKey) == "1") WriteHandOver(kMaterialDetailKey, "0");
}

}  // namespace rbt
