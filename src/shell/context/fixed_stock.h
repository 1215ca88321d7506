// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace rbt {

/// Copies `MTTeijyaku_ORG.mdb` to `MTTeijyaku.mdb` where the latter is missing and the site is not only read;
/// with both missing it throws `file` naming the first.
void ProvideFixedStockDatabase();
/// Opens `\RBK\DATA\MTTeijyaku.mdb` for the run, into `SiteContext`, for reading; `MTTeijyaku_ORG.mdb` stands
/// in where it is missing.
void OpenFixedStockDatabase();
/// Takes the table of that file as it stands now, for one tally. A file without the table or one of its
/// fields has none; any other failure throws what the store throws.
void ReadFixedStockTable();

/// The statements over `固定定尺テーブル` in the order in which they are asked: this diameter at this exact
/// cut length, this diameter in a range, any diameter at this exact length, any diameter in a range.
std::array<std::string, 4> FixedStockStatements(std::int32_t cut_mm, std::int32_t diameter_code);

/// Fixed stock length in mm of a cut length in mm and a diameter code: `定尺` of the first row in table order
/// that the first fruitful statement finds, 0 when that is null, -1 when no statement finds a row; 0 where no
/// table was read.
std::int32_t GetFixedStockLength(std::int32_t cutLength, std::int32_t diameter);

}  // namespace rbt
