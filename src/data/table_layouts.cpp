// SPDX-License-Identifier: MIT
#include "data/table_layouts.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

#include "data/diameters.h"

namespace rbt {

namespace {

using Fields = std::vector<FieldDef>;

FieldDef Of(FieldType type, std::string_view name, int size = 0) {
  FieldDef field;
  field.name = name;
  field.type = type;
  field.size = size;
  return field;
}

FieldDef Long(std::string_view name) { return Of(FieldType::integer32, name); }
FieldDef Short(std::string_view name) { return Of(FieldType::integer16, name); }
FieldDef Double(std::string_view name) { return Of(FieldType::real, name); }
FieldDef Money(std::string_view name) { return Of(FieldType::currency, name); }
FieldDef Text(std::string_view name, int size) { return Of(FieldType::text, name, size); }

/// Key columns refuse null; one that a kind of tally does not write falls back to its default.
FieldDef KeyLong(std::string_view name) {
  FieldDef field = Long(name);
  field.required = true;
  field.default_value = "0";
  return field;
}
FieldDef KeyText(std::string_view name, int size) {
  FieldDef field = Text(name, size);
  field.required = true;
  field.default_value = "''";
  return field;
}

void Append(Fields& fields, std::initializer_list<FieldDef> more) {
  fields.insert(fields.end(), more.begin(), more.end());
}
void Append(Fields& fields, const Fields& more) { fields.insert(fields.end(), more.begin(), more.end()); }

TableDef Table(std::string_view name, Fields fields) { return {std::string(name), std::move(fields), {}}; }

TableDef Keyed(std::string_view name, Fields fields, std::vector<std::string> key) {
  TableDef table = Table(name, std::move(fields));
  table.indexes.push_back({std::string(name) + "_pkey", true, true, std::move(key)});
  return table;
}

/// `3500mm` to `12000mm` and, where the table keeps it, `13000mm`.
Fields PerStockLength(std::string_view suffix, FieldDef (*of)(std::string_view), bool with_13m) {
  Fields fields;
  for (int mm = 3500; mm <= 12000; mm += 500) {
    fields.push_back(of(std::to_string(mm) + "mm" + std::string(suffix)));
  }
  if (with_13m) fields.push_back(of("13000mm" + std::string(suffix)));
  return fields;
}

Fields CountsAndWeights(bool with_13m) {
  Fields fields = PerStockLength("", Long, with_13m);
  Append(fields, PerStockLength("重量", Money, with_13m));
  Append(fields, {Money("定尺重量"), Money("取付重量"), Long("圧接"), Long("ネジ数"), Long("定着板数"),
                  Long("切断")});
  return fields;
}

Fields WeightPerPart() {
  constexpr std::string_view kDigits[] = {"１", "２", "３", "４",   "５",  "６",
                                          "７", "８", "９", "１０", "１１"};
  Fields fields;
  for (const std::string_view digits : kDigits) fields.push_back(Money("部位" + std::string(digits)));
  return fields;
}

TableDef SavedNames() {
  return Keyed("重量集計名称",
               {KeyText("作成日", 8), KeyText("作成時間", 6), Text("重量集計名称", 120), Long("集計区分"),
                Long("溶接閉鎖型"), Long("合計値変更"), Text("メモ１", 255), Text("メモ２", 255),
                Text("メモ３", 255), Long("定尺１３ｍ")},
               {"作成日", "作成時間"});
}

TableDef SavedRows() {
  Fields fields = {Long("列番号"),      KeyLong("階"),           KeyLong("部位"), KeyLong("太さ"),
                   KeyText("ＳＤ", 20), KeyText("メーカー", 20), KeyLong("材質"), Long("材料")};
  Append(fields, CountsAndWeights(true));
  Append(fields, {KeyText("作成日", 8), KeyText("作成時間", 6)});
  return Keyed("重量集計", std::move(fields),
               {"太さ", "ＳＤ", "メーカー", "階", "部位", "材質", "作成日", "作成時間"});
}

TableDef SavedFloorParts() {
  Fields fields = {Long("行No"),    KeyText("階", 20),   KeyLong("部位"),
                   KeyLong("太さ"), KeyText("ＳＤ", 20), KeyText("メーカー", 20),
                   KeyLong("材質"), Long("材質タイプ"),  Long("材料")};
  Append(fields, CountsAndWeights(true));
  Append(fields, {KeyText("作成日", 8), KeyText("作成時間", 6)});
  return Keyed("階部位重量集計", std::move(fields),
               {"階", "部位", "太さ", "ＳＤ", "メーカー", "材質", "作成日", "作成時間"});
}

TableDef SavedFloors() {
  Fields fields = {
      Long("行No"),    KeyText("階", 20),  KeyLong("太さ"), KeyText("SD", 20), KeyText("メーカー", 20),
      KeyLong("材質"), Long("材質タイプ"), Long("材料")};
  Append(fields, WeightPerPart());
  Append(fields,
         {Long("圧接"), Long("ネジ数"), Long("定着板数"), Long("切断"), Money("定尺合計"), Money("取付合計"),
          Long("開始階"), Long("終了階"), Long("特別階"), KeyText("作成日", 8), KeyText("作成時間", 6)});
  return Keyed("階別重量集計", std::move(fields),
               {"階", "太さ", "SD", "メーカー", "材質", "作成日", "作成時間"});
}

TableDef SavedPartTotals() {
  Fields fields = {KeyLong("太さ"), KeyText("SD", 20),  KeyText("メーカー", 20),
                   KeyLong("材質"), Long("材質タイプ"), Long("材料")};
  Append(fields, WeightPerPart());
  Append(fields, {Long("圧接"), Money("定尺合計"), Money("取付合計"), KeyText("作成日", 8),
                  KeyText("作成時間", 6), Long("開始階"), Long("終了階"), Long("特別階")});
  return Keyed("部位別重量集計", std::move(fields), {"太さ", "SD", "メーカー", "材質", "作成日", "作成時間"});
}

TableDef SavedParts() {
  Fields fields = {
      Long("行No"),    KeyLong("部位"),    KeyLong("太さ"), KeyText("SD", 20), KeyText("メーカー", 20),
      KeyLong("材質"), Long("材質タイプ"), Long("材料")};
  Append(fields, CountsAndWeights(true));
  Append(fields, {KeyText("作成日", 8), KeyText("作成時間", 6)});
  return Keyed("部位別本重集計", std::move(fields),
               {"部位", "太さ", "SD", "メーカー", "材質", "作成日", "作成時間"});
}

TableDef Schedule() {
  Fields fields = {Long("行No"), Long("頁"),       Long("行"),    Long("階"),
                   Long("部位"), Text("名称", 50), Short("太さ"), Long("形状No")};
  for (int i = 1; i <= 10; ++i) fields.push_back(Text("寸法" + std::to_string(i), 20));
  Append(fields, {Long("本数"), Long("ヶ所"), Long("合計"), Long("伸切寸"), Double("伸定尺"), Long("伸本定"),
                  Long("伸総計"), Long("圧接"), Long("圧接太さ"), Long("ネジ数"), Long("定着板数"),
                  Long("切断"), Long("予備2"), Long("予備3"), Text("予備5", 255), Long("登録名")});
  return Table("加工テーブル", std::move(fields));
}

TableDef Sites() {
  Fields fields = {Long("番号"),         Text("工事名", 60),      Text("データパス", 60),
                   Long("取引先コード"), Text("長い工事名", 120), Long("工事名区切り文字数"),
                   Long("メーカーNo"),   Long("支給形態")};
  for (const Diameter& d : kDeformedDiameters) fields.push_back(Long("SD" + std::to_string(d.code)));
  for (const Diameter& d : kDeformedDiameters) fields.push_back(Text("MK" + std::to_string(d.code), 20));
  return Table("工事テーブル", std::move(fields));
}

}  // namespace

std::vector<TableDef> ArchiveTables() {
  return {SavedNames(), SavedRows(), SavedFloorParts(), SavedFloors(), SavedPartTotals(), SavedParts()};
}

std::vector<TableDef> ScheduleFileTables() {
  std::vector<TableDef> tables = {Schedule(), Table("形状テーブル", {Long("形状No"), Text("形状名", 50)}),
                                  Table("データーベースバージョン", {Text("バージョン", 20)})};
  for (TableDef& table : ArchiveTables()) tables.push_back(std::move(table));
  return tables;
}

std::vector<TableDef> CompanionFileTables() {
  return {Table("登録名", {Long("登録AN"), Text("登録名", 50), Long("表示番号")}),
          Table("スパイラル", {Long("材質"), Long("径"), Money("全重量")})};
}

std::vector<TableDef> MasterFileTables() {
  return {Sites(), Table("T_取引先", {Long("会社コード"), Text("会社名", 60)}),
          Table("T_SD", {Long("SDコード"), Text("SD名", 20)}),
          Table("部位名テーブル", {Long("番号"), Text("部位名", 20), Text("記号", 10)}),
          Table("部位名２テーブル", {Long("番号"), Text("部位名", 20), Text("記号", 10)})};
}

std::vector<TableDef> FixedStockFileTables() {
  return {Table("固定定尺テーブル",
                {Long("太さ"), Long("開始切り寸"), Long("終了切り寸"), Long("材質"), Long("定尺")})};
}

}  // namespace rbt
