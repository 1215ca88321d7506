// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string_view>

namespace rbt {

/// The statements that work out what the tallies select on. Other programs of the family read the same
/// columns, so that the texts are a contract: they stand as they are run, blanks included.

inline constexpr std::string_view kUnclassifyRows = "UPDATE 加工テーブル SET 予備3 = 0 ";

/// Cut lengths at which a stock bar is used whole, and the others.
inline constexpr std::string_view kStockLengths =
    "IN(3500,4000,4500,5000,5500,6000,6500,7000,7500,8000,8500,9000,9500,10000,10500,11000,11500,12000)";
inline constexpr std::string_view kNotStockLengths =
    "NOT IN(3500,4000,4500,5000,5500,6000,6500,7000,7500,8000,8500,9000,9500,10000,10500,11000,11500,12000)";

/// One statement that gives rows their material form. The closing condition depends on which shapes count as
/// straight: bars with threaded or anchored ends too, or plain bars alone.
struct FormStatement {
  std::string_view head;
  std::string_view cut_lengths;
  std::string_view closing;
  std::string_view closing_plain_bars;
};

/// In the order in which they run: a bar of shape 138, 139, 140 or 143 that is cut from a stock length first
/// gets 3 and then 4. The fifth has a single closing condition on purpose.
inline constexpr std::array<FormStatement, 6> kFormStatements{{
    {"UPDATE 加工テーブル SET 予備3 = 1 WHERE 伸切寸 ", kStockLengths,
     "AND 伸本定 IN(1) AND 形状No IN(1,138,139,140,143)", "AND 伸本定 IN(1) AND 形状No IN(1)"},
    {"UPDATE 加工テーブル SET 予備3 = 2 WHERE 伸切寸 ", kStockLengths,
     "AND 伸本定 IN(1) AND (形状No NOT IN(1,138,139,140,143) OR (形状No>200 AND 予備2=4)) ",
     "AND 伸本定 IN(1) AND 形状No NOT IN(1)"},
    {"UPDATE 加工テーブル SET 予備3 = 3 WHERE 伸切寸 ", kStockLengths,
     "AND 伸本定 NOT IN(1) AND 形状No IN(1,138,139,140,143)", "AND 伸本定 NOT IN(1) AND 形状No IN(1)"},
    {"UPDATE 加工テーブル SET 予備3 = 3 WHERE 伸切寸 ", kNotStockLengths,
     "AND (形状No IN(1,138,139,140,143) OR (形状No>200 AND 予備2=4))", "AND 形状No IN(1)"},
    {"UPDATE 加工テーブル SET 予備3 = 4 WHERE 伸切寸 ", kStockLengths,
     "AND 伸本定 NOT IN(1) AND 形状No NOT IN(1)", "AND 伸本定 NOT IN(1) AND 形状No NOT IN(1)"},
    {"UPDATE 加工テーブル SET 予備3 = 4 WHERE 伸切寸 ", kNotStockLengths,
     "AND 形状No NOT IN(1,138,139,140,143)", "AND 形状No NOT IN(1)"},
}};

/// Every dimension followed by a comma; a null one leaves nothing between its commas.
inline constexpr std::string_view kJoinDimensions =
    "UPDATE 加工テーブル SET 予備5 = 寸法1 & \",\" & 寸法2 & \",\" & 寸法3 & \",\" & 寸法4 & \",\" & 寸法5 & "
    "\",\" & 寸法6 & \",\" & 寸法7 & \",\" & 寸法8 & \",\" & 寸法9 & \",\" & 寸法10 & \",\"";

/// Material kind and weld diameter, in the order in which they run: a thin bar of a threaded shape ends as
/// Ulbon. The fourth changes no value and stays the last of the kind statements.
inline constexpr std::array<std::string_view, 5> kKindStatements{
    "UPDATE 加工テーブル SET 予備2=4 WHERE ((形状No Between 138 And 143) OR (形状No Between 162 And 163) OR "
    "(形状No Between 166 And 177))",
    "UPDATE 加工テーブル SET 予備2=1 WHERE (IsNull(予備2) Or 予備2 = 0)",
    "UPDATE 加工テーブル SET 予備2=2 WHERE (太さ = 6 Or 太さ = 7 Or 太さ = 9 Or 太さ = 11 Or 太さ = 12 )",
    "UPDATE 加工テーブル SET 予備2=2 WHERE (太さ <> 16 AND 予備2 = 2)",
    "UPDATE 加工テーブル SET 圧接太さ=太さ WHERE (not isnull(太さ) AND 圧接>0 AND 圧接太さ=0)",
};

/// Slit bars go by their names, each closed by one ideographic blank.
inline constexpr std::string_view kMarkSlitBars =
    "UPDATE 加工テーブル SET 予備2 = 5 WHERE 部位=3 AND (名称='縦ｽﾘｯﾄ筋　' OR 名称='横ｽﾘｯﾄ筋　')";

/// Floor and part of lines that old entry programs left without.
inline constexpr std::string_view kFillFloors = "UPDATE 加工テーブル SET 階 = 78 WHERE 階 is null ";
inline constexpr std::string_view kFillParts = "UPDATE 加工テーブル SET 部位 = 0 WHERE 部位 is null ";

/// The columns that the work with registered names needs.
inline constexpr std::string_view kAddNameWorkColumn =
    "ALTER TABLE 加工テーブル ADD COLUMN 登録名形状別作業用 long;";
inline constexpr std::string_view kAddInstalledWeightColumn =
    "ALTER TABLE 登録名 ADD COLUMN 取付重量合計 Currency;";
inline constexpr std::string_view kAddStockWeightColumn =
    "ALTER TABLE 登録名 ADD COLUMN 定尺重量合計 Currency;";
inline constexpr std::string_view kZeroInstalledWeights =
    "UPDATE 登録名 SET 取付重量合計=0 WHERE IsNull(取付重量合計)";
inline constexpr std::string_view kZeroStockWeights =
    "UPDATE 登録名 SET 定尺重量合計=0 WHERE IsNull(定尺重量合計)";

}  // namespace rbt
