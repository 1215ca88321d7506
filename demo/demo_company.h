// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace rbt::demo {

/// The invented company, its clients and the sites of the demonstration root. No name stands for a real firm.

struct NumberedName {
  std::int32_t number;
  std::string_view name;
};

/// Grade names, SDコード 1 to 10.
std::span<const NumberedName> Grades();
/// Clients, 会社コード from 1.
std::span<const NumberedName> Clients();

struct PartName {
  std::int32_t number;  ///< 1 to 11
  std::string_view name;
  std::string_view mark;
};
/// 部位名テーブル and 部位名２テーブル.
std::span<const PartName> PartNames();
std::span<const PartName> SecondPartNames();

/// One rule of the fixed stock table; `diameter` 0 is any, `cut_to` 0 makes `cut_from` the exact length.
struct FixedStock {
  std::int32_t diameter, cut_from, cut_to, material, stock_mm;
};
std::span<const FixedStock> FixedStocks();

/// One row of the spiral table: material 1 deformed, 2 thin high-strength, 3 high strength; kilograms with at
/// most four decimals.
struct Spiral {
  std::int32_t material, diameter;
  double weight_kg;
};

struct Site {
  std::int32_t number = 1;  ///< 番号 and the digits of its files
  std::string name;         ///< 工事名
  std::optional<std::string> long_name;
  std::optional<std::int32_t> break_width;  ///< 工事名区切り文字数
  std::int32_t client = 1;
  std::optional<std::int32_t> maker;
  std::int32_t supply = 0;  ///< 支給形態
  std::array<std::int32_t, 12> grades{};
  std::array<std::string_view, 12> makers{};
  std::vector<std::string> registered_names;  ///< 登録AN 1, 2, ...
  std::vector<Spiral> spirals;

  std::string ScheduleFile() const;   ///< "GENBA001.MDB"
  std::string CompanionFile() const;  ///< "HIROI001.mdb"
};

/// The n-th site (1 to 999). The project names take three forms in turn: short, long with a break width, long
/// without one.
Site DemoSite(std::int32_t number);

/// STEEL.INI, bound to the given schedule file, and NEXTPRG.INI: UTF-8 with LF, as text to be encoded.
std::string SteelIniText(std::string_view schedule_file);
std::string NextPrgIniText();

}  // namespace rbt::demo
