// SPDX-License-Identifier: MIT
#include "store/dialect/lexer.h"

#include <algorithm>

#include "platform/text/characters.h"

namespace rbt::dialect {
namespace {

constexpr std::string_view kReserved[] = {
    "ADD",     "ALTER",  "AND",  "AS",    "ASC",  "BETWEEN", "BY",     "COLUMN", "CONSTRAINT", "CREATE",
    "DELETE",  "DESC",   "DROP", "FALSE", "FROM", "GROUP",   "HAVING", "IN",     "INDEX",      "INSERT",
    "INTO",    "IS",     "KEY",  "LIKE",  "MOD",  "NOT",     "NULL",   "ON",     "OR",         "ORDER",
    "PRIMARY", "SELECT", "SET",  "TABLE", "TRUE", "UNION",   "UNIQUE", "UPDATE", "VALUES",     "WHERE",
};

constexpr std::string_view kTwoCharacterSymbols[] = {"<>", "<=", ">="};
constexpr std::string_view kSymbols = "()*+,-./;<=>\\&";

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }
bool IsAscii(char c) { return static_cast<unsigned char>(c) < 0x80; }
bool StartsWord(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || !IsAscii(c);
}
bool ContinuesWord(char c) { return StartsWord(c) || IsDigit(c); }

/// Blanks, controls and signs beyond ASCII, and bytes that are no UTF-8: no part of a bare name. Full-width
/// letters, digits and the low line are.
bool IsForeignSign(char32_t c) {
  return (c >= 0x80 && c <= 0xA0) || (c >= 0x2000 && c <= 0x206F) || (c >= 0x3000 && c <= 0x3003) ||
         (c >= 0xFF01 && c <= 0xFF0F) || (c >= 0xFF1A && c <= 0xFF20) || (c >= 0xFF3B && c <= 0xFF3E) ||
         c == 0xFF40 || (c >= 0xFF5B && c <= 0xFF65) || c == 0xFFFD;
}

class Lexer {
 public:
  explicit Lexer(std::string_view statement) : statement_(statement) {}

  std::vector<Token> Run() {
    while (true) {
      while (at_ < statement_.size() && IsBlank(statement_[at_])) ++at_;
      if (at_ == statement_.size()) break;
      tokens_.push_back(Next());
    }
    tokens_.push_back({TokenKind::end, "", {at_, 0}});
    return std::move(tokens_);
  }

 private:
  char Peek(std::size_t ahead = 0) const {
    return at_ + ahead < statement_.size() ? statement_[at_ + ahead] : '\0';
  }

  Token Next() {
    const char c = Peek();
    if (IsDigit(c) || (c == '.' && IsDigit(Peek(1)) && !AfterName())) return Number();
    if (StartsWord(c)) return Word();
    if (c == '"' || c == '\'') return Text(c);
    if (c == '[') return Bracketed();
    return Symbol();
  }

  /// A point behind a name divides table and field, also before a digit.
  bool AfterName() const {
    if (tokens_.empty()) return false;
    const Token& last = tokens_.back();
    return last.kind == TokenKind::bracketed || (last.kind == TokenKind::word && !IsReserved(last.text));
  }

  Token Cut(TokenKind kind, std::size_t begin) const {
    const Place place{begin, at_ - begin};
    return {kind, std::string(statement_.substr(place.begin, place.length)), place};
  }

  Token Number() {
    const std::size_t begin = at_;
    const auto skip_digits = [&] {
      while (IsDigit(Peek())) ++at_;
    };
    skip_digits();
    if (Peek() == '.') {
      ++at_;
      skip_digits();
    }
    if (Peek() == 'e' || Peek() == 'E') {
      const std::size_t sign = Peek(1) == '+' || Peek(1) == '-' ? 1 : 0;
      if (IsDigit(Peek(1 + sign))) {
        at_ += 1 + sign;
        skip_digits();
      }
    }
    return Cut(TokenKind::number, begin);
  }

  Token Word() {
    const std::size_t begin = at_;
    while (at_ < statement_.size() && ContinuesWord(statement_[at_])) ++at_;
    Token word = Cut(TokenKind::word, begin);
    if (std::ranges::any_of(CharactersOf(word.text), IsForeignSign)) {
      Refuse(statement_, word.place, "a sign that belongs to no name");
    }
    return word;
  }

  Token Text(char quote) {
    const std::size_t begin = at_++;
    std::string text;
    while (true) {
      if (at_ == statement_.size()) Refuse(statement_, {begin, at_ - begin}, "a text that is not closed");
      const char c = statement_[at_++];
      if (c == quote) {
        if (Peek() != quote) break;
        ++at_;
      }
      text += c;
    }
    if (text.find('\0') != std::string::npos) {
      Refuse(statement_, {begin, at_ - begin}, "a text with a zero character");
    }
    return {TokenKind::text, std::move(text), {begin, at_ - begin}};
  }

  Token Bracketed() {
    const std::size_t begin = at_;
    const std::size_t close = statement_.find(']', begin);
    if (close == std::string_view::npos) {
      Refuse(statement_, {begin, statement_.size() - begin}, "a bracket that is not closed");
    }
    at_ = close + 1;
    std::string name(statement_.substr(begin + 1, close - begin - 1));
    // Jet allows none of these in a name; the translated statement leans on that for names of its own.
    if (name.empty() || name.find_first_of(std::string_view("[.!`\0", 5)) != std::string::npos) {
      Refuse(statement_, {begin, at_ - begin}, "no name in the brackets");
    }
    return {TokenKind::bracketed, std::move(name), {begin, at_ - begin}};
  }

  Token Symbol() {
    const std::size_t begin = at_;
    const std::string_view two = statement_.substr(at_, 2);
    at_ += std::ranges::find(kTwoCharacterSymbols, two) != std::end(kTwoCharacterSymbols) ? 2 : 1;
    if (two.empty() || kSymbols.find(two.front()) == std::string_view::npos) {
      Refuse(statement_, {begin, 1}, "an unknown sign");
    }
    return Cut(TokenKind::symbol, begin);
  }

  std::string_view statement_;
  std::size_t at_ = 0;
  std::vector<Token> tokens_;
};

}  // namespace

std::vector<Token> Tokenize(std::string_view statement) { return Lexer(statement).Run(); }

bool IsReserved(std::string_view word) {
  return std::ranges::any_of(kReserved,
                             [&](std::string_view reserved) { return EqualIgnoringCase(reserved, word); });
}

}  // namespace rbt::dialect
