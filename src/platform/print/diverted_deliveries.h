// SPDX-License-Identifier: MIT
#pragma once

#include <utility>
#include <vector>

#include "platform/print/printed_document.h"
#include "platform/print/printer_list.h"

namespace rbt {

/// Keeps what the printers of a list would deliver, as long as it lives: of all of them, also of those that
/// are found only meanwhile, or of the PDF device alone. Inside another one it goes first.
class DivertedDeliveries {
 public:
  enum class From { pdf_device, every_device };

  DivertedDeliveries(PrinterList& printers, From from);
  DivertedDeliveries(const DivertedDeliveries&) = delete;
  DivertedDeliveries& operator=(const DivertedDeliveries&) = delete;
  ~DivertedDeliveries();

  /// The documents that came since the last call, in their order.
  std::vector<PrintedDocument> Take() { return std::exchange(documents_, {}); }

 private:
  bool Keep(DeviceKind kind, const PrintedDocument& document);

  PrinterList& printers_;
  From from_;
  std::vector<PrintedDocument> documents_;
  Diversion outer_;
};

}  // namespace rbt
