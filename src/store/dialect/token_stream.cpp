// SPDX-License-Identifier: MIT
#include "store/dialect/token_stream.h"

#include <algorithm>

#include <fmt/format.h>

#include "platform/text/characters.h"

namespace rbt::dialect {

const Token& TokenStream::Peek(std::size_t ahead) const {
  return tokens_[std::min(at_ + ahead, tokens_.size() - 1)];
}

Token TokenStream::Take() {
  Token token = Peek();
  if (at_ + 1 < tokens_.size()) ++at_;
  return token;
}

bool TokenStream::AtWord(std::string_view word, std::size_t ahead) const {
  return Peek(ahead).kind == TokenKind::word && EqualIgnoringCase(Peek(ahead).text, word);
}

bool TokenStream::TakeWord(std::string_view word) {
  if (!AtWord(word)) return false;
  Take();
  return true;
}

Place TokenStream::ExpectWord(std::string_view word) {
  if (!AtWord(word)) RefuseHere(fmt::format("{} is expected", word));
  return Take().place;
}

bool TokenStream::AtSymbol(std::string_view symbol, std::size_t ahead) const {
  return Peek(ahead).kind == TokenKind::symbol && Peek(ahead).text == symbol;
}

bool TokenStream::TakeSymbol(std::string_view symbol) {
  if (!AtSymbol(symbol)) return false;
  Take();
  return true;
}

void TokenStream::ExpectSymbol(std::string_view symbol) {
  if (!TakeSymbol(symbol)) RefuseHere(fmt::format("{} is expected", symbol));
}

bool TokenStream::AtName(std::size_t ahead) const {
  const Token& token = Peek(ahead);
  return token.kind == TokenKind::bracketed || (token.kind == TokenKind::word && !IsReserved(token.text));
}

Name TokenStream::ExpectName(std::string_view what) {
  if (!AtName()) RefuseHere(fmt::format("the name of {} is expected", what));
  Token token = Take();
  return {std::move(token.text), token.place};
}

}  // namespace rbt::dialect
