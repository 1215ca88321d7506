// SPDX-License-Identifier: MIT
#include "reports/frame/report_text.h"

#include <algorithm>

#include "platform/text/characters.h"
#include "platform/text/cp932.h"
#include "shell/context/site_context.h"
#include "tally/captions.h"

namespace rbt {

std::int32_t Get_ByteLen(std::string_view Text) { return static_cast<std::int32_t>(Cp932Length(Text)); }

CutName CutAtBreak(std::string_view name, std::int32_t koji_break) {
  const auto count = static_cast<std::size_t>(std::max(koji_break, 0));
  return {Left(name, count), Mid(name, count + 1)};
}

std::string_view LongerPiece(const CutName& name) {
  return Get_ByteLen(name.rest) > Get_ByteLen(name.first) ? name.rest : name.first;
}

std::string Get_HalfLonger(std::string_view Text) {
  return std::string(LongerPiece(CutAtBreak(Text, SiteContext.LongSiteNameWidth)));
}

float Get_RightX(std::string_view Text) {
  return 450.0F - (static_cast<float>(CharacterCount(Text)) - 1.0F) * 120.0F;
}

std::string Trim_SlitText(std::string_view Text) { return StripSlitWord(Text); }

std::string RightAligned(std::string_view text, std::size_t count) {
  return std::string(Right(std::string(count, ' ').append(text), count));
}

}  // namespace rbt
