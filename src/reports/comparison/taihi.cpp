// SPDX-License-Identifier: MIT
#include "reports/comparison/taihi.h"

#include "reports/comparison/comparison_report.h"
#include "shell/context/reference_names.h"
#include "tally/ulbon_totals.h"

namespace rbt {

namespace {

CutFigures DrawSite(PrinterSurface& Printer, const ReportArguments& arguments, const TallyResult& result,
                    const ComparisonForm& form) {
  const TallyTable& table = result.Grid();
  const ComparisonSheet sheet{ReadReportSite(),
                              arguments,
                              table,
                              DiameterGradeNames(),
                              UlbonWeightSum(table, arguments.Percent),
                              UlbonWeldSum(table),
                              result.selection.StartMode.hides_cuts};
  return DrawComparison(Printer, form, sheet);
}

}  // namespace

CutFigures Taihi_A_A4T(PrinterSurface& Printer, const ReportArguments& arguments, const TallyResult& result) {
  return DrawSite(Printer, arguments, result, kTaihiAA4T);
}

CutFigures Taihi_A_A4Y(PrinterSurface& Printer, const ReportArguments& arguments, const TallyResult& result) {
  return DrawSite(Printer, arguments, result, kTaihiAA4Y);
}

CutFigures Taihi_A_B5Y(PrinterSurface& Printer, const ReportArguments& arguments, const TallyResult& result) {
  return DrawSite(Printer, arguments, result, kTaihiAB5Y);
}

CutFigures Taihi_B_A4T(PrinterSurface& Printer, const ReportArguments& arguments, const TallyResult& result) {
  return DrawSite(Printer, arguments, result, kTaihiBA4T);
}

CutFigures Taihi_B_A4Y(PrinterSurface& Printer, const ReportArguments& arguments, const TallyResult& result) {
  return DrawSite(Printer, arguments, result, kTaihiBA4Y);
}

CutFigures Taihi_B_B5Y(PrinterSurface& Printer, const ReportArguments& arguments, const TallyResult& result) {
  return DrawSite(Printer, arguments, result, kTaihiBB5Y);
}

CutFigures Taihi_C_A4T(PrinterSurface& Printer, const ReportArguments& arguments, const TallyResult& result) {
  return DrawSite(Printer, arguments, result, kTaihiCA4T);
}

CutFigures Taihi_C_A4Y(PrinterSurface& Printer, const ReportArguments& arguments, const TallyResult& result) {
  return DrawSite(Printer, arguments, result, kTaihiCA4Y);
}

CutFigures Taihi_C_B5Y(PrinterSurface& Printer, const ReportArguments& arguments, const TallyResult& result) {
  return DrawSite(Printer, arguments, result, kTaihiCB5Y);
}

}  // namespace rbt
