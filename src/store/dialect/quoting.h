// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace rbt::dialect {

/// A name as SQLite takes it: in double quotes.
std::string QuoteName(std::string_view name);
/// Several names, commas between them.
std::string QuoteNames(std::span<const std::string> names);
/// A text literal as SQLite takes it: in single quotes.
std::string QuoteText(std::string_view text);

}  // namespace rbt::dialect
