// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "archive/store/load_tally.h"
#include "session/detail/detail_controls.h"
#include "session/detail/detail_order.h"
#include "session/detail/detail_view.h"
#include "session/panels/print_panel_presenter.h"

namespace rbt {

/// What the detail screen leans on. An empty one is not ready yet: its button says so.
struct DetailParts {
  std::function<void()> open_settings;  ///< SETJS
  /// Gives the printer that took the sheet, empty for none.
  std::function<std::string(const DetailOrder& order)> print;
  PrintPanelPresenter::AskPrinter choose_printer;  ///< in place of one that is not there
  /// The dialogs of saved tallies, on a list with its memos and on those of a kind.
  std::function<void(const TallyResult& result, const SavedMemos& memos)> save;
  std::function<std::optional<LoadedTally>(TallyKind kind)> load;  ///< nothing: none was loaded
};

/// The last counts of fittings that the user entered by hand. Sheets and tallies leave them alone.
struct CorrectionMarkers {
  std::int32_t cuts = 0;
  std::int32_t plates = 0;
  std::int32_t threads = 0;

  friend bool operator==(const CorrectionMarkers&, const CorrectionMarkers&) = default;
};

/// The detail screen `ZAIMEI` without its window: a result as a purchase list that the user raises, corrects,
/// restores and prints. It works on the place of the current result too, so that later saves see the changes;
/// the screen that opened it takes `Result` back. An intent whose button is out of reach does nothing. Every
/// intent may throw what its tally, report, count or setting throws; the list then is as it was.
class DetailPresenter {
 public:
  /// Loads the list of a result, whose kind says which tally restores it. All kinds of material are selected
  /// from now on. Throws what the head throws.
  DetailPresenter(TallyResult result, DetailParts parts);

  /// What the screen shows now. The focus is asked for once: the next view leaves it where it is.
  DetailView View();
  /// Called in the midst of an intent that takes its time, with a view to show meanwhile.
  void OnShow(std::function<void()> show) { show_ = std::move(show); }
  const TallyResult& Result() const { return result_; }
  const CorrectionMarkers& Markers() const { return markers_; }

  // Buttons and keys.
  void Press(DetailButton button);
  /// Esc: leaves a mode, or the screen.
  void Escape();
  /// Once, whatever the screen is at: a call of another program for it is answered.
  void Leave();

  // Percentage.
  /// False for a text that the box does not take: another key than those of a decimal number.
  bool TypePercent(std::string text);
  /// Enter: raises the bars by it, and the buttons are back.
  void TakePercent();

  // Counts in the grid, while it is edited.
  bool MayEdit(int line, int column) const;
  /// A cell was edited: false when it does not take the text, and shows its count again.
  bool EditCell(int line, int column, std::string_view text);

  // Fields; false for a text that they do not take.
  void TypeMemo(std::size_t index, std::string text) { memos_.at(index) = std::move(text); }
  /// "0" or "1", kept in the settings at once.
  bool TypeMemoPosition(std::string_view text);
  /// "0" or "1".
  bool TypeInstalled(std::string_view text);
  /// Kept in the settings at once.
  void ChooseDatePlace(DatePlace place);
  /// Date and preview.
  PrintPanelPresenter& PrintPanel() { return print_panel_; }

 private:
  bool IsWithinReach(DetailButton button) const;
  void BeginPercent();
  void BeginEditing();
  void RestoreValues();
  void OpenPrint();
  void ClosePrint();
  void Print(ReportPaper paper);
  void OpenSettings();
  void Save();
  void Load();

  void Take(TallyResult result);
  void BackToButtons(DetailButton focus);
  void FocusOn(std::string_view control) { focus_ = control; }
  void FocusOn(DetailButton button) { focus_ = RowOf(button).control; }

  TallyResult result_;
  DetailParts parts_;
  HeadView head_;
  std::string_view material_;
  CorrectionMarkers markers_;
  std::function<void()> show_;
  DetailMode mode_ = DetailMode::buttons;
  bool busy_ = false;
  std::string percent_;
  SavedMemos memos_;
  bool installed_ = false;
  PrintPanelPresenter print_panel_;
  std::string notice_;
  std::string_view focus_;
  bool left_ = false;
};

}  // namespace rbt
