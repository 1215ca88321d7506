// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace rbt {

/// What went wrong, in the runtime's own terms.
enum class FaultKind {
  subscript_out_of_range,
  overflow,
  division_by_zero,
  type_mismatch,
  invalid_use_of_null,
  field_not_found,
  database,  ///< the store refused: the text is the store's message and the statement
  storage,   ///< the store's file fails: I/O, a full disk, damage, no right; a text like that of `database`
  locked,    ///< another program holds a file, and it was waited for in vain: the text names the file
  stopped,   ///< the user has stopped the work: nobody need tell them
  file,      ///< a file could not be read, written or started: the text names file and cause
};

/// The runtime's words for a kind: "subscript out of range", "division by zero", ...; empty for `database`,
/// `storage`, `locked`, `stopped` and `file`, whose message stands alone.
std::string_view FaultText(FaultKind kind);

/// Ends the running action. `what()` is the runtime's text, ": " and where it happened (table, page and line,
/// field, value); for the kinds without words of the runtime it is the message itself.
class Fault : public std::runtime_error {
 public:
  Fault(FaultKind kind, std::string where);

  FaultKind Kind() const { return kind_; }
  const std::string& Where() const { return where_; }

 private:
  FaultKind kind_;
  std::string where_;
};

/// Runs an action and gives what it gives; a fault of it gets the text of `place()`, which nobody asks for
/// before, put in front: "PLACE: WHERE".
template <typename Place, typename Action>
decltype(auto) At(const Place& place, Action&& action) {
  try {
    return action();
  } catch (const Fault& fault) {
    throw Fault(fault.Kind(), place() + ": " + fault.Where());
  }
}

}  // namespace rbt
