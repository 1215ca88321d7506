// SPDX-License-Identifier: MIT
#include "shell/context/fixed_stock.h"

#include <optional>

#include "platform/fault.h"
#include "platform/files/files.h"
#include "platform/pass_over_faults.h"
#include "platform/system/paths.h"
#include "shell/context/site_context.h"

namespace rbt {

namespace {

constexpr std::string_view kFixedStockDatabase = "\\RBK\\DATA\\MTTeijyaku.mdb";
constexpr std::string_view kFixedStockTemplate = "\\RBK\\DATA\\MTTeijyaku_ORG.mdb";

enum class Outcome { failed, no_row, found };

struct Answer {
  Outcome outcome;
  std::int32_t stock_length;
};

/// Asks one statement. Its failure is an outcome, not a fault: without a readable table the stock lengths are
/// worked out instead.
Answer AskPassingOverErrors(Database& database, const std::string& statement) {
  Answer answer{Outcome::failed, 0};
  PassOverFaults([&] {
    Recordset rows = database.OpenSnapshot(statement);
    answer = rows.Eof() ? Answer{Outcome::no_row, 0}
                        : Answer{Outcome::found, rows.Int32(rows.Field("定尺")).value_or(0)};
  });
  return answer;
}

}  // namespace

void ProvideFixedStockDatabase() {
  if (FamilyFileExists(kFixedStockDatabase)) return;
  if (!FamilyFileExists(kFixedStockTemplate)) {
    throw Fault(FaultKind::file, MapPath(kFixedStockTemplate).string() + ": does not exist");
  }
  WriteFileAtomically(MapPath(kFixedStockDatabase), ReadFileBytes(MapPath(kFixedStockTemplate)));
}

void OpenFixedStockDatabase() {
  SiteContext.FixedStockDatabase.reset();
  SiteContext.FixedStockDatabase = std::make_unique<Database>(Database::Open(MapPath(kFixedStockDatabase)));
}

void OpenFixedStockForReading() {
  const std::string_view file =
      FamilyFileExists(kFixedStockDatabase) ? kFixedStockDatabase : kFixedStockTemplate;
  SiteContext.FixedStockDatabase.reset();
  SiteContext.FixedStockDatabase = std::make_unique<Database>(Database::OpenReadOnly(MapPath(file)));
}

std::array<std::string, 4> FixedStockStatements(std::int32_t cut_mm, std::int32_t diameter_code) {
  const std::string head = "SELECT * FROM 固定定尺テーブル WHERE 太さ = ";
  const std::string tail = " AND 材質 = 1 ";
  const std::string d = std::to_string(diameter_code);
  const std::string c = std::to_string(cut_mm);
  const std::string range = " AND 開始切り寸 <= " + c + " AND 終了切り寸 >= " + c;
  return {head + d + " AND 開始切り寸 = " + c + " AND 終了切り寸 = 0 " + tail, head + d + range + tail,
          head + "0 AND 開始切り寸 = " + c + " AND 終了切り寸 = 0" + tail, head + "0" + range + tail};
}

std::int32_t GetFixedStockLength(std::int32_t cutLength, std::int32_t diameter) {
  constexpr std::int32_t kNoTable = 0;
  constexpr std::int32_t kNoRow = -1;
  if (!SiteContext.FixedStockDatabase) return kNoTable;
  bool first = true;
  for (const std::string& statement : FixedStockStatements(cutLength, diameter)) {
    const Answer answer = AskPassingOverErrors(*SiteContext.FixedStockDatabase, statement);
    if (answer.outcome == Outcome::found) return answer.stock_length;
    if (answer.outcome == Outcome::failed && first) return kNoTable;
    first = false;
  }
  return kNoRow;
}

}  // namespace rbt
