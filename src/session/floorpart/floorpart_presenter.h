// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/system/message.h"
#include "session/floorpart/floor_input.h"
#include "session/floorpart/floorpart_screen.h"
#include "session/floorpart/floorpart_view.h"
#include "session/panels/print_panel_presenter.h"
#include "tally/tally_result.h"

namespace rbt {

/// The floor or part screen without its window: it asks for floors, tallies them, filters, raises, corrects
/// by hand. An intent that the screen cannot serve now has its button out of sight or out of reach. Every
/// intent may throw what its tally or setting throws; the view is whole all the same, and as it was before
/// where the user has stopped the tally.
class FloorPartPresenter {
 public:
  /// Loads: binds the site, sets the selection's defaults, looks for the floors of the schedule. Throws what
  /// keeps it from that.
  FloorPartPresenter(const FloorPartScreen& screen, FloorPartParts parts);

  const FloorPartScreen& Screen() const { return screen_; }
  /// What the screen shows now. Focus and beep are asked for once.
  FloorPartView View();
  /// Called in the midst of an intent that takes its time, with a view to show meanwhile.
  void OnShow(std::function<void()> show) { show_ = std::move(show); }
  /// The form has come up: an empty schedule is told, and the screen left.
  void Activate();

  // The floors.
  void TypeFloor(std::size_t box, std::string text) { input_.Type(box, std::move(text)); }
  /// Enter in a box: on to the next when it passes, in the last one to the button that tallies.
  void EnterFloorBox(std::size_t box);
  void EnterAllFloors();
  void EnterSpecialFloor(std::int16_t floor);
  /// Written into the setting at once.
  void ChooseWeight(bool installed);
  /// Tallies the floors of the boxes, the special ones as the user answers.
  void Run();
  /// Back to the input, everything reset but what stands in the boxes.
  void AskForFloors();

  // The selection; each runs the tally anew.
  void ChooseKinds();
  void ChooseForms();
  void CycleHoops();
  void CyclePlates();

  // Raising by a percentage, and correcting by hand.
  /// Asks which of the two it is to be.
  void BeginChange();
  void BeginCorrection();
  void TypeUplift(std::string text);
  /// Tallies once more, raised, with the special floors of before.
  void TakeUplift();
  /// Grid cells count from the top left one.
  bool MayCorrect(int row, int column) const;
  /// True for digits and commas that make a weight.
  static bool IsWeight(std::string_view text);
  void Correct(int row, int column, std::string_view text);
  void EndCorrection();

  // Printing, saved tallies, the way out.
  void OpenPrint();
  /// A print button, in the order of the screen's sheets.
  void Print(std::size_t sheet);
  void ClosePrint();
  PrintPanelPresenter& PrintPanel() { return print_panel_; }
  void Save() const;
  /// Shows a saved tally in place of the one that was tallied: it is printed and saved, not filtered, raised
  /// or corrected, until the next run.
  void Load();
  /// Once: the selection is as the menu expects it and the site database closed.
  void Leave();

 private:
  /// What the user is about to do to the figures.
  enum class Change { none, uplift, correction };

  void ReadSchedule();
  void TakeAllBack();
  void Stoppable(const std::function<void()>& intent);
  void AskAndRun(const FloorRange& range);
  void RunOver(const FloorRange& range, SpecialMask specials);
  void Tally();
  void Count();
  void ShowLoaded(TallyResult result);
  void BackToInput();
  void Fill();
  void TellModes();
  void OfferModes();
  void StampTime();

  void PrintSheet(std::string_view form, std::int32_t floor_or_part = 0) const;
  void PrintSheet(const ReportForm& form, std::int32_t floor_or_part = 0) const;
  void PrintEachFloor();
  void PrintEachPart();
  bool GoesOnPrinting(MessageButtons buttons);

  double& Uplift() const { return Selection.*screen_.uplift; }
  void SetUplift(std::string text);
  bool HoldsAllFloors() const;
  void Refuse(FloorPartFocus stays_on);
  FilterView Filters() const;
  void SetMainButtons(FloorPartView& view) const;

  FloorPartScreen screen_;
  FloorPartParts parts_;
  std::function<void()> show_;

  bool empty_ = true;   ///< the schedule has no rows
  FloorExtent extent_;  ///< of a schedule with rows
  FloorInput input_{extent_};
  PrintPanelPresenter print_panel_;

  HeadView head_;
  std::string scope_;
  bool installed_ = false;  ///< 階別集計定取
  FilterView filters_;
  UpliftView uplift_;

  TallyResult result_;  ///< what the screen shows
  FloorPartGridView grid_;
  bool result_shown_ = false;

  std::optional<FloorRange> range_;  ///< that of the result
  std::optional<FloorRange> all_;    ///< AllStart and AllEnd: what the button for all floors entered
  std::int32_t SpecialSeen = 0;   ///< compares equal to `SpecialTaken` when all special floors with rows ...
  std::int32_t SpecialTaken = 0;  ///< ... were taken into a range of all floors
  bool HoseiZumi = false;         ///< a correction by hand is held
  bool LoadZumi = false;          ///< the result is a saved tally
  Change change_ = Change::none;
  bool filters_locked_ = false;  ///< the list of floors was printed over a correction, which must stay

  bool busy_ = false;
  bool left_ = false;
  bool beep_ = false;
  FloorPartFocus focus_ = FloorPartFocus::start;
};

}  // namespace rbt
