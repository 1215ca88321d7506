// SPDX-License-Identifier: MIT
#include <cstdint>
#include <memory>
#include <string>

#include "cli/command_line.h"
#include "cli/options.h"
#include "cli/output.h"
#include "cli/session.h"
#include "platform/numbers/number_words.h"
#include "shell/config/settings.h"
#include "shell/context/fixed_stock.h"
#include "tally/engine/stock_engine.h"
#include "tally/views/grid_text.h"
#include "tally/views/result_grid.h"
#include "tally/views/tally_json.h"

namespace rbt {

namespace {

struct StockOptions {
  std::int32_t cut_mm = 0;
  double count = 0;
  std::int32_t diameter = 0;
  CommonOptions common;
  std::string format = "table";
};

std::string StockText(const StockResult& stock, const std::string& format) {
  if (format == "json") return StockJson(stock);
  const GridRows rows = StockRows(stock);
  return format == "csv" ? GridCsv(kStockCaptions, rows) : GridTable(rows);
}

void RunStock(const StockOptions& options) {
  const std::int32_t count = ToInt32(options.count, "COUNT");
  RequireRoot();
  Settings.UseFixedTable = ReadSetting(kUseFixedTableKey);
  if (Settings.UseFixedTable == 1) OpenFixedStockDatabase();
  Teijyaku_Keisan(options.cut_mm, Currency::FromInteger(count), options.diameter);
  WriteResult(StockText(EngineState.TeijyakuResult, options.format));
}

}  // namespace

Action DefineStock(CommandLine& line) {
  auto options = std::make_shared<StockOptions>();
  line.NumberArgument("CUT", "MM", options->cut_mm, "cut length in mm");
  line.WholeNumberArgument("COUNT", "N", options->count, "number of pieces");
  line.NumberArgument("DIAMETER", "D", options->diameter, "diameter code: 10 to 51, 6 to 16");
  AddCommonOptions(line, options->common);
  AddFormatOption(line, options->format);
  return [options] { RunStock(*options); };
}

}  // namespace rbt
