// SPDX-License-Identifier: MIT
#include "yardstick.h"

#include <array>
#include <cstdint>
#include <map>
#include <stdexcept>
#include <string>

#include <sqlite3.h>

namespace rbt::bench {

namespace {

constexpr const char* kTable = " FROM 加工テーブル";

std::string GroupsOf(Grouping grouping) {
  return grouping == Grouping::diameter ? "太さ, 伸定尺" : "階, 部位, 太さ, 伸定尺";
}

/// Gives the rows of a statement to `take`. Throws where it does not run to its end.
template <typename Take>
void Walk(const std::filesystem::path& site, const std::string& sql, Take take) {
  sqlite3* connection = nullptr;
  sqlite3_stmt* statement = nullptr;
  const bool ready = sqlite3_open_v2(site.c_str(), &connection, SQLITE_OPEN_READONLY, nullptr) == SQLITE_OK &&
                     sqlite3_prepare_v2(connection, sql.c_str(), -1, &statement, nullptr) == SQLITE_OK;
  int step = SQLITE_ERROR;
  while (ready && (step = sqlite3_step(statement)) == SQLITE_ROW) take(statement);
  sqlite3_finalize(statement);
  sqlite3_close(connection);
  if (step != SQLITE_DONE) throw std::runtime_error("a yardstick failed over " + site.string());
}

/// What is added up must be used, and is never nothing.
void RequireSum(double sum) {
  if (sum == 0.0) throw std::runtime_error("a yardstick added nothing up");
}

}  // namespace

void BareAggregation(const std::filesystem::path& site, Grouping grouping) {
  const std::string groups = GroupsOf(grouping);
  double sum = 0.0;
  const auto add = [&](sqlite3_stmt* row) {
    for (int column = 0; column < sqlite3_column_count(row); ++column)
      sum += sqlite3_column_double(row, column);
  };
  Walk(site,
       "SELECT " + groups +
           ", SUM(伸総計), SUM(伸切寸*合計), SUM(圧接), SUM(ネジ数), SUM(定着板数), SUM(切断)" + kTable +
           " GROUP BY " + groups,
       add);
  RequireSum(sum);
}

void PlainFold(const std::filesystem::path& site, Grouping grouping) {
  constexpr int kSums = 6;
  using Key = std::array<double, 4>;
  std::map<Key, std::array<std::int64_t, kSums>> sums;
  const std::string groups = GroupsOf(grouping);
  const int keys = grouping == Grouping::diameter ? 2 : 4;
  const auto add = [&](sqlite3_stmt* row) {
    Key key{};
    for (int i = 0; i < keys; ++i) key[static_cast<std::size_t>(i)] = sqlite3_column_double(row, i);
    auto& sum = sums[key];
    const auto whole = [&](int column) { return sqlite3_column_int64(row, keys + column); };
    sum[0] += whole(0);
    sum[1] += whole(1) * whole(2);
    for (int i = 2; i < kSums; ++i) sum[static_cast<std::size_t>(i)] += whole(i + 1);
  };
  Walk(site, "SELECT " + groups + ", 伸総計, 伸切寸, 合計, 圧接, ネジ数, 定着板数, 切断" + kTable, add);
  double total = 0.0;
  for (const auto& [key, sum] : sums) total += static_cast<double>(sum[1]);
  RequireSum(total);
}

}  // namespace rbt::bench
