// SPDX-License-Identifier: MIT
#include "archive/csv/csv_site.h"

#include "data/reference.h"
#include "shell/config/settings.h"
#include "shell/context/reference_names.h"
#include "shell/context/site_context.h"

namespace rbt {

CsvSite ReadCsvSite(const CsvSubject& subject) {
  Database& master = *SiteContext.MasterDatabase;
  const SiteHead head = ReadSiteHead(master, SiteContext.SelectedDbName);
  CsvSite site;
  site.number = head.number;
  site.name = head.name;
  site.client = ClientName(master, head.client_code);
  site.with_13m = Settings.Use13mColumn == 1;
  const auto* tally = std::get_if<CsvOfTally>(&subject);
  if (tally == nullptr) return site;
  if (std::holds_alternative<TallyTable>(tally->result.tables)) {
    site.grades = DiameterGradeNames();
  } else {
    site.parts = NamesOfParts();
  }
  return site;
}

}  // namespace rbt
