// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace rbt {

/// Writes a result to standard output and sees it through to the system: a full disk or a closed pipe throws
/// `file`.
void WriteResult(std::string_view text);

/// One line on standard error, "rbtally: " and the cause; line breaks in it become blanks.
void ReportError(std::string_view cause);

}  // namespace rbt
