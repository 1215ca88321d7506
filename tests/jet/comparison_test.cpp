// SPDX-License-Identifier: MIT
// Every value of every sample as this reader, the packaged C tools and the npm reader give it.
#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <ctime>
#include <string>

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "jet/independent_readers.h"
#include "jet/samples.h"
#include "jet/table.h"
#include "platform/text/characters.h"

namespace rbt::jet {
namespace {

using test::PrintedTable;

/// The encoding of a Jet 3 file's texts, as the C tools want it named.
std::string CharsetOf(const JetFile& file) { return fmt::format("CP{}", file.CodePage()); }

std::vector<std::string> UserTables(JetFile& file) {
  std::vector<std::string> names;
  for (const CatalogEntry& entry : ReadCatalog(file)) {
    if (entry.kind == CatalogEntry::Kind::table && !entry.system) names.push_back(entry.name);
  }
  return names;
}

struct Rows {
  TableDefinition table;
  std::vector<std::vector<Value>> rows;
};

Rows ReadRows(JetFile& file, const std::string& name) {
  Rows read{FindTable(file, name), {}};
  const ScanReport report = ScanTable(
      file, read.table, [&](RowPointer, std::vector<Value>& fields) { read.rows.push_back(fields); });
  EXPECT_EQ(report.warning, "");
  return read;
}

bool HasMovedRows(const std::string& sample) { return sample.find("overflow") != std::string::npos; }

/// The texts of a row, to bring rows into one order: others read a moved row where its body lies.
template <typename Row, typename TextAt>
std::string TextsOf(const TableDefinition& table, const Row& row, TextAt text_at) {
  std::string texts;
  for (std::size_t c = 0; c < table.columns.size() && c < row.size(); ++c) {
    if (table.columns[c].type == ColumnType::text) texts += text_at(row[c]) + '\n';
  }
  return texts;
}

template <typename Rows, typename TextAt>
void SortByTexts(const TableDefinition& table, Rows& rows, TextAt text_at) {
  std::stable_sort(rows.begin(), rows.end(), [&](const auto& a, const auto& b) {
    return TextsOf(table, a, text_at) < TextsOf(table, b, text_at);
  });
}

template <typename Container>
std::string HexOf(const Container& bytes) {
  std::string hex;
  for (const auto byte : bytes) hex += fmt::format("{:02x}", static_cast<unsigned char>(byte));
  return hex;
}

std::string LowerCase(std::string hex) {
  for (char& c : hex) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return hex;
}

/// A currency with its four places, as both readers print it.
std::string FourPlaces(Currency value) {
  const std::int64_t units = value.TenThousandths();
  const std::uint64_t size =
      units < 0 ? 0 - static_cast<std::uint64_t>(units) : static_cast<std::uint64_t>(units);
  return fmt::format("{}{}.{:04}", units < 0 ? "-" : "", size / 10000, size % 10000);
}

/// A text of a Latin file as the others read it: they have no characters for five of its bytes.
std::string WithoutControls(const std::string& text, const std::string& stand_in) {
  std::string shown;
  for (const char32_t c : CharactersOf(text)) shown += c >= 0x80 && c < 0xA0 ? stand_in : Utf8Of(c);
  return shown;
}

/// True when the npm reader gives `theirs` for our text.
bool SameText(const JetFile& file, const std::string& ours, const std::string& theirs) {
  if (file.Version() == JetVersion::jet4) return ours == theirs;
  if (file.CodePage() == 932) return test::IsLatinReadingOf(ours, theirs);
  return WithoutControls(ours, "\xEF\xBF\xBD") == theirs;
}

double Milliseconds(double days) { return (days - 25569.0) * 86400000.0; }

/// Seconds since 1970 of a text as `%Y-%m-%d %H:%M:%S` gives it.
double SecondsOf(const std::string& text) {
  std::tm time{};
  EXPECT_NE(strptime(text.c_str(), "%Y-%m-%d %H:%M:%S", &time), nullptr) << text;
  return static_cast<double>(timegm(&time));
}

void ExpectPrinted(const JetFile& file, const Column& column, Value ours,
                   const std::optional<std::string>& printed) {
  if (IsNull(ours)) {
    EXPECT_EQ(printed, std::nullopt);
    return;
  }
  ASSERT_TRUE(printed.has_value());
  switch (column.type) {
    case ColumnType::boolean:
      EXPECT_EQ(std::get<std::int64_t>(ours) != 0, *printed == "1");
      break;
    case ColumnType::single:  // printed with eight digits
      EXPECT_FLOAT_EQ(static_cast<float>(std::get<double>(ours)), std::strtof(printed->c_str(), nullptr));
      break;
    case ColumnType::real:
      EXPECT_DOUBLE_EQ(std::get<double>(ours), std::strtod(printed->c_str(), nullptr));
      break;
    case ColumnType::currency:
      EXPECT_EQ(FourPlaces(std::get<Currency>(ours)), *printed);
      break;
    case ColumnType::date_time:  // the tools know no day before 1899-12-30
      if (std::get<double>(ours) < 0) {
        EXPECT_EQ(*printed, "1900-01-00 00:00:00");
      } else {
        EXPECT_NEAR(Milliseconds(std::get<double>(ours)) / 1000, SecondsOf(*printed), 1.0);
      }
      break;
    case ColumnType::guid:
      // The tools print the hexadecimal digits of its text, in which the last dash is missing.
      EXPECT_EQ(HexOf(std::get<std::string>(ours).erase(24, 1)), LowerCase(*printed));
      break;
    case ColumnType::binary:
    case ColumnType::ole:
      EXPECT_EQ(HexOf(std::get<Bytes>(ours)), LowerCase(*printed));
      break;
    default:
      EXPECT_EQ(file.Version() == JetVersion::jet3 ? WithoutControls(TextOf(ours), "?") : TextOf(ours),
                *printed);
  }
}

void ExpectJson(const JetFile& file, const Column& column, const Value& ours, const nlohmann::json& theirs) {
  if (IsNull(ours)) {
    EXPECT_TRUE(theirs.is_null()) << theirs;
    return;
  }
  ASSERT_FALSE(theirs.is_null());
  switch (column.type) {
    case ColumnType::boolean:
      EXPECT_EQ(std::get<std::int64_t>(ours), theirs.get<bool>() ? -1 : 0);
      break;
    case ColumnType::byte:
    case ColumnType::integer16:
    case ColumnType::integer32:
      EXPECT_EQ(std::get<std::int64_t>(ours), theirs.get<std::int64_t>());
      break;
    case ColumnType::single:
    case ColumnType::real:
      EXPECT_EQ(std::get<double>(ours), theirs.get<double>());
      break;
    case ColumnType::currency:
      EXPECT_EQ(FourPlaces(std::get<Currency>(ours)), theirs.get<std::string>());
      break;
    case ColumnType::date_time:
      EXPECT_NEAR(Milliseconds(std::get<double>(ours)), theirs.get<double>(), 1.0);
      break;
    case ColumnType::guid:
      EXPECT_EQ(LowerCase(std::get<std::string>(ours)), "{" + theirs.get<std::string>() + "}");
      break;
    case ColumnType::binary:
      EXPECT_EQ(HexOf(std::get<Bytes>(ours)), theirs.get<std::string>());
      break;
    case ColumnType::ole:  // taken as a long there: the head of the field, whose low 24 bits are the length
      EXPECT_EQ(std::get<Bytes>(ours).size(), theirs.get<std::uint32_t>() & 0xFFFFFF);
      break;
    default:
      EXPECT_TRUE(SameText(file, TextOf(ours), theirs.get<std::string>())) << TextOf(ours) << "\n" << theirs;
  }
}

class EverySample : public ::testing::TestWithParam<std::string> {};

TEST_P(EverySample, ReadsAsByTheCTools) {
  const auto path = test::Sample(GetParam());
  const auto file = JetFile::Open(path);
  const std::string charset = CharsetOf(*file);
  const std::vector<std::string> tables = UserTables(*file);
  EXPECT_THAT(tables, ::testing::UnorderedElementsAreArray(test::TablesByCTools(path, charset)));
  for (const std::string& name : tables) {
    Rows ours = ReadRows(*file, name);
    PrintedTable printed = test::TableByCTools(path, name, charset);
    if (HasMovedRows(GetParam())) {
      SortByTexts(ours.table, ours.rows, [](const Value& text) { return TextOf(text); });
      SortByTexts(ours.table, printed.rows,
                  [](const std::optional<std::string>& text) { return text.value_or(""); });
    }
    ASSERT_EQ(ours.table.columns.size(), printed.columns.size()) << name;
    ASSERT_EQ(ours.rows.size(), printed.rows.size()) << name;
    for (std::size_t c = 0; c < printed.columns.size(); ++c) {
      EXPECT_EQ(ours.table.columns[c].name, printed.columns[c]);
      for (std::size_t r = 0; r < ours.rows.size(); ++r) {
        SCOPED_TRACE(fmt::format("{} row {} {}", name, r, printed.columns[c]));
        ASSERT_EQ(printed.rows[r].size(), printed.columns.size());
        ExpectPrinted(*file, ours.table.columns[c], ours.rows[r][c], printed.rows[r][c]);
      }
    }
  }
}

TEST_P(EverySample, ReadsAsByTheNpmReader) {
  const auto path = test::Sample(GetParam());
  const auto file = JetFile::Open(path);
  const nlohmann::json theirs = test::TablesByNpmReader(path);
  const std::vector<std::string> tables = UserTables(*file);
  ASSERT_EQ(tables.size(), theirs.size());
  for (const std::string& name : tables) {
    const auto found = std::find_if(theirs.begin(), theirs.end(), [&](const nlohmann::json& table) {
      return SameText(*file, name, table["name"]);
    });
    ASSERT_NE(found, theirs.end()) << name;
    const nlohmann::json& table = *found;
    Rows ours = ReadRows(*file, name);
    std::vector<nlohmann::json> their_rows = table["rows"];
    if (HasMovedRows(GetParam())) {
      SortByTexts(ours.table, ours.rows, [](const Value& text) { return TextOf(text); });
      SortByTexts(ours.table, their_rows, [](const nlohmann::json& text) {
        return text.is_null() ? std::string() : text.get<std::string>();
      });
    }
    ASSERT_EQ(ours.table.columns.size(), table["columns"].size()) << name;
    ASSERT_EQ(ours.rows.size(), their_rows.size()) << name;
    for (std::size_t c = 0; c < ours.table.columns.size(); ++c) {
      const auto column = std::find_if(
          ours.table.columns.begin(), ours.table.columns.end(),
          [&](const Column& own) { return SameText(*file, own.name, table["columns"][c]["name"]); });
      ASSERT_NE(column, ours.table.columns.end()) << table["columns"][c]["name"];
      const auto at = static_cast<std::size_t>(column - ours.table.columns.begin());
      for (std::size_t r = 0; r < ours.rows.size(); ++r) {
        SCOPED_TRACE(fmt::format("{} row {} {}", name, r, column->name));
        ExpectJson(*file, *column, ours.rows[r][at], their_rows[r][c]);
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Samples, EverySample, ::testing::ValuesIn(test::ReadableSamples()),
                         [](const auto& sample) { return test::TestNameOf(sample.param); });

}  // namespace
}  // namespace rbt::jet
