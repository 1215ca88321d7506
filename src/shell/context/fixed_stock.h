// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace rbt {

/// Copies `MTTeijyaku_ORG.mdb` to `MTTeijyaku.mdb` where the latter is missing; with both missing it throws
/// `file` naming the first.
void ProvideFixedStockDatabase();
/// Opens `\RBK\DATA\MTTeijyaku.mdb` for the run, into `SiteContext`.
void OpenFixedStockDatabase();
/// The same for reading alone and without making the copy: `MTTeijyaku_ORG.mdb` stands in for a missing
/// `MTTeijyaku.mdb`.
void OpenFixedStockForReading();

/// The statements over `固定定尺テーブル` in the order in which they are asked: this diameter at this exact
/// cut length, this diameter in a range, any diameter at this exact length, any diameter in a range.
std::array<std::string, 4> FixedStockStatements(std::int32_t cut_mm, std::int32_t diameter_code);

/// Fixed stock length in mm of a cut length in mm and a diameter code: `定尺` of the first row in table order
/// that the first fruitful statement finds, 0 when that is null, -1 when no statement finds a row. An error
/// of the first statement, an unopened database too, gives 0; errors of the later ones count as no row.
std::int32_t GetFixedStockLength(std::int32_t cutLength, std::int32_t diameter);

}  // namespace rbt
