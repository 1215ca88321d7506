// SPDX-License-Identifier: MIT
// What the print buttons of the floor and part screens do: which sheet each prints, which questions come
// between the sheets, and where the screen stands then.
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "platform/system/message.h"
#include "reports/floorpart/floor_reports.h"
#include "reports/floorpart/floorpart_texts.h"
#include "session/floorpart/floorpart_presenter.h"
#include "session/panels/not_ready.h"
#include "shell/context/reference_names.h"

namespace rbt {

namespace {

constexpr std::string_view kPrintTitle = "印刷確認";
constexpr std::string_view kAllPartsForm = "bui-zenbui";

constexpr std::array<FloorPartFocus, DateEntry::kBoxes> kDateBoxes{
    FloorPartFocus::year, FloorPartFocus::month, FloorPartFocus::day};

bool IsWanted(const std::string& name, const std::string& title) {
  return MsgBox(name + "を印刷しますか？", title, MessageButtons::yes_no) == MessageAnswer::yes;
}

}  // namespace

void FloorPartPresenter::Print(std::size_t sheet) {
  if (const std::optional<DateRefusal> refusal = print_panel_.Date().Refusal()) {
    MsgBox(refusal->text, screen_.title);
    focus_ = kDateBoxes.at(refusal->box);
    return;
  }
  if (!parts_.print) return SayNotReady("印字", screen_.title);
  switch (screen_.sheets[sheet]) {
    case FloorPartSheet::floor_range:
      return PrintSheet(ChosenFloorDetail());
    case FloorPartSheet::each_floor:
      return PrintEachFloor();
    case FloorPartSheet::floor_totals:
      PrintSheet("kai-goukei");
      filters_locked_ = HoseiZumi;
      return ClosePrint();
    case FloorPartSheet::floor_blocks:
      return PrintSheet("kai-bui-futo");
    case FloorPartSheet::all_parts:
      return PrintSheet(kAllPartsForm);
    case FloorPartSheet::each_part:
      return PrintEachPart();
    case FloorPartSheet::part_totals:
      PrintSheet("bui-goukei");
      return ClosePrint();
  }
}

void FloorPartPresenter::PrintSheet(std::string_view form, std::int32_t floor_or_part) const {
  PrintSheet(FindReportForm(form), floor_or_part);
}

void FloorPartPresenter::PrintSheet(const ReportForm& form, std::int32_t floor_or_part) const {
  parts_.print({.form = form,
                .result = result_,
                .date = print_panel_.View().date,
                .floor_or_part = floor_or_part,
                .tells_printing = form.word == kAllPartsForm});
}

void FloorPartPresenter::PrintEachFloor() {
  const std::vector<std::int16_t> floors = ListedFloorsOf(result_);
  for (std::size_t i = 0; i < floors.size(); ++i) {
    if (!HasFloorWeight(result_, floors[i])) {
      TellFloorIsSkipped(floors[i]);
    } else if (IsWanted(PrintedFloorName(floors[i]), std::string(kPrintTitle))) {
      PrintSheet("kai-kakukai", floors[i]);
    }
    if (i + 1 < floors.size() && !GoesOnPrinting(MessageButtons::yes_no_default_no)) {
      filters_locked_ = false;  // a correction locks them behind the list of floors alone
      return;
    }
  }
}

/// Every part is asked for, with weight or not.
void FloorPartPresenter::PrintEachPart() {
  for (std::int32_t part = kFirstPart; part <= kOtherParts; ++part) {
    const std::string name = part == kOtherParts ? std::string(kOtherPartsLabel) : Get_BuiNa(part);
    if (IsWanted(name, name + "の印刷確認")) PrintSheet("bui-kakubui", part);
    if (part < kOtherParts && !GoesOnPrinting(MessageButtons::yes_no)) return;
  }
}

/// No leaves the print buttons.
bool FloorPartPresenter::GoesOnPrinting(MessageButtons buttons) {
  const MessageAnswer answer = MsgBox("印刷をつづけますか？", kPrintTitle, buttons);
  if (answer == MessageAnswer::no) ClosePrint();
  return answer != MessageAnswer::no;
}

}  // namespace rbt
