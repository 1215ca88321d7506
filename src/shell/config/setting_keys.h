// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace rbt {

/// A registry setting that holds the text of a number. The spellings are shared with the other programs of
/// the family: `kakou` with a small letter and `Jyuryo` are no slips.
struct NumberKey {
  std::string_view app;
  std::string_view section;
  std::string_view key;
  std::int32_t fallback;
};

/// One that holds a text, and one that holds "True" or "False".
struct TextKey {
  std::string_view app;
  std::string_view section;
  std::string_view key;
  std::string_view fallback;
};

struct BooleanKey {
  std::string_view app;
  std::string_view section;
  std::string_view key;
  bool fallback;
};

inline constexpr NumberKey kUseFixedTableKey{"Kakou", "定尺", "テーブル有無", 0};
inline constexpr NumberKey kUse13mColumnKey{"Jyuryo", "定尺", "定尺13有無", 0};
inline constexpr NumberKey kLossPriorityKey{"Kakou", "定尺計算", "ロス優先", 0};
/// A leading number in millimetres, not a number text: "10mm" is 10.
inline constexpr TextKey kPlusKey{"Kakou", "プラス", "長さ", "0"};
inline constexpr NumberKey kStockCheckKey{"kakou", "定尺チェック", "定尺", 0};
inline constexpr NumberKey kLedgerWeightKey{"kakou", "加工帳重量", "重量", 0};
inline constexpr NumberKey kAlternateRowColoursKey{"Kakou", "重量集計", "一行おきの色分け", 1};
inline constexpr NumberKey kPrintEmptyDiametersKey{"Kakou", "重量集計", "重量の無い太さの印字", 0};
inline constexpr NumberKey kCapInstalledWeightKey{"Kakou", "重量集計", "定尺取付書換", 0};
inline constexpr NumberKey kDetailShowsWeightKey{"Kakou", "重量集計", "明細画面重量表示", 0};
inline constexpr NumberKey kReportTitleChoiceKey{"Kakou", "重量集計", "数量表タイトル", 1};
inline constexpr NumberKey kDateStyleKey{"Kakou", "重量集計", "日付表記", 1};
inline constexpr NumberKey kComparisonKindKey{"Kakou", "重量集計", "対比表項目", 1};
inline constexpr NumberKey kWeldedHoopWeldsKey{"Kakou", "重量集計", "溶接フープの圧接数", 1};
inline constexpr NumberKey kDetailDatePositionKey{"Kakou", "重量集計", "日付印字位置", 0};
inline constexpr NumberKey kFloorTallyStockKey{"Kakou", "重量集計", "階別集計定取", 0};
inline constexpr NumberKey kDetailPrintKey{"Kakou", "加工帳", "重量集計明細", 0};
/// The same of the floor screen, which prints weights unless it was told otherwise.
inline constexpr NumberKey kFloorDetailPrintKey{"Kakou", "加工帳", "重量集計明細", 1};
inline constexpr NumberKey kMemoPositionKey{"Kakou", "加工帳", "明細書メモ印刷位置", 0};
inline constexpr NumberKey kAccumulateFlagKey{"Kakou", "集計保存", "フラグ", 0};
inline constexpr NumberKey kShippingDateKey{"Kakou", "出荷日設定", "出荷日", 0};
inline constexpr TextKey kTallyPrinterKey{"Kakou", "プリンタ", "集計用ドライバ名", "EPSON VP-4200"};
inline constexpr TextKey kTagPrinterKey{"Kakou", "プリンタ", "エフ用ドライバ名", "EPSON VP-4200"};
inline constexpr NumberKey kTagLinesKey{"Kakou", "エフ印字行", "エフ行", 0};
inline constexpr NumberKey kTagMethodKey{"Kakou", "エフ方法", "エフ方法", 0};
inline constexpr NumberKey kPrintOwnCompanyKey{"Kakou", "自社名登録", "自社名印刷", 0};
inline constexpr TextKey kStockOrInstalledKey{"Nippo", "印刷", "定尺取付区分", "1"};
inline constexpr BooleanKey kEraCalendarKey{"Zaiko", "日付", "入力暦", true};
inline constexpr TextKey kEraNameKey{"Zaiko", "日付", "年号", "平成"};
inline constexpr TextKey kEraStartYearKey{"Zaiko", "日付", "開始年", "1989"};
inline constexpr TextKey kEraStartMonthKey{"Zaiko", "日付", "開始月", "1"};
inline constexpr TextKey kEraStartDayKey{"Zaiko", "日付", "開始日", "1"};
/// Without a stored value the closing year is the current year plus 1.
inline constexpr TextKey kClosingYearKey{"Zaiko", "日付", "締年", ""};
inline constexpr TextKey kClosingMonthKey{"Zaiko", "日付", "締月", "1"};
inline constexpr TextKey kClosingDayKey{"Zaiko", "日付", "締日", "1"};

/// A key of `STEEL.INI`.
struct IniKey {
  std::string_view section;
  std::string_view key;
  std::string_view fallback;
};

inline constexpr IniKey kSelectedDbNameKey{"データ", "選択ＤＢ名", ""};
inline constexpr IniKey kGridRowBackColorKey{"加工帳", "行の背景色", "16777152"};
inline constexpr IniKey kGridRowForeColorKey{"加工帳", "文字の色", "0"};
inline constexpr IniKey kReportTitleTextKey{"加工帳", "数量表印字タイトル", ""};
inline constexpr IniKey kOnesRoundingKey{"加工帳", "１の位まるめ", "2"};

/// The keys of `STEEL.INI` that bound the stock lengths of a diameter, in mm.
struct StockLimitKey {
  int diameter_code = 0;  ///< 10 to 51
  IniKey shortest;
  IniKey longest;
};

inline constexpr std::array<StockLimitKey, 12> StockLimitKeys{{
    {10, {"加工帳", "D10最小値", "3500"}, {"加工帳", "D10最大値", "12000"}},
    {13, {"加工帳", "D13最小値", "3500"}, {"加工帳", "D13最大値", "12000"}},
    {16, {"加工帳", "D16最小値", "3500"}, {"加工帳", "D16最大値", "12000"}},
    {19, {"加工帳", "D19最小値", "3500"}, {"加工帳", "D19最大値", "12000"}},
    {22, {"加工帳", "D22最小値", "3500"}, {"加工帳", "D22最大値", "12000"}},
    {25, {"加工帳", "D25最小値", "3500"}, {"加工帳", "D25最大値", "12000"}},
    {29, {"加工帳", "D29最小値", "3500"}, {"加工帳", "D29最大値", "12000"}},
    {32, {"加工帳", "D32最小値", "3500"}, {"加工帳", "D32最大値", "12000"}},
    {35, {"加工帳", "D35最小値", "3500"}, {"加工帳", "D35最大値", "12000"}},
    {38, {"加工帳", "D38最小値", "3500"}, {"加工帳", "D38最大値", "12000"}},
    {41, {"加工帳", "D41最小値", "3500"}, {"加工帳", "D41最大値", "12000"}},
    {51, {"加工帳", "D51最小値", "3500"}, {"加工帳", "D51最大値", "12000"}},
}};

/// Keys of section `データ` of `NEXTPRG.INI`: the hand-over between the programs of the family.
inline constexpr std::string_view kHandOverSection = "データ";
inline constexpr std::string_view kMaterialDetailKey = "材料明細";
inline constexpr std::string_view kCallingProgramKey = "CALL PRG";
inline constexpr std::string_view kWeightTallyKey = "重量集計";
inline constexpr std::string_view kSiteNumberKey = "KOJNO";
inline constexpr std::string_view kPickOrBendKey = "ひろい・加工スイッチ";

}  // namespace rbt
