// SPDX-License-Identifier: MIT
#include "store/row_taker.h"

#include <exception>
#include <vector>

#include "store/dialect/translate.h"

namespace rbt {
namespace {

/// What the statement gets as its parameter.
struct Taker {
  const RowTaker& take;
  std::exception_ptr& thrown;
};
constexpr const char* kTakerType = "rbt::Taker";

/// (taker, value, value, ...). SQLite calls C functions: what is thrown goes round the statement.
void EachRow(sqlite3_context* context, int, sqlite3_value** arguments) {
  auto* const taker = static_cast<Taker*>(sqlite3_value_pointer(arguments[0], kTakerType));
  if (taker == nullptr) return sqlite3_result_error(context, "nobody takes the rows", -1);
  try {
    taker->take(arguments + 1);
  } catch (...) {
    taker->thrown = std::current_exception();
    sqlite3_result_error(context, "nobody takes more rows", -1);
  }
}

void NoResult(sqlite3_context*) {}

}  // namespace

void TakeRows(Statement& statement, std::span<const RowTaker> takers) {
  std::exception_ptr thrown;
  std::vector<Taker> bound;
  bound.reserve(takers.size());
  for (const RowTaker& take : takers) {
    bound.push_back({take, thrown});
    sqlite3_bind_pointer(statement.Handle(), static_cast<int>(bound.size()), &bound.back(), kTakerType,
                         nullptr);
  }
  try {
    while (statement.Step()) continue;
  } catch (const Fault&) {
    if (thrown) std::rethrow_exception(thrown);
    throw;
  }
}

void TakeRows(Statement& statement, const RowTaker& take) { TakeRows(statement, std::span(&take, 1)); }

void RegisterRowTaker(sqlite3* connection) {
  // For statements of our own: no schema calls it.
  constexpr int kFlags = SQLITE_UTF8 | SQLITE_DIRECTONLY;
  const int code = sqlite3_create_function_v2(connection, kEachRow, -1, kFlags, nullptr, nullptr, EachRow,
                                              NoResult, nullptr);
  if (code != SQLITE_OK) throw Fault(FaultKind::database, sqlite3_errmsg(connection));
}

}  // namespace rbt
