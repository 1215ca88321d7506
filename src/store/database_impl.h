// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "store/connection.h"
#include "store/database.h"
#include "store/dialect/translate.h"
#include "store/schema_cache.h"

namespace rbt {

/// What a Database and its recordsets share.
class Database::Impl {
 public:
  Impl(const std::filesystem::path& file, OpenMode mode) : connection_(file, mode), schema_(connection_) {}

  const Connection& Connected() const { return connection_; }
  SchemaCache& Schema() { return schema_; }

  Translated Translate(std::string_view jet_sql, const TranslateOptions& options = {});
  SelectStatement TranslateSelect(std::string_view jet_sql, const TranslateOptions& options = {});
  ChangeStatement Fuse(std::span<const std::string> updates);

  /// Before every write. A transaction that the store has already rolled back, for instance because the disk
  /// was full, must not go on piecemeal: throws `database`.
  void RequireWritable(std::string_view statement) const;

  void Begin();
  void Commit();
  void RollBack();

 private:
  Connection connection_;
  SchemaCache schema_;
  bool in_transaction_ = false;
};

}  // namespace rbt
