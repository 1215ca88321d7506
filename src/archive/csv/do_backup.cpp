// SPDX-License-Identifier: MIT
#include "archive/csv/do_backup.h"

#include <fmt/format.h>

#include "platform/files/files.h"
#include "platform/text/cp932.h"

namespace rbt {

std::string Do_BackUP(const std::filesystem::path& file, std::string_view csv) {
  const Cp932Text text = ToCp932Lenient(csv);
  WriteFileAtomically(file, text.bytes);
  return text.lacking;
}

std::string ReplacedCharactersNotice(std::string_view lacking) {
  if (lacking.empty()) return "";
  return fmt::format("次の文字は「?」に置き換えました： {}", lacking);
}

}  // namespace rbt
