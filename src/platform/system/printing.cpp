// SPDX-License-Identifier: MIT
#include "platform/system/printing.h"

#include "platform/fault.h"
#include "platform/system/services.h"

namespace rbt {

PrinterList& Printers() { return Services.Printers; }

void RefreshPrinters() {
  if (Services.FindPrinters) Services.Printers.Update(Services.FindPrinters());
}

void WritePdf(std::span<const PrintedDocument> documents, const std::filesystem::path& file) {
  if (!Services.PaintPdf) {
    throw Fault(FaultKind::file, file.string() + ": PDF is not available, this program was built without it");
  }
  Services.PaintPdf(documents, file);
}

}  // namespace rbt
