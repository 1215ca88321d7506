// SPDX-License-Identifier: MIT
#include "shell/live/import_saved.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "platform/fault.h"
#include "platform/files/files.h"
#include "platform/files/system_error.h"
#include "platform/pass_over_faults.h"
#include "platform/system/message.h"
#include "shell/live/joined_saved.h"
#include "shell/live/old_copy.h"
#include "shell/live/second_copy.h"
#include "shell/live/working_copy.h"

namespace rbt {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kTitleOfImport = "データベースの取り込み";

/// The working copies of a file, which nobody writes while this lives, and what was saved in them.
class SavedInCopies {
 public:
  explicit SavedInCopies(const fs::path& file) : copies_{WorkingCopyBeside(file), WorkingCopyInCache(file)} {
    for (std::size_t i = 0; i < copies_.size(); ++i) Take(copies_[i], old_[i]);
  }

  void WriteInto(Database& store) const {
    if (!all_) return;
    const auto fault = PassOverFaultsOfContent([&] { WriteSavedHere(store, all_->saved); });
    if (fault) {
      throw FileFaultText(taken_.front(),
                          fmt::format("what was saved there cannot be taken over: {}", fault->what()));
    }
  }
  void RemoveThoseTaken() const {
    std::error_code it_stays_and_is_told_of;
    for (const fs::path& copy : taken_) fs::remove(copy, it_stays_and_is_told_of);
  }
  const std::vector<fs::path>& Unreadable() const { return unreadable_; }

 private:
  void Take(const fs::path& copy, OldCopy& old) {
    if (!IsTaken(copy)) return;
    std::optional<SavedAndJoined> saved = old.TakeFrom(copy);
    if (!saved) {
      unreadable_.push_back(copy);
      return;
    }
    taken_.push_back(copy);
    if (all_) {
      Join(*all_, *saved);
    } else {
      all_ = std::move(saved);
    }
  }

  std::array<fs::path, 2> copies_;
  std::array<OldCopy, 2> old_;
  std::vector<fs::path> taken_;
  std::vector<fs::path> unreadable_;
  std::optional<SavedAndJoined> all_;
};

}  // namespace

jet::ImportReport ImportInPlaceWithSaved(const fs::path& file, jet::OnDamage on_damage) {
  const SavedInCopies saved(file);
  jet::ImportExtras extras;
  extras.end = [&](Database& store, const jet::ImportReport&) { saved.WriteInto(store); };
  jet::ImportReport report = jet::ImportJetFileInPlace(file, on_damage, extras);
  saved.RemoveThoseTaken();
  for (const fs::path& copy : saved.Unreadable()) {
    MsgBox(fmt::format("{} を読めないので、そこに保存した集計は {} に取り込めません。\n"
                       "このファイルはそのまま残します。",
                       copy.string(), file.filename().string()),
           kTitleOfImport);
  }
  return report;
}

void TellOfSavedElsewhere(Database& store, const fs::path& file) {
  for (const SecondCopy& second : SecondCopies(file, &store)) {
    if (second.lacking == 0) continue;
    MsgBox(fmt::format("{} にない集計が {} 件、作業用の写し {} に残っています。", file.filename().string(),
                       second.lacking, second.copy.string()),
           kTitleOfImport);
  }
}

}  // namespace rbt
