// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "archive/store/saved_tallies.h"
#include "platform/numbers/currency.h"
#include "store/recordset.h"

namespace rbt {

/// A row that is to be written to a table: its fields in their order and what they get.
class ArchiveRow {
 public:
  explicit ArchiveRow(std::string_view table) : table_(table) {}

  ArchiveRow& Put(std::string_view field, std::int32_t number);
  ArchiveRow& Put(std::string_view field, Currency kilograms);
  ArchiveRow& Put(std::string_view field, std::string_view text);
  /// Null for an empty text.
  ArchiveRow& PutOrNull(std::string_view field, std::string_view text);
  /// 作成日 and 作成時間.
  ArchiveRow& Put(const SavedKey& key);

  /// The INSERT that writes it.
  std::string Statement() const;

 private:
  ArchiveRow& PutLiteral(std::string_view field, std::string_view literal);

  std::string table_;
  std::string fields_;
  std::string values_;
};

/// A field of the rows that are read, resolved once. Null, and a field that an older table lacks, is 0 or
/// empty. The recordset must outlive it.
class ArchiveField {
 public:
  ArchiveField(const Recordset& rows, std::string_view name) : rows_(&rows), handle_(rows.FindField(name)) {}

  /// What the current row holds.
  std::int32_t Count() const;
  Currency Weight() const;
  std::string Text() const;

 private:
  const Recordset* rows_;
  std::optional<FieldHandle> handle_;
};

}  // namespace rbt
