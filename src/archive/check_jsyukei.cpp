// SPDX-License-Identifier: MIT
#include "archive/check_jsyukei.h"

#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "data/table_layouts.h"
#include "platform/fault.h"
#include "platform/pass_over_faults.h"
#include "platform/system/message.h"
#include "platform/system/paths.h"
#include "shell/context/site_context.h"
#include "shell/live/live_database.h"

namespace rbt {

namespace {

constexpr std::string_view kTemplate = "\\RBK\\DATA\\JSyukeiORG.mdb";
constexpr std::string_view kNoTemplateTitle = "ファイル無し";
constexpr std::string_view kNoTemplateText = "ひな形ファイル[JSyukeiORG.mdb]が無いため、集計保存が出来ません";

/// A table that is dropped when it has no rows, with the statements that find out and do it.
struct Leftover {
  std::string_view table;
  std::string_view select;
  std::string_view drop;
};

constexpr std::array<Leftover, 2> kLeftovers{{
    {"重量集計", "SELECT *  FROM 重量集計", "DROP TABLE 重量集計"},
    {"重量集計名称", "SELECT *  FROM 重量集計名称", "DROP TABLE 重量集計名称"},
}};

Database& OpenSite() {
  if (!SiteContext.WorkDatabase) throw Fault(FaultKind::database, "no site database is open");
  return *SiteContext.WorkDatabase;
}

TableDef SiteTable(std::string_view name) {
  const auto table = OpenSite().FindTable(name);
  if (!table) throw Fault(FaultKind::database, fmt::format("{}: the site has no such table", name));
  return *table;
}

/// The primary key of one of the archive's tables.
IndexDef ArchiveKey(std::string_view table_name) {
  for (const TableDef& table : ArchiveTables()) {
    if (table.name == table_name) return table.indexes.front();
  }
  throw Fault(FaultKind::database, fmt::format("{}: no table of saved tallies", table_name));
}

/// What a field of a site's table takes from the template: name, type and size, and the default without which
/// rows saved before could not come under the key.
FieldDef AppendedField(const FieldDef& wanted) {
  FieldDef field;
  field.name = wanted.name;
  field.type = wanted.type;
  field.size = wanted.size;
  field.scale = wanted.scale;
  field.default_value = wanted.default_value;
  return field;
}

/// True when a field was missing.
bool AppendMissingFields(const TableDef& wanted) {
  const TableDef table = SiteTable(wanted.name);
  bool appended = false;
  for (const FieldDef& field : wanted.fields) {
    if (table.FindField(field.name) != nullptr) continue;
    OpenSite().AppendField(wanted.name, AppendedField(field));
    appended = true;
  }
  return appended;
}

bool IsUpToDate(const TableDef& wanted) {
  const auto table = OpenSite().FindTable(wanted.name);
  return table != nullptr && std::ranges::all_of(wanted.fields, [&](const FieldDef& field) {
           return table->FindField(field.name) != nullptr;
         });
}

void BringUpToDate(const TableDef& wanted) {
  if (!Table_Exists(wanted.name, OpenSite())) {
    OpenSite().CreateTable(wanted);
  } else if (AppendMissingFields(wanted)) {
    Drop_Indexes(wanted.name);
    Add_PrimaryKey(wanted.name);
  }
}

/// Null without a template.
std::unique_ptr<Database> OpenTemplate() {
  if (!FamilyFileExists(kTemplate)) {
    MsgBox(kNoTemplateText, kNoTemplateTitle);
    return nullptr;
  }
  return std::make_unique<Database>(OpenLiveForReading(MapPath(kTemplate), UseOfSite()));
}

/// True where the site's tables are those of the template to the word: most have been brought up to it
/// before.
bool StandsAs(Database& original) {
  const auto wanted = original.TableTexts();
  const auto there = OpenSite().TableTexts();
  return std::ranges::includes(there, wanted) && std::ranges::none_of(kLeftovers, [&](const Leftover& each) {
           return there.contains(std::string(each.table)) && !wanted.contains(std::string(each.table));
         });
}

/// The template's tables; null without a template.
using Template = std::unique_ptr<std::vector<TableDef>>;

Template ReadTemplate(Database* original) {
  return original == nullptr ? nullptr : std::make_unique<std::vector<TableDef>>(original->TableDefs());
}

/// True for an empty table that dropping and making anew would change.
bool IsLeftover(const Leftover& leftover, const Template& wanted) {
  const auto table = OpenSite().FindTable(leftover.table);
  if (table == nullptr || table->name != leftover.table || OpenSite().HasRows(leftover.select)) return false;
  return wanted == nullptr || std::ranges::find(*wanted, *table) == wanted->end();
}

void DropLeftovers(const Template& wanted) {
  for (const Leftover& leftover : kLeftovers) {
    if (IsLeftover(leftover, wanted)) OpenSite().Execute(leftover.drop);
  }
}

bool HasLeftovers(const Template& wanted) {
  return std::ranges::any_of(kLeftovers, [&](const Leftover& each) { return IsLeftover(each, wanted); });
}

/// Looks before it locks, and again when it has.
void Ready(const Template& wanted, bool drops_leftovers) {
  const bool is_ready = !(drops_leftovers && HasLeftovers(wanted)) &&
                        (wanted == nullptr || std::ranges::all_of(*wanted, IsUpToDate));
  if (is_ready || !OpenSite().MayBeWritten()) return;
  // Tallies can be run on a site whose rows stand against the template; only saving fails.
  PassOverFaultsOfContent([&] {
    Transaction transaction(OpenSite());
    if (drops_leftovers) DropLeftovers(wanted);
    if (wanted != nullptr) std::ranges::for_each(*wanted, BringUpToDate);
    transaction.Commit();
  });
}

}  // namespace

bool Table_Exists(std::string_view TableName, Database& database) {
  const auto tables = database.TableDefs();
  return std::any_of(tables.begin(), tables.end(),
                     [&](const TableDef& table) { return table.name == TableName; });
}

void Drop_Indexes(std::string_view TableName) {
  const TableDef table = SiteTable(TableName);
  for (const IndexDef& index : table.indexes) {
    if (index.primary) OpenSite().Execute(fmt::format("DROP INDEX {} ON {}", index.name, TableName));
  }
}

void Add_PrimaryKey(std::string_view TableName) {
  const IndexDef key = ArchiveKey(TableName);
  OpenSite().Execute(fmt::format("ALTER TABLE {} ADD CONSTRAINT {} PRIMARY KEY({})", TableName, key.name,
                                 fmt::join(key.fields, ",")));
}

void ReadyArchiveTables() {
  const auto original = OpenTemplate();
  if (original != nullptr && StandsAs(*original)) return;
  Ready(ReadTemplate(original.get()), true);
}

void Check_JSyukei() {
  const auto original = OpenTemplate();
  if (original == nullptr) return;
  if (!SiteContext.WorkDatabase) OpenWorkDatabase();
  if (!StandsAs(*original)) Ready(ReadTemplate(original.get()), false);
}

}  // namespace rbt
