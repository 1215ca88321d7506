// SPDX-License-Identifier: MIT
// Any bytes are an INI file: they can be read, one key can be set and removed, and nothing else changes.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "platform/profile/ini_text.h"
#include "platform/text/cp932.h"

namespace {

using rbt::IniEncoding;
using rbt::IniText;

void Require(bool holds) {
  if (!holds) std::abort();
}

void Exercise(const std::string& bytes, std::string_view section, std::string_view key,
              std::string_view value, IniEncoding encoding) {
  const IniText untouched(bytes, encoding);
  const auto old = untouched.Find(section, key);

  IniText changed(bytes, encoding);
  changed.Set(section, key, value);
  Require(changed.Find(section, key) == value);

  IniText again = changed;
  again.Set(section, key, value);
  Require(again.Bytes() == changed.Bytes());

  IniText removed = changed;
  removed.Remove(section, key);
  Require(!removed.Find(section, key));

  if (!old) {
    // What was added can be taken away again: every byte of the old file still stands, in its order.
    Require(changed.Bytes().size() > bytes.size());
    std::size_t kept = 0;
    while (kept < bytes.size() && bytes[kept] == changed.Bytes()[kept]) ++kept;
    Require(changed.Bytes().ends_with(std::string_view(bytes).substr(kept)));
  } else {
    // The old value, blanks behind it included, gave way to the new one.
    const std::size_t at = static_cast<std::size_t>(old->data() - untouched.Bytes().data());
    Require(changed.Bytes().size() <= bytes.size() - old->size() + value.size());
    Require(std::string_view(changed.Bytes()).substr(0, at) == std::string_view(bytes).substr(0, at));
    std::size_t line_end = std::min(bytes.find('\n', at + old->size()), bytes.size());
    while (line_end > at + old->size() && bytes[line_end - 1] == '\r') --line_end;
    Require(changed.Bytes().ends_with(std::string_view(bytes).substr(line_end)));
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  for (const IniEncoding encoding : {IniEncoding::cp932, IniEncoding::utf8}) {
    Exercise(bytes, "a", "k", "v", encoding);
    Exercise(bytes, "a", "k", "", encoding);
  }
  Exercise(bytes, rbt::ToCp932("データ"), rbt::ToCp932("選択ＤＢ名"), "GENBA001.MDB", IniEncoding::cp932);
  const std::string_view prefix = rbt::Cp932BytesPrefix(bytes, 79);
  Require(prefix.size() <= 79);
  rbt::FromCp932Lenient(prefix);
  return 0;
}
