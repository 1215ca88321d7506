// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/print/printed_document.h"

namespace rbt {

/// What a document holds as text, one operation a line, fields separated by tabs, for tests and for looking:
///
///   document  PDF  PAPERCODE  ORIENTATION
///   page      N
///   font      NAME  SIZE  BOLD             before a text, whenever one of the three changed
///   text      X  Y  TEXT
///   line      X1  Y1  X2  Y2  DRAWWIDTH
///   end
///
/// Coordinates are twips, sizes points, numbers rounded to two decimals without trailing zeros, BOLD 0 or 1;
/// tab, line feed and backslash in TEXT stand as `\t`, `\n`, `\\`.
std::string TraceText(const PrintedDocument& document);

}  // namespace rbt
