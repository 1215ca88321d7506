// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "platform/print/printer_surface.h"
#include "reports/frame/report_pen.h"
#include "reports/frame/report_site.h"
#include "tally/tally_result.h"

namespace rbt {

/// A paper as the print panels offer it.
enum class ReportPaper {
  a4t,  ///< A4 portrait
  a4y,  ///< A4 landscape
  b5y,  ///< B5 landscape
};

/// How `Set_Printer` is told a paper.
struct PaperSetting {
  std::int32_t orientation;
  std::int32_t paper_kind;
};
PaperSetting SettingOf(ReportPaper paper);

/// Forms that print the same result in different ways.
enum class ReportFamily { comparison, ulbon, detail, floor, part };

/// What one document of a form tells of: the whole result, or one floor or part of it.
enum class DocumentOf { result, floor, part };

/// A report form. What comes in report forms loops over these rows.
struct ReportForm {
  std::string_view word;  ///< on the command line
  ReportFamily family;
  ReportPaper paper;
  std::int32_t choice;  ///< number of the setting that chooses it in its family; 0: its family has no choice
  CutFigures (*draw)(PrinterSurface& Printer, const ReportArguments& arguments, const TallyResult& result);
  DocumentOf document_of = DocumentOf::result;
};

/// All forms, in the order in which the command line lists them.
std::span<const ReportForm> ReportForms();

/// The form of a word; an unknown one throws `subscript out of range`.
const ReportForm& FindReportForm(std::string_view word);
/// The comparison report that a paper button prints: that of the setting 対比表項目, 1 kind A, 2 kind B, any
/// other kind C.
const ReportForm& ChosenComparison(ReportPaper paper);
const ReportForm& UlbonForm();
/// The purchase list that a paper button prints: with the setting 明細画面重量表示 1 that with weights, else
/// that of counts alone. B5 has none and throws `subscript out of range`.
const ReportForm& ChosenDetail(ReportPaper paper);
/// The sheet of a whole floor tally: with the setting 重量集計明細 1 that with weights, else that of counts
/// alone.
const ReportForm& ChosenFloorDetail();

/// What a print button does: the printer is set to the form's paper, the form is drawn with the arguments'
/// texts trimmed, the printer is put back. Figures too wide for their fields are told in one message. Throws
/// what keeps the sheet from the printer.
void PrintForm(const ReportForm& form, const ReportArguments& arguments, const TallyResult& result);

}  // namespace rbt
