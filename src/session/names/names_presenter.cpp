// SPDX-License-Identifier: MIT
#include "session/names/names_presenter.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include "platform/failure_log.h"
#include "platform/numbers/number_words.h"
#include "platform/pass_over_faults.h"
#include "platform/system/message.h"
#include "session/names/name_work.h"
#include "session/panels/at_end.h"
#include "session/panels/not_ready.h"
#include "session/panels/site_head.h"
#include "shell/config/setting_keys.h"
#include "shell/config/settings.h"
#include "shell/context/site_context.h"
#include "shell/preparation/classified_schedule.h"
#include "tally/selection.h"
#include "tally/views/name_views.h"

namespace rbt {

namespace {

constexpr std::string_view kUsual =
    "登録名の ０ をクリックして １ としてから処理を選ぶ（連番で削除は削除 (Ｆ５) を押してから番号入力）";
constexpr std::string_view kAsksForStart = "登録番号を範囲で選択する場合には、開始番号を入力して下さい";
constexpr std::string_view kAsksForEnd = "範囲の終了　登録名番号を入力し　Enter";
constexpr std::string_view kAsksAgain = "範囲の開始・終了　登録名番号を確認し　Enter";
constexpr std::string_view kRangeTaken = "選択された登録名でよければ、集計(F1)を選択";
constexpr std::string_view kAsksForItem = "対比表印刷項目を 1～3 で選んで　Enter";

constexpr std::int32_t kFirstItem = 1;
constexpr std::int32_t kLastItem = 3;

/// What `MSGB` says once the focus has come to a control ...
std::string_view WordsOf(std::string_view control) {
  if (control == kRangeStartBox) return kAsksForStart;
  return control == kItemBox ? kAsksForItem : kUsual;
}

/// ... unless it says already what the way there has led to.
std::string_view WordsKeptAt(std::string_view control) {
  if (control == kRangeStartBox) return kAsksAgain;
  if (control == kRangeEndBox) return kAsksForEnd;
  return control == kNameTallyButton ? kRangeTaken : "";
}

std::int32_t NumberIn(const std::string& text) { return ToInt32(LeadingNumber(text), "登録AN"); }

/// The lines of `List1`.
std::vector<std::string> SelectedLines(Database& companion) {
  std::vector<std::string> lines;
  for (const RegisteredName& name : ReadNames(companion, NameOrder::by_number)) {
    if (name.marked && name.number) lines.push_back(std::to_string(*name.number) + "-" + name.name);
  }
  return lines;
}

}  // namespace

NamesPresenter::NamesPresenter(NamesParts parts)
    : parts_(std::move(parts)), message_(kUsual), focus_(kNameGrid) {
  BindChosenSite();
  head_ = ReadHead();
  item_ = std::to_string(Settings.ComparisonKind);
  BeginWork();
}

void NamesPresenter::BeginWork() {
  // Should it fail, no names of a former site stand below the head of this one.
  names_.clear();
  selected_.clear();
  const ClassifiedSchedule held(Selection.StartMode);
  // A summary that fails is not told on the screen: no weight is shown then, rather than one of former rows.
  if (const auto fault = PassOverFaultsOfContent([] { OpenNameWork(); })) LogFailure(fault->what());
  if (!SiteContext.NameDatabase) OpenNameWorkWithoutWeights();
  ReadList();
  to_first_row_ = true;
}

/// Goes on with the names of the chosen site, or begins with those of another one, none marked.
void NamesPresenter::FollowChosenSite() {
  if (ReadSteelIni(kSelectedDbNameKey) != SiteContext.SelectedDbName) CloseNameWork();
  BindChosenSite();
  head_ = ReadHead();
  if (!SiteContext.NameDatabase) return BeginWork();
  ReadList();
}

/// True where the work had ended under the screen and has begun anew: no line is the one that was meant.
bool NamesPresenter::BeginsAnew() {
  if (SiteContext.NameDatabase) return false;
  FollowChosenSite();
  return true;
}

Database& NamesPresenter::Names() {
  BeginsAnew();
  return *SiteContext.NameDatabase;
}

/// The tally screen has closed the site's database; settings may have been changed from there.
void NamesPresenter::ResumeWork() {
  item_ = std::to_string(Settings.ComparisonKind);
  message_ = kUsual;
  FollowChosenSite();
}

void NamesPresenter::ReadList() {
  names_ = ReadNames(Names(), order_);
  selected_ = SelectedLines(Names());
}

NamesView NamesPresenter::View() {
  NamesView view{.head = head_,
                 .rows = NameRows(names_),
                 .colours = AlternateColours(),
                 .to_first_row = std::exchange(to_first_row_, false),
                 .selected = selected_,
                 .range_start = range_start_,
                 .range_end = range_end_,
                 .item = item_,
                 .message = message_,
                 .busy = busy_,
                 .focus = std::exchange(focus_, {}),
                 .left = left_};
  return view;
}

void NamesPresenter::Flip(std::size_t row) {
  message_ = kUsual;
  if (BeginsAnew() || row >= names_.size() || !names_[row].number) return;
  MarkNames(Names(), std::array{*names_[row].number}, !names_[row].marked);
  ReadList();
}

void NamesPresenter::Sort() {
  message_ = kUsual;
  BeginsAnew();
  order_ = order_ == NameOrder::by_number ? NameOrder::by_name : NameOrder::by_number;
  ReadList();
  to_first_row_ = true;
}

void NamesPresenter::EnterRangeStart() {
  const std::int32_t start = NumberIn(range_start_);
  if (start <= 0) {
    focus_ = kItemBox;
    return;
  }
  if (!HasName(Names(), start)) {
    MsgBox("該当する登録名がありません", "登録名なし");
    focus_ = kRangeStartBox;
    return;
  }
  focus_ = kRangeEndBox;
  message_ = kAsksForEnd;
}

void NamesPresenter::EnterRangeEnd() {
  const std::int32_t start = NumberIn(range_start_);
  const std::int32_t end = NumberIn(range_end_);
  if (start <= 0 || end < start) {
    focus_ = start <= 0 ? kRangeStartBox : kRangeEndBox;
    return;
  }
  if (BeginsAnew()) return;
  MarkNamesBetween(Names(), start, end);
  ReadList();
  focus_ = kNameTallyButton;
  message_ = kRangeTaken;
}

void NamesPresenter::BackToRangeStart() {
  focus_ = kRangeStartBox;
  message_ = kAsksAgain;
}

void NamesPresenter::EnterItem() {
  const std::int32_t item = NumberIn(item_);
  if (item < kFirstItem || item > kLastItem) {
    focus_ = kItemBox;
    return;
  }
  SaveSetting(kComparisonKindKey, item);
  Settings.ComparisonKind = item;
  item_ = std::to_string(item);
  focus_ = kNameGrid;
  message_ = kUsual;
}

void NamesPresenter::Reach(std::string_view control) {
  if (message_ != WordsKeptAt(control)) message_ = WordsOf(control);
}

void NamesPresenter::SendToTally(TallyOfNames tally) {
  // Should another site have been chosen, its tally would be of all its names: no mark of it has been taken
  // away yet.
  FollowChosenSite();
  if (MarkedNumbers(Names()).empty()) {
    MsgBox(std::string(kNoNameChosen) + "\r　　", "登録名未選択");
    return;
  }
  const bool by_shape = tally == TallyOfNames::by_shape;
  const std::function<void()>& open = by_shape ? parts_.open_shapes : parts_.open_tally;
  if (!open) return SayNotReady(by_shape ? "形状別" : "集計", kNamesTitle);
  Selection.TallyKind = by_shape ? TallyKind::shape : TallyKind::names;
  try {
    OpenTally(open);
  } catch (const Fault&) {
    // The list goes on as far as it can; the first fault is the one that is told.
    if (const auto second = PassOverFaults([this] { ResumeWork(); })) LogFailure(second->what());
    throw;
  }
  ResumeWork();
}

void NamesPresenter::OpenTally(const std::function<void()>& open) {
  const AtEnd done([this] { busy_ = false; });
  busy_ = true;
  if (show_) show_();
  open();
}

void NamesPresenter::SaveCsv() {
  if (!parts_.save_csv) return SayNotReady("CSV保存", kNamesTitle);
  parts_.save_csv(ReadNames(Names(), NameOrder::by_number));
}

void NamesPresenter::Leave() {
  if (std::exchange(left_, true)) return;
  const AtEnd closed([] { SiteContext.WorkDatabase.reset(); });
  CloseNameWork();
}

}  // namespace rbt
