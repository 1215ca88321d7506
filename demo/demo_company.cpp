// SPDX-License-Identifier: MIT
#include "demo/demo_company.h"

#include <cmath>

#include <fmt/format.h>

#include "demo/stock_choice.h"

namespace rbt::demo {

namespace {

constexpr NumberedName kGrades[] = {{1, "SD295A"}, {2, "SD295B"}, {3, "SD345"}, {4, "SD390"}, {5, "SD490"},
                                    {6, "SD590"},  {7, "SD685"},  {8, "SR235"}, {9, "SR295"}, {10, "SD785"}};

constexpr NumberedName kClients[] = {
    {1, "見本建設株式会社"}, {2, "例示工務店"}, {3, "株式会社雛形組"}, {4, "標本土木株式会社"}};

constexpr PartName kPartNames[] = {{1, "基礎", "F"},    {2, "柱", "C"},      {3, "壁", "W"},
                                   {4, "大梁", "G"},    {5, "小梁", "B"},    {6, "スラブ", "S"},
                                   {7, "地中梁", "FG"}, {8, "階段", "ST"},   {9, "土間", "DS"},
                                   {10, "雑", "Z"},     {11, "その他", "他"}};
constexpr PartName kSecondPartNames[] = {{1, "フーチング", "F"}, {2, "柱筋", "C"},    {3, "壁筋", "W"},
                                         {4, "大梁筋", "G"},     {5, "小梁筋", "B"},  {6, "床筋", "S"},
                                         {7, "基礎梁", "FG"},    {8, "階段筋", "ST"}, {9, "土間床", "DS"},
                                         {10, "雑筋", "Z"},      {11, "その他", "他"}};

// Lengths that the supplier keeps cut for repeating members, then what any diameter falls back on.
constexpr FixedStock kFixedStocks[] = {
    {10, 2700, 0, 1, 5500},      {13, 2700, 0, 1, 5500},    {13, 3601, 4000, 1, 4000},
    {16, 4501, 5000, 1, 5000},   {19, 5501, 6000, 1, 6000}, {22, 7001, 7500, 1, 7500},
    {25, 8001, 8500, 1, 8500},   {0, 1750, 0, 1, 7000},     {0, 9501, 10000, 1, 10000},
    {0, 11501, 12000, 1, 12000}, {0, 3501, 4000, 2, 4000}};

constexpr Spiral kSpirals[] = {{1, 10, 128.4}, {1, 13, 412.75}, {2, 6, 36.2},    {2, 7, 88.05},
                               {2, 9, 154.6},  {2, 16, 61.5},   {3, 13, 203.125}};
/// The materials of which a site has spirals, site by site in turn: all three, no deformed ones, Ulbon alone.
constexpr std::string_view kSpiralMaterials[] = {"123", "23", "2"};

/// Each site's spirals are so much heavier than those of the site before, so that no two sites are taken for
/// one another by them.
std::vector<Spiral> SpiralsOf(std::size_t index) {
  constexpr double kGrowth = 0.07;
  const std::string_view materials = kSpiralMaterials[index % std::size(kSpiralMaterials)];
  std::vector<Spiral> spirals;
  for (const Spiral& spiral : kSpirals) {
    if (materials.find(static_cast<char>('0' + spiral.material)) == std::string_view::npos) continue;
    const double weight_kg = spiral.weight_kg * (1.0 + kGrowth * static_cast<double>(index));
    spirals.push_back({spiral.material, spiral.diameter, std::round(weight_kg * 1000.0) / 1000.0});
  }
  return spirals;
}

constexpr std::string_view kStages[] = {"基礎工区Ａ",   "地下２階躯体", "地下１階躯体", "１階立上り",
                                        "２階立上り",   "３階立上り",   "４階立上り",   "５階立上り",
                                        "基準階立上り", "最上階立上り", "屋上・塔屋",   "外構・雑工事"};
/// How many of them a site uses, site by site in turn.
constexpr std::size_t kStageCounts[] = {12, 10, 7};

// D10 to D51: thin bars of the mild grade, main bars of the stronger ones.
constexpr std::array<std::int32_t, 12> kGradeOfDiameter = {1, 1, 1, 3, 3, 3, 4, 4, 4, 4, 5, 5};
constexpr std::array<std::string_view, 12> kMakerOfDiameter = {"甲条鋼", "甲条鋼", "甲条鋼", "乙製鋼",
                                                               "乙製鋼", "乙製鋼", "乙製鋼", "丙鉄鋼",
                                                               "丙鉄鋼", "丙鉄鋼", "丙鉄鋼", "丙鉄鋼"};

constexpr std::string_view kTowns[] = {"見本町", "雛形台", "例示ヶ丘", "標本坂", "試作町", "仮想台"};

/// Site numbers beyond the first round of towns are told apart by a phase.
std::string PhaseOf(std::int32_t number) {
  const auto phase = (number - 1) / static_cast<std::int32_t>(std::size(kTowns)) + 1;
  return phase > 1 ? fmt::format("第{}期", phase) : std::string();
}

}  // namespace

std::span<const NumberedName> Grades() { return kGrades; }
std::span<const NumberedName> Clients() { return kClients; }
std::span<const PartName> PartNames() { return kPartNames; }
std::span<const PartName> SecondPartNames() { return kSecondPartNames; }
std::span<const FixedStock> FixedStocks() { return kFixedStocks; }

std::string Site::ScheduleFile() const { return fmt::format("GENBA{:03}.MDB", number); }
std::string Site::CompanionFile() const { return fmt::format("HIROI{:03}.mdb", number); }

Site DemoSite(std::int32_t number) {
  const auto index = static_cast<std::size_t>(number - 1);
  const std::string_view town = kTowns[index % std::size(kTowns)];
  const std::string phase = PhaseOf(number);
  Site site;
  site.number = number;
  site.client = static_cast<std::int32_t>(index % std::size(kClients)) + 1;
  site.grades = kGradeOfDiameter;
  site.makers = kMakerOfDiameter;
  switch (index % 3) {
    case 0:
      site.name = fmt::format("{}集合住宅{}", town, phase);
      site.maker = 1;
      break;
    case 1:
      site.name = fmt::format("{}再開発ビル{}", town, phase);
      site.long_name =
          fmt::format("（仮称）{}三丁目地区市街地再開発事業に伴う業務棟及び駐車場棟新築工事{}", town, phase);
      site.break_width = 20;
      site.maker = 2;
      site.supply = 1;
      break;
    default:
      site.name = fmt::format("{}学園校舎{}", town, phase);
      site.long_name =
          fmt::format("学校法人見本学園{}校舎建替え計画のうち教室棟及び体育館棟躯体工事{}", town, phase);
      break;
  }
  const std::size_t stages = kStageCounts[index % std::size(kStageCounts)];
  site.registered_names.assign(std::begin(kStages), std::begin(kStages) + stages);
  site.spirals = SpiralsOf(index);
  return site;
}

std::string SteelIniText(std::string_view schedule_file) {
  std::string text = "; 鉄筋加工システム 共通設定\n[データ]\n";
  text += fmt::format("選択ＤＢ名={}\n\n", schedule_file);
  text += "[加工帳]\n行の背景色=16777152\n文字の色=0\n数量表印字タイトル=鉄筋数量集計表\n";
  for (const StockLimits& limits : kStockLimits) {
    text += fmt::format("D{}最小値={}\nD{}最大値={}\n", limits.diameter, limits.shortest_mm, limits.diameter,
                        limits.longest_mm);
  }
  text += "１の位まるめ=2\n\n";
  text +=
      "[自社名]\n"
      "会社名=株式会社みほん鉄筋\n"
      "名称1=本社\n"
      "名称2=工場\n"
      "住所1=見本県例示市本町一丁目２番３号\n"
      "住所2=みほんビル四階\n"
      "住所3=見本県例示市港町五丁目６番\n"
      "TEL1=0000-00-0001\n"
      "TEL2=0000-00-0002\n"
      "TEL3=0000-00-0003\n"
      "FAX1=0000-00-0011\n"
      "FAX2=0000-00-0012\n"
      "郵便番号1=000-0001\n"
      "郵便番号2=000-0002\n"
      "MAIL1=honsha@example.jp\n"
      "MAIL2=kojo@example.jp\n";
  return text;
}

std::string NextPrgIniText() {
  return "[データ]\n材料明細=0\nCALL PRG=\n重量集計=\nKOJNO=1\nひろい・加工スイッチ=hiroi\n";
}

}  // namespace rbt::demo
