// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
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
  PrinterSurface& Current();
  /// Makes the first printer of that name current; false, and nothing changed, when there is none.
  bool MakeCurrent(std::string_view device_name);
  /// Takes over which printers there are `now`, in their order. A printer that stays (name and kind) keeps
  /// its paper, its pen and what is drawn on it; references to one that went are void. The current printer
  /// stays current, unless it went or was the PDF device for want of any printer: then the first is.
  void Update(PrinterList now);
  /// Shows the documents of all printers, also of those that come later, to `diversion` first; an empty one
  /// lets all pass. Returns the one that was in place.
  Diversion Divert(Diversion diversion);

 private:
  // A list, so that a printer stays where it is while the list moves.
  std::list<PrinterSurface> printers_;
  std::size_t current_ = 0;  ///< place in the list
  Diversion diversion_;
};

/// Tells which printers there are now.
using PrinterSource = std::function<PrinterList()>;

/// The PDF device alone, delivering to `deliver`.
PrinterList PdfDeviceAlone(PrinterSurface::Delivery deliver);
/// The same where nobody has said where documents go: delivering one throws `file`.
PrinterList PdfDeviceWithoutDestination();

}  // namespace rbt
