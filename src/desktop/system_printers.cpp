// SPDX-License-Identifier: MIT
#include "desktop/system_printers.h"

#include <algorithm>
#include <cups/cups.h>
#include <list>
#include <utility>

#include <QMarginsF>
#include <QPageLayout>
#include <QPageSize>
#include <QPrinter>
#include <QPrinterInfo>
#include <QString>

#include "desktop/painting/painting_surface.h"
#include "platform/fault.h"
#include "platform/print/paper.h"
#include "platform/system/work.h"

namespace rbt {

namespace {

constexpr double kTwipsPerPoint = 20.0;
/// How a document is called in the print queue.
constexpr const char* kDocumentName = "重量集計";

/// The printer with the paper of its own defaults. Print systems keep no orientation: it starts in portrait.
PrinterSurface InstalledPrinter(const QPrinterInfo& info) {
  const std::string name = info.printerName().toStdString();
  PrinterSurface printer(name, DeviceKind::installed_printer,
                         [name](const PrintedDocument& document) { PrintDocument(name, document); });
  const QSizeF sheet = info.defaultPageSize().size(QPageSize::Millimeter);
  printer.PaperSize = PaperCodeOfSheet(sheet.width(), sheet.height());
  if (printer.PaperSize == kCustomPaper) {
    printer.PageWidth = static_cast<float>(sheet.width() * kTwipsPerMillimetre);
    printer.PageHeight = static_cast<float>(sheet.height() * kTwipsPerMillimetre);
  }
  return printer;
}

/// Where the printable area starts, in twips from the sheet's corner. The system tells the margins of the
/// sheet as it lies in portrait and not to which side a landscape page is turned: of the two sides that may
/// become left or top the wider margin is right for either.
QPointF PrintableCorner(QPageLayout layout) {
  layout.setUnits(QPageLayout::Point);
  const QMarginsF margins = layout.minimumMargins();
  const QPointF corner =
      layout.orientation() == QPageLayout::Landscape
          ? QPointF(std::max(margins.top(), margins.bottom()), std::max(margins.left(), margins.right()))
          : QPointF(margins.left(), margins.top());
  return corner * kTwipsPerPoint;
}

void SetUpPrinter(QPrinter& printer, const QPageSize& own_paper, const PrintedDocument& document) {
  printer.setDocName(QString::fromStdString(document.title.empty() ? kDocumentName : document.title));
  printer.setCreator(QStringLiteral("rbtally"));
  printer.setResolution(kTwipsPerInch);
  printer.setCopyCount(1);
  printer.setFullPage(true);
  printer.setPageSize(document.paper_code == kCustomPaper ? own_paper : PageSizeOf(document.paper_code));
  printer.setPageOrientation(document.orientation == kLandscape ? QPageLayout::Landscape
                                                                : QPageLayout::Portrait);
}

}  // namespace

PrinterList SystemPrinters(PrinterSurface::Delivery pdf) {
  std::list<PrinterSurface> printers;
  for (const QPrinterInfo& info : QPrinterInfo::availablePrinters()) {
    printers.insert(info.isDefault() ? printers.begin() : printers.end(), InstalledPrinter(info));
  }
  printers.emplace_back(std::string(kPdfDeviceName), DeviceKind::pdf, std::move(pdf));
  return PrinterList(std::move(printers));
}

void PrintDocument(const std::string& device_name, const PrintedDocument& document) {
  const QPrinterInfo info = QPrinterInfo::printerInfo(QString::fromStdString(device_name));
  if (info.isNull()) {
    throw Fault(FaultKind::file,
                device_name + ": this printer is not there any more, or the print server does not answer");
  }
  const MustFinish finish;  // no print engine takes back what it was given
  QPrinter printer(info);
  SetUpPrinter(printer, info.defaultPageSize(), document);
  PaintDocument(printer, document, PrintableCorner(printer.pageLayout()), NotePage);
  // The painted document has been handed over by now. Qt drops what the print server said to it.
  if (cupsLastError() > IPP_STATUS_OK_EVENTS_COMPLETE) {
    throw Fault(FaultKind::file,
                device_name + ": the print server did not take the document: " + cupsLastErrorString());
  }
}

}  // namespace rbt
