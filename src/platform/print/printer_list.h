// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <list>
#include <string_view>

#include "platform/print/printer_surface.h"

namespace rbt {

/// The printers of this machine and the one that this program prints on; the system's own choice of a printer
/// is never changed. Where no printer is installed, the PDF device is the only one.
class PrinterList {
 public:
  /// At least one printer; the first is current.
  explicit PrinterList(std::list<PrinterSurface> printers);

  std::list<PrinterSurface>& Installed() { return printers_; }
  PrinterSurface& Current() { return *current_; }
  /// Makes the first printer of that name current; false, and nothing changed, when there is none.
  bool MakeCurrent(std::string_view device_name);
  /// Takes over which printers there are `now`, in their order. A printer that stays (name and kind) keeps
  /// its paper, its pen and what is drawn on it; references to one that went are void. The current printer
  /// stays current, unless it went or was the PDF device for want of any printer: then the first is.
  void Update(PrinterList now);

 private:
  // A list, so that a printer stays where it is while the list moves.
  std::list<PrinterSurface> printers_;
  std::list<PrinterSurface>::iterator current_;
};

/// The printers in force: what the desktop, the command line or a test has put there. Before that, the PDF
/// device alone, whose documents go nowhere: delivering one throws `file`.
PrinterList& Printers();
/// Returns the list that was in force.
PrinterList SetPrinters(PrinterList printers);

/// Tells which printers there are now.
using PrinterSource = std::function<PrinterList()>;
/// From where `RefreshPrinters` brings the list in force up to date. The source is not asked before, so that
/// a start never waits for a print server. An empty source leaves the list as it is.
void SetPrinterSource(PrinterSource source);
void RefreshPrinters();

}  // namespace rbt
