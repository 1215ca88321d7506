// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/profile/registry.h"
#include "shell/config/setting_keys.h"

namespace rbt {

/// Reads a key of `\RBK\DATA\STEEL.INI` or another INI file of the family (a family path) into an
/// 80-character buffer, cut to the length that the profile call returned.
std::string ReadIniText(std::string_view family_file, std::string_view section, std::string_view key,
                        std::string_view fallback);
/// Registry settings shared with the family; see `platform/profile/registry.h`.
std::string ReadSetting(std::string_view app, std::string_view section, std::string_view key,
                        std::string_view fallback);
/// As above for a numeric setting: a stored text that is no number throws `type mismatch` and names the key;
/// halves to even, beyond 32 bits `overflow`.
std::int32_t ReadSetting(std::string_view app, std::string_view section, std::string_view key,
                         std::int32_t fallback);
void SaveSetting(std::string_view app, std::string_view section, std::string_view key,
                 std::string_view value);

/// The same for a key of the tables, with its own default; a true-or-false setting is "True", "False" or a
/// number.
std::string ReadSetting(const TextKey& key, const RegistryReading& registry = {});
std::int32_t ReadSetting(const NumberKey& key, const RegistryReading& registry = {});
bool ReadSetting(const BooleanKey& key, const RegistryReading& registry = {});
void SaveSetting(const NumberKey& key, std::int32_t value);
void SaveSetting(const TextKey& key, std::string_view value);
void SaveSetting(const BooleanKey& key, bool value);
/// Reads a key of `STEEL.INI` with its own default.
std::string ReadSteelIni(const IniKey& key);
/// Where a setting stands, with its text, for faults: `Kakou\プラス\長さ "abc"`.
std::string PlaceOf(const TextKey& key, std::string_view text);
std::string PlaceOf(const NumberKey& key, std::string_view text);
/// The same of a key of `STEEL.INI`: `STEEL.INI [加工帳] 文字の色 "abc"`.
std::string PlaceOf(const IniKey& key, std::string_view text);

/// Places of settings that cannot be read, as `PlaceOf` tells them.
using UnreadableSettings = std::vector<std::string>;
/// A setting that tells how things look, not what they come to: one that cannot be read is its default, and
/// is added to `unreadable`.
std::int32_t ReadLook(const NumberKey& key, const RegistryReading& registry, UnreadableSettings& unreadable);
bool ReadLook(const BooleanKey& key, const RegistryReading& registry, UnreadableSettings& unreadable);
/// A colour of `STEEL.INI`, RGB with red in the low byte: the leading number of the text, the default for an
/// empty text and, added to `unreadable`, for one that begins with no number or goes beyond 32 bits.
std::int32_t ReadSteelIniColour(const IniKey& key, UnreadableSettings& unreadable);

/// Writes a key of `STEEL.INI`. Faults: `file`, which names the file; `type mismatch` for a text that code
/// page 932 lacks.
void WriteSteelIni(const IniKey& key, std::string_view value);

/// A key of the hand-over between the programs of the family, section `データ` of `NEXTPRG.INI`: empty when
/// it is missing.
std::string ReadHandOver(std::string_view key);
/// Faults as those of `WriteSteelIni`.
void WriteHandOver(std::string_view key, std::string_view value);
/// False where this user only looks at the root.
bool HandOverMayBeWritten();

inline constexpr std::string_view kSteelIni = "\\RBK\\DATA\\STEEL.INI";
inline constexpr std::string_view kNextPrgIni = "\\RBK\\DATA\\NEXTPRG.INI";

/// Settings cached at load, each with the key it comes from. `溶接フープの圧接数` is read at the start of
/// each tally and the keys of the stock-length engine by the engine.
struct SettingsData {
  std::int32_t GridRowBackColor = 16777152;  ///< STEEL.INI 加工帳 行の背景色, RGB with red in the low byte
  std::int32_t GridRowForeColor = 0;         ///< STEEL.INI 加工帳 文字の色
  std::int32_t UseFixedTable = 0;            ///< Kakou 定尺 テーブル有無
  std::int32_t AlternateRowColours = 1;  ///< Kakou 重量集計 一行おきの色分け
  std::int32_t PrintEmptyDiameters = 0;  ///< Kakou 重量集計 重量の無い太さの印字
  std::int32_t Use13mColumn = 0;         ///< Jyuryo 定尺 定尺13有無
  std::int32_t CapInstalledWeight = 0;   ///< Kakou 重量集計 定尺取付書換
  std::int32_t StockCheck = 0;           ///< kakou 定尺チェック 定尺
  std::int32_t LedgerWeight = 0;         ///< kakou 加工帳重量 重量
  std::int32_t DetailShowsWeight = 0;    ///< Kakou 重量集計 明細画面重量表示
  std::int32_t ReportTitleChoice = 1;    ///< Kakou 重量集計 数量表タイトル
  std::string ReportTitleText;      ///< STEEL.INI 加工帳 数量表印字タイトル, when the choice is 3
  std::int32_t DateStyle = 1;       ///< Kakou 重量集計 日付表記
  std::int32_t ComparisonKind = 1;  ///< Kakou 重量集計 対比表項目
  std::int32_t DetailDatePosition = 0;                   ///< Kakou 重量集計 日付印字位置
  std::int32_t FloorTallyStock = 0;                      ///< Kakou 重量集計 階別集計定取
  std::int32_t DetailPrint = 0;                          ///< Kakou 加工帳 重量集計明細
  std::int32_t MemoPosition = 0;                         ///< Kakou 加工帳 明細書メモ印刷位置
  std::int32_t ShippingDate = 0;                         ///< Kakou 出荷日設定 出荷日
  std::string TallyPrinter;                              ///< Kakou プリンタ 集計用ドライバ名
  std::string TagPrinter;                                ///< Kakou プリンタ エフ用ドライバ名
  std::int32_t TagLines = 0;                             ///< Kakou エフ印字行 エフ行
  std::int32_t TagMethod = 0;                            ///< Kakou エフ方法 エフ方法
  std::int32_t PrintOwnCompany = 0;                      ///< Kakou 自社名登録 自社名印刷
  std::string StockOrInstalled = "1";                    ///< Nippo 印刷 定尺取付区分
  bool EraCalendar = true;                               ///< Zaiko 日付 入力暦
  std::string EraName;                                   ///< Zaiko 日付 年号
  std::string EraStartYear, EraStartMonth, EraStartDay;  ///< Zaiko 日付 開始年, 開始月, 開始日
  std::string ClosingYear, ClosingMonth, ClosingDay;     ///< Zaiko 日付 締年, 締月, 締日
};

extern SettingsData Settings;

// Each gives those that could not be read and have their defaults now: how things look. A number that
// figures, dates or sheets depend on faults with `type mismatch` or `overflow` and its place.

/// `GridRowBackColor` and `GridRowForeColor`.
UnreadableSettings LoadGridColours();
/// `UseFixedTable`, `AlternateRowColours`, `PrintEmptyDiameters`, `Use13mColumn`, `CapInstalledWeight`.
UnreadableSettings LoadTallySettings(const RegistryReading& registry = {});
/// Everything else that is kept, the title settings included.
UnreadableSettings LoadRemainingSettings(const RegistryReading& registry = {});
/// `DetailShowsWeight`, `ReportTitleChoice` and, when the choice is 3, `ReportTitleText`, else empty.
UnreadableSettings RereadTitleSettings(const RegistryReading& registry = {});

}  // namespace rbt
