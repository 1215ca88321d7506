// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/dialect/place.h"

namespace rbt::dialect {

enum class TokenKind {
  word,       ///< a keyword, a function's name or a bare name
  bracketed,  ///< [a name]
  number,     ///< 12, 0.995, .5, 1E-3
  text,       ///< "..." or '...', doubled quotes inside
  symbol,     ///< an operator or a mark
  end,        ///< behind the last one
};

struct Token {
  TokenKind kind = TokenKind::end;
  std::string text;  ///< brackets and quotes removed
  Place place;
};

/// Cuts a statement into tokens; the last one is `end`. A number ends where its digits end, so that "1or" is
/// two tokens. Refuses characters that no token begins with, and what is not closed.
std::vector<Token> Tokenize(std::string_view statement);

/// True for a word that is no name unless it stands in brackets.
bool IsReserved(std::string_view word);

}  // namespace rbt::dialect
