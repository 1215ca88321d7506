// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>

#include "reports/forms/report_forms.h"
#include "session/panels/print_or_show.h"

namespace rbt {

/// A sheet that a print button of the floor or part screen asks for.
struct FloorPartOrder {
  const ReportForm& form;
  const TallyResult& result;  ///< what the screen shows
  DateTexts date;
  std::int32_t floor_or_part = 0;  ///< of a form that tells of one alone
  bool tells_printing = false;     ///< the small window stands while it is printed
};

/// Draws the sheet and prints it, or hands it to `preview` where it goes to the PDF device.
/// `tell_printing(true)` shows the small window, `tell_printing(false)` takes it away.
void CarryOut(const FloorPartOrder& order, const Preview& preview,
              const std::function<void(bool prints)>& tell_printing);

}  // namespace rbt
