// SPDX-License-Identifier: MIT
#include "store/dialect/place.h"

#include <fmt/format.h>

#include "platform/text/characters.h"

namespace rbt::dialect {

void Refuse(std::string_view statement, Place place, std::string_view why, FaultKind kind) {
  const std::size_t character = CharacterCount(statement.substr(0, place.begin)) + 1;
  const std::string_view word = statement.substr(place.begin, place.length);
  const std::string where = word.empty() ? fmt::format("character {}, the end of the statement", character)
                                         : fmt::format("character {}, {}", character, word);
  throw Fault(kind, fmt::format("{} ({}): {}", why, where, statement));
}

}  // namespace rbt::dialect
