// SPDX-License-Identifier: MIT
#include "shell/live/saved_here.h"

#include <algorithm>
#include <map>
#include <set>
#include <string_view>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "data/quoted_text.h"
#include "data/table_layouts.h"
#include "platform/fault.h"
#include "platform/files/sha256.h"
#include "platform/pass_over_faults.h"
#include "platform/text/characters.h"
#include "shell/live/free_place.h"
#include "store/bulk_insert.h"

namespace rbt {

namespace {

constexpr std::string_view kNames = "重量集計名称";
constexpr std::string_view kDate = "作成日";
constexpr std::string_view kTime = "作成時間";
constexpr std::string_view kTallies = "~jet_tallies";

constexpr std::string_view kRegistered = "登録名";
constexpr std::string_view kRegisteredNumber = "登録AN";
constexpr std::string_view kMark = "表示番号";
constexpr std::string_view kMarks = "~jet_marks";

/// Date and time of a save.
using Moment = std::pair<std::string, std::string>;
using Digests = std::map<Moment, std::string>;

bool IsOfTallies(const TableDef& table) {
  return table.FindField(kDate) != nullptr && table.FindField(kTime) != nullptr;
}

/// The tables of saved tallies that a database has.
std::vector<TableDef> ArchiveOf(Database& database) {
  const std::vector<TableDef> all = ArchiveTables();
  std::vector<TableDef> tables;
  tables.reserve(all.size());
  for (const TableDef& known : all) {
    auto table = database.FindTable(known.name);
    if (table != nullptr && IsOfTallies(*table)) tables.push_back(std::move(*table));
  }
  return tables;
}

Moment MomentOf(const Recordset& row) {
  return {row.Text(row.Field(kDate)).value_or(""), row.Text(row.Field(kTime)).value_or("")};
}

NamedValues ValuesOf(const Recordset& row) {
  NamedValues values;
  values.reserve(static_cast<std::size_t>(row.FieldCount()));
  for (int i = 0; i < row.FieldCount(); ++i) values.emplace_back(row.FieldName({i}), row.Get(FieldHandle{i}));
  return values;
}

/// Fields that say nothing are left out: those that are appended later hold as much.
std::string TextOfRow(const std::string& table, const NamedValues& row) {
  std::string text = table;
  for (const auto& [field, value] : row) {
    const std::string words = TextOf(value);
    if (!words.empty() && words != "0") text += fmt::format("\n{}={}", field, words);
  }
  return text;
}

/// How the tallies stand, whatever the order of their rows.
Digests DigestsOf(Database& database) {
  std::map<Moment, std::vector<std::string>> rows;
  for (const TableDef& table : ArchiveOf(database)) {
    Recordset row = database.OpenSnapshot(fmt::format("SELECT * FROM [{}]", table.name));
    for (; !row.Eof(); row.MoveNext()) rows[MomentOf(row)].push_back(TextOfRow(table.name, ValuesOf(row)));
  }
  Digests digests;
  for (auto& [moment, texts] : rows) {
    std::ranges::sort(texts);
    digests[moment] = Sha256Of(fmt::format("{}", fmt::join(texts, "\n\n")));
  }
  return digests;
}

TableDef TalliesLayout() {
  return {std::string(kTallies),
          {{std::string(kDate), FieldType::text, 8},
           {std::string(kTime), FieldType::text, 6},
           {"digest", FieldType::text, 64}},
          {}};
}

Digests NotedDigests(Database& working_copy) {
  Digests digests;
  if (working_copy.FindTable(kTallies) == nullptr) return digests;
  Recordset row = working_copy.OpenSnapshot(fmt::format("SELECT * FROM [{}]", kTallies));
  for (; !row.Eof(); row.MoveNext()) digests[MomentOf(row)] = row.Text(row.Field("digest")).value_or("");
  return digests;
}

/// The moments of the tallies that are not as they came.
std::set<Moment> MomentsMadeHere(Database& working_copy) {
  const Digests noted = NotedDigests(working_copy);
  std::set<Moment> moments;
  for (const auto& [moment, digest] : DigestsOf(working_copy)) {
    const auto found = noted.find(moment);
    if (found == noted.end() || found->second != digest) moments.insert(moment);
  }
  return moments;
}

std::vector<KeptTally> ReadTallies(Database& working_copy, const std::vector<TableDef>& tables) {
  const std::set<Moment> moments = MomentsMadeHere(working_copy);
  std::map<Moment, KeptTally> tallies;
  const auto each_row = [&](std::string_view table, const auto& take) {
    Recordset row = working_copy.OpenSnapshot(fmt::format("SELECT * FROM [{}]", table));
    for (; !row.Eof(); row.MoveNext()) {
      if (const Moment moment = MomentOf(row); moments.contains(moment)) take(moment, row);
    }
  };
  const bool has_names = std::ranges::find(tables, kNames, &TableDef::name) != tables.end();
  if (moments.empty() || !has_names) return {};
  each_row(kNames, [&](const Moment& moment, const Recordset& row) {
    tallies[moment] = {.date = moment.first,
                       .time = moment.second,
                       .name = row.Text(row.Field(kNames)).value_or(""),
                       .name_row = ValuesOf(row),
                       .rows = {}};
  });
  for (const TableDef& table : tables) {
    if (table.name == kNames) continue;
    // Rows without a name are no tally: an overwritten one has left them.
    each_row(table.name, [&](const Moment& moment, const Recordset& row) {
      const auto tally = tallies.find(moment);
      if (tally != tallies.end()) tally->second.rows.emplace_back(table.name, ValuesOf(row));
    });
  }
  std::vector<KeptTally> kept;
  kept.reserve(tallies.size());
  for (auto& [moment, tally] : tallies) kept.push_back(std::move(tally));
  return kept;
}

bool HasMarks(Database& database) {
  const auto table = database.FindTable(kRegistered);
  const auto has = [&](std::string_view field) { return table->FindField(field) != nullptr; };
  return table != nullptr && has(kRegisteredNumber) && has(kRegistered) && has(kMark);
}

TableDef MarksLayout() {
  return {std::string(kMarks), {{"number", FieldType::text, 255}, {"mark", FieldType::text, 255}}, {}};
}

/// All marks, those of the Jet file as well.
std::vector<KeptMark> AllMarks(Database& companion) {
  std::vector<KeptMark> marks;
  if (!HasMarks(companion)) return marks;
  Recordset row = companion.OpenSnapshot(fmt::format("SELECT {0}, {1}, {2} FROM {1} WHERE Not IsNull({0})",
                                                     kRegisteredNumber, kRegistered, kMark));
  for (; !row.Eof(); row.MoveNext()) {
    marks.push_back({row.Get(FieldHandle{0}), row.Get(FieldHandle{1}), row.Get(FieldHandle{2})});
  }
  return marks;
}

std::vector<KeptMark> MarksSetHere(Database& companion) {
  std::map<std::string, std::string> noted;
  if (companion.FindTable(kMarks) != nullptr) {
    Recordset row = companion.OpenSnapshot(fmt::format("SELECT [number], [mark] FROM [{}]", kMarks));
    for (; !row.Eof(); row.MoveNext())
      noted[TextOf(row.Get(FieldHandle{0}))] = TextOf(row.Get(FieldHandle{1}));
  }
  std::vector<KeptMark> marks = AllMarks(companion);
  std::erase_if(marks, [&](const KeptMark& mark) {
    const auto found = noted.find(TextOf(mark.number));
    return found != noted.end() && found->second == TextOf(mark.mark);
  });
  return marks;
}

/// A number that leads to another name by now is another name's. Names that are gone take their marks with
/// them.
void WriteMarks(Database& companion, const std::vector<KeptMark>& marks) {
  if (marks.empty() || !HasMarks(companion)) return;
  using NumberAndName = std::pair<std::string, std::string>;
  std::map<NumberAndName, Value> by_name;
  for (const KeptMark& mark : marks) by_name[{TextOf(mark.number), TextOf(mark.name)}] = mark.mark;
  Recordset row = companion.OpenDynaset(fmt::format("SELECT * FROM {}", kRegistered));
  const FieldHandle number = row.Field(kRegisteredNumber);
  const FieldHandle name = row.Field(kRegistered);
  const FieldHandle mark = row.Field(kMark);
  for (; !row.Eof(); row.MoveNext()) {
    const auto found = by_name.find({TextOf(row.Get(number)), TextOf(row.Get(name))});
    if (found == by_name.end() || row.Get(mark) == found->second) continue;
    row.Edit();
    row.Set(mark, found->second);
    row.Update();
  }
}

const IndexDef* KeyOf(const TableDef& table) {
  const auto key = std::ranges::find_if(table.indexes, &IndexDef::primary);
  return key == table.indexes.end() ? nullptr : &*key;
}

/// Rows that came from the file may stand against the key; then there is none.
void MakeKeyAnew(Database& fresh, const TableDef& there, const TableDef& wanted) {
  if (const IndexDef* const old = KeyOf(there)) {
    fresh.Execute(fmt::format("DROP INDEX [{}] ON [{}]", old->name, there.name));
  }
  if (const IndexDef* const key = KeyOf(wanted)) {
    PassOverFaultsOfContent([&] { fresh.AppendIndex(there.name, *key); });
  }
}

void BringUpTo(Database& fresh, const TableDef& wanted) {
  const auto there = fresh.FindTable(wanted.name);
  if (there == nullptr) return fresh.CreateTable(wanted);
  bool appended = false;
  for (const FieldDef& field : wanted.fields) {
    if (there->FindField(field.name) != nullptr) continue;
    fresh.AppendField(there->name, field);
    appended = true;
  }
  if (appended) MakeKeyAnew(fresh, *there, wanted);
}

/// Adds rows to several tables, each of which is opened once.
class RowAdder {
 public:
  explicit RowAdder(Database& database) : database_(database) {}

  void Add(const std::string& table, const NamedValues& values) {
    auto open = open_.find(table);
    if (open == open_.end()) {
      open = open_.emplace(table, database_.OpenDynaset(fmt::format("SELECT * FROM [{}]", table))).first;
    }
    Recordset& rows = open->second;
    rows.AddNew();
    for (const auto& [field, value] : values) {
      if (!IsNull(value)) rows.Set(field, value);
    }
    rows.Update();
  }

 private:
  Database& database_;
  std::map<std::string, Recordset> open_;
};

void Put(NamedValues& values, std::string_view field, const std::string& text) {
  for (auto& [name, value] : values) {
    if (name == field) value = text;
  }
}

void WriteTally(RowAdder& adder, KeptTally tally, FreePlace& places) {
  const auto kind = std::ranges::find(tally.name_row, "集計区分", &NamedValues::value_type::first);
  const std::string kind_text = kind == tally.name_row.end() ? "" : TextOf(kind->second);
  const TallyPlace place = places.Take({tally.date, tally.time, tally.name}, kind_text);
  Put(tally.name_row, kTime, place.time);
  Put(tally.name_row, kNames, place.name);
  for (auto& [table, row] : tally.rows) {
    Put(row, kTime, place.time);
    adder.Add(table, row);
  }
  adder.Add(std::string(kNames), tally.name_row);
}

FreePlace PlacesIn(Database& fresh) {
  const auto names = fresh.FindTable(kNames);
  const FieldDef* const name = names == nullptr ? nullptr : names->FindField(kNames);
  FreePlace places(name == nullptr ? 0 : static_cast<std::size_t>(name->size));
  for (const auto& [moment, digest] : DigestsOf(fresh)) places.NoteMoment(moment.first, moment.second);
  Recordset row = fresh.OpenSnapshot(fmt::format("SELECT * FROM [{}]", kNames));
  const auto kind = row.FindField("集計区分");
  for (; !row.Eof(); row.MoveNext()) {
    places.NoteName(row.Text(row.Field(kNames)).value_or(""), kind ? TextOf(row.Get(*kind)) : "");
  }
  return places;
}

}  // namespace

void NoteTalliesOfOriginal(Database& working_copy) {
  working_copy.CreateTable(TalliesLayout());
  for (const auto& [moment, digest] : DigestsOf(working_copy)) {
    working_copy.Execute(fmt::format("INSERT INTO [{}] ({}, {}, [digest]) VALUES ({}, {}, '{}')", kTallies,
                                     kDate, kTime, QuotedText(moment.first, '\''),
                                     QuotedText(moment.second, '\''), digest));
  }
}

void NoteMarksOfOriginal(Database& working_copy) {
  if (!HasMarks(working_copy)) return;
  working_copy.CreateTable(MarksLayout());
  BulkInsert notes(working_copy, MarksLayout());
  for (const KeptMark& mark : AllMarks(working_copy)) {
    const std::vector<Value> note{Value{TextOf(mark.number)}, Value{TextOf(mark.mark)}};
    if (const auto refused = notes.Append(note))
      throw Fault(FaultKind::database, "the mark of a name: " + *refused);
  }
}

SavedHere ReadSavedHere(Database& working_copy) {
  SavedHere saved;
  saved.tables = ArchiveOf(working_copy);
  saved.tallies = ReadTallies(working_copy, saved.tables);
  saved.marks = MarksSetHere(working_copy);
  return saved;
}

std::size_t CountSavedHere(Database& working_copy) {
  return ReadTallies(working_copy, ArchiveOf(working_copy)).size();
}

void WriteSavedHere(Database& fresh, const SavedHere& saved) {
  WriteMarks(fresh, saved.marks);
  if (saved.tallies.empty()) return;
  for (const TableDef& table : saved.tables) BringUpTo(fresh, table);
  FreePlace places = PlacesIn(fresh);
  RowAdder adder(fresh);
  for (const KeptTally& tally : saved.tallies) WriteTally(adder, tally, places);
}

}  // namespace rbt
