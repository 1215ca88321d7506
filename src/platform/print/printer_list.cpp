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

PrinterSource& Source() {
  static PrinterSource source;
  return source;
}

bool IsSameDevice(const PrinterSurface& a, const PrinterSurface& b) {
  return a.Kind() == b.Kind() && a.DeviceName() == b.DeviceName();
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

void PrinterList::Update(PrinterList now) {
  const bool for_want_of_any = printers_.size() == 1 && current_->Kind() == DeviceKind::pdf;
  const PrinterSurface* const current = for_want_of_any ? nullptr : &*current_;
  std::list<PrinterSurface> updated;
  while (!now.printers_.empty()) {
    const auto staying = std::find_if(printers_.begin(), printers_.end(), [&](const PrinterSurface& printer) {
      return IsSameDevice(printer, now.printers_.front());
    });
    if (staying == printers_.end()) {
      updated.splice(updated.end(), now.printers_, now.printers_.begin());
    } else {
      updated.splice(updated.end(), printers_, staying);
      now.printers_.pop_front();
    }
  }
  const auto still_there = std::find_if(updated.begin(), updated.end(),
                                        [&](const PrinterSurface& printer) { return &printer == current; });
  current_ = still_there == updated.end() ? updated.begin() : still_there;
  printers_ = std::move(updated);
}

PrinterList& Printers() {
  static PrinterList printers = WithoutDestination();
  return printers;
}

PrinterList SetPrinters(PrinterList printers) { return std::exchange(Printers(), std::move(printers)); }

void SetPrinterSource(PrinterSource source) { Source() = std::move(source); }

void RefreshPrinters() {
  if (Source()) Printers().Update(Source()());
}

}  // namespace rbt
