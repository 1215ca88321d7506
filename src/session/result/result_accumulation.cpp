// SPDX-License-Identifier: MIT
// The result screen's sites that are added up.
#include <utility>
#include <variant>

#include <fmt/format.h>

#include "platform/pass_over_faults.h"
#include "platform/system/process.h"
#include "session/accumulation/accumulation.h"
#include "session/panels/at_end.h"
#include "session/result/result_presenter.h"
#include "shell/context/run_state.h"
#include "tally/selection.h"

namespace rbt {

/// A sum is of whole sites. A tally without Ulbon is none, and of a saved one the installed weights by cell
/// and the metres of thin bars, which the sum is made of, are not known.
bool ResultPresenter::MayBeAddedTo() const {
  return offers_print_ && !ulbon_view_ && result_.selection.IncludeUlbon && !result_.was_saved;
}

void ResultPresenter::ToggleAccumulation() {
  if (!parts_.choose_site) return SayNotReady("集計加算");
  if (!MayBeAddedTo()) return;
  const AddingStep step;
  if (RunState.AccumulateFlag == 0) {
    BeginAccumulation(result_);
  } else {
    EndAccumulation();
  }
  const SiteChoice choice = parts_.choose_site();
  const auto* const site = std::get_if<AddedSite>(&choice);
  if (site != nullptr && RunState.AccumulateFlag != 0) return Add(*site);
  // A stored sum that cannot be deleted is told once the screen is as it is to be without it.
  const auto fault = PassOverFaults([] {
    if (RunState.AccumulateFlag != 0) EndAccumulation();
  });
  if (std::holds_alternative<ProgramEnds>(choice)) {
    Leave();
  } else {
    ReopenSite();
  }
  if (fault) throw Fault(*fault);
}

/// As the screen opens; where it cannot open again, it is left. What was typed into the print panel stays.
void ResultPresenter::ReopenSite() {
  bool opened = false;
  const AtEnd left_if_not([&] {
    if (!opened) Leave();
  });
  ulbon_view_ = false;
  filters_ = {};
  taken_uplift_.clear();
  notice_.clear();
  Load();
  DecideAvailability();
  FocusWork();
  opened = true;
}

void ResultPresenter::Add(const AddedSite& site) {
  bool added = false;
  const AtEnd idle([&, before = Selection] {
    busy_ = false;
    filters_.accumulating = false;
    if (!added) Selection = before;
  });
  busy_ = true;
  filters_.accumulating = true;
  if (show_) show_();
  RunPendingEvents();
  SetSelectionDefaults();
  TallyResult sum = AddSite(site.KasanDataPath);
  added = true;
  ShowSum(std::move(sum), site);
  EndAccumulation();
}

/// The buttons of hoops and plates stay those of the bound site, which its filters tally.
void ResultPresenter::ShowSum(TallyResult sum, const AddedSite& site) {
  result_ = std::move(sum);
  ulbon_view_ = false;
  filters_.uplift = {};
  taken_uplift_.clear();
  BeginWithDefaults();
  TellModes();
  Fill();
  DecideAvailability();
  added_sites_ += fmt::format("{}{:03}　{}", added_sites_.empty() ? "" : "、", site.number, site.name);
  notice_ = "加算した現場：" + added_sites_;
  FocusWork();
}

}  // namespace rbt
