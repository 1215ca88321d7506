// SPDX-License-Identifier: MIT
#include "jet/row.h"

#include <algorithm>
#include <array>

#include <fmt/format.h>

#include "jet/data_page.h"

namespace rbt::jet {

namespace {

/// Where the parts of one row lie.
class RowShape {
 public:
  RowShape(const PageView& row, JetVersion version, const TableDefinition& table) : row_(row) {
    head_ = version == JetVersion::jet3 ? 1 : 2;
    columns_ = version == JetVersion::jet3 ? row.U8(0) : row.U16(0);
    const std::size_t mask = (columns_ + 7U) / 8U;
    if (head_ + mask > row.size())
      row.Damaged(fmt::format("a row of {} columns in {} bytes", columns_, row.size()));
    mask_at_ = row.size() - mask;
    fixed_end_ = mask_at_;
    if (!HasVariableColumns(table)) return;
    if (version == JetVersion::jet3) {
      ReadJet3Offsets();
    } else {
      ReadJet4Offsets();
    }
  }

  std::size_t Columns() const { return columns_; }
  bool Bit(std::size_t number) const { return ((row_.U8(mask_at_ + number / 8) >> (number % 8)) & 1) != 0; }

  PageView Fixed(std::size_t offset, std::size_t length) const {
    if (head_ + offset + length > fixed_end_) row_.Damaged("a fixed column runs into what follows it");
    return row_.Part(head_ + offset, length);
  }

  bool HasSlot(std::size_t slot) const { return slot + 1 < offsets_.size(); }
  PageView Variable(std::size_t slot) const {
    const std::size_t start = offsets_[slot];
    const std::size_t end = offsets_[slot + 1];
    if (start > end || end > mask_at_)
      row_.Damaged(fmt::format("a variable column from {} to {}", start, end));
    return row_.Part(start, end - start);
  }

 private:
  /// A row that is older than every variable column may stand without offsets.
  bool HasVariableColumns(const TableDefinition& table) const {
    return std::any_of(table.columns.begin(), table.columns.end(), [&](const Column& column) {
      return !column.fixed && column.type != ColumnType::boolean && column.number < columns_;
    });
  }

  void ReadJet4Offsets() {
    if (mask_at_ < head_ + 2) row_.Damaged("a row without room for its offsets");
    const std::size_t count = row_.U16(mask_at_ - 2);
    if ((count + 1) * 2 > mask_at_ - 2 - head_)
      row_.Damaged(fmt::format("{} variable columns in a row", count));
    for (std::size_t i = 0; i <= count; ++i) offsets_.push_back(row_.U16(mask_at_ - 4 - 2 * i));
    SetFixedEnd();
  }

  /// One byte an offset; the jump table before the null mask tells from which column on 256 is added once
  /// more.
  void ReadJet3Offsets() {
    if (mask_at_ < head_ + 2) row_.Damaged("a row without room for its offsets");
    const std::size_t count = row_.U8(mask_at_ - 1);
    std::size_t jumps = (row_.size() - 1) / 256;
    if (mask_at_ < jumps + 2 + count) row_.Damaged(fmt::format("{} variable columns in a row", count));
    const std::size_t last = mask_at_ - 2 - jumps;
    // The last jump may be a dummy: its byte is there, but no offset reaches that far.
    if (jumps > 0 && (last - count) / 256 < jumps) --jumps;
    std::size_t used = 0;
    for (std::size_t i = 0; i <= count; ++i) {
      while (used < jumps && row_.U8(mask_at_ - 2 - used) == i) ++used;
      offsets_.push_back(row_.U8(last - i) + 256 * used);
    }
    SetFixedEnd();
  }

  void SetFixedEnd() {
    fixed_end_ = offsets_.front();
    if (fixed_end_ < head_ || fixed_end_ > mask_at_) {
      row_.Damaged(fmt::format("the variable columns of a row begin at {}", fixed_end_));
    }
  }

  PageView row_;
  std::size_t head_ = 0;
  std::size_t columns_ = 0;
  std::size_t mask_at_ = 0;
  std::size_t fixed_end_ = 0;
  std::vector<std::size_t> offsets_;
};

/// Sixteen bytes of a numeric, four groups of four, as a decimal text with its scale.
std::string NumericText(const PageView& field, int scale) {
  std::array<std::uint32_t, 4> groups{};
  for (std::size_t i = 0; i < 4; ++i) groups[i] = field.U32(1 + 4 * i);
  std::string digits;
  const auto zero = [&] {
    return std::all_of(groups.begin(), groups.end(), [](std::uint32_t g) { return g == 0; });
  };
  while (!zero()) {
    std::uint64_t rest = 0;
    for (std::uint32_t& group : groups) {
      const std::uint64_t part = (rest << 32) | group;
      group = static_cast<std::uint32_t>(part / 10);
      rest = part % 10;
    }
    digits.push_back(static_cast<char>('0' + rest));
  }
  const auto places = static_cast<std::size_t>(scale);
  if (digits.size() <= places) digits.append(places + 1 - digits.size(), '0');
  std::reverse(digits.begin(), digits.end());
  if (places > 0) digits.insert(digits.size() - places, 1, '.');
  const bool negative = field.U8(0) != 0 && digits.find_first_not_of("0.") != std::string::npos;
  return negative ? "-" + digits : digits;
}

std::string GuidText(const PageView& f) {
  std::string text = fmt::format("{{{:08X}-{:04X}-{:04X}-", f.U32(0), f.U16(4), f.U16(6));
  for (std::size_t i = 8; i < 16; ++i) text += fmt::format("{}{:02X}", i == 10 ? "-" : "", f.U8(i));
  return text + "}";
}

Value TextOrBytes(const JetFile& file, std::span<const unsigned char> bytes) {
  DecodedText decoded = file.TextOfBytes(bytes);
  if (decoded.exact) return std::move(decoded.text);
  return Bytes(bytes.begin(), bytes.end());
}

Value DecodeField(JetFile& file, const Column& column, const PageView& field) {
  switch (column.type) {
    case ColumnType::byte:
      return static_cast<std::int64_t>(field.U8(0));
    case ColumnType::integer16:
      return static_cast<std::int64_t>(static_cast<std::int16_t>(field.U16(0)));
    case ColumnType::integer32:
      return static_cast<std::int64_t>(static_cast<std::int32_t>(field.U32(0)));
    case ColumnType::currency:
      return Currency::FromTenThousandths(static_cast<std::int64_t>(field.U64(0)));
    case ColumnType::single:
      return static_cast<double>(field.F32(0));
    case ColumnType::real:
    case ColumnType::date_time:
      return field.F64(0);
    case ColumnType::text:
      return TextOrBytes(file, field.Bytes());
    case ColumnType::memo:
      return TextOrBytes(file, ReadLongValue(file, field));
    case ColumnType::ole:
      return ReadLongValue(file, field);
    case ColumnType::opaque:
    case ColumnType::binary:
      return Bytes(field.Bytes().begin(), field.Bytes().end());
    case ColumnType::guid:
      return GuidText(field);
    case ColumnType::numeric:
      return NumericText(field, column.scale);
    case ColumnType::boolean:
      break;
  }
  return std::monostate{};
}

std::size_t FixedLength(const Column& column) {
  switch (column.type) {
    case ColumnType::boolean:
      return 0;
    case ColumnType::byte:
      return 1;
    case ColumnType::integer16:
      return 2;
    case ColumnType::integer32:
    case ColumnType::single:
      return 4;
    case ColumnType::currency:
    case ColumnType::real:
    case ColumnType::date_time:
      return 8;
    case ColumnType::guid:
      return 16;
    case ColumnType::numeric:
      return 17;
    default:
      return column.length;
  }
}

}  // namespace

std::vector<Value> DecodeRow(JetFile& file, const TableDefinition& table, const PageView& row) {
  const RowShape shape(row, file.Version(), table);
  std::vector<Value> values;
  values.reserve(table.columns.size());
  for (const Column& column : table.columns) {
    // A row is null in columns that came later than itself.
    const bool bit = column.number < shape.Columns() && shape.Bit(column.number);
    if (column.type == ColumnType::boolean) {
      values.emplace_back(std::in_place_type<std::int64_t>, bit ? -1 : 0);
    } else if (bit && column.fixed) {
      values.push_back(DecodeField(file, column, shape.Fixed(column.fixed_offset, FixedLength(column))));
    } else if (bit && shape.HasSlot(column.variable_slot)) {
      values.push_back(DecodeField(file, column, shape.Variable(column.variable_slot)));
    } else {
      values.emplace_back();
    }
  }
  return values;
}

}  // namespace rbt::jet
