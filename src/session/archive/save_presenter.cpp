// SPDX-License-Identifier: MIT
#include "session/archive/save_presenter.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

#include <fmt/format.h>

#include "archive/store/save_tally.h"
#include "archive/store/saved_name.h"
#include "archive/store/site_file.h"
#include "platform/failure_log.h"
#include "platform/pass_over_faults.h"
#include "platform/system/clock.h"
#include "platform/system/message.h"
#include "platform/text/characters.h"
#include "session/archive/no_data.h"
#include "session/panels/not_ready.h"
#include "shell/config/settings.h"

namespace rbt {

namespace {

constexpr std::array<std::string_view, 6> kKinds{"一括集計",         "形状別一括集計", "頁行別集計",
                                                 "形状別頁行別集計", "階別集計",       "部位別集計"};

constexpr std::string_view kSameNameTitle = "同じデータがあります";
constexpr std::string_view kReplaceQuestion = "同じ名前があります\n前のデータを削除して上書きしますか?";
constexpr std::string_view kOtherName = "違う名前を入力してください";
constexpr std::string_view kSaveQuestionTitle = "保存の確認";
constexpr std::string_view kWriteFailed = "書き込みに失敗しました。終了します。";

}  // namespace

SavePresenter::SavePresenter(TallyResult result, SavedMemos memos, SaveParts parts)
    : result_(std::move(result)),
      memos_(std::move(memos)),
      parts_(std::move(parts)),
      with_13m_(Settings.Use13mColumn == 1),
      list_(SavedTallies(*SiteFile(), result_.kind, with_13m_)),
      name_(ProposedName(result_, Now(), Trim(memos_[0]))) {}

SaveView SavePresenter::View() {
  SaveView view;
  view.kind = kKinds.at(static_cast<std::size_t>(result_.kind));
  view.names.reserve(list_.size());
  for (const SavedTally& saved : list_) view.names.push_back(saved.name);
  view.name = name_;
  view.memos = memos_;
  view.offers_memos = !IsOfFloors(result_.kind);
  view.keeps_memos = keeps_memos_;
  view.focus_on_name = std::exchange(focus_on_name_, false);
  view.left = left_;
  return view;
}

bool SavePresenter::TakesName(std::string_view text) const {
  return !RefusedCharacter(InsertedText(name_, text));
}

void SavePresenter::TypeName(std::string text) {
  if (const auto refusal = RefusedCharacter(InsertedText(name_, text))) {
    MsgBox(refusal->text, refusal->title);
    return;
  }
  name_ = std::move(text);
}

std::optional<std::string> SavePresenter::NameToSave() {
  const auto refused = [this](const std::optional<NameRefusal>& refusal) {
    if (!refusal) return false;
    MsgBox(refusal->text, refusal->title);
    name_.clear();
    focus_on_name_ = true;
    return true;
  };
  if (refused(RefusedLength(name_))) return std::nullopt;
  const std::string name = name_.empty() && selected_ ? list_.at(*selected_).name : name_;
  if (refused(RefusedEmptiness(name))) return std::nullopt;
  return std::string(Trim(name));
}

std::optional<std::vector<SavedTally>> SavePresenter::EntriesToReplace(const std::string& name) {
  std::vector<SavedTally> same;
  std::copy_if(list_.begin(), list_.end(), std::back_inserter(same),
               [&](const SavedTally& saved) { return IsSameName(saved.name, name); });
  if (same.empty()) return same;
  const MessageAnswer answer = MsgBox(kReplaceQuestion, kSameNameTitle, MessageButtons::yes_no_cancel);
  if (answer == MessageAnswer::yes) return same;
  if (answer == MessageAnswer::no) name_ = kOtherName;
  focus_on_name_ = true;
  return std::nullopt;
}

void SavePresenter::Save() {
  const std::optional<std::string> name = NameToSave();
  if (!name) return;
  const auto replaced = EntriesToReplace(*name);
  if (!replaced) return;
  const std::string question = fmt::format("[ {} ] を保存しますか？", *name);
  if (MsgBox(question, kSaveQuestionTitle, MessageButtons::yes_no) != MessageAnswer::yes) {
    focus_on_name_ = true;
    return;
  }
  Write(*name, *replaced);
  left_ = true;
}

void SavePresenter::Write(const std::string& name, const std::vector<SavedTally>& replaced) {
  bool has_rows = true;
  const auto fault = PassOverFaults([&] {
    const SaveOrder order{.key = SavedKeyOf(Now()),
                          .name = name,
                          .memos = keeps_memos_ ? memos_ : SavedMemos(),
                          .supply = ReadBarOrigins(),
                          .with_13m = with_13m_};
    has_rows = SaveTally(*SiteFile(), result_, order, replaced);
  });
  if (fault) {
    LogFailure(fault->what());  // the message does not tell why
    MsgBox(kWriteFailed, kSaveTitle, MessageButtons::ok_to_warning);
  } else if (!has_rows) {
    MsgBox(kNoData, kNoDataTitle);
  }
}

void SavePresenter::ExportCsv() {
  if (!parts_.export_csv) return SayNotReady("CSV保存", kSaveTitle);
  parts_.export_csv({.result = result_, .memos = memos_, .data_name = std::string(Trim(name_))});
}

}  // namespace rbt
