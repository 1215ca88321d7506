// SPDX-License-Identifier: MIT
#include "store/table_sql.h"

#include <algorithm>
#include <array>

#include <fmt/format.h>

#include "platform/text/characters.h"
#include "store/connection.h"
#include "store/dialect/quoting.h"

namespace rbt {

using dialect::QuoteName;
using dialect::QuoteNames;
namespace {

struct Token {
  std::string text;     ///< without its quotes
  bool quoted = false;  ///< a quoted name or literal, never a keyword
  int depth = 0;        ///< parentheses round it; a parenthesis counts for what is outside it

  bool Is(std::string_view word) const { return !quoted && EqualIgnoringCase(text, word); }
};

class Scanner {
 public:
  explicit Scanner(std::string_view sql) : sql_(sql) {}

  std::vector<Token> Run() {
    while (SkipBlanksAndComments()) tokens_.push_back(Next());
    return std::move(tokens_);
  }

 private:
  bool SkipBlanksAndComments() {
    while (at_ < sql_.size()) {
      if (std::string_view(" \t\r\n\f").find(sql_[at_]) != std::string_view::npos) {
        ++at_;
      } else if (sql_.substr(at_).starts_with("--")) {
        at_ = std::min(sql_.find('\n', at_), sql_.size());
      } else if (sql_.substr(at_).starts_with("/*")) {
        const std::size_t end = sql_.find("*/", at_ + 2);
        at_ = end == std::string_view::npos ? sql_.size() : end + 2;
      } else {
        return true;
      }
    }
    return false;
  }

  Token Next() {
    const char c = sql_[at_];
    if (c == '"' || c == '`' || c == '\'') return Enclosed(c);
    if (c == '[') return Enclosed(']');
    if (IsWordCharacter(c)) {
      const std::size_t start = at_;
      while (at_ < sql_.size() && IsWordCharacter(sql_[at_])) ++at_;
      return {std::string(sql_.substr(start, at_ - start)), false, depth_};
    }
    ++at_;
    if (c == ')') --depth_;
    Token sign{std::string(1, c), false, depth_};
    if (c == '(') ++depth_;
    return sign;
  }

  Token Enclosed(char close) {
    Token token{"", true, depth_};
    for (++at_; at_ < sql_.size(); ++at_) {
      if (sql_[at_] == close) {
        const bool doubled = close != ']' && at_ + 1 < sql_.size() && sql_[at_ + 1] == close;
        if (!doubled) {
          ++at_;
          break;
        }
        ++at_;
      }
      token.text += sql_[at_];
    }
    return token;
  }

  static bool IsWordCharacter(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 0x80 || (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
           c == '_' || c == '$';
  }

  std::string_view sql_;
  std::size_t at_ = 0;
  int depth_ = 0;
  std::vector<Token> tokens_;
};

using Tokens = std::vector<Token>;

/// Constraints that a TableDef has no place for. AS stands for a generated column.
constexpr std::array<std::string_view, 9> kBeyondTableDef = {
    "CHECK", "COLLATE", "REFERENCES", "FOREIGN", "GENERATED", "AS", "CONFLICT", "WITHOUT", "STRICT"};
constexpr std::array<std::string_view, 5> kTableConstraints = {"CONSTRAINT", "PRIMARY", "UNIQUE", "CHECK",
                                                               "FOREIGN"};

class TableTextReader {
 public:
  explicit TableTextReader(const Tokens& tokens) : tokens_(tokens) {}

  TableText Run() {
    const auto open = std::find_if(tokens_.begin(), tokens_.end(), [](const Token& t) { return t.Is("("); });
    if (open == tokens_.end()) return {};
    at_ = static_cast<std::size_t>(open - tokens_.begin()) + 1;
    while (at_ < tokens_.size() && tokens_[at_].depth >= 1) ReadItem();
    for (; at_ < tokens_.size(); ++at_) NoteBeyond(tokens_[at_]);
    RemoveForeignNotNulls();
    return std::move(text_);
  }

 private:
  /// One column or table constraint, up to behind its comma.
  void ReadItem() {
    const bool constraint = std::any_of(kTableConstraints.begin(), kTableConstraints.end(),
                                        [&](std::string_view word) { return tokens_[at_].Is(word); });
    const std::string column = constraint ? "" : tokens_[at_++].text;
    std::optional<std::string> name;
    for (; at_ < tokens_.size() && tokens_[at_].depth >= 1; ++at_) {
      const Token& token = tokens_[at_];
      if (token.depth > 1) continue;
      if (token.Is(",")) {
        ++at_;
        return;
      }
      if (token.Is("CONSTRAINT") && at_ + 1 < tokens_.size()) {
        name = tokens_[++at_].text;
        continue;
      }
      if (ReadConstraint(token, column, name)) name.reset();
    }
  }

  bool ReadConstraint(const Token& token, const std::string& column, const std::optional<std::string>& name) {
    if (token.Is("PRIMARY")) {
      text_.key_name = name;
    } else if (token.Is("UNIQUE")) {
      text_.unique_constraints.push_back({name});
    } else if (token.Is("NOT") && name) {
      not_nulls_.push_back({column, *name});
    } else if (token.Is("AUTOINCREMENT")) {
      text_.autoincrement = true;
    } else {
      return NoteBeyond(token);
    }
    return true;
  }

  bool NoteBeyond(const Token& token) {
    for (const std::string_view word : kBeyondTableDef) {
      if (!token.Is(word)) continue;
      text_.beyond_table_def.emplace_back(word);
      return true;
    }
    return false;
  }

  /// Only a NOT NULL under the key's own name came with the key.
  void RemoveForeignNotNulls() {
    for (const auto& [column, name] : not_nulls_) {
      if (name == text_.key_name.value_or(std::string(kDefaultKeyName))) {
        text_.key_columns_not_null.push_back(column);
      }
    }
  }

  struct NamedNotNull {
    std::string column;
    std::string name;
  };
  const Tokens& tokens_;
  std::size_t at_ = 0;
  TableText text_;
  std::vector<NamedNotNull> not_nulls_;
};

const IndexDef* PrimaryKeyOf(const TableDef& table) {
  const auto key = std::find_if(table.indexes.begin(), table.indexes.end(),
                                [](const IndexDef& index) { return index.primary; });
  return key == table.indexes.end() ? nullptr : &*key;
}

bool Contains(const std::vector<std::string>& names, std::string_view name) {
  return std::any_of(names.begin(), names.end(),
                     [&](const std::string& other) { return FoldIdentifier(other) == FoldIdentifier(name); });
}

std::string KeyFieldList(const IndexDef& index) {
  std::string list;
  for (std::size_t i = 0; i < index.fields.size(); ++i) {
    if (i > 0) list += ", ";
    list += QuoteName(index.fields[i]);
    if (i < index.descending.size() && index.descending[i]) list += " DESC";
  }
  return list;
}

std::string ConstraintName(const IndexDef& key) {
  return key.name.empty() ? std::string(kDefaultKeyName) : key.name;
}

std::string KeyColumnSql(const FieldDef& field, std::string_view declared, const IndexDef& key) {
  std::string sql = ColumnSql(field, declared);
  // The clause carries the key's name, so that the key can take it along when it is dropped.
  if (!field.required) sql += fmt::format(" CONSTRAINT {} NOT NULL", QuoteName(ConstraintName(key)));
  return sql;
}

std::string AutonumberKeySql(const FieldDef& field, const IndexDef& key) {
  const std::string name = ConstraintName(key);
  const std::string clause = name == kDefaultKeyName ? "" : fmt::format("CONSTRAINT {} ", QuoteName(name));
  return fmt::format("{} INTEGER {}PRIMARY KEY AUTOINCREMENT", QuoteName(field.name), clause);
}

}  // namespace

TableText ParseTableText(std::string_view create_sql) {
  const Tokens tokens = Scanner(create_sql).Run();
  return TableTextReader(tokens).Run();
}

bool IsAutonumberKey(const TableDef& table, const FieldDef& field) {
  const IndexDef* const key = PrimaryKeyOf(table);
  if (!field.autonumber || key == nullptr || key->fields.size() != 1) return false;
  if (!key->descending.empty() && key->descending[0]) return false;
  return Contains(key->fields, field.name);
}

std::string ColumnSql(const FieldDef& field, std::string_view declared_type) {
  std::string sql = QuoteName(field.name);
  if (!declared_type.empty()) sql += fmt::format(" {}", declared_type);
  if (field.required) sql += " NOT NULL";
  if (field.default_value) sql += fmt::format(" DEFAULT ({})", *field.default_value);
  return sql;
}

std::string CreateTableSql(const TableDef& table, std::string_view stored_name,
                           const std::vector<std::string>& declared_types) {
  const IndexDef* const key = PrimaryKeyOf(table);
  bool key_stands_in_column = false;
  std::string sql = fmt::format("CREATE TABLE {}(", QuoteName(stored_name));
  for (std::size_t i = 0; i < table.fields.size(); ++i) {
    const FieldDef& field = table.fields[i];
    const std::string declared = declared_types.empty() ? DeclaredType(field) : declared_types[i];
    if (i > 0) sql += ", ";
    if (IsAutonumberKey(table, field) && (declared_types.empty() || EqualIgnoringCase(declared, "INTEGER"))) {
      sql += AutonumberKeySql(field, *key);
      key_stands_in_column = true;
    } else if (key != nullptr && Contains(key->fields, field.name)) {
      sql += KeyColumnSql(field, declared, *key);
    } else {
      sql += ColumnSql(field, declared);
    }
  }
  if (key != nullptr && !key_stands_in_column) {
    sql +=
        fmt::format(", CONSTRAINT {} PRIMARY KEY({})", QuoteName(ConstraintName(*key)), KeyFieldList(*key));
  }
  return sql + ")";
}

std::string InsertSql(std::string_view table, std::span<const std::string> fields) {
  if (fields.empty()) return fmt::format("INSERT INTO {} DEFAULT VALUES", QuoteName(table));
  std::string places = "?";
  for (std::size_t i = 1; i < fields.size(); ++i) places += ", ?";
  return fmt::format("INSERT INTO {} ({}) VALUES ({})", QuoteName(table), QuoteNames(fields), places);
}

std::string CreateIndexSql(std::string_view table, const IndexDef& index) {
  return fmt::format("CREATE {}INDEX {} ON {}({})", index.unique ? "UNIQUE " : "",
                     QuoteName(fmt::format("{}.{}", table, index.name)), QuoteName(table),
                     KeyFieldList(index));
}

std::string IndexNameOf(std::string_view table, std::string_view stored_name) {
  if (stored_name.size() > table.size() + 1 && stored_name.starts_with(table) &&
      stored_name[table.size()] == '.') {
    stored_name.remove_prefix(table.size() + 1);
  }
  return std::string(stored_name);
}

}  // namespace rbt
