// SPDX-License-Identifier: MIT
#include "session/result/print_order.h"

#include "platform/print/diverted_deliveries.h"
#include "platform/system/printing.h"
#include "session/panels/printer_notice.h"
#include "shell/context/run_state.h"

namespace rbt {

namespace {

void Print(const PrintOrder& order) {
  const ReportArguments arguments{order.sub_project, order.date.year,     order.date.month,
                                  order.date.day,    RunState.ReportBody, order.result.ulbon_percent};
  PrintForm(order.ulbon ? UlbonForm() : ChosenComparison(order.paper), arguments, order.result);
}

/// The documents that are for the user's eyes.
std::vector<PrintedDocument> PrintKeepingPreviews(const PrintOrder& order) {
  using From = DivertedDeliveries::From;
  DivertedDeliveries diverted(Printers(), order.preview ? From::every_device : From::pdf_device);
  Print(order);
  return diverted.Take();
}

}  // namespace

std::string CarryOut(const PrintOrder& order, const Preview& preview) {
  std::vector<PrintedDocument> documents = PrintKeepingPreviews(order);
  if (documents.empty()) return PrinterOfSheets();
  preview(std::move(documents));
  return "";
}

}  // namespace rbt
