// SPDX-License-Identifier: MIT
#include "store/row_walk.h"

#include <algorithm>
#include <exception>
#include <string>
#include <utility>
#include <vector>

#include <fmt/format.h>
#include <sqlite3.h>

#include "platform/text/characters.h"
#include "store/database_impl.h"
#include "store/stored_value.h"

namespace rbt {
namespace {

/// What the statement of a walk gets as its parameter.
struct Taker {
  std::function<void(sqlite3_value** values)> take;
  std::exception_ptr thrown;
};
constexpr const char* kTakerType = "rbt::Taker";

/// (taker, column, column, ...). SQLite calls C functions: what is thrown goes round the statement.
void EachRow(sqlite3_context* context, int, sqlite3_value** arguments) {
  auto* const taker = static_cast<Taker*>(sqlite3_value_pointer(arguments[0], kTakerType));
  if (taker == nullptr) return sqlite3_result_error(context, "no walk takes the rows", -1);
  try {
    taker->take(arguments + 1);
  } catch (...) {
    taker->thrown = std::current_exception();
    sqlite3_result_error(context, "the walk was ended", -1);
  }
}

void NoResult(sqlite3_context*) {}

}  // namespace

class RowWalk::Impl {
 public:
  struct Column {
    std::string name;
    std::string folded_name;
  };

  Impl(Database& database, std::string_view jet_sql, SelectStatement select)
      : database_(database),
        text_(jet_sql),
        table_(select.tables.front()),
        rows_(database.impl().Connected().Prepare(select.sql, jet_sql)) {
    columns_.reserve(select.columns.size());
    for (const auto& column : select.columns) columns_.push_back({column.name, FoldIdentifier(column.name)});
  }

  std::optional<FieldHandle> FindField(std::string_view name) const {
    const auto found = std::ranges::find(columns_, FoldIdentifier(name), &Column::folded_name);
    if (found == columns_.end()) return std::nullopt;
    return FieldHandle{static_cast<int>(found - columns_.begin())};
  }

  /// A snapshot's first row is read before its fields are looked for.
  [[noreturn]] void ThrowNotFound(std::string_view name) const {
    database_.HasRows(text_);
    throw Fault{FaultKind::field_not_found,
                fmt::format("{}: {}: {}", FieldPlace{table_, name}.Text(), database_.File().string(), text_)};
  }

  FieldPlace PlaceOf(FieldHandle field) const {
    return {table_, columns_[static_cast<std::size_t>(field.index)].name};
  }

  void Run(Taker& taker) {
    sqlite3_bind_pointer(rows_.Handle(), 1, &taker, kTakerType, nullptr);
    try {
      while (rows_.Step()) continue;
    } catch (const Fault&) {
      if (taker.thrown) std::rethrow_exception(taker.thrown);
      throw;
    }
  }

 private:
  Database& database_;
  std::string text_;
  std::string table_;
  Statement rows_;
  std::vector<Column> columns_;
};

std::optional<std::int32_t> WalkedRow::Int32(FieldHandle field) const {
  return ReadInt32(values_[field.index], walk_.impl_->PlaceOf(field));
}

std::optional<double> WalkedRow::Double(FieldHandle field) const {
  return ReadDouble(values_[field.index], walk_.impl_->PlaceOf(field));
}

RowWalk::RowWalk(Database& database, std::string_view jet_sql, std::span<const std::string_view> fields)
    : impl_(std::make_unique<Impl>(
          database, jet_sql, database.impl().TranslateSelect(jet_sql, {.fields = fields, .walked = true}))) {}

RowWalk::~RowWalk() = default;

std::optional<FieldHandle> RowWalk::FindField(std::string_view name) const { return impl_->FindField(name); }

FieldHandle RowWalk::Field(std::string_view name) const {
  const auto field = FindField(name);
  if (!field) impl_->ThrowNotFound(name);
  return *field;
}

void RowWalk::Run(const std::function<void(const WalkedRow& row)>& take) {
  Taker taker{[&](sqlite3_value** values) { take(WalkedRow(*this, values)); }, nullptr};
  impl_->Run(taker);
}

void RegisterRowWalks(sqlite3* connection) {
  // For statements of our own: no schema calls it.
  constexpr int kFlags = SQLITE_UTF8 | SQLITE_DIRECTONLY;
  const int code = sqlite3_create_function_v2(connection, kEachRow, -1, kFlags, nullptr, nullptr, EachRow,
                                              NoResult, nullptr);
  if (code != SQLITE_OK) throw Fault(FaultKind::database, sqlite3_errmsg(connection));
}

}  // namespace rbt
