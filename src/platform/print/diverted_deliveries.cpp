// SPDX-License-Identifier: MIT
#include "platform/print/diverted_deliveries.h"

namespace rbt {

DivertedDeliveries::DivertedDeliveries(PrinterList& printers, From from)
    : printers_(printers),
      from_(from),
      outer_(printers.Divert(
          [this](DeviceKind kind, const PrintedDocument& document) { return Keep(kind, document); })) {}

DivertedDeliveries::~DivertedDeliveries() { printers_.Divert(std::move(outer_)); }

bool DivertedDeliveries::Keep(DeviceKind kind, const PrintedDocument& document) {
  if (from_ == From::pdf_device && kind != DeviceKind::pdf) return outer_ && outer_(kind, document);
  documents_.push_back(document);
  return true;
}

}  // namespace rbt
