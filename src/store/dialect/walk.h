// SPDX-License-Identifier: MIT
#pragma once

#include "store/dialect/ast.h"

namespace rbt::dialect {

template <typename... Visitors>
struct Overloaded : Visitors... {
  using Visitors::operator()...;
};
template <typename... Visitors>
Overloaded(Visitors...) -> Overloaded<Visitors...>;

/// Calls `visit` with each direct operand of an expression, in the order of the text.
template <typename Visit>
void ForEachOperand(const Expression& expression, Visit visit) {
  const auto all = [&](const ExpressionList& list) {
    for (const ExpressionPtr& operand : list) visit(*operand);
  };
  std::visit(Overloaded{
                 [](const NullLiteral&) {},
                 [](const BooleanLiteral&) {},
                 [](const NumberLiteral&) {},
                 [](const TextLiteral&) {},
                 [](const ColumnName&) {},
                 [&](const Negation& node) { visit(*node.operand); },
                 [&](const Arithmetic& node) { visit(*node.left), visit(*node.right); },
                 [&](const Concatenation& node) { all(node.operands); },
                 [&](const Comparison& node) { visit(*node.left), visit(*node.right); },
                 [&](const NullTest& node) { visit(*node.operand); },
                 [&](const RangeTest& node) { visit(*node.operand), visit(*node.low), visit(*node.high); },
                 [&](const ListTest& node) { visit(*node.operand), all(node.list); },
                 [&](const Inversion& node) { visit(*node.operand); },
                 [&](const Conjunction& node) { all(node.operands); },
                 [&](const Disjunction& node) { all(node.operands); },
                 [&](const Call& node) { all(node.arguments); },
             },
             expression.node);
}

}  // namespace rbt::dialect
