// SPDX-License-Identifier: MIT
#include "session/accumulation/accumulation.h"

#include <utility>

#include "archive/accumulation/hozon.h"
#include "platform/failure_log.h"
#include "platform/pass_over_faults.h"
#include "session/startup/startup.h"
#include "shell/config/settings.h"
#include "shell/context/run_state.h"
#include "shell/context/site_context.h"
#include "shell/preparation/classified_schedule.h"
#include "tally/kinds/tally_kinds.h"
#include "tally/rows/bulk_tally.h"
#include "tally/site_sum.h"

namespace rbt {

namespace {

/// The bound site put aside, its databases open as they are, while another one is bound.
class SitePutAside {
 public:
  SitePutAside() : site_(std::exchange(SiteContext, SiteContextData())) {
    SiteContext.OnlyRead = site_.OnlyRead;
  }
  SitePutAside(const SitePutAside&) = delete;
  SitePutAside& operator=(const SitePutAside&) = delete;
  ~SitePutAside() {
    SiteContext = std::move(site_);
    RunState.HasHoopRows = has_hoop_rows_;
    RunState.HasAnchorPlateRows = has_anchor_plate_rows_;
  }

 private:
  SiteContextData site_;
  bool has_hoop_rows_ = RunState.HasHoopRows;
  bool has_anchor_plate_rows_ = RunState.HasAnchorPlateRows;
};

void BindOther(std::string_view file_name) {
  StartOptions options;
  options.start_mode = Selection.StartMode;
  options.site = file_name;
  FollowReadableSite(options);
}

TallyResult CountOther(std::string_view file_name) {
  const SitePutAside own;
  BindOther(file_name);
  const ClassifiedSchedule held(Selection.StartMode);
  return CountTally(TallyKind::bulk);
}

}  // namespace

void BeginAccumulation(const TallyResult& sum) {
  RunState.AccumulateFlag = 1;
  SaveSetting(kAccumulateFlagKey, 1);
  Save_Hozon(sum.Grid());
}

void EndAccumulation() {
  RunState.AccumulateFlag = 0;
  SaveSetting(kAccumulateFlagKey, 0);
  Delete_Hozon();
}

AddingStep::~AddingStep() {
  if (RunState.AccumulateFlag == 0) return;
  const auto fault = PassOverFaults(EndAccumulation);
  if (fault) LogFailure(fault->what());
}

TallyResult AddSite(std::string_view KasanDataPath) {
  const TallyTable before = Load_Hozon();
  TallyResult sum = SumOfSites(before, CountOther(KasanDataPath), BulkClosingRules());
  TallyGrid = sum.Grid();
  return sum;
}

}  // namespace rbt
