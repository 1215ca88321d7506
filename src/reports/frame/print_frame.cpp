// SPDX-License-Identifier: MIT
#include "reports/frame/print_frame.h"

#include "platform/system/printing.h"
#include "shell/config/settings.h"

namespace rbt {

SavedPrinterData SavedPrinter;

namespace {

/// Brings the printer back at the end of a report, whichever way it ends.
class PrinterBracket {
 public:
  PrinterBracket(std::int32_t orientation, std::int32_t paper_kind) { Set_Printer(orientation, paper_kind); }
  PrinterBracket(const PrinterBracket&) = delete;
  PrinterBracket& operator=(const PrinterBracket&) = delete;
  ~PrinterBracket() {
    Printers().Current().KillDoc();
    Reset_Printer();
  }
};

}  // namespace

std::int32_t PaperCodeOfKind(std::int32_t paper_kind) {
  switch (paper_kind) {
    case kPaperKindA3:
      return kPaperA3;
    case kPaperKindA4:
      return kPaperA4;
    default:
      return kPaperB5;
  }
}

void Set_Printer(std::int32_t Orientation, std::int32_t PaperKind) {
  RefreshPrinters();
  const PrinterSurface& before = Printers().Current();
  SavedPrinter.SavedDeviceName = before.DeviceName();
  SavedPrinter.SavedPaperSize = before.PaperSize;
  SavedPrinter.SavedOrientation = before.Orientation;

  const bool found = Printers().MakeCurrent(Settings.TallyPrinter);
  PrinterSurface& printer = Printers().Current();
  if (!found && printer.Kind() != DeviceKind::pdf) return;
  if (Orientation == kPortrait || Orientation == kLandscape) printer.Orientation = Orientation;
  printer.PaperSize = PaperCodeOfKind(PaperKind);
}

void Reset_Printer() {
  Printers().MakeCurrent(SavedPrinter.SavedDeviceName);
  PrinterSurface& printer = Printers().Current();
  if (SavedPrinter.SavedPaperSize == kCustomPaper) {
    printer.PageHeight = SavedPrinter.SavedHeight;
    printer.PageWidth = SavedPrinter.SavedWidth;
  } else {
    printer.PaperSize = SavedPrinter.SavedPaperSize;
  }
  SavedPrinter.SavedOrientation = printer.Orientation;
}

void PrintReport(std::int32_t orientation, std::int32_t paper_kind,
                 const std::function<void(PrinterSurface& Printer)>& report) {
  const PrinterBracket bracket(orientation, paper_kind);
  report(Printers().Current());
}

}  // namespace rbt
