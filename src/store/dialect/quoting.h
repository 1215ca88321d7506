// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace rbt::dialect {

/// A name as SQLite takes it: in double quotes.
std::string QuoteName(std::string_view name);
/// A text literal as SQLite takes it: in single quotes.
std::string QuoteText(std::string_view text);

}  // namespace rbt::dialect
