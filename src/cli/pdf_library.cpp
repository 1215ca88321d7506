// SPDX-License-Identifier: MIT
#include "cli/pdf_library.h"

#include <string>

#include "platform/fault.h"
#include "platform/print/pdf_library.h"
#include "platform/system/own_library.h"

namespace rbt {

void PaintPdfByLibrary(std::span<const PrintedDocument> documents, const std::filesystem::path& file) {
  const OwnLibrary library(kPdfLibrary, "PDF");
  auto& paint = *reinterpret_cast<PdfLibraryFunction*>(library.Function(kPdfLibraryFunction));
  std::string refusal;
  if (!paint(RBTALLY_VERSION, documents, file, refusal)) library.Refuse(RBTALLY_VERSION);
  if (!refusal.empty()) throw Fault(FaultKind::file, refusal);
}

}  // namespace rbt
