// SPDX-License-Identifier: MIT
#include "session/archive/load_presenter.h"

#include <utility>

#include <fmt/format.h>

#include "archive/store/manage_tallies.h"
#include "archive/store/saved_name.h"
#include "archive/store/site_file.h"
#include "platform/pass_over_faults.h"
#include "platform/system/message.h"
#include "platform/text/characters.h"
#include "session/archive/no_data.h"
#include "session/panels/fault_words.h"
#include "shell/config/settings.h"
#include "shell/context/run_state.h"

namespace rbt {

namespace {

constexpr std::string_view kNothingSaved = "過去のデータがありません";
constexpr std::string_view kRenameCaption = "名前変更(F3)";
constexpr std::string_view kUpdateCaption = "更新(Ｆ３)";

bool Asked(const std::string& question, std::string_view title) {
  return MsgBox(question, title, MessageButtons::yes_no) == MessageAnswer::yes;
}

}  // namespace

LoadPresenter::LoadPresenter(TallyKind kind) : kind_(kind), with_13m_(Settings.Use13mColumn == 1) {
  ReadList();
}

void LoadPresenter::ReadList() {
  selected_.clear();
  list_ = SavedTallies(*SiteFile(), kind_, with_13m_);
}

LoadView LoadPresenter::View() {
  LoadView view;
  view.entries.reserve(list_.size());
  for (const SavedTally& saved : list_)
    view.entries.push_back(fmt::format("{}  {}", saved.name, saved.memos[0]));
  if (list_.empty()) view.notice = kNothingSaved;
  view.selected = selected_;
  view.naming = naming_;
  view.new_name = new_name_;
  view.rename_caption = naming_ ? kUpdateCaption : kRenameCaption;
  view.focus = std::exchange(focus_, LoadFocus::stays);
  view.left = left_;
  return view;
}

bool LoadPresenter::RequireSelection() {
  focus_ = LoadFocus::list;
  if (!selected_.empty()) return true;
  MsgBox("データが選択されていません。", "未選択");
  return false;
}

void LoadPresenter::Load() {
  if (naming_ || !RequireSelection()) return;
  const SavedTally& saved = list_.at(selected_.front());
  if (!Asked(fmt::format(" [ {} ]  を読み込みます", saved.name), "読み込みの確認 ")) return;
  loaded_ = LoadTally(*SiteFile(), saved, with_13m_);
  if (!loaded_->has_rows) MsgBox(kNoData, kNoDataTitle);
  left_ = true;
}

void LoadPresenter::Change(const std::function<void()>& change) {
  const auto fault = PassOverFaults(change);
  // Who gave up waiting knows that nothing was changed.
  const bool is_known = fault && RunState.GaveUpWaiting && IsOfLock(*fault);
  if (fault && !is_known) MsgBox(FaultWords(*fault), kLoadTitle, MessageButtons::ok_to_warning);
  ReadList();
}

void LoadPresenter::Delete() {
  if (naming_ || !RequireSelection()) return;
  std::vector<SavedTally> chosen;
  chosen.reserve(selected_.size());
  for (const std::size_t entry : selected_) chosen.push_back(list_.at(entry));
  const std::string question = chosen.size() > 1
                                   ? "選択された複数のデータを削除しますか?"
                                   : fmt::format("[ {} ] のデータを削除しますか?", chosen.front().name);
  if (!Asked(question, "削除の確認")) return;
  Change([&] {
    // Of tallies with one name the newest goes first, whichever was chosen.
    for (const SavedTally& each : chosen) {
      const std::vector<SavedTally> now = SavedTallies(*SiteFile(), kind_, with_13m_);
      const SavedTally* newest = FindSaved(now, each.name);
      DeleteTally(*SiteFile(), newest != nullptr ? *newest : each);
      MsgBox(fmt::format("[ {} ] のデータを削除しました", each.name), "削除終了");
    }
  });
}

// Renaming.

bool LoadPresenter::TakesNewName(std::string_view text) const {
  return !RefusedCharacter(InsertedText(new_name_, text));
}

void LoadPresenter::TypeNewName(std::string text) {
  if (const auto refusal = RefusedCharacter(InsertedText(new_name_, text))) {
    MsgBox(refusal->text, refusal->title);
    return;
  }
  new_name_ = std::move(text);
}

void LoadPresenter::BeginNaming() {
  if (!RequireSelection()) return;
  if (selected_.size() > 1) {
    MsgBox("名前の変更は一つしかできません", "一つにしてください");
    return;
  }
  naming_ = true;
  new_name_ = list_.at(selected_.front()).name;
  focus_ = LoadFocus::new_name;
}

void LoadPresenter::EndNaming() {
  naming_ = false;
  new_name_.clear();
  focus_ = LoadFocus::list;
}

bool LoadPresenter::RequireNewName() {
  focus_ = LoadFocus::new_name;
  if (const auto refusal = RefusedLength(new_name_)) {
    MsgBox(refusal->text, refusal->title);
    new_name_.clear();
    return false;
  }
  if (Trim(new_name_).empty()) {
    MsgBox("名前が入力されていません", "名前未入力");
    return false;
  }
  if (FindSaved(list_, new_name_) != nullptr) {
    MsgBox("同じ名前があります\n違う名前を入力してください", "データ名の変更");
    return false;
  }
  return true;
}

void LoadPresenter::Rename() {
  if (!naming_) return BeginNaming();
  if (!RequireNewName()) return;
  const std::string name(Trim(new_name_));
  const SavedTally saved = list_.at(selected_.front());
  EndNaming();
  Change([&] {
    RenameTally(*SiteFile(), saved, name);
    MsgBox(fmt::format(" [ {} ] に変更しました", name), "名前の変更");
  });
}

void LoadPresenter::Leave() {
  if (naming_) return EndNaming();
  left_ = true;
}

}  // namespace rbt
