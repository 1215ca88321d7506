// SPDX-License-Identifier: MIT
#include "jet/table_definition.h"

#include <algorithm>
#include <set>

#include <fmt/format.h>

namespace rbt::jet {

namespace {

constexpr std::size_t kMostColumns = 255;
constexpr std::size_t kMostIndexes = 256;
/// Twice what as many columns and indexes with the longest names take in the smaller pages.
constexpr std::size_t kMostPages = 128;
constexpr std::uint8_t kFixed = 1;
constexpr std::uint8_t kNullable = 2;
constexpr std::uint8_t kAutonumber = 4;
constexpr std::uint8_t kCompressed = 1;
constexpr std::uint16_t kNoColumn = 0xFFFF;

/// The pages of a definition as one run of bytes, without the eight bytes at the head of each but the first.
struct DefinitionBytes {
  std::vector<unsigned char> bytes;
  std::vector<std::uint32_t> pages;
};

DefinitionBytes Gather(JetFile& file, std::uint32_t first) {
  DefinitionBytes all;
  std::set<std::uint32_t> seen;
  for (std::uint32_t page = first; page != 0;) {
    if (!seen.insert(page).second) file.Damaged(page, "a table definition runs in a circle");
    if (seen.size() > kMostPages) file.Damaged(page, "a table definition runs over too many pages");
    const PageView view = file.Page(page, PageType::table_definition);
    const auto bytes = view.Bytes();
    all.bytes.insert(all.bytes.end(), bytes.begin() + (all.pages.empty() ? 0 : 8), bytes.end());
    all.pages.push_back(page);
    page = view.U32(4);
  }
  return all;
}

bool Known(std::uint8_t type) { return (type >= 1 && type <= 12) || (type >= 15 && type <= 17); }

/// Reads the records of a definition one after the other.
class Reader {
 public:
  Reader(JetFile& file, const PageView& view) : file_(file), layout_(file.layout()), view_(view) {}

  TableDefinition Read() {
    TableDefinition table;
    table.page = view_.Page();
    table.system = view_.U8(layout_.tdef_table_type) == 0x53;
    table.row_count = view_.U32(layout_.tdef_row_count);
    table.last_autonumber = view_.U32(layout_.tdef_autonumber);
    table.variable_columns = view_.U16(layout_.tdef_variable_columns);
    table.owned_pages = RowPointerOf(view_.U32(layout_.tdef_owned_pages));
    table.free_pages = RowPointerOf(view_.U32(layout_.tdef_free_pages));
    const std::size_t columns = view_.U16(layout_.tdef_columns);
    const std::size_t logical = view_.U32(layout_.tdef_logical_indexes);
    const std::size_t physical = view_.U32(layout_.tdef_real_indexes);
    if (columns > kMostColumns) view_.Damaged(fmt::format("a table of {} columns", columns));
    if (logical > kMostIndexes || physical > kMostIndexes) {
      view_.Damaged(fmt::format("a table of {} indexes", std::max(logical, physical)));
    }
    at_ = layout_.tdef_index_counts;
    ReadIndexCounts(table, physical);
    ReadColumns(table, columns);
    ReadPhysicalIndexes(table);
    ReadIndexes(table, logical);
    ReadLongValueMaps(table);
    return table;
  }

 private:
  void ReadIndexCounts(TableDefinition& table, std::size_t count) {
    table.physical_indexes.resize(count);
    for (PhysicalIndex& index : table.physical_indexes) {
      index.entries = view_.U32(at_ + 4);
      at_ += layout_.index_count_size;
    }
  }

  void ReadColumns(TableDefinition& table, std::size_t count) {
    std::set<std::uint16_t> numbers;
    for (std::size_t i = 0; i < count; ++i) {
      table.columns.push_back(ReadColumn(view_.Part(at_, layout_.column_size)));
      at_ += layout_.column_size;
      if (!numbers.insert(table.columns.back().number).second) view_.Damaged("two columns of one number");
    }
    for (Column& column : table.columns) column.name = ReadName();
    // Jet 4 lists its columns in the order of the fields, Jet 3 by their numbers.
    std::stable_sort(table.columns.begin(), table.columns.end(),
                     [](const Column& a, const Column& b) { return a.ordinal < b.ordinal; });
  }

  Column ReadColumn(const PageView& record) const {
    if (!Known(record.U8(0))) view_.Damaged(fmt::format("a column of the unknown type {}", record.U8(0)));
    Column column;
    column.type = static_cast<ColumnType>(record.U8(0));
    column.number = record.U16(layout_.column_number);
    if (layout_.column_ordinal != 0) column.ordinal = record.U16(layout_.column_ordinal);
    column.variable_slot = record.U16(layout_.column_variable_slot);
    column.fixed_offset = record.U16(layout_.column_fixed_offset);
    column.length = record.U16(layout_.column_length);
    if (column.type == ColumnType::numeric) {
      column.precision = record.U8(11);
      column.scale = record.U8(12);
    }
    const std::uint8_t flags = record.U8(layout_.column_flags);
    column.fixed = (flags & kFixed) != 0;
    column.nullable = (flags & kNullable) != 0;
    column.autonumber = (flags & kAutonumber) != 0;
    column.compressed =
        layout_.column_extra_flags != 0 && (record.U8(layout_.column_extra_flags) & kCompressed) != 0;
    return column;
  }

  std::string ReadName() {
    std::size_t length = view_.U8(at_);
    std::size_t prefix = 1;
    if (file_.Version() == JetVersion::jet4) {
      length = view_.U16(at_);
      prefix = 2;
    }
    if (length == 0 || length > 128) view_.Damaged(fmt::format("a name of {} bytes", length));
    std::string name = file_.TextOfBytes(view_.Part(at_ + prefix, length).Bytes()).text;
    at_ += prefix + length;
    return name;
  }

  void ReadPhysicalIndexes(TableDefinition& table) {
    for (PhysicalIndex& index : table.physical_indexes) {
      const PageView record = view_.Part(at_, layout_.real_index_size);
      for (std::size_t i = 0; i < 10; ++i) {
        const std::uint16_t number = record.U16(layout_.real_index_columns + 3 * i);
        if (number == kNoColumn) continue;
        if (table.FindNumber(number) == nullptr) {
          view_.Damaged(fmt::format("an index over column {}, which the table lacks", number));
        }
        index.columns.push_back({number, record.U8(layout_.real_index_columns + 3 * i + 2) != 1});
      }
      index.usage = RowPointerOf(record.U32(layout_.real_index_usage));
      index.root = record.U32(layout_.real_index_root);
      const std::uint8_t flags = record.U8(layout_.real_index_flags);
      index.unique = (flags & 1) != 0;
      index.ignores_null = (flags & 2) != 0;
      index.required = (flags & 8) != 0;
      at_ += layout_.real_index_size;
    }
  }

  void ReadIndexes(TableDefinition& table, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
      const PageView record = view_.Part(at_, layout_.logical_index_size);
      const std::size_t start = layout_.logical_index_start;
      Index index;
      index.physical = record.U32(start + 4);
      const std::uint8_t kind = record.U8(start + 19);
      index.kind = kind == 1   ? Index::Kind::primary
                   : kind == 2 ? Index::Kind::relationship
                               : Index::Kind::plain;
      if (index.physical >= table.physical_indexes.size()) {
        view_.Damaged(
            fmt::format("an index on the B-tree {} of {}", index.physical, table.physical_indexes.size()));
      }
      at_ += layout_.logical_index_size;
      table.indexes.push_back(index);
    }
    for (Index& index : table.indexes) index.name = ReadName();
  }

  /// Ended by the column number FFFF. Columns that were deleted keep theirs.
  void ReadLongValueMaps(TableDefinition& table) {
    for (; at_ + 2 <= view_.size() && view_.U16(at_) != kNoColumn; at_ += 10) {
      table.long_value_maps.push_back(
          {view_.U16(at_), RowPointerOf(view_.U32(at_ + 2)), RowPointerOf(view_.U32(at_ + 6))});
    }
  }

  JetFile& file_;
  const Layout& layout_;
  PageView view_;
  std::size_t at_ = 0;
};

FieldType StoreType(ColumnType type) {
  switch (type) {
    case ColumnType::boolean:
      return FieldType::boolean;
    case ColumnType::byte:
      return FieldType::byte;
    case ColumnType::integer16:
      return FieldType::integer16;
    case ColumnType::integer32:
      return FieldType::integer32;
    case ColumnType::currency:
      return FieldType::currency;
    case ColumnType::single:
      return FieldType::single;
    case ColumnType::real:
      return FieldType::real;
    case ColumnType::date_time:
      return FieldType::date_time;
    case ColumnType::opaque:
    case ColumnType::binary:
      return FieldType::binary;
    case ColumnType::text:
      return FieldType::text;
    case ColumnType::ole:
      return FieldType::ole;
    case ColumnType::memo:
      return FieldType::memo;
    case ColumnType::guid:
      return FieldType::guid;
    case ColumnType::numeric:
      return FieldType::decimal;
  }
  return FieldType::binary;
}

}  // namespace

FieldDef Column::ToField(JetVersion version) const {
  FieldDef field;
  field.name = name;
  field.type = StoreType(type);
  if (type == ColumnType::text) field.size = version == JetVersion::jet4 ? length / 2 : length;
  if (type == ColumnType::binary) field.size = length;
  if (type == ColumnType::numeric) {
    field.size = precision;
    field.scale = scale;
  }
  field.autonumber = autonumber && type == ColumnType::integer32;
  return field;
}

const Column* TableDefinition::Find(std::string_view column) const {
  const auto found =
      std::find_if(columns.begin(), columns.end(), [&](const Column& c) { return c.name == column; });
  return found == columns.end() ? nullptr : &*found;
}

const Column* TableDefinition::FindNumber(std::uint16_t number) const {
  const auto found =
      std::find_if(columns.begin(), columns.end(), [&](const Column& c) { return c.number == number; });
  return found == columns.end() ? nullptr : &*found;
}

TableDefinition ReadTableDefinition(JetFile& file, std::uint32_t page) {
  DefinitionBytes all = Gather(file, page);
  TableDefinition table = Reader(file, PageView(all.bytes, &file.Name(), page)).Read();
  table.definition_pages = std::move(all.pages);
  return table;
}

}  // namespace rbt::jet
