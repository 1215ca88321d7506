// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "store/connection.h"
#include "store/dialect/translate.h"
#include "store/schema/schema.h"

namespace rbt {

/// A table with what a rebuild needs besides its definition.
struct StoredTable {
  TableDef def;
  std::vector<std::string> declared_types;  ///< parallel to the fields, as the file spells them
  struct Index {
    std::string stored_name;  ///< the file's name of it; empty for a key without an index of its own
    std::string create_sql;   ///< empty for the index of a constraint
  };
  std::vector<Index> indexes;                 ///< parallel to `def.indexes`
  std::vector<std::string> beyond_table_def;  ///< see `TableText`
};

/// An index as the file lists it.
struct ListedIndex {
  std::string name;
  std::string table;
  std::string sql;  ///< empty for the index of a constraint
};

/// The tables of a file, each read when it is first asked for and again after the schema has changed, by this
/// connection or by another.
class SchemaCache : public SchemaSource {
 public:
  explicit SchemaCache(const Connection& connection) : connection_(connection) {}

  /// While it lives, what is asked for stands in one state of the file: forgets the tables unless those read
  /// before still stand. Pointers handed out before end here. Nothing is written meanwhile.
  class Reading {
   public:
    explicit Reading(SchemaCache& schema) : open_{schema.AskVersion()} { schema.Renew(); }
    Reading(const Reading&) = delete;
    Reading& operator=(const Reading&) = delete;

   private:
    struct Question {
      Statement& statement;
      ~Question() { statement.Reset(); }
    };
    Question open_;
  };
  void Refresh() { const Reading reading(*this); }
  /// For a change whose version number may come again: one that was rolled back.
  void Forget() { version_ = kUnknown; }

  const TableDef* Find(std::string_view table) const override;
  const StoredTable* FindStored(std::string_view table) const;
  /// All of them, in the order of their creation.
  std::vector<TableDef> TableDefs() const;
  /// See `Database::TableTexts`.
  std::map<std::string, std::string> TableTexts() const;

 private:
  static constexpr std::int64_t kUnknown = -1;
  struct Listed {
    std::string name;
    std::string folded_name;
    std::string sql;
    std::unique_ptr<const StoredTable> table;  ///< null until it is asked for
  };

  /// The question for the version at its answer: it keeps a read transaction open.
  Statement& AskVersion();
  void Renew();
  const StoredTable& Read(Listed& listed) const;

  const Connection& connection_;
  std::int64_t version_ = kUnknown;
  Statement ask_version_;
  mutable std::vector<Listed> tables_;  ///< in the order of their creation; to ask for one reads it
  std::vector<ListedIndex> indexes_;    ///< of all tables, in the order of their creation
};

/// The field of a column by its declared type. Types that are SQLite's own words, or none, are taken for what
/// SQLite stores under them.
FieldDef FieldOfColumn(std::string name, std::string_view declared);
/// False for a column of no declared type or one that is not among the store's: its values are read as the
/// file holds them.
bool HasKnownType(std::string_view declared);

}  // namespace rbt
