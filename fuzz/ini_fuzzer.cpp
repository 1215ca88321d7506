// SPDX-License-Identifier: MIT
// Any bytes are an INI file: they can be read, one key can be set and removed, and nothing else changes.
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
  const auto old = IniText(bytes, encoding).Find(section, key);
  const std::string old_value(old.value_or(""));

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
    Require(changed.Bytes().size() <= bytes.size() + value.size());
    Require(IniText(bytes, encoding).Find(section, key) == old_value);
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
