// SPDX-License-Identifier: MIT
#include "support/jet_writer.h"

#include <algorithm>
#include <array>
#include <bit>
#include <numeric>
#include <stdexcept>

#include "jet/table_definition.h"
#include "platform/files/files.h"
#include "platform/text/characters.h"
#include "platform/text/cp932.h"

namespace rbt::test {

namespace {

using jet::ColumnType;
using jet::JetVersion;
using jet::RowPointer;

constexpr std::size_t kNoOffset = 0;

/// Little-endian; bytes beyond the eighth are zero.
void Put(Bytes& bytes, std::uint64_t value, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) {
    bytes.push_back(static_cast<unsigned char>(value));
    value >>= 8;
  }
}

void PutAt(Bytes& bytes, std::size_t at, std::uint64_t value, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) bytes.at(at + i) = static_cast<unsigned char>(value >> (8 * i));
}

void PutBigEndian(Bytes& bytes, std::uint64_t value, std::size_t count) {
  for (std::size_t i = count; i-- > 0;) bytes.push_back(static_cast<unsigned char>(value >> (8 * i)));
}

void Append(Bytes& bytes, const Bytes& more) { bytes.insert(bytes.end(), more.begin(), more.end()); }

Bytes TextBytes(JetVersion version, const std::string& text) {
  if (version == JetVersion::jet3) {
    const std::string encoded = ToCp932(text);
    return {encoded.begin(), encoded.end()};
  }
  Bytes bytes;
  for (const char32_t c : CharactersOf(text)) Put(bytes, c, 2);  // all texts here are in the BMP
  return bytes;
}

ColumnType TypeOf(FieldType type) {
  switch (type) {
    case FieldType::boolean:
      return ColumnType::boolean;
    case FieldType::byte:
      return ColumnType::byte;
    case FieldType::integer16:
      return ColumnType::integer16;
    case FieldType::integer32:
      return ColumnType::integer32;
    case FieldType::single:
      return ColumnType::single;
    case FieldType::real:
      return ColumnType::real;
    case FieldType::currency:
      return ColumnType::currency;
    case FieldType::date_time:
      return ColumnType::date_time;
    case FieldType::decimal:
      return ColumnType::numeric;
    case FieldType::text:
      return ColumnType::text;
    case FieldType::memo:
      return ColumnType::memo;
    case FieldType::guid:
      return ColumnType::guid;
    case FieldType::binary:
      return ColumnType::binary;
    case FieldType::ole:
      return ColumnType::ole;
  }
  throw std::logic_error("a field of no type");
}

/// Bytes of a column of fixed length; 0 for the others.
std::size_t FixedLength(ColumnType type) {
  switch (type) {
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
      return 0;
  }
}

Bytes GuidBytes(const std::string& text) {
  std::string digits;
  for (const char c : text) {
    if (std::isxdigit(static_cast<unsigned char>(c)) != 0) digits += c;
  }
  const auto number = [&](std::size_t at, std::size_t count) {
    return std::stoull(digits.substr(at, count), nullptr, 16);
  };
  Bytes bytes;
  Put(bytes, number(0, 8), 4);
  Put(bytes, number(8, 4), 2);
  Put(bytes, number(12, 4), 2);
  for (std::size_t i = 16; i < 32; i += 2) Put(bytes, number(i, 2), 1);
  return bytes;
}

/// Whole numbers of up to 64 bits are enough for tests.
Bytes NumericBytes(const std::string& text) {
  std::string digits;
  std::copy_if(text.begin(), text.end(), std::back_inserter(digits),
               [](char c) { return c >= '0' && c <= '9'; });
  const std::uint64_t size = std::stoull(digits);
  Bytes bytes{static_cast<unsigned char>(text.starts_with('-') ? 0x80 : 0)};
  bytes.resize(9);
  Put(bytes, size >> 32, 4);
  Put(bytes, size & 0xFFFFFFFF, 4);
  return bytes;
}

Bytes FixedBytes(ColumnType type, const Value& value) {
  Bytes bytes;
  switch (type) {
    case ColumnType::currency:
      Put(bytes, static_cast<std::uint64_t>(std::get<Currency>(value).TenThousandths()), 8);
      break;
    case ColumnType::single:
      Put(bytes, std::bit_cast<std::uint32_t>(static_cast<float>(NumberOf(value, "single"))), 4);
      break;
    case ColumnType::real:
    case ColumnType::date_time:
      Put(bytes, std::bit_cast<std::uint64_t>(NumberOf(value, "double")), 8);
      break;
    case ColumnType::guid:
      return GuidBytes(std::get<std::string>(value));
    case ColumnType::numeric:
      return NumericBytes(std::get<std::string>(value));
    default:
      Put(bytes, static_cast<std::uint64_t>(std::get<std::int64_t>(value)), FixedLength(type));
  }
  return bytes;
}

Bytes VariableBytes(JetVersion version, ColumnType type, const Value& value) {
  Bytes bytes = std::holds_alternative<Bytes>(value) ? std::get<Bytes>(value)
                                                     : TextBytes(version, std::get<std::string>(value));
  if (type != ColumnType::memo && type != ColumnType::ole) return bytes;
  Bytes field;
  Put(field, bytes.size(), 3);
  Put(field, 0x80, 1);  // the value stands here
  Put(field, 0, 8);
  Append(field, bytes);
  return field;
}

/// The columns of a table with their places in a row.
struct Shape {
  struct Place {
    ColumnType type;
    std::size_t fixed_offset = kNoOffset;
    std::size_t variable_slot = 0;
    bool fixed = false;
  };
  std::vector<Place> places;
  std::size_t fixed_length = 0;
  std::size_t variable_count = 0;

  explicit Shape(const std::vector<FieldDef>& fields) {
    for (const FieldDef& field : fields) {
      Place place{TypeOf(field.type)};
      place.fixed = FixedLength(place.type) > 0 || place.type == ColumnType::boolean;
      if (place.fixed) {
        place.fixed_offset = fixed_length;
        fixed_length += FixedLength(place.type);
      } else {
        place.variable_slot = variable_count++;
      }
      places.push_back(place);
    }
  }
};

/// Appends the offsets of the variable parts and their number, in the bytes of Jet 3: one byte an offset, and
/// a byte for every 256 bytes of the row that tells from which offset on 256 more are added.
void PutJet3Offsets(Bytes& row, const std::vector<std::size_t>& offsets, std::size_t mask_bytes) {
  const std::size_t without_jumps = row.size() + offsets.size() + 1 + mask_bytes;
  std::size_t jumps = 0;
  while ((without_jumps + jumps - 1) / 256 > jumps) ++jumps;
  for (std::size_t i = offsets.size(); i-- > 0;) Put(row, offsets[i] & 0xFF, 1);
  for (std::size_t jump = jumps; jump-- > 0;) {
    const auto first = std::find_if(offsets.begin(), offsets.end(),
                                    [&](std::size_t offset) { return offset >= 256 * (jump + 1); });
    Put(row, first == offsets.end() ? 0xFF : static_cast<std::size_t>(first - offsets.begin()), 1);
  }
  Put(row, offsets.size() - 1, 1);
}

Bytes RowBytes(JetVersion version, const Shape& shape, const std::vector<Value>& values) {
  const std::size_t head = version == JetVersion::jet3 ? 1 : 2;
  Bytes row;
  Put(row, values.size(), head);
  row.resize(head + shape.fixed_length);
  Bytes mask((values.size() + 7) / 8);
  std::vector<Bytes> variable(shape.variable_count);
  for (std::size_t i = 0; i < values.size(); ++i) {
    const Shape::Place& place = shape.places[i];
    const bool is_boolean = place.type == ColumnType::boolean;
    const bool bit = is_boolean ? NumberOf(values[i], "boolean") != 0 : !IsNull(values[i]);
    if (!bit) continue;
    mask[i / 8] = static_cast<unsigned char>(mask[i / 8] | (1U << (i % 8)));
    if (is_boolean) continue;
    if (place.fixed) {
      const Bytes field = FixedBytes(place.type, values[i]);
      std::copy(field.begin(), field.end(),
                row.begin() + static_cast<std::ptrdiff_t>(head + place.fixed_offset));
    } else {
      variable[place.variable_slot] = VariableBytes(version, place.type, values[i]);
    }
  }
  if (shape.variable_count > 0) {
    std::vector<std::size_t> offsets;
    for (const Bytes& field : variable) {
      offsets.push_back(row.size());
      Append(row, field);
    }
    offsets.push_back(row.size());
    if (version == JetVersion::jet3) {
      PutJet3Offsets(row, offsets, mask.size());
    } else {
      for (std::size_t i = offsets.size(); i-- > 0;) Put(row, offsets[i], 2);
      Put(row, shape.variable_count, 2);
    }
  }
  Append(row, mask);
  return row;
}

/// Pages are appended as they are needed; `Finish` gives the file.
class FileWriter {
 public:
  explicit FileWriter(JetVersion version)
      : version_(version), page_size_(version == JetVersion::jet3 ? 2048 : 4096) {
    MakeHeader();
    NewPage();  // 1: the usage maps
    NewPage();  // 2: the definition of the catalog
    StartDataPage(1, 0);
    AppendRow(1, InlineMap({}));  // no page is free
  }

  Bytes Finish(const std::vector<JetTable>& tables) {
    JetTable catalog = EmptyCatalog();
    catalog.rows.push_back(CatalogRow(2, "MSysObjects", 0x80000000, {}));
    for (const JetTable& table : tables) {
      const std::uint32_t page = NewPage();
      WriteTable(page, table, false);
      catalog.rows.push_back(CatalogRow(page, table.name, 0, table.properties));
    }
    WriteTable(2, catalog, true);
    Bytes file;
    for (const Bytes& page : pages_) Append(file, page);
    return file;
  }

 private:
  using Pages = std::vector<std::uint32_t>;

  bool Jet3() const { return version_ == JetVersion::jet3; }

  std::uint32_t NewPage() {
    pages_.emplace_back(page_size_);
    return static_cast<std::uint32_t>(pages_.size() - 1);
  }

  void MakeHeader() {
    NewPage();
    Bytes& page = pages_[0];
    const std::string mark("\0\1\0\0Standard Jet DB\0", 20);
    std::copy(mark.begin(), mark.end(), page.begin());
    page[0x14] = Jet3() ? 0 : 1;
    PutAt(page, Jet3() ? 0x3A : 0x6E, 0x0411, 2);
    PutAt(page, 0x3C, 932, 2);
    if (!Jet3()) {
      constexpr double kCreated = 46347.375;  // 2026-11-21 09:00
      PutAt(page, 0x72, std::bit_cast<std::uint64_t>(kCreated), 8);
      for (std::size_t at = 0x42; at < 0x42 + 40; at += 4) PutAt(page, at, 46347, 4);
    }
    Code(page, Jet3() ? 126 : 128);
    for (std::size_t at = Jet3() ? 0x600 : 0xE00; at < (Jet3() ? 0x800U : 0x1000U); at += 2) page[at + 1] = 1;
  }

  /// RC4 with the key that all headers share.
  static void Code(Bytes& page, std::size_t count) {
    constexpr std::array<unsigned, 4> kKey{0xC7, 0xDA, 0x39, 0x6B};
    std::array<unsigned char, 256> s{};
    std::iota(s.begin(), s.end(), static_cast<unsigned char>(0));
    for (unsigned i = 0, j = 0; i < 256; ++i) {
      j = (j + s[i] + kKey[i % 4]) & 0xFF;
      std::swap(s[i], s[j]);
    }
    for (unsigned n = 0, i = 0, j = 0; n < count; ++n) {
      i = (i + 1) & 0xFF;
      j = (j + s[i]) & 0xFF;
      std::swap(s[i], s[j]);
      page[0x18 + n] ^= s[(s[i] + s[j]) & 0xFF];
    }
  }

  // Data pages.

  std::size_t CountAt() const { return Jet3() ? 8 : 12; }

  void StartDataPage(std::uint32_t number, std::uint32_t owner) {
    Bytes& page = pages_[number];
    PutAt(page, 0, 0x0101, 2);
    PutAt(page, 2, page_size_ - CountAt() - 2, 2);
    PutAt(page, 4, owner, 4);
  }

  std::size_t RowsOn(std::uint32_t number) const {
    return pages_[number][CountAt()] | static_cast<std::size_t>(pages_[number][CountAt() + 1] << 8);
  }

  bool Fits(std::uint32_t number, const Bytes& row) const {
    const std::size_t free = pages_[number][2] | static_cast<std::size_t>(pages_[number][3] << 8);
    return row.size() + 2 <= free && RowsOn(number) < 250;
  }

  RowPointer AppendRow(std::uint32_t number, const Bytes& row) {
    if (!Fits(number, row)) throw std::logic_error("a row does not fit its page");
    Bytes& page = pages_[number];
    const std::size_t rows = RowsOn(number);
    const std::size_t offsets = CountAt() + 2;
    const std::size_t end = rows == 0 ? page_size_
                                      : page[offsets + 2 * (rows - 1)] |
                                            static_cast<std::size_t>(page[offsets + 2 * rows - 1] << 8);
    const std::size_t start = end - row.size();
    std::copy(row.begin(), row.end(), page.begin() + static_cast<std::ptrdiff_t>(start));
    PutAt(page, offsets + 2 * rows, start, 2);
    PutAt(page, CountAt(), rows + 1, 2);
    PutAt(page, 2, start - offsets - 2 * (rows + 1), 2);
    return {number, static_cast<std::uint8_t>(rows)};
  }

  // Usage maps.

  std::size_t MapBytes() const { return Jet3() ? 128 : 64; }

  Bytes InlineMap(const Pages& pages) const {
    Bytes map(5 + MapBytes());
    for (const std::uint32_t page : pages) {
      map.at(5 + page / 8) = static_cast<unsigned char>(map[5 + page / 8] | (1U << (page % 8)));
    }
    return map;
  }

  Bytes MapOf(const Pages& pages) {
    if (pages.empty() || pages.back() < MapBytes() * 8) return InlineMap(pages);
    Bytes map(5 + MapBytes());
    map[0] = 1;
    const std::size_t a_page = (page_size_ - 4) * 8;
    for (const std::uint32_t page : pages) {
      const std::size_t entry = page / a_page;
      std::uint32_t bitmap = map.at(1 + 4 * entry) | static_cast<std::uint32_t>(map.at(2 + 4 * entry) << 8) |
                             static_cast<std::uint32_t>(map.at(3 + 4 * entry) << 16);
      if (bitmap == 0) {
        bitmap = NewPage();
        PutAt(pages_[bitmap], 0, 0x0105, 2);
        PutAt(map, 1 + 4 * entry, bitmap, 4);
      }
      unsigned char& bits = pages_[bitmap].at(4 + page % a_page / 8);
      bits = static_cast<unsigned char>(bits | (1U << (page % 8)));
    }
    return map;
  }

  /// The map's place as definitions name it: slot, then page.
  std::uint64_t StoreMap(const Pages& pages) {
    const Bytes map = MapOf(pages);
    if (!Fits(maps_page_, map)) {
      maps_page_ = NewPage();
      StartDataPage(maps_page_, 0);
    }
    const RowPointer place = AppendRow(maps_page_, map);
    return place.slot | (static_cast<std::uint64_t>(place.page) << 8);
  }

  // Tables.

  static std::vector<Value> CatalogRow(std::uint32_t page, const std::string& name, std::uint32_t flags,
                                       const Bytes& properties) {
    return {Value{static_cast<std::int64_t>(page)},
            Value{std::int64_t{0x0F000001}},
            Value{name},
            Value{std::int64_t{1}},
            Value{46347.375},
            Value{46347.375},
            Value{static_cast<std::int64_t>(static_cast<std::int32_t>(flags))},
            properties.empty() ? Value{} : Value{properties}};
  }

  static JetTable EmptyCatalog() {
    const auto field = [](const char* name, FieldType type, int size = 0) {
      FieldDef def;
      def.name = name;
      def.type = type;
      def.size = size;
      return def;
    };
    return {"MSysObjects",
            {field("Id", FieldType::integer32), field("ParentId", FieldType::integer32),
             field("Name", FieldType::text, 64), field("Type", FieldType::integer16),
             field("DateCreate", FieldType::date_time), field("DateUpdate", FieldType::date_time),
             field("Flags", FieldType::integer32), field("LvProp", FieldType::ole)},
            {}};
  }

  void WriteTable(std::uint32_t page, const JetTable& table, bool system) {
    const Shape shape(table.fields);
    Pages data;
    std::vector<RowPointer> places;
    for (const std::vector<Value>& values : table.rows) {
      const Bytes row = RowBytes(version_, shape, values);
      if (data.empty() || !Fits(data.back(), row)) {
        data.push_back(NewPage());
        StartDataPage(data.back(), page);
      }
      places.push_back(AppendRow(data.back(), row));
    }
    const std::uint64_t owned = StoreMap(data);
    const std::uint64_t with_space = StoreMap({});
    Bytes definition = DefinitionHead(table, shape, system, owned, with_space);
    for (std::size_t i = 0; i < table.fields.size(); ++i) PutColumn(definition, table.fields[i], i, shape);
    for (const FieldDef& field : table.fields) PutName(definition, field.name);
    if (!table.key.empty()) PutKey(definition, page, table, places);
    Put(definition, 0xFFFF, 2);
    PutAt(definition, 8, definition.size() - 8, 4);
    if (definition.size() > page_size_) throw std::logic_error("a definition does not fit its page");
    PutAt(definition, 2, page_size_ - definition.size(), 2);
    definition.resize(page_size_);
    pages_[page] = definition;
  }

  Bytes DefinitionHead(const JetTable& table, const Shape& shape, bool system, std::uint64_t owned,
                       std::uint64_t with_space) const {
    const std::size_t indexes = table.key.empty() ? 0 : 1;
    Bytes head;
    Put(head, 0x0102, 2);
    Put(head, 0, 2 + 4 + 4);  // free space, next page, length
    if (!Jet3()) Put(head, 0x659, 4);
    Put(head, table.rows.size(), 4);
    Put(head, LastAutonumber(table), 4);
    if (!Jet3()) {
      Put(head, 1, 4);
      Put(head, 0, 12);
    }
    Put(head, system ? 0x53 : 0x4E, 1);
    Put(head, table.fields.size(), 2);
    Put(head, shape.variable_count, 2);
    Put(head, table.fields.size(), 2);
    Put(head, indexes, 4);
    Put(head, indexes, 4);
    Put(head, owned, 4);
    Put(head, with_space, 4);
    if (indexes > 0) {
      Put(head, 0, 4);
      Put(head, table.rows.size(), 4);
      if (!Jet3()) Put(head, 0, 4);
    }
    return head;
  }

  static std::uint64_t LastAutonumber(const JetTable& table) {
    std::int64_t last = 0;
    for (std::size_t i = 0; i < table.fields.size(); ++i) {
      if (!table.fields[i].autonumber) continue;
      for (const auto& row : table.rows) last = std::max(last, std::get<std::int64_t>(row.at(i)));
    }
    return static_cast<std::uint64_t>(last);
  }

  void PutColumn(Bytes& definition, const FieldDef& field, std::size_t number, const Shape& shape) const {
    const Shape::Place& place = shape.places[number];
    const std::size_t flags = (place.fixed ? 1U : 0U) | 2U | (field.autonumber ? 4U : 0U);
    std::size_t length = FixedLength(place.type);
    if (place.type == ColumnType::text) length = static_cast<std::size_t>(field.size) * (Jet3() ? 1 : 2);
    if (place.type == ColumnType::binary) length = static_cast<std::size_t>(field.size);
    if (place.type == ColumnType::boolean) length = 1;
    Put(definition, static_cast<std::uint64_t>(place.type), 1);
    if (!Jet3()) Put(definition, 0x659, 4);
    Put(definition, number, 2);
    Put(definition, place.variable_slot, 2);
    Put(definition, number, 2);
    if (Jet3()) Put(definition, 0, 2);
    if (place.type == ColumnType::numeric) {
      if (Jet3()) Put(definition, 0, 2);
      Put(definition, static_cast<std::uint64_t>(field.size), 1);
      Put(definition, static_cast<std::uint64_t>(field.scale), 1);
      if (!Jet3()) Put(definition, 0, 2);
    } else {
      Put(definition, 0x0411, 2);
      Put(definition, Jet3() ? 932 : 0, 2);
    }
    Put(definition, flags, 1);
    if (!Jet3()) Put(definition, 0, 5);
    Put(definition, place.fixed_offset, 2);
    Put(definition, length, 2);
  }

  void PutName(Bytes& definition, const std::string& name) const {
    const Bytes bytes = TextBytes(version_, name);
    Put(definition, bytes.size(), Jet3() ? 1 : 2);
    Append(definition, bytes);
  }

  void PutKey(Bytes& definition, std::uint32_t page, const JetTable& table,
              const std::vector<RowPointer>& places) {
    std::vector<std::size_t> columns;
    for (const std::string& name : table.key) {
      const auto field = std::find_if(table.fields.begin(), table.fields.end(),
                                      [&](const FieldDef& f) { return f.name == name; });
      columns.push_back(static_cast<std::size_t>(field - table.fields.begin()));
    }
    Pages index_pages;
    const std::uint32_t root = WriteIndex(page, KeyEntries(table, columns, places), index_pages);
    std::sort(index_pages.begin(), index_pages.end());
    const std::uint64_t map = StoreMap(index_pages);
    if (!Jet3()) Put(definition, 0x783, 4);
    for (std::size_t i = 0; i < 10; ++i) {
      Put(definition, i < columns.size() ? columns[i] : 0xFFFF, 2);
      Put(definition, i < columns.size() ? 1 : 0, 1);
    }
    Put(definition, map, 4);
    Put(definition, root, 4);
    if (Jet3()) {
      Put(definition, 0x09, 1);
    } else {
      Put(definition, 0, 4);
      Put(definition, 0x89, 1);
      Put(definition, 0, 5);
    }
    if (!Jet3()) Put(definition, 0x659, 4);
    Put(definition, 0, 4);  // number of the index
    Put(definition, 0, 4);  // its B-tree
    Put(definition, 0, 1);
    Put(definition, 0xFFFFFFFF, 4);
    Put(definition, 0, 4 + 2);
    Put(definition, 1, 1);  // primary key
    if (!Jet3()) Put(definition, 0, 4);
    PutName(definition, "PrimaryKey");
  }

  // Indexes: leaves in a row, and one branch above when there are several.

  struct Entry {
    Bytes bytes;  ///< key, page and slot
  };

  static std::vector<Entry> KeyEntries(const JetTable& table, const std::vector<std::size_t>& columns,
                                       const std::vector<RowPointer>& places) {
    std::vector<Entry> entries;
    for (std::size_t r = 0; r < table.rows.size(); ++r) {
      Entry entry;
      for (const std::size_t column : columns) {
        const auto number = static_cast<std::int32_t>(std::get<std::int64_t>(table.rows[r].at(column)));
        const bool narrow = table.fields[column].type == FieldType::integer16;
        const auto flipped = static_cast<std::uint32_t>(number) ^ (narrow ? 0x8000U : 0x80000000U);
        Put(entry.bytes, 0x7F, 1);
        PutBigEndian(entry.bytes, flipped, narrow ? 2 : 4);
      }
      PutBigEndian(entry.bytes, places[r].page, 3);
      Put(entry.bytes, places[r].slot, 1);
      entries.push_back(std::move(entry));
    }
    std::sort(entries.begin(), entries.end(),
              [](const Entry& a, const Entry& b) { return a.bytes < b.bytes; });
    return entries;
  }

  std::size_t EntriesAt() const { return Jet3() ? 0xF8 : 0x1E0; }

  std::uint32_t WriteIndexPage(std::uint32_t owner, bool branch, const std::vector<Bytes>& entries) {
    const std::uint32_t number = NewPage();
    Bytes& page = pages_[number];
    PutAt(page, 0, branch ? 0x0103 : 0x0104, 2);
    PutAt(page, 4, owner, 4);
    std::size_t end = 0;
    for (const Bytes& entry : entries) {
      std::copy(entry.begin(), entry.end(), page.begin() + static_cast<std::ptrdiff_t>(EntriesAt() + end));
      end += entry.size();
      unsigned char& bits = page[(Jet3() ? 0x16 : 0x1B) + end / 8];
      bits = static_cast<unsigned char>(bits | (1U << (end % 8)));
    }
    PutAt(page, 2, page_size_ - EntriesAt() - end, 2);
    return number;
  }

  std::uint32_t WriteIndex(std::uint32_t owner, const std::vector<Entry>& entries, Pages& index_pages) {
    const std::size_t room = page_size_ - EntriesAt();
    std::vector<Bytes> level;
    for (const Entry& entry : entries) level.push_back(entry.bytes);
    for (bool branch = false;; branch = true) {
      Pages written;
      std::vector<Bytes> above;
      std::vector<Bytes> on_page;
      std::size_t used = 0;
      const auto flush = [&] {
        written.push_back(WriteIndexPage(owner, branch, on_page));
        if (!on_page.empty()) {
          Bytes entry = on_page.back();
          if (branch) entry.resize(entry.size() - 4);
          PutBigEndian(entry, written.back(), 4);
          above.push_back(std::move(entry));
        }
        on_page.clear();
        used = 0;
      };
      for (Bytes& entry : level) {
        if (used + entry.size() > room) flush();
        used += entry.size();
        on_page.push_back(std::move(entry));
      }
      flush();
      const std::size_t previous = Jet3() ? 8 : 0xC;
      for (std::size_t i = 0; i < written.size(); ++i) {
        if (i > 0) PutAt(pages_[written[i]], previous, written[i - 1], 4);
        if (i + 1 < written.size()) PutAt(pages_[written[i]], previous + 4, written[i + 1], 4);
      }
      index_pages.insert(index_pages.end(), written.begin(), written.end());
      if (written.size() == 1) return written.front();
      level = std::move(above);
    }
  }

  JetVersion version_;
  std::size_t page_size_;
  std::uint32_t maps_page_ = 1;
  std::vector<Bytes> pages_;
};

}  // namespace

Bytes JetProperties(JetVersion version, const std::vector<JetProperty>& properties) {
  const auto put_name = [&](Bytes& bytes, const std::string& name) {
    const Bytes text = TextBytes(version, name);
    Put(bytes, text.size(), 2);
    Append(bytes, text);
  };
  const auto put_block = [](Bytes& bytes, std::uint64_t sort, const Bytes& content) {
    Put(bytes, content.size() + 6, 4);
    Put(bytes, sort, 2);
    Append(bytes, content);
  };
  const std::string mark = version == JetVersion::jet3 ? std::string("KKD\0", 4) : std::string("MR2\0", 4);
  Bytes bytes(mark.begin(), mark.end());
  Bytes names;
  for (const JetProperty& property : properties) put_name(names, property.name);
  put_block(bytes, 0x80, names);
  for (std::size_t i = 0; i < properties.size(); ++i) {
    Bytes owner;
    put_name(owner, properties[i].column);
    Bytes block;
    Put(block, owner.size() + 4, 4);
    Append(block, owner);
    const Bytes text = TextBytes(version, properties[i].text);
    Put(block, text.size() + 8, 2);
    Put(block, 0, 1);
    Put(block, static_cast<std::uint64_t>(ColumnType::text), 1);
    Put(block, i, 2);
    Put(block, text.size(), 2);
    Append(block, text);
    put_block(bytes, 1, block);
  }
  return bytes;
}

Bytes JetImage(JetVersion version, const std::vector<JetTable>& tables) {
  return FileWriter(version).Finish(tables);
}

void WriteJetFile(const std::filesystem::path& file, JetVersion version,
                  const std::vector<JetTable>& tables) {
  const Bytes image = JetImage(version, tables);
  WriteFileAtomically(file, {reinterpret_cast<const char*>(image.data()), image.size()});
}

std::vector<JetTable> JetTablesOf(Database& database) {
  std::vector<JetTable> tables;
  for (const TableDef& def : database.TableDefs()) {
    JetTable table{def.name, def.fields, {}};
    for (const IndexDef& index : def.indexes) {
      const bool whole = std::all_of(index.fields.begin(), index.fields.end(), [&](const std::string& name) {
        const FieldType type = def.FindField(name)->type;
        return type == FieldType::integer32 || type == FieldType::integer16;
      });
      if (index.primary && whole) table.key = index.fields;
    }
    Recordset rows = database.OpenSnapshot("SELECT * FROM [" + def.name + "]");
    for (; !rows.Eof(); rows.MoveNext()) {
      auto& row = table.rows.emplace_back();
      for (const FieldDef& field : def.fields) row.push_back(rows.Get(field.name));
    }
    tables.push_back(std::move(table));
  }
  return tables;
}

}  // namespace rbt::test
