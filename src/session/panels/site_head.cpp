// SPDX-License-Identifier: MIT
#include "session/panels/site_head.h"

#include "data/reference.h"
#include "platform/numbers/number_mask.h"
#include "shell/config/settings.h"
#include "shell/context/run_state.h"
#include "shell/context/site_context.h"

namespace rbt {

void BindChosenSite() {
  SelectSite(ReadSteelIni(kSelectedDbNameKey));
  OpenWorkDatabase();
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
