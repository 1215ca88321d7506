// SPDX-License-Identifier: MIT
#include "shell/preparation/preparation.h"

#include <fmt/format.h>

#include "data/diameters.h"
#include "data/materials.h"
#include "data/shapes.h"
#include "shell/preparation/statements.h"

namespace rbt {

namespace {

constexpr std::string_view kSchedule = "加工テーブル";
constexpr std::string_view kNames = "登録名";

static_assert(kMarkSlitBars.find(kSlitNames[0]) != std::string_view::npos &&
              kMarkSlitBars.find(kSlitNames[1]) != std::string_view::npos);

bool HasField(Database& database, std::string_view table, std::string_view field) {
  const auto found = database.FindTable(table);
  return found && found->FindField(field) != nullptr;
}

/// The shapes whose bars have `plates` anchor plates each.
std::vector<int> ShapesWithPlates(int plates) {
  std::vector<int> shapes;
  for (const ShapeRange& range : AnchorPlateShapes) {
    for (int shape = range.first; shape <= range.last; ++shape) {
      if (PlatesPerBar(shape) == plates) shapes.push_back(shape);
    }
  }
  return shapes;
}

/// A product with a null factor is null, and so is the count then.
std::string CountPlates(std::string_view product, int plates) {
  return fmt::format("UPDATE 加工テーブル SET 定着板数 = {} WHERE 形状No IN({})", product,
                     fmt::join(ShapesWithPlates(plates), ","));
}

void AddColumnIfMissing(Database& database, std::string_view table, std::string_view column,
                        std::string_view statement) {
  if (!HasField(database, table, column)) database.Execute(statement);
}

}  // namespace

std::vector<std::string> ClassificationStatements(const StartModeTraits& start_mode) {
  const bool plain_bars = start_mode.only_plain_bars_are_straight;
  std::vector<std::string> statements{std::string(kUnclassifyRows)};
  for (const FormStatement& form : kFormStatements) {
    statements.push_back(fmt::format("{}{}{}", form.head, form.cut_lengths,
                                     plain_bars ? form.closing_plain_bars : form.closing));
  }
  statements.emplace_back(kJoinDimensions);
  statements.insert(statements.end(), kKindStatements.begin(), kKindStatements.end());
  return statements;
}

std::vector<std::string> ActivationStatements(const StartModeTraits& start_mode, bool has_plate_counts) {
  std::vector<std::string> statements{
      "UPDATE 加工テーブル SET 予備2 = 1 WHERE 予備2 = 2 AND 太さ <> 16",
      fmt::format("UPDATE 加工テーブル SET 予備2 = 2 WHERE 太さ IN({})", fmt::join(kUlbonOnlyCodes, ",")),
  };
  if (has_plate_counts) {
    statements.emplace_back("UPDATE 加工テーブル SET 定着板数 = 0");
    if (start_mode.counts_plates) {
      statements.push_back(CountPlates("本数 * ヶ所", 1));
      statements.push_back(CountPlates("2 * 本数 * ヶ所", 2));
    }
  }
  statements.emplace_back(kMarkSlitBars);
  return statements;
}

std::vector<std::string> RefreshStatements(Database& schedule, const StartModeTraits& start_mode) {
  return ActivationStatements(start_mode, HasField(schedule, kSchedule, "定着板数"));
}

void RefreshSchedule(Database& schedule, const StartModeTraits& start_mode) {
  schedule.ExecuteTogether(RefreshStatements(schedule, start_mode));
}

std::vector<std::string> PreparationStatements(Database& schedule, const StartModeTraits& start_mode) {
  std::vector<std::string> statements = ClassificationStatements(start_mode);
  const std::vector<std::string> activation = RefreshStatements(schedule, start_mode);
  statements.insert(statements.end(), activation.begin(), activation.end());
  return statements;
}

std::vector<std::string> FillStatements() { return {std::string(kFillFloors), std::string(kFillParts)}; }

void FillFloorsAndParts(Database& schedule) { schedule.ExecuteTogether(FillStatements()); }

void AddNameWorkColumns(Database& schedule, Database& companion) {
  AddColumnIfMissing(schedule, kSchedule, "登録名形状別作業用", kAddNameWorkColumn);
  Transaction transaction(companion);
  AddColumnIfMissing(companion, kNames, "取付重量合計", kAddInstalledWeightColumn);
  AddColumnIfMissing(companion, kNames, "定尺重量合計", kAddStockWeightColumn);
  companion.Execute(kZeroInstalledWeights);
  companion.Execute(kZeroStockWeights);
  transaction.Commit();
}

}  // namespace rbt
