// SPDX-License-Identifier: MIT
#include "platform/print/printer_list.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <string>
#include <utility>

#include "platform/fault.h"

namespace rbt {

namespace {

bool IsSameDevice(const PrinterSurface& a, const PrinterSurface& b) {
  return a.Kind() == b.Kind() && a.DeviceName() == b.DeviceName();
}

}  // namespace

PrinterList::PrinterList(std::list<PrinterSurface> printers) : printers_(std::move(printers)) {
  if (printers_.empty()) throw std::invalid_argument("a list of no printers");
}

PrinterSurface& PrinterList::Current() {
  return *std::next(printers_.begin(), static_cast<std::ptrdiff_t>(current_));
}

bool PrinterList::MakeCurrent(std::string_view device_name) {
  const auto found = std::find_if(printers_.begin(), printers_.end(), [&](const PrinterSurface& printer) {
    return printer.DeviceName() == device_name;
  });
  if (found == printers_.end()) return false;
  current_ = static_cast<std::size_t>(std::distance(printers_.begin(), found));
  return true;
}

void PrinterList::Update(PrinterList now) {
  const bool for_want_of_any = printers_.size() == 1 && Current().Kind() == DeviceKind::pdf;
  const PrinterSurface* const current = for_want_of_any ? nullptr : &Current();
  std::list<PrinterSurface> updated;
  while (!now.printers_.empty()) {
    const auto staying = std::find_if(printers_.begin(), printers_.end(), [&](const PrinterSurface& printer) {
      return IsSameDevice(printer, now.printers_.front());
    });
    if (staying == printers_.end()) {
      updated.splice(updated.end(), now.printers_, now.printers_.begin());
      updated.back().Divert(diversion_);
    } else {
      updated.splice(updated.end(), printers_, staying);
      now.printers_.pop_front();
    }
  }
  const auto still_there = std::find_if(updated.begin(), updated.end(),
                                        [&](const PrinterSurface& printer) { return &printer == current; });
  current_ = still_there == updated.end()
                 ? 0
                 : static_cast<std::size_t>(std::distance(updated.begin(), still_there));
  printers_ = std::move(updated);
}

Diversion PrinterList::Divert(Diversion diversion) {
  for (PrinterSurface& printer : printers_) printer.Divert(diversion);
  return std::exchange(diversion_, std::move(diversion));
}

PrinterList PdfDeviceAlone(PrinterSurface::Delivery deliver) {
  std::list<PrinterSurface> printers;
  printers.emplace_back(std::string(kPdfDeviceName), DeviceKind::pdf, std::move(deliver));
  return PrinterList(std::move(printers));
}

PrinterList PdfDeviceWithoutDestination() {
  return PdfDeviceAlone([](const PrintedDocument&) {
    throw Fault(FaultKind::file, "no printer is set up: the document has nowhere to go");
  });
}

}  // namespace rbt
