// SPDX-License-Identifier: MIT
#include "platform/text/csv.h"

#include "platform/text/characters.h"

namespace rbt {

std::string CsvCell(std::string_view text) {
  if (text.find_first_of(",\"\r\n") == std::string_view::npos) return std::string(text);
  return '"' + ReplaceAll(text, "\"", "\"\"") + '"';
}

}  // namespace rbt
