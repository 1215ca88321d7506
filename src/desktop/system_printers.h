// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/print/printed_document.h"
#include "platform/print/printer_list.h"

namespace rbt {

/// The printers that the system knows at this moment, its default first and so current, each with the paper
/// and the orientation of its own defaults (a paper without a code of ours is a custom one with its sides in
/// twips) and printing by `PrintDocument`; last the device "PDF", which hands its documents to `pdf`. Where
/// no printer is installed or no print server answers, "PDF" alone. Asks the print server: not for the start
/// of a program.
PrinterList SystemPrinters(PrinterSurface::Delivery pdf);

/// Prints one copy on an installed printer, on the document's paper; on the printer's own where that is a
/// custom one. The origin is the corner of the printable area. Throws `file` when the printer is gone, the
/// print server does not take the document, or it cannot be painted; then nothing is printed.
void PrintDocument(const std::string& device_name, const PrintedDocument& document);

}  // namespace rbt
