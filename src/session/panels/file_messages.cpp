// SPDX-License-Identifier: MIT
#include "session/panels/file_messages.h"

#include <fmt/format.h>

#include "platform/files/files.h"
#include "platform/system/message.h"
#include "session/panels/fault_words.h"

namespace rbt {

bool MayReplaceFile(const std::filesystem::path& file, std::string_view title) {
  if (!IsTaken(file)) return true;
  const std::string question = fmt::format("「{}」は既にあります。\n置き換えますか？", file.string());
  return MsgBox(question, title, MessageButtons::yes_no) == MessageAnswer::yes;
}

void TellNotSaved(const std::filesystem::path& file, const std::exception& fault, std::string_view title) {
  MsgBox(fmt::format("「{}」に保存できません。\n{}", file.string(), FaultWords(fault)), title,
         MessageButtons::ok_to_warning);
}

}  // namespace rbt
