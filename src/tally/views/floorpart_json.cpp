// SPDX-License-Identifier: MIT
#include "tally/views/floorpart_json.h"

#include <string_view>

#include "platform/json/json_writer.h"

namespace rbt {
namespace {

template <typename... Index>
void AddEntries(JsonWriter& json, std::int32_t count, Index... index) {
  if (count != 0) json.Row(index..., count);
}

template <typename... Index>
void AddEntries(JsonWriter& json, Currency weight, Index... index) {
  if (weight != Currency()) json.Row(index..., weight);
}

// Tables hold tables: each is known to the others before it is written.
template <typename T, int N, typename... Index>
void AddEntries(JsonWriter& json, const CheckedArray<T, N>& table, Index... index);
template <typename T, int Rows, int Columns, typename... Index>
void AddEntries(JsonWriter& json, const Checked2D<T, Rows, Columns>& table, Index... index);
template <typename Block, int N, typename... Index>
void AddEntries(JsonWriter& json, const BlockArray<Block, N>& table, Index... index);

template <typename T, int N, typename... Index>
void AddEntries(JsonWriter& json, const CheckedArray<T, N>& table, Index... index) {
  for (int n = 0; n < N; ++n) AddEntries(json, table[n], index..., n);
}

template <typename T, int Rows, int Columns, typename... Index>
void AddEntries(JsonWriter& json, const Checked2D<T, Rows, Columns>& table, Index... index) {
  for (int n = 0; n < Rows; ++n) AddEntries(json, table[n], index..., n);
}

template <typename Block, int N, typename... Index>
void AddEntries(JsonWriter& json, const BlockArray<Block, N>& table, Index... index) {
  for (int n = 0; n < N; ++n) {
    if (table.Find(n) != nullptr) AddEntries(json, *table.Find(n), index..., n);
  }
}

template <typename Table>
void AddTable(JsonWriter& json, std::string_view name, const Table& table) {
  json.Name(name).BeginArray();
  AddEntries(json, table);
  json.EndArray();
}

void AddList(JsonWriter& json, std::string_view name, const std::vector<ListRow>& list) {
  json.Name(name).BeginArray();
  for (const ListRow& row : list) {
    json.BeginArray().Value(row.label);
    for (int p = kFirstPart; p < kPartEntries; ++p) json.Value(row.parts[p]);
    json.Value(row.total).EndArray();
  }
  json.EndArray();
}

void AddFitting(JsonWriter& json, const FloorFittingName& fitting, const FloorTables& tables) {
  const FloorFitting& counts = tables.*fitting.tables;
  const std::string name(fitting.name);
  AddTable(json, name + "Taisa", counts.Taisa);
  AddTable(json, name + "Kai", counts.Kai);
  AddTable(json, name + "KaiBui", counts.KaiBui);
  AddTable(json, name + "KaiSou", counts.KaiSou);
}

void AddFloorWeights(JsonWriter& json, const FloorTables& tables) {
  AddTable(json, "KaiBuiJyuuryo", tables.KaiBuiJyuuryo);
  AddTable(json, "KaiBuiTeiJyuuryo", tables.KaiBuiTeiJyuuryo);
  AddTable(json, "KaiBuiGoukei", tables.KaiBuiGoukei);
  AddTable(json, "KaiGoukei", tables.KaiGoukei);
  AddTable(json, "BuiGoukei", tables.BuiGoukei);
  AddTable(json, "KaiTaisaGoukei", tables.KaiTaisaGoukei);
  AddTable(json, "TaisaTeiGoukei", tables.TaisaTeiGoukei);
  AddTable(json, "TaisaGoukei", tables.TaisaGoukei);
  json.Field("SouGoukei", tables.SouGoukei).Field("SouTeiGoukei", tables.SouTeiGoukei);
  AddTable(json, "KaiBuiTorituke", tables.KaiBuiTorituke);
  AddTable(json, "KaiTorituke", tables.KaiTorituke);
  AddTable(json, "BuiTorituke", tables.BuiTorituke);
  AddTable(json, "TaisaTorituke", tables.TaisaTorituke);
  json.Field("SouTorituke", tables.SouTorituke);
}

void AddFloorList(JsonWriter& json, const FloorTables& tables) {
  json.Field("KaiGyouSuu", std::int32_t{tables.KaiGyouSuu()});
  AddList(json, "KaiGyou", tables.KaiGyou);
  json.Name("KaiGyouKai").BeginArray();
  for (const std::int16_t floor : tables.KaiGyouKai) json.Value(std::int32_t{floor});
  json.EndArray();
}

}  // namespace

std::string FloorJson(const FloorTables& tables) {
  JsonWriter json(JsonWriter::Layout::entry_a_line);
  json.BeginObject().Field("kind", "floor");
  AddTable(json, "KaiBuiHonsu", tables.KaiBuiHonsu);
  AddTable(json, "KaiHonsu", tables.KaiHonsu);
  AddTable(json, "SouHonsu", tables.SouHonsu);
  AddFloorWeights(json, tables);
  for (const FloorFittingName& fitting : kFloorFittings) AddFitting(json, fitting, tables);
  AddFloorList(json, tables);
  return json.Field("HoopAri", tables.HoopAri).Field("TeiAri", tables.TeiAri).EndObject().Text();
}

std::string PartJson(const PartTables& tables) {
  JsonWriter json(JsonWriter::Layout::entry_a_line);
  json.BeginObject().Field("kind", "part");
  AddTable(json, "BuiHonsu", tables.BuiHonsu);
  AddTable(json, "TaisaHonsu", tables.TaisaHonsu);
  AddTable(json, "BuiJyuuryo", tables.BuiJyuuryo);
  AddTable(json, "BuiTaisaGoukei", tables.BuiTaisaGoukei);
  AddTable(json, "BuiGoukei", tables.BuiGoukei);
  AddTable(json, "TaisaGoukei", tables.TaisaGoukei);
  json.Field("SouGoukei", tables.SouGoukei);
  for (const PartFittingName& fitting : kPartFittings) {
    const PartFitting& counts = tables.*fitting.tables;
    AddTable(json, std::string(fitting.name) + "Bui", counts.Bui);
    AddTable(json, std::string(fitting.name) + "Taisa", counts.Taisa);
  }
  AddList(json, "BuiGyou", tables.BuiGyou);
  return json.Field("HoopAri", tables.HoopAri).Field("TeiAri", tables.TeiAri).EndObject().Text();
}

}  // namespace rbt
