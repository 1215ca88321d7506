// SPDX-License-Identifier: MIT
#include "platform/fault.h"

#include <utility>

namespace rbt {

std::string_view FaultText(FaultKind kind) {
  switch (kind) {
    case FaultKind::subscript_out_of_range:
      return "subscript out of range";
    case FaultKind::overflow:
      return "overflow";
    case FaultKind::division_by_zero:
      return "division by zero";
    case FaultKind::type_mismatch:
      return "type mismatch";
    case FaultKind::invalid_use_of_null:
      return "invalid use of null";
    case FaultKind::field_not_found:
      return "field not found";
    case FaultKind::database:
    case FaultKind::storage:
    case FaultKind::locked:
    case FaultKind::stopped:
    case FaultKind::file:
      return "";
  }
  return "";
}

namespace {

std::string Compose(FaultKind kind, const std::string& where) {
  const std::string_view text = FaultText(kind);
  if (text.empty()) return where;
  if (where.empty()) return std::string(text);
  return std::string(text) + ": " + where;
}

}  // namespace

Fault::Fault(FaultKind kind, std::string where)
    : std::runtime_error(Compose(kind, where)), kind_(kind), where_(std::move(where)) {}

}  // namespace rbt
