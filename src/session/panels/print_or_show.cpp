// SPDX-License-Identifier: MIT
#include "session/panels/print_or_show.h"

#include <utility>

#include "platform/print/diverted_deliveries.h"
#include "platform/system/printing.h"
#include "session/panels/printer_notice.h"

namespace rbt {

namespace {

/// The documents that are for the user's eyes.
std::vector<PrintedDocument> PrintKeepingPreviews(bool look_first, const std::function<void()>& print) {
  using From = DivertedDeliveries::From;
  DivertedDeliveries diverted(Printers(), look_first ? From::every_device : From::pdf_device);
  print();
  return diverted.Take();
}

}  // namespace

std::string PrintOrShow(bool look_first, const std::function<void()>& print, const Preview& preview) {
  std::vector<PrintedDocument> documents = PrintKeepingPreviews(look_first, print);
  if (documents.empty()) return PrinterOfSheets();
  preview(std::move(documents));
  return "";
}

std::string SentNotice(const std::string& printer) {
  return printer.empty() ? "" : "「" + printer + "」に送りました。";
}

}  // namespace rbt
