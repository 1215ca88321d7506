// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <span>

#include "platform/print/printed_document.h"

namespace rbt {

/// `PdfWriter` by the library that lies beside the program and is loaded at the first call: what paints takes
/// longer to start than most commands to run. Throws `file`, also where there is no such library, or none of
/// this version.
void PaintPdfByLibrary(std::span<const PrintedDocument> documents, const std::filesystem::path& file);

}  // namespace rbt
