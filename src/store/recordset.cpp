// SPDX-License-Identifier: MIT
#include "store/recordset.h"

#include <utility>

#include "store/recordset_impl.h"

namespace rbt {

Recordset::Recordset(std::unique_ptr<Impl> impl) : impl_(std::move(impl)) {}
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;
Recordset::~Recordset() = default;

Recordset Database::OpenSnapshot(std::string_view jet_sql, std::span<const std::string_view> fields) {
  SelectStatement select = impl_->TranslateSelect(jet_sql, {.fields = fields});
  return Recordset(std::make_unique<Recordset::Impl>(*impl_, std::move(select), jet_sql));
}

Recordset Database::OpenDynaset(std::string_view jet_sql, std::span<const std::string_view> fields) {
  SelectStatement select = impl_->TranslateSelect(jet_sql, {.fields = fields, .with_rowid = true});
  auto editor = std::make_unique<RowEditor>(*impl_, select, jet_sql);
  return Recordset(std::make_unique<Recordset::Impl>(*impl_, std::move(select), jet_sql, std::move(editor)));
}

bool Recordset::Eof() const { return impl_->Eof(); }
void Recordset::MoveNext() { impl_->MoveNext(); }
void Recordset::MoveFirst() { impl_->MoveFirst(); }
std::int64_t Recordset::RecordCount() { return impl_->RecordCount(); }

FieldHandle Recordset::Field(std::string_view name) const {
  const auto field = FindField(name);
  if (!field) throw Fault{FaultKind::field_not_found, impl_->NotFound(name)};
  return *field;
}

std::optional<FieldHandle> Recordset::FindField(std::string_view name) const {
  return impl_->FindField(name);
}
int Recordset::FieldCount() const { return impl_->FieldCount(); }
std::string Recordset::FieldName(FieldHandle field) const { return impl_->ColumnAt(field).name; }

bool Recordset::IsNull(FieldHandle field) const {
  const Value* const edited = impl_->Edited(field);
  if (edited != nullptr) return rbt::IsNull(*edited);
  return sqlite3_column_type(impl_->Row(), field.index) == SQLITE_NULL;
}

Value Recordset::Get(FieldHandle field) const {
  const Value* const edited = impl_->Edited(field);
  if (edited != nullptr) return *edited;
  const auto& column = impl_->ColumnAt(field);
  return ReadStored(impl_->Row(), field.index, column.field ? &*column.field : nullptr,
                    impl_->PlaceOf(field));
}

std::optional<std::int32_t> Recordset::Int32(FieldHandle field) const {
  const Value* const edited = impl_->Edited(field);
  if (edited == nullptr) return ReadInt32(impl_->Row(), field.index, impl_->PlaceOf(field));
  if (rbt::IsNull(*edited)) return std::nullopt;
  return Int32Of(*edited, impl_->PlaceOf(field).Text());
}

std::optional<double> Recordset::Double(FieldHandle field) const {
  const Value* const edited = impl_->Edited(field);
  if (edited == nullptr) return ReadDouble(impl_->Row(), field.index, impl_->PlaceOf(field));
  if (rbt::IsNull(*edited)) return std::nullopt;
  return NumberOf(*edited, impl_->PlaceOf(field).Text());
}

std::optional<std::string> Recordset::Text(FieldHandle field) const {
  const Value* const edited = impl_->Edited(field);
  if (edited == nullptr) return ReadText(impl_->Row(), field.index, impl_->PlaceOf(field));
  if (rbt::IsNull(*edited)) return std::nullopt;
  return TextOf(*edited);
}

void Recordset::Edit() { impl_->Edit(); }
void Recordset::AddNew() { impl_->AddNew(); }
void Recordset::Set(FieldHandle field, const Value& value) { impl_->Set(field, value); }
void Recordset::Update() { impl_->Update(); }
void Recordset::Delete() { impl_->Delete(); }

}  // namespace rbt
