// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <span>
#include <string>

#include "platform/print/printed_document.h"

namespace rbt {

/// The library by which a program without a desktop paints PDF files, from the folder of the program.
inline constexpr const char* kPdfLibrary = "../lib/rbtally/rbtally_pdf.so";

/// All that such a library has. Nothing else of it is seen outside, and no exception leaves it.
inline constexpr const char* kPdfLibraryFunction = "rbtally_paint_pdf";

/// Paints documents as `PdfWriter` says; `refusal` is why it could not be done, and stays empty where it was.
/// False, and nothing happened, where the library is not of the caller's version: the two know the other
/// arguments by their layout in memory.
using PdfLibraryFunction = bool(const char* version, std::span<const PrintedDocument> documents,
                                const std::filesystem::path& file, std::string& refusal) noexcept;

}  // namespace rbt
