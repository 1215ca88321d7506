// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/numbers/value.h"

namespace rbt {

/// A column of one recordset, resolved once.
struct FieldHandle {
  int index = -1;
};

/// The rows of a SELECT, read forward; `MoveFirst` runs it again. Reads are of the current row. Reading or
/// moving behind the last row throws `database` ("no current record"). A recordset must not outlive its
/// database.
class Recordset {
 public:
  Recordset(Recordset&&) noexcept;
  Recordset& operator=(Recordset&&) noexcept;
  ~Recordset();

  bool Eof() const;
  void MoveNext();
  void MoveFirst();
  /// The number of rows, counted apart from the walk.
  std::int64_t RecordCount();

  /// Field by name, letter case and width of ASCII ignored; `field not found` when there is none.
  FieldHandle Field(std::string_view name) const;
  std::optional<FieldHandle> FindField(std::string_view name) const;
  int FieldCount() const;
  std::string FieldName(FieldHandle field) const;

  bool IsNull(FieldHandle field) const;
  /// The value by the column's declared type; a computed column by what the store holds.
  Value Get(FieldHandle field) const;
  Value Get(std::string_view name) const { return Get(Field(name)); }
  /// Numbers without the way through `Value`, for row walks; nothing when null. A text that is no number
  /// throws `type mismatch`, a value outside 32 bits `overflow`.
  std::optional<std::int32_t> Int32(FieldHandle field) const;
  std::optional<double> Double(FieldHandle field) const;
  /// Text as it stands, null as nothing.
  std::optional<std::string> Text(FieldHandle field) const;

  /// Updatable recordsets only. `Edit` or `AddNew`, then `Set`, then `Update`; `Update` after an `Edit` that
  /// changed no value writes nothing. Between `Edit` and the next move the fields read what was set. `Set`
  /// converts and checks by the declared type: `overflow`, `type mismatch`, `invalid use of null`, and
  /// `database` for a text that is too long. A walk visits each row once, though its order be edited; moving
  /// on without `Update` drops the edit.
  void Edit();
  /// Begins a row of defaults and nulls; an autonumber already reads its number. After `Update` the current
  /// row is the one it was before; the new one is met after `MoveFirst`.
  void AddNew();
  void Set(FieldHandle field, const Value& value);
  void Set(std::string_view name, const Value& value) { Set(Field(name), value); }
  void Update();
  void Delete();

  class Impl;
  explicit Recordset(std::unique_ptr<Impl> impl);

 private:
  std::unique_ptr<Impl> impl_;
};

}  // namespace rbt
