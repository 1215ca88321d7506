// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <span>

#include "platform/print/printed_document.h"
#include "platform/print/printer_list.h"

namespace rbt {

/// The printers in force.
PrinterList& Printers();
/// Brings that list up to date with what the system has now.
void RefreshPrinters();

/// Paints documents into one PDF file, see `PdfWriter`. Throws `file`, also where nothing can paint.
void WritePdf(std::span<const PrintedDocument> documents, const std::filesystem::path& file);

}  // namespace rbt
