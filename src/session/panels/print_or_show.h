// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/print/printed_document.h"

namespace rbt {

/// Shows documents and returns when the user has left them.
using Preview = std::function<void(std::vector<PrintedDocument>)>;

/// Prints. What the user wants to look at first, and what goes to the PDF device, is handed to `preview`
/// instead, once `print` has brought the printer back. Returns the printer that the sheet was sent to, empty
/// for the preview. Throws what `print` throws; nothing is printed or shown then.
std::string PrintOrShow(bool look_first, const std::function<void()>& print, const Preview& preview);

/// What a screen says of the printer that took its sheet; empty where none did.
std::string SentNotice(const std::string& printer);

}  // namespace rbt
