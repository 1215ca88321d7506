// SPDX-License-Identifier: MIT
#include "reports/forms/print_buttons.h"

#include <algorithm>
#include <string>

#include "platform/fault.h"
#include "reports/ulbon/ulbon_report.h"
#include "shell/config/settings.h"

namespace rbt {

namespace {

auto ReportOf(const PrintButton& button, std::int32_t comparison_kind) {
  switch (comparison_kind) {
    case 1:
      return button.kind_a;
    case 2:
      return button.kind_b;
    default:
      return button.kind_c;
  }
}

}  // namespace

const PrintButton& FindPrintButton(std::string_view control) {
  const auto* found = std::find_if(PrintButtons.begin(), PrintButtons.end(),
                                   [&](const PrintButton& button) { return button.control == control; });
  if (found == PrintButtons.end()) {
    throw Fault(FaultKind::subscript_out_of_range, "print button " + std::string(control));
  }
  return *found;
}

void PrintComparison(const PrintButton& button, const ReportArguments& arguments) {
  PrintReport(button.orientation, button.paper_kind, [&](PrinterSurface& Printer) {
    ReportOf(button, ReadSetting(kComparisonKindKey))(Printer, Trimmed(arguments));
  });
}

void PrintUlbonReport(const ReportArguments& arguments) {
  PrintReport(kLandscape, kPaperKindA4,
              [&](PrinterSurface& Printer) { Ulbon_Report(Printer, Trimmed(arguments)); });
}

}  // namespace rbt
