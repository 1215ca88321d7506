// SPDX-License-Identifier: MIT
#include "reports/comparison/taihi.h"

#include "reports/comparison/comparison_report.h"
#include "shell/context/reference_names.h"
#include "tally/selection.h"
#include "tally/ulbon_totals.h"

namespace rbt {

namespace {

void DrawSite(PrinterSurface& Printer, const ReportArguments& arguments, const ComparisonForm& form) {
  const ComparisonSheet sheet{ReadReportSite(),
                              arguments,
                              TallyGrid,
                              DiameterGradeNames(),
                              UlbonWeightSum(TallyGrid, arguments.Percent),
                              UlbonWeldSum(TallyGrid),
                              Selection.StartMode.hides_cuts};
  DrawComparison(Printer, form, sheet);
}

}  // namespace

void Taihi_A_A4T(PrinterSurface& Printer, const ReportArguments& arguments) {
  DrawSite(Printer, arguments, kTaihiAA4T);
}

void Taihi_A_A4Y(PrinterSurface& Printer, const ReportArguments& arguments) {
  DrawSite(Printer, arguments, kTaihiAA4Y);
}

void Taihi_A_B5Y(PrinterSurface& Printer, const ReportArguments& arguments) {
  DrawSite(Printer, arguments, kTaihiAB5Y);
}

void Taihi_B_A4T(PrinterSurface& Printer, const ReportArguments& arguments) {
  DrawSite(Printer, arguments, kTaihiBA4T);
}

void Taihi_B_A4Y(PrinterSurface& Printer, const ReportArguments& arguments) {
  DrawSite(Printer, arguments, kTaihiBA4Y);
}

void Taihi_B_B5Y(PrinterSurface& Printer, const ReportArguments& arguments) {
  DrawSite(Printer, arguments, kTaihiBB5Y);
}

void Taihi_C_A4T(PrinterSurface& Printer, const ReportArguments& arguments) {
  DrawSite(Printer, arguments, kTaihiCA4T);
}

void Taihi_C_A4Y(PrinterSurface& Printer, const ReportArguments& arguments) {
  DrawSite(Printer, arguments, kTaihiCA4Y);
}

void Taihi_C_B5Y(PrinterSurface& Printer, const ReportArguments& arguments) {
  DrawSite(Printer, arguments, kTaihiCB5Y);
}

}  // namespace rbt
