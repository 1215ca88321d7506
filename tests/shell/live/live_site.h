// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "data/table_layouts.h"
#include "platform/files/files.h"
#include "platform/system/services.h"
#include "shell/live/live_database.h"
#include "support/jet_writer.h"
#include "support/root_folder.h"

namespace rbt::test {

/// A tally as it stands in the archive tables, with one row of figures.
struct Tally {
  std::string date;
  std::string time;
  std::string name;
  std::int64_t bars = 1;
};

/// A folder with one site's schedule file, and what is told meanwhile.
class LiveSite {
 public:
  LiveSite() {
    Services.Messages = [this](std::string_view text, std::string_view, MessageButtons) {
      messages.emplace_back(text);
      return MessageAnswer::ok;
    };
  }

  std::filesystem::path File() const { return root_.Data("GENBA001.MDB"); }
  std::filesystem::path Copy() const { return root_.Data("GENBA001.MDB.work"); }
  std::filesystem::path Data(const std::string& name) const { return root_.Data(name); }
  const RootFolder& Root() const { return root_; }

  /// A schedule of so many lines, D19 with `bars` bars each, and saved tallies.
  void PutJet(int lines, std::int64_t bars = 1, const std::vector<Tally>& tallies = {},
              jet::JetVersion version = jet::JetVersion::jet4) const {
    std::vector<JetTable> tables{Schedule(lines, bars)};
    if (!tallies.empty()) AddArchive(tables, tallies);
    WriteJetFile(File(), version, tables);
  }

  Database Open(const LiveUse& use = {}) const { return OpenLive(File(), use); }

  /// The names in DATA.
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(root_ / "DATA")) {
      names.push_back(entry.path().filename().string());
    }
    std::ranges::sort(names);
    return names;
  }

  static std::int64_t LinesOf(Database& site) {
    return *site.OpenSnapshot("SELECT Count(*) FROM 加工テーブル").Int32(FieldHandle{0});
  }
  static std::int64_t BarsOf(Database& site) {
    return *site.OpenSnapshot("SELECT Sum(本数) FROM 加工テーブル").Int32(FieldHandle{0});
  }

  /// Saves a tally as the program does, the tables being made where they are missing.
  static void Save(Database& site, const Tally& tally) {
    for (const TableDef& table : ArchiveTables()) {
      if (site.FindTable(table.name) == nullptr) site.CreateTable(table);
    }
    site.Execute("INSERT INTO 重量集計名称 (作成日, 作成時間, 重量集計名称, 集計区分) VALUES ('" +
                 tally.date + "', '" + tally.time + "', '" + tally.name + "', 1)");
    site.Execute("INSERT INTO 重量集計 (作成日, 作成時間, 太さ, [6000mm]) VALUES ('" + tally.date + "', '" +
                 tally.time + "', 19, " + std::to_string(tally.bars) + ")");
  }

  /// "date time name: bars", in the order of the moments.
  static std::vector<std::string> Tallies(Database& site) {
    std::vector<std::string> found;
    Recordset names = site.OpenSnapshot("SELECT * FROM 重量集計名称 ORDER BY 作成日, 作成時間");
    for (; !names.Eof(); names.MoveNext()) {
      const std::string date = *names.Text(names.Field("作成日"));
      const std::string time = *names.Text(names.Field("作成時間"));
      Recordset rows = site.OpenSnapshot(
          fmt::format("SELECT Sum([6000mm]) FROM 重量集計 WHERE 作成日='{}' AND 作成時間='{}'", date, time));
      found.push_back(fmt::format("{} {} {}: {}", date, time, *names.Text(names.Field("重量集計名称")),
                                  TextOf(rows.Get(FieldHandle{0}))));
    }
    return found;
  }

  std::vector<std::string> messages;

 private:
  static std::vector<Value> RowOf(const TableDef& table,
                                  const std::vector<std::pair<std::string, Value>>& cells) {
    std::vector<Value> row(table.fields.size());
    for (const auto& [name, value] : cells) {
      row[static_cast<std::size_t>(table.FindField(name) - table.fields.data())] = value;
    }
    return row;
  }

  static JetTable Schedule(int lines, std::int64_t bars) {
    const TableDef table = ScheduleFileTables().front();
    JetTable schedule{table.name, table.fields, {}};
    for (int line = 1; line <= lines; ++line) {
      schedule.rows.push_back(RowOf(table, {{"行No", std::int64_t{line}},
                                            {"頁", std::int64_t{1}},
                                            {"行", std::int64_t{line}},
                                            {"名称", "名称" + std::to_string(line)},
                                            {"太さ", std::int64_t{19}},
                                            {"本数", bars}}));
    }
    return schedule;
  }

  static void AddArchive(std::vector<JetTable>& tables, const std::vector<Tally>& tallies) {
    for (const TableDef& table : ArchiveTables()) {
      if (table.name != "重量集計名称" && table.name != "重量集計") continue;
      JetTable archive{table.name, table.fields, {}};
      for (const Tally& tally : tallies) {
        std::vector<std::pair<std::string, Value>> cells{{"作成日", tally.date}, {"作成時間", tally.time}};
        if (table.name == "重量集計名称") {
          cells.emplace_back("重量集計名称", tally.name);
          cells.emplace_back("集計区分", std::int64_t{1});
        } else {
          cells.emplace_back("太さ", std::int64_t{19});
          cells.emplace_back("6000mm", tally.bars);
        }
        archive.rows.push_back(RowOf(table, cells));
      }
      tables.push_back(std::move(archive));
    }
  }

  RootFolder root_;
};

}  // namespace rbt::test
