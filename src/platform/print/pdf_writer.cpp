// SPDX-License-Identifier: MIT
#include "platform/print/pdf_writer.h"

#include <utility>

#include "platform/fault.h"

namespace rbt {

namespace {

PdfWriter& Writer() {
  static PdfWriter writer;
  return writer;
}

}  // namespace

void SetPdfWriter(PdfWriter writer) { Writer() = std::move(writer); }

bool CanWritePdf() { return static_cast<bool>(Writer()); }

void WritePdf(std::span<const PrintedDocument> documents, const std::filesystem::path& file) {
  if (!CanWritePdf()) {
    throw Fault(FaultKind::file, file.string() + ": PDF is not available, this program was built without it");
  }
  Writer()(documents, file);
}

}  // namespace rbt
