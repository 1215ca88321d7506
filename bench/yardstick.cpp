// SPDX-License-Identifier: MIT
#include "yardstick.h"

#include <chrono>
#include <cstdint>
#include <ctime>
#include <fstream>
#include <stdexcept>
#include <string>

#include <sqlite3.h>

namespace rbt::bench {

namespace {

const char* StatementOf(Grouping grouping) {
  switch (grouping) {
    case Grouping::diameter:
      return "SELECT 太さ, 伸定尺, SUM(伸総計), SUM(伸切寸*合計), SUM(圧接), SUM(ネジ数), SUM(定着板数), "
             "SUM(切断) FROM 加工テーブル GROUP BY 太さ, 伸定尺";
    case Grouping::floor_and_part:
      return "SELECT 階, 部位, 太さ, 伸定尺, SUM(伸総計), SUM(伸切寸*合計), SUM(圧接), SUM(ネジ数), "
             "SUM(定着板数), SUM(切断) FROM 加工テーブル GROUP BY 階, 部位, 太さ, 伸定尺";
  }
  return "";
}

}  // namespace

double SecondsNow() {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

double ProcessorSecondsNow() { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

double BareAggregation(const std::filesystem::path& site, Grouping grouping) {
  const double start = SecondsNow();
  sqlite3* connection = nullptr;
  sqlite3_stmt* statement = nullptr;
  bool ok = sqlite3_open_v2(site.c_str(), &connection, SQLITE_OPEN_READONLY, nullptr) == SQLITE_OK &&
            sqlite3_prepare_v2(connection, StatementOf(grouping), -1, &statement, nullptr) == SQLITE_OK;
  std::int64_t sum = 0;
  int step = SQLITE_DONE;
  while (ok && (step = sqlite3_step(statement)) == SQLITE_ROW) {
    for (int column = 0; column < sqlite3_column_count(statement); ++column)
      sum += sqlite3_column_int64(statement, column);
  }
  ok = ok && step == SQLITE_DONE && sum != 0;
  sqlite3_finalize(statement);
  sqlite3_close(connection);
  if (!ok) throw std::runtime_error("the bare aggregation failed over " + site.string());
  return SecondsNow() - start;
}

void ResetPeakMemory() { std::ofstream("/proc/self/clear_refs") << '5'; }

double PeakMemoryMb() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with("VmHWM:")) return std::stod(line.substr(6)) / 1024.0;
  }
  return 0.0;
}

}  // namespace rbt::bench
