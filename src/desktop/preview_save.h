// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <span>
#include <string_view>

#include "platform/print/printed_document.h"

class QWidget;

namespace rbt {

/// Asks for a PDF file in a dialog over the form, `offered` at first; nothing when the user turns back.
std::optional<std::filesystem::path> AskPdfFile(QWidget& form, const std::filesystem::path& offered);

/// The name that is offered: TITLE-YYYYMMDD.pdf of today in the documents folder, or with "-2", "-3" ... the
/// first that is not there yet. Characters that a file name cannot hold, on this system or on Windows, become
/// "_"; an empty title is 集計表.
std::filesystem::path OfferedPdfFile(std::string_view title);

/// Saves documents as one PDF file that the user names, ".pdf" added where it is missing, and tells where it
/// is. Before a file is replaced the user is asked; when it cannot be written, the cause is shown and the
/// user is asked for another. Returns false when the user turned back.
bool SaveAsPdf(
    QWidget& form, std::span<const PrintedDocument> documents,
    const std::function<std::optional<std::filesystem::path>(QWidget&, const std::filesystem::path&)>& ask);

}  // namespace rbt
