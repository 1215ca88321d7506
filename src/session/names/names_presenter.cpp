// SPDX-License-Identifier: MIT
#include "session/names/names_presenter.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

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
  const ClassifiedSchedule held(Selection.StartMode);
  // A summary that fails is not told: no weight is shown then, rather than one of former rows.
  PassOverFaultsOfContent([] { OpenNameWork(); });
  if (!SiteContext.NameDatabase) OpenNameWorkWithoutWeights();
  ReadList();
}

/// The tally screen has closed the site's database, and another site may have been chosen meanwhile.
void NamesPresenter::ResumeWork() {
  if (!SiteContext.WorkDatabase) BindChosenSite();
  head_ = ReadHead();
  if (!SiteContext.NameDatabase) return BeginWork();
  ReadList();
}

void NamesPresenter::ReadList() {
  names_ = ReadNames(*SiteContext.NameDatabase, order_);
  selected_ = SelectedLines(*SiteContext.NameDatabase);
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
  if (row >= names_.size() || !names_[row].number) return;
  MarkNames(*SiteContext.NameDatabase, std::array{*names_[row].number}, !names_[row].marked);
  ReadList();
}

void NamesPresenter::Sort() {
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
  if (!HasName(*SiteContext.NameDatabase, start)) {
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
  MarkNamesBetween(*SiteContext.NameDatabase, start, end);
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
  if (control == kRangeStartBox) {
    // The way back from the end has words of its own.
    if (message_ != kAsksAgain) message_ = kAsksForStart;
  } else if (control == kItemBox) {
    message_ = kAsksForItem;
  } else if (control != kRangeEndBox && message_ != kRangeTaken) {
    message_ = kUsual;
  }
}

void NamesPresenter::SendToTally(TallyOfNames tally) {
  if (MarkedNumbers(*SiteContext.NameDatabase).empty()) {
    MsgBox("登録名を選択して下さい\r　　", "登録名未選択");
    return;
  }
  const bool by_shape = tally == TallyOfNames::by_shape;
  const std::function<void()>& open = by_shape ? parts_.open_shapes : parts_.open_tally;
  if (!open) return SayNotReady(by_shape ? "形状別" : "集計", kNamesTitle);
  Selection.TallyKind = by_shape ? TallyKind::shape : TallyKind::names;
  {
    const AtEnd done([this] { busy_ = false; });
    busy_ = true;
    if (show_) show_();
    open();
  }
  ResumeWork();
}

void NamesPresenter::SaveCsv() {
  if (!parts_.save_csv) return SayNotReady("CSV保存", kNamesTitle);
  parts_.save_csv(ReadNames(*SiteContext.NameDatabase, NameOrder::by_number));
}

void NamesPresenter::Leave() {
  if (std::exchange(left_, true)) return;
  const AtEnd closed([] { SiteContext.WorkDatabase.reset(); });
  CloseNameWork();
}

}  // namespace rbt
