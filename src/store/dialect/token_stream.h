// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

#include "store/dialect/ast.h"
#include "store/dialect/lexer.h"

namespace rbt::dialect {

/// The tokens of a statement, taken from front to back.
class TokenStream {
 public:
  explicit TokenStream(std::string_view statement) : statement_(statement), tokens_(Tokenize(statement)) {}

  const Token& Peek(std::size_t ahead = 0) const;
  Token Take();

  bool AtWord(std::string_view word, std::size_t ahead = 0) const;
  bool TakeWord(std::string_view word);
  /// Takes the word and gives its place; refuses any other token.
  Place ExpectWord(std::string_view word);

  bool AtSymbol(std::string_view symbol, std::size_t ahead = 0) const;
  bool TakeSymbol(std::string_view symbol);
  void ExpectSymbol(std::string_view symbol);

  /// A bracketed name, or a bare one that is no reserved word.
  bool AtName(std::size_t ahead = 0) const;
  Name ExpectName(std::string_view what);

  [[noreturn]] void RefuseHere(std::string_view why) const { RefuseAt(Peek().place, why); }
  [[noreturn]] void RefuseAt(Place place, std::string_view why) const { Refuse(statement_, place, why); }

 private:
  std::string_view statement_;
  std::vector<Token> tokens_;
  std::size_t at_ = 0;
};

}  // namespace rbt::dialect
