// SPDX-License-Identifier: MIT
#include "session/panels/site_head.h"

#include "data/reference.h"
#include "platform/numbers/number_mask.h"
#include "session/startup/startup.h"
#include "shell/context/run_state.h"
#include "shell/context/site_context.h"
#include "tally/selection.h"

namespace rbt {

void BindChosenSite() {
  StartOptions options;
  options.start_mode = Selection.StartMode;
  // The menu has bound the site; should another be selected since, no sheet may mix the two.
  FollowReadableSite(options);
  if (!SiteContext.MasterDatabase) OpenMasterDatabase();
}

HeadView ReadHead() {
  Database& master = *SiteContext.MasterDatabase;
  const SiteHead head = ReadSiteHead(master, SiteContext.SelectedDbName);
  return {.site_number = FormatNumber(std::int64_t{head.number}, "000"),
          .site_name = head.name,
          .client_code = std::to_string(head.client_code),
          .client_name = ClientName(master, head.client_code),
          .load_date = RunState.RunDate,
          .load_time = RunState.RunTime};
}

}  // namespace rbt
