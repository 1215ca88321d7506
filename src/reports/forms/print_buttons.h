// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "platform/print/paper.h"
#include "platform/print/printer_surface.h"
#include "reports/comparison/taihi.h"
#include "reports/frame/print_frame.h"
#include "reports/frame/report_site.h"

namespace rbt {

/// A paper button of a print panel, with the comparison reports that it prints.
struct PrintButton {
  std::string_view control;
  std::int32_t orientation;
  std::int32_t paper_kind;
  std::string_view paper;  ///< "A4T"
  void (*kind_a)(PrinterSurface& Printer, const ReportArguments& arguments);
  void (*kind_b)(PrinterSurface& Printer, const ReportArguments& arguments);
  void (*kind_c)(PrinterSurface& Printer, const ReportArguments& arguments);
};

inline constexpr std::array<PrintButton, 3> PrintButtons{{
    {"btnA4T", kPortrait, kPaperKindA4, "A4T", Taihi_A_A4T, Taihi_B_A4T, Taihi_C_A4T},
    {"btnA4Y", kLandscape, kPaperKindA4, "A4Y", Taihi_A_A4Y, Taihi_B_A4Y, Taihi_C_A4Y},
    {"btnB5Y", kLandscape, kPaperKindB5, "B5Y", Taihi_A_B5Y, Taihi_B_B5Y, Taihi_C_B5Y},
}};

/// The button of a control's name; one that the table lacks throws `subscript out of range`.
const PrintButton& FindPrintButton(std::string_view control);

/// What a paper button does: the printer is set, the comparison report of the setting 対比表項目 (1 kind A, 2
/// kind B, any other kind C) is drawn with the arguments' texts trimmed, the printer is put back.
void PrintComparison(const PrintButton& button, const ReportArguments& arguments);
/// The same for the Ulbon report, on A4 landscape.
void PrintUlbonReport(const ReportArguments& arguments);

}  // namespace rbt
