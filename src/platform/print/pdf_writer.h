// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <functional>
#include <span>

#include "platform/print/printed_document.h"

namespace rbt {

/// Paints documents into one PDF file, each on its own paper: all of it, or the file stays as it was. Throws
/// `file`.
using PdfWriter =
    std::function<void(std::span<const PrintedDocument> documents, const std::filesystem::path& file)>;

}  // namespace rbt
