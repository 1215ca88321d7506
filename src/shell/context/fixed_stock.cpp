// SPDX-License-Identifier: MIT
#include "shell/context/fixed_stock.h"

#include <algorithm>
#include <filesystem>
#include <optional>

#include "jet/jet_file.h"
#include "platform/files/file_in_work.h"
#include "platform/files/file_sync.h"
#include "platform/files/files.h"
#include "platform/files/system_error.h"
#include "platform/pass_over_faults.h"
#include "platform/system/paths.h"
#include "shell/context/site_context.h"
#include "shell/live/live_database.h"
#include "store/database_file.h"

namespace rbt {

namespace {

constexpr std::string_view kFixedStockDatabase = "\\RBK\\DATA\\MTTeijyaku.mdb";
constexpr std::string_view kFixedStockTemplate = "\\RBK\\DATA\\MTTeijyaku_ORG.mdb";

constexpr std::string_view kTable = "固定定尺テーブル";
constexpr std::string_view kFields[] = {"太さ", "開始切り寸", "終了切り寸", "材質", "定尺"};

std::string_view FileInUse() {
  return FamilyFileExists(kFixedStockDatabase) ? kFixedStockDatabase : kFixedStockTemplate;
}

/// Without the table the stock lengths are worked out instead.
bool HasTable(Database& database) {
  const auto table = database.FindTable(kTable);
  return table != nullptr && std::ranges::all_of(kFields, [&](std::string_view field) {
           return table->FindField(field) != nullptr;
         });
}

}  // namespace

void ProvideFixedStockDatabase() {
  if (FamilyFileExists(kFixedStockDatabase)) return;
  const std::filesystem::path original = MapPath(kFixedStockTemplate);
  if (!FamilyFileExists(kFixedStockTemplate)) throw FileFaultText(original, "does not exist");
  // Among real Jet files none of ours stands under a name that other programs look for.
  if (jet::IsJetFile(original) && SiteContext.JetFiles != JetChoice::refuse) return;
  const std::filesystem::path file = MapPath(kFixedStockDatabase);
  if (SiteContext.OnlyRead || !TakesFiles(FolderOf(file))) return;
  FileInWork copy(file);
  CopyDatabaseFile(original, copy.Path());
  // Another program that starts now may have made it.
  const auto is_there = [](const Fault& fault) {
    return fault.Kind() == FaultKind::file && FamilyFileExists(kFixedStockDatabase);
  };
  PassOverFaultsIf(is_there, [&] { copy.PutInPlace(); });
}

void OpenFixedStockDatabase() {
  SiteContext.FixedStockTable.reset();
  SiteContext.FixedStockReadAt.reset();
  SiteContext.FixedStockDatabase.reset();
  SiteContext.FixedStockDatabase =
      std::make_unique<Database>(OpenLiveForReading(MapPath(FileInUse()), UseOfSite()));
}

void ReadFixedStockTable() {
  if (!SiteContext.FixedStockDatabase) return;
  if (!StandsFor(*SiteContext.FixedStockDatabase, MapPath(FileInUse()))) OpenFixedStockDatabase();
  Database& database = *SiteContext.FixedStockDatabase;
  database.Hold();
  const std::optional<FileState> state = database.State();
  if (!state || state != SiteContext.FixedStockReadAt) {
    SiteContext.FixedStockTable.reset();
    if (HasTable(database)) {
      SiteContext.FixedStockTable = std::make_unique<Database>(Database::CopyOf(database));
    }
    SiteContext.FixedStockReadAt = state;
  }
  database.LetGo();
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
  if (!SiteContext.FixedStockTable) return kNoTable;
  for (const std::string& statement : FixedStockStatements(cutLength, diameter)) {
    Recordset rows = SiteContext.FixedStockTable->OpenSnapshot(statement);
    if (!rows.Eof()) return rows.Int32(rows.Field("定尺")).value_or(0);
  }
  return kNoRow;
}

}  // namespace rbt
