// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "archive/store/load_tally.h"
#include "archive/store/saved_tallies.h"

namespace rbt {

/// Where the focus of `LoadFiles` goes.
enum class LoadFocus { stays, list, new_name };

/// All that `LoadFiles` shows.
struct LoadView {
  std::vector<std::string> entries;  ///< name, two blanks, メモ１; the newest first
  std::string_view notice;           ///< in place of entries, where there are none
  std::vector<std::size_t> selected;
  bool naming = false;  ///< a new name is being typed; nothing else can be done meanwhile
  std::string new_name;
  std::string_view rename_caption;
  LoadFocus focus = LoadFocus::stays;  ///< asked for once
  bool left = false;                   ///< the dialog is to be closed
};

/// The dialog `LoadFiles` without its window: the saved tallies of a kind, of which one is loaded or renamed,
/// or some are deleted. An intent may throw what the store throws; the list then stands as it was read last.
class LoadPresenter {
 public:
  /// Reads the list.
  explicit LoadPresenter(TallyKind kind);

  LoadView View();
  /// The entries that are selected now, in their order.
  void Select(std::vector<std::size_t> entries) { selected_ = std::move(entries); }
  /// The new name, edited as the name of a save is.
  const std::string& NewName() const { return new_name_; }
  bool TakesNewName(std::string_view text) const;
  void TypeNewName(std::string text);

  /// The first of the selected ones; the dialog ends with it.
  void Load();
  /// Every selected one, after one question.
  void Delete();
  /// Asks for a new name at the first press, gives it at the second.
  void Rename();
  /// One step back: from the new name, else from the dialog.
  void Leave();

  /// What was loaded, also where it has no rows; nothing when nothing was.
  std::optional<LoadedTally> TakeLoaded() { return std::move(loaded_); }

 private:
  bool RequireSelection();
  void ReadList();
  /// A store's refusal is told, and the list is read again.
  void Change(const std::function<void()>& change);
  bool RequireNewName();
  void BeginNaming();
  void EndNaming();

  TallyKind kind_;
  bool with_13m_;
  std::vector<SavedTally> list_;
  std::vector<std::size_t> selected_;
  bool naming_ = false;
  std::string new_name_;
  LoadFocus focus_ = LoadFocus::list;
  bool left_ = false;
  std::optional<LoadedTally> loaded_;
};

inline constexpr std::string_view kLoadTitle = "データの読込";

}  // namespace rbt
