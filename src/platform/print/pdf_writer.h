// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <functional>

#include "platform/print/printed_document.h"

namespace rbt {

/// Paints a document into a PDF file: all of it, or the file stays as it was. Throws `file`.
using PdfWriter = std::function<void(const PrintedDocument& document, const std::filesystem::path& file)>;

/// What `WritePdf` calls: the desktop library paints, the core only knows that it can be done.
void SetPdfWriter(PdfWriter writer);
bool CanWritePdf();
/// Throws `file` where nothing can paint.
void WritePdf(const PrintedDocument& document, const std::filesystem::path& file);

}  // namespace rbt
