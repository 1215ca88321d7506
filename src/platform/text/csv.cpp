// SPDX-License-Identifier: MIT
#include "platform/text/csv.h"

#include "platform/text/characters.h"

namespace rbt {

std::string CsvCell(std::string_view text) {
  if (text.find_first_of(",\"\r\n") == std::string_view::npos) return std::string(text);
  return QuotedCsvCell(text);
}

std::string QuotedCsvCell(std::string_view text) { return '"' + ReplaceAll(text, "\"", "\"\"") + '"'; }

CsvRecord& CsvRecord::AddWritten(std::string_view cell) {
  if (!empty_) text_ += ',';
  text_ += cell;
  empty_ = false;
  return *this;
}

}  // namespace rbt
