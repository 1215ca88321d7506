// SPDX-License-Identifier: MIT
#include "store/dialect/expression_parser.h"

#include <algorithm>
#include <array>
#include <utility>

#include "store/dialect/walk.h"

namespace rbt::dialect {
namespace {

/// Levels of parentheses and of operators: above what a statement has, and within reach of SQLite's parser.
constexpr int kMaxDepth = 40;

constexpr std::string_view kComparisonSigns[] = {"=", "<>", "<", "<=", ">", ">="};

class ExpressionParser {
 public:
  explicit ExpressionParser(TokenStream& tokens) : tokens_(tokens) {}

  ExpressionPtr Parse() {
    const Nesting nesting(*this);
    return ParseChain<Disjunction>(
        "OR", [this] { return ParseChain<Conjunction>("AND", [this] { return ParseInversion(); }); });
  }

 private:
  /// Counts the levels of the parser's own recursion.
  class Nesting {
   public:
    explicit Nesting(ExpressionParser& parser) : parser_(parser) {
      if (++parser_.level_ > kMaxDepth) parser_.tokens_.RefuseHere("nested too deeply");
    }
    Nesting(const Nesting&) = delete;
    Nesting& operator=(const Nesting&) = delete;
    ~Nesting() { --parser_.level_; }

   private:
    ExpressionParser& parser_;
  };

  template <typename Node>
  ExpressionPtr Make(Place place, Node node) {
    auto expression = std::make_unique<Expression>();
    expression->place = place;
    expression->node = std::move(node);
    ForEachOperand(*expression, [&](const Expression& operand) {
      expression->depth = std::max(expression->depth, operand.depth + 1);
    });
    if (expression->depth > kMaxDepth) tokens_.RefuseAt(place, "nested too deeply");
    return expression;
  }

  /// Operands joined by one word become one node: long chains stay flat.
  template <typename Node, typename ParseOperand>
  ExpressionPtr ParseChain(std::string_view word, ParseOperand parse_operand) {
    ExpressionPtr first = parse_operand();
    if (!tokens_.AtWord(word)) return first;
    const Place place = tokens_.Peek().place;
    Node node;
    node.operands.push_back(std::move(first));
    while (tokens_.TakeWord(word)) node.operands.push_back(parse_operand());
    return Make(place, std::move(node));
  }

  ExpressionPtr ParseInversion() {
    if (!tokens_.AtWord("NOT")) return ParseComparison();
    const Nesting nesting(*this);
    const Place place = tokens_.Take().place;
    return Make(place, Inversion{ParseInversion()});
  }

  ExpressionPtr ParseComparison() {
    ExpressionPtr left = ParseConcatenation();
    const Token sign = tokens_.Peek();
    if (sign.kind == TokenKind::symbol &&
        std::ranges::find(kComparisonSigns, sign.text) != std::end(kComparisonSigns)) {
      tokens_.Take();
      return Make(sign.place, Comparison{sign.text, std::move(left), ParseConcatenation()});
    }
    if (tokens_.TakeWord("IS")) {
      const bool negated = tokens_.TakeWord("NOT");
      tokens_.ExpectWord("NULL");
      return Make(sign.place, NullTest{std::move(left), negated});
    }
    const bool negated = tokens_.AtWord("NOT") && (tokens_.AtWord("BETWEEN", 1) || tokens_.AtWord("IN", 1));
    if (negated) tokens_.Take();
    if (tokens_.TakeWord("BETWEEN")) return ParseRange(sign.place, std::move(left), negated);
    if (tokens_.TakeWord("IN")) return ParseList(sign.place, std::move(left), negated);
    return left;
  }

  ExpressionPtr ParseRange(Place place, ExpressionPtr operand, bool negated) {
    ExpressionPtr low = ParseConcatenation();
    tokens_.ExpectWord("AND");
    ExpressionPtr high = ParseConcatenation();
    return Make(place, RangeTest{std::move(operand), std::move(low), std::move(high), negated});
  }

  ExpressionPtr ParseList(Place place, ExpressionPtr operand, bool negated) {
    tokens_.ExpectSymbol("(");
    ExpressionList list;
    do {
      list.push_back(ParseConcatenation());
    } while (tokens_.TakeSymbol(","));
    tokens_.ExpectSymbol(")");
    return Make(place, ListTest{std::move(operand), std::move(list), negated});
  }

  ExpressionPtr ParseConcatenation() {
    ExpressionPtr first = ParseSum();
    if (!tokens_.AtSymbol("&")) return first;
    const Place place = tokens_.Peek().place;
    Concatenation node;
    node.operands.push_back(std::move(first));
    while (tokens_.TakeSymbol("&")) node.operands.push_back(ParseSum());
    return Make(place, std::move(node));
  }

  /// Left to right: operand (sign operand)*, where `sign_here` names the operator that stands next, if any.
  template <typename ParseOperand, typename SignHere>
  ExpressionPtr ParseArithmetic(ParseOperand parse_operand, SignHere sign_here) {
    ExpressionPtr left = parse_operand();
    while (const std::optional<ArithmeticOperator> sign = sign_here()) {
      const Place place = tokens_.Take().place;
      left = Make(place, Arithmetic{*sign, std::move(left), parse_operand()});
    }
    return left;
  }

  ExpressionPtr ParseSum() {
    return ParseArithmetic(
        [this] { return ParseRemainder(); },
        [this] {
          return SignAmong({{{"+", ArithmeticOperator::add}, {"-", ArithmeticOperator::subtract}}});
        });
  }

  ExpressionPtr ParseRemainder() {
    return ParseArithmetic([this] { return ParseWholeDivision(); },
                           [this]() -> std::optional<ArithmeticOperator> {
                             if (!tokens_.AtWord("MOD")) return std::nullopt;
                             return ArithmeticOperator::remainder;
                           });
  }

  ExpressionPtr ParseWholeDivision() {
    return ParseArithmetic([this] { return ParseProduct(); },
                           [this]() -> std::optional<ArithmeticOperator> {
                             if (!tokens_.AtSymbol("\\")) return std::nullopt;
                             return ArithmeticOperator::divide_whole;
                           });
  }

  ExpressionPtr ParseProduct() {
    return ParseArithmetic(
        [this] { return ParseSign(); },
        [this] {
          return SignAmong({{{"*", ArithmeticOperator::multiply}, {"/", ArithmeticOperator::divide}}});
        });
  }

  std::optional<ArithmeticOperator> SignAmong(
      const std::array<std::pair<std::string_view, ArithmeticOperator>, 2>& signs) const {
    for (const auto& [symbol, sign] : signs) {
      if (tokens_.AtSymbol(symbol)) return sign;
    }
    return std::nullopt;
  }

  ExpressionPtr ParseSign() {
    const Nesting nesting(*this);
    if (tokens_.TakeSymbol("+")) return ParseSign();
    if (!tokens_.AtSymbol("-")) return ParseOperand();
    const Place place = tokens_.Take().place;
    return Make(place, Negation{ParseSign()});
  }

  ExpressionPtr ParseOperand() {
    const Token token = tokens_.Peek();
    if (token.kind == TokenKind::number) return Make(token.place, NumberLiteral{tokens_.Take().text});
    if (token.kind == TokenKind::text) return Make(token.place, TextLiteral{tokens_.Take().text});
    if (tokens_.TakeWord("NULL")) return Make(token.place, NullLiteral{});
    if (tokens_.TakeWord("TRUE")) return Make(token.place, BooleanLiteral{true});
    if (tokens_.TakeWord("FALSE")) return Make(token.place, BooleanLiteral{false});
    if (tokens_.TakeSymbol("(")) {
      ExpressionPtr inner = Parse();
      tokens_.ExpectSymbol(")");
      return inner;
    }
    if (!tokens_.AtName()) tokens_.RefuseHere("a value is expected");
    if (token.kind == TokenKind::word && tokens_.AtSymbol("(", 1)) return ParseCall();
    return Make(token.place, ParseColumnName(tokens_));
  }

  ExpressionPtr ParseCall() {
    Call call;
    call.function = tokens_.ExpectName("a function");
    tokens_.ExpectSymbol("(");
    if (tokens_.TakeSymbol("*")) {
      call.of_rows = true;
    } else {
      do {
        call.arguments.push_back(Parse());
      } while (tokens_.TakeSymbol(","));
    }
    tokens_.ExpectSymbol(")");
    const Place place = call.function.place;
    return Make(place, std::move(call));
  }

  TokenStream& tokens_;
  int level_ = 0;
};

}  // namespace

ExpressionPtr ParseExpression(TokenStream& tokens) { return ExpressionParser(tokens).Parse(); }

ColumnName ParseColumnName(TokenStream& tokens) {
  Name first = tokens.ExpectName("a field");
  if (!tokens.TakeSymbol(".")) return {std::nullopt, std::move(first)};
  return {std::move(first), tokens.ExpectName("a field")};
}

}  // namespace rbt::dialect
