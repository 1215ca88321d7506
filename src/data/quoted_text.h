// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "platform/text/characters.h"

namespace rbt {

/// A text as a literal of a statement, in the quotes given: ' or ". A quote inside is doubled, so that no
/// name from a file or from the keyboard can end the literal.
inline std::string QuotedText(std::string_view text, char quote) {
  const std::string single(1, quote);
  return single + ReplaceAll(text, single, single + single) + single;
}

}  // namespace rbt
