// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "session/panels/print_panel_presenter.h"
#include "session/result/range_input.h"
#include "session/result/result_screen.h"
#include "session/result/result_view.h"

namespace rbt {

/// What a print button prints beside the deformed bars.
enum class SheetBody { with_ulbon, deformed_alone };

/// A result screen without its window: what each of the user's intents does, and what the screen shows then.
/// A tally's grid of diameters by weights is narrowed, raised, printed and passed on; a scoped screen asks
/// for its range first. An intent that the screen cannot serve now has its button out of sight or out of
/// reach. Every intent may throw what its tally, report or setting throws; the view is whole all the same,
/// and as it was before where the user has stopped the tally.
class ResultPresenter {
 public:
  /// Loads: binds the site, sets the selection's defaults, then runs the tally and fills the grid, or fills
  /// the range in. Throws what keeps it from that.
  ResultPresenter(const ResultScreen& screen, ResultParts parts);

  const ResultScreen& Screen() const { return screen_; }
  /// What the screen shows now. The focus is asked for once: the next view leaves it where it is.
  ResultScreenView View();
  /// Called in the midst of an intent that takes its time, with a view to show meanwhile.
  void OnShow(std::function<void()> show) { show_ = std::move(show); }

  // The selection; each runs the tally anew.
  void Recalculate();
  void ChooseKinds();
  void ChooseForms();
  void CycleHoops();
  void CyclePlates();

  // The Ulbon rows.
  void ShowUlbonView();
  void BeginUplift();
  void TypeUplift(std::string text) { filters_.uplift.text = std::move(text); }
  /// The whole part of what was typed raises the rows, nothing typed counts as 0.
  void TakeUplift();
  void RestoreValues();

  // The range of a scoped screen.
  void TypeRange(std::size_t box, std::string text) { range_->Type(box, std::move(text)); }
  /// Enter in a box: on to the next when it passes its test; in the last one the range is taken.
  void EnterRangeBox(std::size_t box);
  /// All tests once more, since Tab and the mouse pass boxes by, then the tally. Nothing when there is no
  /// range to take.
  void TakeRange();
  /// The input has left the boxes: what was typed there and not taken goes, beside a result the boxes tell
  /// the range that it is of.
  void LeaveRange();
  /// Back to the input of a range, with all filters reset.
  void AskForRange();

  // Printing.
  void OpenPrint(SheetBody body);
  void Print(ReportPaper paper);
  /// The Ulbon report with today's date, without the panel.
  void PrintUlbonOfToday();
  void OpenSettings();
  void ClosePrint();
  PrintPanelPresenter& PrintPanel() { return print_panel_; }

  void ShowDetail();
  /// Keeps the tally that is shown and asks for the site to be added; the sum is shown then, or the bound
  /// site alone where none is chosen. A fault of the other site leaves what was shown. Nothing while what is
  /// shown cannot be added to.
  void ToggleAccumulation();
  void ShowPlan();
  /// One step back: from the box of the uplift, else from the Ulbon rows to the whole tally, else off the
  /// screen.
  void TurnBack();
  /// Once: the selection is as the menu expects it and the site database closed.
  void Leave();

 private:
  void Load();
  void FirstRun();
  void BeginWithDefaults();
  void ReopenSite();
  void Add(const AddedSite& site);
  void ShowSum(TallyResult sum, const AddedSite& site);
  bool MayBeAddedTo() const;
  /// What is shown is the sum of several sites.
  bool IsSum() const { return result_.origin == ResultOrigin::accumulated; }
  void ShowNormalView();
  void GiveUpUplift();
  void RunRange();
  bool Passes(std::size_t box);
  void ResetFilters();
  void ShowStage();

  void Stoppable(const std::function<void()>& intent);
  void Tally(const std::function<void()>& before = {});
  void Fill();
  void Rerun(const std::function<void()>& change);
  void TellKinds();
  void TellForms();
  void TellModes();
  void OfferModes();
  void DecideAvailability();

  Papers PapersNow() const;
  PrintOrder Order(ReportPaper paper, bool ulbon) const;
  bool PrintSheet(const PrintOrder& order);
  void SayNotReady(std::string_view what) const;

  void FocusOn(FocusTarget target, std::size_t box = 0) { focus_ = {target, box}; }
  void FocusWork();
  FilterView Filters() const;
  std::string_view PrintCaption() const;
  void SetMainButtons(ResultScreenView& view) const;

  ResultScreen screen_;
  ResultParts parts_;
  std::function<void()> show_;
  std::unique_ptr<RangeInput> range_;  ///< null on the bulk screen
  PrintPanelPresenter print_panel_;

  HeadView head_;
  FilterView filters_;
  std::string taken_uplift_;  ///< the text that raises the rows, as it was taken last
  TallyResult result_;        ///< what the screen shows, and prints
  GridRows rows_;
  std::vector<std::size_t> totals_;
  std::optional<RowColours> colours_;
  std::string notice_;
  std::string added_sites_;  ///< to the bound one, in the sum that is shown
  bool ulbon_view_ = false;
  bool tally_ran_ = false;
  bool result_shown_ = true;  ///< filters and grid
  bool range_shown_ = true;
  bool offers_print_ = true;  ///< the picture was whole when it was last looked at
  bool busy_ = false;
  bool left_ = false;
  FocusRequest focus_;
};

}  // namespace rbt
