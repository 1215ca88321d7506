// SPDX-License-Identifier: MIT
#include "store/dialect/quoting.h"

namespace rbt::dialect {
namespace {

std::string Quote(std::string_view text, char quote) {
  std::string quoted(1, quote);
  for (const char c : text) {
    quoted += c;
    if (c == quote) quoted += c;
  }
  return quoted + quote;
}

}  // namespace

std::string QuoteName(std::string_view name) { return Quote(name, '"'); }

std::string QuoteNames(std::span<const std::string> names) {
  std::string list;
  for (const std::string& name : names) list += (list.empty() ? "" : ", ") + QuoteName(name);
  return list;
}

std::string QuoteText(std::string_view text) { return Quote(text, '\''); }

}  // namespace rbt::dialect
