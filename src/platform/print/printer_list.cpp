// SPDX-License-Identifier: MIT
#include "platform/print/printer_list.h"

#include <algorithm>
#include <stdexcept>
#include <string>
#include <utility>

#include "platform/fault.h"

namespace rbt {

namespace {

PrinterList WithoutDestination() {
  std::list<PrinterSurface> printers;
  printers.emplace_back(std::string(kPdfDeviceName), DeviceKind::pdf, [](const PrintedDocument&) {
    throw Fault(FaultKind::file, "no printer is set up: the document has nowhere to go");
  });
  return PrinterList(std::move(printers));
}

}  // namespace

PrinterList::PrinterList(std::list<PrinterSurface> printers)
    : printers_(std::move(printers)), current_(printers_.begin()) {
  if (printers_.empty()) throw std::invalid_argument("a list of no printers");
}

bool PrinterList::MakeCurrent(std::string_view device_name) {
  const auto found = std::find_if(printers_.begin(), printers_.end(), [&](const PrinterSurface& printer) {
    return printer.DeviceName() == device_name;
  });
  if (found == printers_.end()) return false;
  current_ = found;
  return true;
}

PrinterList& Printers() {
  static PrinterList printers = WithoutDestination();
  return printers;
}

PrinterList SetPrinters(PrinterList printers) { return std::exchange(Printers(), std::move(printers)); }

}  // namespace rbt
