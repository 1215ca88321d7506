// SPDX-License-Identifier: MIT
#pragma once

#include "reports/forms/report_forms.h"
#include "session/panels/print_or_show.h"

namespace rbt {

/// A purchase list that a print button asks for.
struct DetailOrder {
  TallyResult result;  ///< what the screen shows
  ReportPaper paper = ReportPaper::a4y;
  DateTexts date;
  DetailArguments detail;
  bool preview = false;  ///< to be looked at, not to be printed
};

/// Draws the list of the paper and of the setting 明細画面重量表示, and prints or shows it as `PrintOrShow`
/// does; returns what that returns.
std::string CarryOut(const DetailOrder& order, const Preview& preview);

}  // namespace rbt
