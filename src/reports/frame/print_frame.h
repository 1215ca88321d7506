// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "platform/print/printer_surface.h"

namespace rbt {

/// The one font of all reports.
inline constexpr std::string_view ReportFont = "ＭＳ ゴシック";

/// The small integer by which print buttons name a paper.
inline constexpr std::int32_t kPaperKindA3 = 1;
inline constexpr std::int32_t kPaperKindA4 = 2;
inline constexpr std::int32_t kPaperKindB5 = 3;
/// The printer's paper code of a `PaperKind`: any other than A3 and A4 is B5.
std::int32_t PaperCodeOfKind(std::int32_t paper_kind);

/// The printer as it was before a report.
struct SavedPrinterData {
  std::string SavedDeviceName;
  std::int32_t SavedPaperSize = 0;
  std::int32_t SavedOrientation = 0;
  float SavedHeight = 0.0F;  ///< sides of a custom paper; nothing fills them, and so they stay
  float SavedWidth = 0.0F;
};

extern SavedPrinterData SavedPrinter;

/// Makes the printer of the setting 集計用ドライバ名 current, for this program only, and sets orientation (1
/// portrait, 2 landscape, others leave it) and paper. When no printer bears that name, the current one stays,
/// paper and orientation untouched; only the PDF device answers to any name. `SavedPrinter` keeps what was.
/// Printers that came or went since the last report are seen here, and nowhere between here and
/// `Reset_Printer`.
void Set_Printer(std::int32_t Orientation, std::int32_t PaperKind);
/// Brings back the printer and its paper. The orientation is not put back: a printer that printed landscape
/// stays so until the next `Set_Printer`.
void Reset_Printer();

/// Draws one report between `Set_Printer` and `Reset_Printer`. When the report faults, nothing of it is
/// printed, and the printer is brought back all the same.
void PrintReport(std::int32_t orientation, std::int32_t paper_kind,
                 const std::function<void(PrinterSurface& Printer)>& report);

}  // namespace rbt
