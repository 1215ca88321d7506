// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "reports/forms/report_forms.h"
#include "reports/frame/report_site.h"
#include "session/panels/print_or_show.h"
#include "tally/tally_result.h"

namespace rbt {

/// A sheet that a print button asks for.
struct PrintOrder {
  TallyResult result;  ///< what the screen shows
  ReportPaper paper = ReportPaper::a4y;
  bool ulbon = false;  ///< the Ulbon report, A4 landscape whatever the paper; else the comparison report of
                       ///< the setting 対比表項目
  std::int32_t body = 1;  ///< 1 with Ulbon and spiral rows, 0 deformed bars alone
  DateTexts date;
  std::string sub_project;
  bool preview = false;  ///< to be looked at, not to be printed
};

/// Draws the sheet from its result and the bound site, and prints it. What the user wants to look at first,
/// and what goes to the PDF device, is handed to `preview` instead, the printer being back as it was. Returns
/// the printer that the sheet was sent to, empty for the preview. Throws what keeps the sheet from the
/// printer; nothing is printed or shown then.
std::string CarryOut(const PrintOrder& order, const Preview& preview);

}  // namespace rbt
