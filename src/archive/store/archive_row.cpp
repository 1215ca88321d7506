// SPDX-License-Identifier: MIT
#include "archive/store/archive_row.h"

#include <fmt/format.h>

#include "data/quoted_text.h"

namespace rbt {

ArchiveRow& ArchiveRow::PutLiteral(std::string_view field, std::string_view literal) {
  const std::string_view comma = fields_.empty() ? "" : ",";
  fields_.append(comma).append("[").append(field).append("]");
  values_.append(comma).append(literal);
  return *this;
}

ArchiveRow& ArchiveRow::Put(std::string_view field, std::int32_t number) {
  return PutLiteral(field, std::to_string(number));
}

ArchiveRow& ArchiveRow::Put(std::string_view field, Currency kilograms) {
  return PutLiteral(field, kilograms.ToText());
}

ArchiveRow& ArchiveRow::Put(std::string_view field, std::string_view text) {
  return PutLiteral(field, QuotedText(text, '\''));
}

ArchiveRow& ArchiveRow::PutOrNull(std::string_view field, std::string_view text) {
  return text.empty() ? PutLiteral(field, "NULL") : Put(field, text);
}

ArchiveRow& ArchiveRow::Put(const SavedKey& key) {
  return Put("作成日", std::string_view(key.date)).Put("作成時間", std::string_view(key.time));
}

std::string ArchiveRow::Statement() const {
  return fmt::format("INSERT INTO {}({}) VALUES({})", table_, fields_, values_);
}

std::int32_t ArchiveField::Count() const { return handle_ ? rows_->Int32(*handle_).value_or(0) : 0; }

Currency ArchiveField::Weight() const {
  return handle_ ? AmountOf(rows_->Get(*handle_), rows_->FieldName(*handle_)) : Currency();
}

std::string ArchiveField::Text() const { return handle_ ? TextOf(rows_->Get(*handle_)) : ""; }

}  // namespace rbt
