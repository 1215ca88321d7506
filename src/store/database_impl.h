// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "store/connection.h"
#include "store/database.h"
#include "store/dialect/translate.h"
#include "store/schema_cache.h"

namespace rbt {

/// What a Database and its recordsets share.
class Database::Impl {
 public:
  explicit Impl(std::unique_ptr<Connection> connection)
      : connection_(std::move(connection)), schema_(*connection_) {}

  const Connection& Connected() const { return *connection_; }
  SchemaCache& Schema() { return schema_; }

  Translated Translate(std::string_view jet_sql, const TranslateOptions& options = {});
  SelectStatement TranslateSelect(std::string_view jet_sql, const TranslateOptions& options = {});
  ChangeStatement Fuse(std::span<const std::string> updates);

  /// Before every write. What is held is let go: a write begins on the newest state. A transaction that the
  /// store has already rolled back, for instance because the disk was full, must not go on piecemeal: throws
  /// `database`.
  void StartWriting(std::string_view statement);
  /// Runs a change; outside a transaction only after looking, without a lock on writing, whether it would
  /// write a row.
  std::int64_t Run(const ChangeStatement& change, std::string_view text);

  void Begin();
  void Commit();
  void RollBack();

  void Hold();
  void LetGo() { hold_.reset(); }

 private:
  bool WouldWrite(const ChangeStatement& change, std::string_view text) const;

  std::unique_ptr<Connection> connection_;
  SchemaCache schema_;
  bool in_transaction_ = false;
  std::optional<Statement> hold_;  ///< keeps a read transaction open
};

}  // namespace rbt
