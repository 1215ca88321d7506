// SPDX-License-Identifier: MIT
#include "archive/store/saved_tallies.h"

#include <algorithm>
#include <optional>

#include <fmt/format.h>

#include "archive/store/archive_row.h"
#include "data/quoted_text.h"
#include "platform/text/characters.h"
#include "shell/calendar/new_era_function.h"

namespace rbt {

namespace {

constexpr std::string_view kNames = "重量集計名称";
constexpr std::string_view kHas13m = "定尺１３ｍ";

/// Where a table has no such field all its tallies are from before it.
std::optional<std::string> ColumnCondition(const TableDef& names, bool with_13m) {
  const bool has_field = names.FindField(kHas13m) != nullptr;
  if (with_13m) return has_field ? std::optional(fmt::format(" AND {}=1", kHas13m)) : std::nullopt;
  return has_field ? fmt::format(" AND ({0}=0 OR IsNull({0}))", kHas13m) : "";
}

/// Reads the rows of the table of names.
class NameReader {
 public:
  explicit NameReader(const Recordset& rows)
      : date_(rows, "作成日"),
        time_(rows, "作成時間"),
        name_(rows, kNames),
        kind_(rows, "集計区分"),
        hoops_(rows, "溶接閉鎖型"),
        corrected_(rows, "合計値変更"),
        memos_{{{rows, "メモ１"}, {rows, "メモ２"}, {rows, "メモ３"}}} {}

  SavedTally Read() const {
    return {.key = {date_.Text(), time_.Text()},
            .kind = static_cast<TallyKind>(kind_.Count()),  // the statement asks for kinds alone
            .name = std::string(Trim(name_.Text())),
            .memos = {memos_[0].Text(), memos_[1].Text(), memos_[2].Text()},
            .hoops = ShapeFilterOf(hoops_.Count()),
            .corrected = corrected_.Count() != 0};
  }

 private:
  ArchiveField date_, time_, name_, kind_, hoops_, corrected_;
  std::array<ArchiveField, 3> memos_;
};

std::vector<SavedTally> ReadList(Database& site, std::string_view kind_condition, bool with_13m) {
  const auto names = site.FindTable(kNames);
  if (names == nullptr) return {};
  const auto column_condition = ColumnCondition(*names, with_13m);
  if (!column_condition) return {};
  Recordset rows =
      site.OpenSnapshot(fmt::format("SELECT * FROM {} WHERE {}{} ORDER BY 作成日 DESC,作成時間 DESC", kNames,
                                    kind_condition, *column_condition));
  std::vector<SavedTally> list;
  const NameReader reader(rows);
  for (; !rows.Eof(); rows.MoveNext()) {
    SavedTally saved = reader.Read();
    if (!saved.name.empty()) list.push_back(std::move(saved));
  }
  return list;
}

}  // namespace

SavedKey SavedKeyOf(const DateTime& now) { return {TodayStamp(now), TimeStamp(now)}; }

std::string KeyCondition(const SavedKey& key) {
  return fmt::format("作成日={} AND 作成時間={}", QuotedText(key.date, '\''), QuotedText(key.time, '\''));
}

std::vector<SavedTally> SavedTallies(Database& site, TallyKind kind, bool with_13m) {
  return ReadList(site, fmt::format("集計区分={}", static_cast<int>(kind)), with_13m);
}

std::vector<SavedTally> AllSavedTallies(Database& site, bool with_13m) {
  return ReadList(site,
                  fmt::format("集計区分 BETWEEN {} AND {}", static_cast<int>(TallyKind::bulk),
                              static_cast<int>(TallyKind::part)),
                  with_13m);
}

bool IsSameName(std::string_view a, std::string_view b) { return EqualIgnoringCase(Trim(a), Trim(b)); }

const SavedTally* FindSaved(std::span<const SavedTally> list, std::string_view name) {
  const auto found =
      std::ranges::find_if(list, [&](const SavedTally& each) { return IsSameName(each.name, name); });
  return found == list.end() ? nullptr : &*found;
}

}  // namespace rbt
