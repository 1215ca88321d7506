// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "archive/csv/csv_subject.h"
#include "archive/store/saved_tallies.h"
#include "tally/tally_result.h"

namespace rbt {

/// What the save dialog leans on.
struct SaveParts {
  /// The CSV dialog; empty: not ready, and its button says so.
  std::function<void(CsvOfTally)> export_csv;
};

/// All that `SaveFiles` shows.
struct SaveView {
  std::string_view kind;           ///< which tally is saved
  std::vector<std::string> names;  ///< the earlier saves of its kind, the newest first
  std::string name;
  SavedMemos memos;
  bool offers_memos = true;  ///< whether memos are kept can be chosen
  bool keeps_memos = true;
  bool focus_on_name = false;  ///< the name takes the focus, all of it selected; asked for once
  bool left = false;           ///< the dialog is to be closed
};

/// The dialog `SaveFiles` without its window: gives a result a name and saves it in the site. An intent may
/// throw what reading the list throws.
class SavePresenter {
 public:
  /// Reads the list and proposes a name. `memos`: those of the calling screen, whose first one is the
  /// sub-project text.
  SavePresenter(TallyResult result, SavedMemos memos, SaveParts parts = {});

  SaveView View();

  const std::string& Name() const { return name_; }
  /// False for an edited name whose new characters cannot be taken.
  bool TakesName(std::string_view text) const;
  /// The name was edited: one that cannot be taken is told, and the old one stays.
  void TypeName(std::string text);
  void TypeMemo(std::size_t index, std::string text) { memos_.at(index) = std::move(text); }
  void KeepMemos(bool keep) { keeps_memos_ = keep; }
  /// An entry of the list is selected, or none.
  void Select(std::optional<std::size_t> entry) { selected_ = entry; }

  /// Saves under the name, or, where it is empty, under that of the selected entry; asks first, and before
  /// one of that name is replaced.
  void Save();
  /// Hands the tally on with the memos and the name as they stand.
  void ExportCsv();
  void Leave() { left_ = true; }

 private:
  std::optional<std::string> NameToSave();
  /// The entries that the name replaces; nothing when the user wants none replaced.
  std::optional<std::vector<SavedTally>> EntriesToReplace(const std::string& name);
  void Write(const std::string& name, const std::vector<SavedTally>& replaced);

  TallyResult result_;
  SavedMemos memos_;
  SaveParts parts_;
  bool with_13m_;
  std::vector<SavedTally> list_;
  std::optional<std::size_t> selected_;
  std::string name_;
  bool keeps_memos_ = true;
  bool focus_on_name_ = true;
  bool left_ = false;
};

inline constexpr std::string_view kSaveTitle = "データの保存";

}  // namespace rbt
