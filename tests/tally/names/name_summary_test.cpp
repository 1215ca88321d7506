// SPDX-License-Identifier: MIT
#include "tally/names/name_summary.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <random>
#include <tuple>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/bar_tables.h"
#include "data/diameters.h"
#include "shell/context/site_context.h"
#include "shell/preparation/preparation.h"
#include "support/schedule_site.h"
#include "support/site_fixture.h"
#include "tally/names/name_list.h"

namespace rbt {
namespace {

using test::Fields;
using test::kNull;
using test::Number;
using test::ScheduleSite;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr NameSummaryRules kPlain{};
constexpr NameSummaryRules kCapped{.cap_installed_weight = true};

std::vector<std::string> Holding(const std::vector<std::string>& statements, const std::string& words) {
  std::vector<std::string> found;
  for (const std::string& statement : statements) {
    if (statement.find(words) != std::string::npos) found.push_back(statement);
  }
  return found;
}

TEST(WorkTableStatements, WeighStockOfEveryLengthAndOf13MetresWhereTold) {
  const auto stock = Holding(WorkTableStatements(kPlain), "定尺基準重量=");
  EXPECT_EQ(stock.size(), 12U * 18U);
  EXPECT_EQ(
      stock.front(),
      "UPDATE WorkTAble SET 定尺基準重量=1.96 WHERE (太さ=10 AND 伸定尺=3.5 AND (材質=1or 材質=3 OR 材質=0 "
      "OR IsNull(材質) OR 材質=4))");
  EXPECT_EQ(
      stock.back(),
      "UPDATE WorkTAble SET 定尺基準重量=191 WHERE (太さ=51 AND 伸定尺=12 AND (材質=1or 材質=3 OR 材質=0 "
      "OR IsNull(材質) OR 材質=4))");
  EXPECT_THAT(Holding(WorkTableStatements(kPlain), "伸定尺=13 "), IsEmpty());
  const auto with_13m = WorkTableStatements({.weigh_13m_stock = true});
  EXPECT_EQ(Holding(with_13m, "定尺基準重量=").size(), 12U * 19U);
  EXPECT_EQ(Holding(with_13m, "伸定尺=13 ").size(), 12U);
}

TEST(WorkTableStatements, GiveTheUnitWeightOfD51ToD41OnceMore) {
  EXPECT_THAT(Holding(WorkTableStatements(kPlain), "単位重量="),
              ElementsAre("UPDATE WorkTAble SET 単位重量=0.56 WHERE (太さ=10 AND (材質<>2 or IsNull(材質)))",
                          "UPDATE WorkTAble SET 単位重量=0.995 WHERE (太さ=13 AND (材質<>2 or IsNull(材質)))",
                          "UPDATE WorkTAble SET 単位重量=1.56 WHERE (太さ=16  AND (材質<>2 or IsNull(材質)))",
                          "UPDATE WorkTAble SET 単位重量=2.25 WHERE (太さ=19  AND (材質<>2 or IsNull(材質)))",
                          "UPDATE WorkTAble SET 単位重量=3.04 WHERE (太さ=22  AND (材質<>2 or IsNull(材質)))",
                          "UPDATE WorkTAble SET 単位重量=3.98 WHERE (太さ=25 AND (材質<>2 or IsNull(材質)))",
                          "UPDATE WorkTAble SET 単位重量=5.04 WHERE (太さ=29 AND (材質<>2 or IsNull(材質)))",
                          "UPDATE WorkTAble SET 単位重量=6.23 WHERE (太さ=32 AND (材質<>2 or IsNull(材質)))",
                          "UPDATE WorkTAble SET 単位重量=7.51 WHERE (太さ=35  AND (材質<>2 or IsNull(材質)))",
                          "UPDATE WorkTAble SET 単位重量=8.95 WHERE (太さ=38  AND (材質<>2 or IsNull(材質)))",
                          "UPDATE WorkTAble SET 単位重量=10.5 WHERE (太さ=41  AND (材質<>2 or IsNull(材質)))",
                          "UPDATE WorkTAble SET 単位重量=15.9 WHERE (太さ=41  AND (材質<>2 or IsNull(材質)))",
                          "UPDATE WorkTAble SET 単位重量=0.235 WHERE 太さ=6 AND 材質=2",
                          "UPDATE WorkTAble SET 単位重量=0.315 WHERE 太さ=7 AND 材質=2",
                          "UPDATE WorkTAble SET 単位重量=0.5 WHERE 太さ=9 AND 材質=2",
                          "UPDATE WorkTAble SET 単位重量=0.71 WHERE 太さ=11 AND 材質=2",
                          "UPDATE WorkTAble SET 単位重量=0.98 WHERE 太さ=12 AND 材質=2",
                          "UPDATE WorkTAble SET 単位重量=1.56 WHERE 太さ=16 AND 材質=2"));
}

TEST(WorkSumStatement, RoundsFromTheRowsOnlyWhereWeightsAreCapped) {
  EXPECT_EQ(
      WorkSumStatement(kPlain),
      "INSERT into WorkSumTable(登録AN,太さ,取付重量合計,定尺重量合計,材質) SELECT "
      "登録AN,太さ,fix(Sum(S伸切寸*単位重量/1000)+0.5),Sum(fix(定尺重量+0.5)),材質 from WorkTable group by "
      "登録AN,太さ,材質 ");
  EXPECT_EQ(WorkSumStatement(kCapped),
            "INSERT into WorkSumTable(登録AN,太さ,取付重量合計,定尺重量合計,材質) SELECT "
            "登録AN,太さ,fix(Sum(取付重量)+0.5),Sum(fix(定尺重量+0.5)),材質 from WorkTable group by "
            "登録AN,太さ,材質 ");
}

class NameSummary : public testing::Test {
 protected:
  NameSummary() {
    for (int name = 1; name <= 3; ++name) site_.AddName(Number(name), "名", Number(1));
  }

  void AddRow(const Value& name, Fields fields = {}) {
    fields.emplace_back("登録名", name);
    site_.AddRow(fields);
  }

  /// "number mark stock installed", name after name.
  std::vector<std::string> Summary(const NameSummaryRules& rules = kPlain) {
    Database companion = Database::Open(site_.Folder().Data("HIROI001.mdb"));
    AddNameWorkColumns(site_.Work(), companion);
    SumNamesInWorkTables(site_.Work(), rules);
    WriteNameWeights(site_.Work(), companion);
    std::vector<std::string> lines;
    for (const RegisteredName& name : ReadNames(companion, NameOrder::by_number)) {
      lines.push_back((name.number ? std::to_string(*name.number) : "null") + (name.marked ? " 1 " : " 0 ") +
                      name.stock.ToText() + " " + name.installed.ToText());
    }
    return lines;
  }

  std::string Table(const std::string& statement) {
    std::string text;
    Recordset rows = site_.Work().OpenSnapshot(statement);
    for (; !rows.Eof(); rows.MoveNext()) {
      for (int field = 0; field < rows.FieldCount(); ++field) {
        text += test::Shown(rows.Get(FieldHandle{field})) + " ";
      }
      text += "| ";
    }
    return text;
  }

  ScheduleSite site_;
};

// D19: 2 bars of 13.5 kg, 12 m of 2.25 kg; U9: 12 m of 0.5 kg and no stock.
TEST_F(NameSummary, WeighsDeformedAndUlbonRowsOfEachNameAndTakesAllMarksAway) {
  AddRow(Number(1));
  AddRow(Number(1), {{"太さ", Number(9)}, {"予備2", Number(2)}});
  AddRow(Number(2), {{"予備2", Number(3)}, {"伸総計", Number(3)}});
  EXPECT_THAT(Summary(), ElementsAre("1 0 27 33", "2 0 41 27", "3 0 0 0"));  // 40.5 is 41
}

TEST_F(NameSummary, LeavesRowsOfNoNameAndOfNoKindOut) {
  site_.AddName(Number(0), "零", Number(1));
  site_.AddName(kNull, "なし", Number(1));
  AddRow(Number(0));
  AddRow(kNull);
  AddRow(Number(1), {{"予備2", kNull}});
  EXPECT_THAT(Summary(), ElementsAre("null 0 0 0", "0 0 0 0", "1 0 0 0", "2 0 0 0", "3 0 0 0"));
}

// 12 m of D41 at 15.9 kg; D51: 2 bars of 95.4 kg, installed nothing.
TEST_F(NameSummary, WeighsD41AtTheMetreOfD51AndD51NotAtAll) {
  AddRow(Number(1), {{"太さ", Number(41)}});
  AddRow(Number(2), {{"太さ", Number(51)}});
  EXPECT_THAT(Summary(), ElementsAre("1 0 126 191", "2 0 191 0", "3 0 0 0"));
}

TEST_F(NameSummary, CapsTheInstalledWeightOfADiameterWhereTold) {
  AddRow(Number(1), {{"太さ", Number(41)}});
  AddRow(Number(1));
  AddRow(Number(1), {{"太さ", Number(9)}, {"予備2", Number(2)}});
  AddRow(Number(2), {{"太さ", Number(51)}});
  AddRow(Number(3), {{"太さ", Number(41)}});  // 191 installed, above its stock
  EXPECT_THAT(Summary(kCapped), ElementsAre("1 0 153 159", "2 0 191 0", "3 0 126 126"));
}

TEST_F(NameSummary, HasStockOf13MetresOnlyWhereTold) {
  AddRow(Number(1), {{"伸定尺", Value{13.0}}});  // two bars of 29.2 kg
  EXPECT_THAT(Summary(), ElementsAre("1 0 0 27", "2 0 0 0", "3 0 0 0"));
  EXPECT_THAT(Summary({.weigh_13m_stock = true}), ElementsAre("1 0 58 27", "2 0 0 0", "3 0 0 0"));
}

TEST_F(NameSummary, WeighsStockByDiameterAndLengthBeforeItIsRounded) {
  AddRow(Number(1), {{"伸総計", Number(1)}});                           // 13.5
  AddRow(Number(1), {{"伸総計", Number(1)}});                           // with the first: 27
  AddRow(Number(1), {{"伸総計", Number(1)}, {"伸定尺", Value{4.0}}});   // 9
  AddRow(Number(1), {{"伸総計", Number(1)}, {"伸定尺", Value{5.0}}});   // 11.2 (11.25 to the even figure): 11
  AddRow(Number(1), {{"伸総計", Number(9)}, {"伸定尺", Value{12.5}}});  // no column
  EXPECT_EQ(Summary().front(), "1 0 47 135");
}

// 9.95 kg and 10.549985 kg, which a row keeps as 10.55.
TEST_F(NameSummary, RoundsTheUnroundedSumUnlessItCaps) {
  AddRow(Number(1), {{"太さ", Number(13)}, {"合計", Number(1)}, {"伸切寸", Number(10000)}});
  AddRow(Number(1), {{"太さ", Number(13)},
                     {"合計", Number(1)},
                     {"伸切寸", Number(10603)},
                     {"伸定尺", Value{12.0}},
                     {"伸総計", Number(9)}});
  EXPECT_EQ(Summary().front(), "1 0 119 20");
  EXPECT_EQ(Summary(kCapped).front(), "1 0 119 21");
}

// 50 m of 8.95 kg are 447.5 kg; a product of doubles lies below.
TEST_F(NameSummary, TakesAnExactHalfOfAKilogramUp) {
  AddRow(Number(1), {{"太さ", Number(38)}, {"合計", Number(10)}, {"伸切寸", Number(5000)}});
  EXPECT_THAT(Summary().front(), testing::EndsWith(" 448"));
}

TEST_F(NameSummary, GivesANameThatHasNoRowsAnyMoreZero) {
  AddRow(Number(1));
  EXPECT_EQ(Summary().front(), "1 0 27 27");
  site_.Work().Execute("UPDATE 加工テーブル SET 登録名=3");
  EXPECT_THAT(Summary(), ElementsAre("1 0 0 0", "2 0 0 0", "3 0 27 27"));
}

TEST_F(NameSummary, OfANumberThatNoNameHasChangesNone) {
  AddRow(Number(7));
  EXPECT_THAT(Summary(), ElementsAre("1 0 0 0", "2 0 0 0", "3 0 0 0"));
}

TEST_F(NameSummary, KeepsItsTablesAndDropsTwoAtTheEnd) {
  AddRow(Number(1));
  Summary();
  EXPECT_EQ(
      Table("SELECT 登録AN,太さ,材質,伸定尺,定尺基準重量,S伸切寸,S伸定_本,単位重量,取付重量,定尺重量 FROM "
            "WorkTable"),
      "1 19 1 6 13.5 12000 2 2.25 27 27 | ");
  EXPECT_EQ(Table("SELECT * FROM WorkSumTable"), "1 1 1 19 27 27 null | ");
  EXPECT_EQ(Table("SELECT * FROM WorkSumResultsTable"), "1 1 null 27 27 null | ");
  DropNameWorkTables(site_.Work());
  DropNameWorkTables(site_.Work());
  EXPECT_EQ(site_.Work().FindTable("WorkTable"), nullptr);
  EXPECT_NE(site_.Work().FindTable("WorkSumTable"), nullptr);
  EXPECT_EQ(site_.Work().FindTable("WorkSumResultsTable"), nullptr);
}

TEST_F(NameSummary, BeginsAnewEachTime) {
  AddRow(Number(1));
  Summary();
  EXPECT_EQ(Summary().front(), "1 0 27 27");
  EXPECT_EQ(Table("SELECT 登録AN FROM WorkTable"), "1 | ");
}

/// The work tables and weights of random rows, worked out in whole numbers: millimetres by grams a metre.
class PlainSummary {
 public:
  explicit PlainSummary(const NameSummaryRules& rules) : rules_(rules) {}

  void Add(int name, int code, bool ulbon, double stock_m, std::int64_t bars, std::int64_t millimetres) {
    Part& part = groups_[{name, code, ulbon ? 2 : 1}][stock_m];
    part.bars += bars;
    part.millimetres += millimetres;
  }

  /// What the schedule's rows are grouped to: name, diameter, kind, length, millimetres, bars.
  std::string WorkTable() const {
    std::string text;
    for (const auto& [key, parts] : groups_) {
      for (const auto& [metres, part] : parts) {
        text += KeyText(key) + test::Shown(Value{metres}) + " " + std::to_string(part.millimetres) + " " +
                std::to_string(part.bars) + " | ";
      }
    }
    return text;
  }
  /// Name, diameter, kind, stock weight, installed weight.
  std::string WorkSumTable() const {
    std::string text;
    for (const auto& [key, parts] : groups_) {
      const std::optional<std::int64_t> installed = Installed(key, parts);
      text += KeyText(key) + std::to_string(Stock(key, parts)) + " " +
              (installed ? std::to_string(*installed) : "null") + " | ";
    }
    return text;
  }
  std::string Of(int name) const {
    std::int64_t stock = 0;
    std::int64_t installed = 0;
    for (const auto& [key, parts] : groups_) {
      if (std::get<0>(key) != name) continue;
      stock += Stock(key, parts);
      installed += Installed(key, parts).value_or(0);
    }
    return std::to_string(name) + " 0 " + std::to_string(stock) + " " + std::to_string(installed);
  }

 private:
  struct Part {
    std::int64_t bars = 0;
    std::int64_t millimetres = 0;
  };
  using Key = std::tuple<int, int, int>;  ///< name, diameter, 1 or, of Ulbon, 2
  using Parts = std::map<double, Part>;

  static std::string KeyText(const Key& key) {
    const auto& [name, code, kind] = key;
    return std::to_string(name) + " " + std::to_string(code) + " " + std::to_string(kind) + " ";
  }
  static std::optional<std::int64_t> GramsPerMetre(const Key& key) {
    const auto& [name, code, kind] = key;
    const int d = kind == 2 ? UlbonIndex(code) : DiameterIndex(code);
    if (d < 0 || (kind == 1 && code == 51)) return std::nullopt;
    return std::llround(UnitWeight(kind == 1 && code == 41 ? DiameterIndex(51) : d) * 1000);
  }
  std::int64_t Stock(const Key& key, const Parts& parts) const {
    const int d = DiameterIndex(std::get<1>(key));
    if (std::get<2>(key) == 2 || d < 0) return 0;
    std::int64_t stock = 0;
    for (const auto& [metres, part] : parts) {
      const int l = StockIndex(metres);
      if (l < 0 || (l == kColumn13m && !rules_.weigh_13m_stock)) continue;
      stock += (std::llround(BarWeight(d, l) * 100) * part.bars + 50) / 100;
    }
    return stock;
  }
  /// Nothing where no unit weight is known, unless rows are capped, which have no weight then.
  std::optional<std::int64_t> Installed(const Key& key, const Parts& parts) const {
    const std::optional<std::int64_t> grams = GramsPerMetre(key);
    if (!grams) return rules_.cap_installed_weight ? std::optional<std::int64_t>(0) : std::nullopt;
    std::int64_t milligrams = 0;
    for (const auto& [metres, part] : parts) {
      const std::int64_t exact = part.millimetres * *grams;
      // A row keeps its weight in tenths of a gram.
      milligrams += rules_.cap_installed_weight ? (exact + 50) / 100 * 100 : exact;
    }
    const std::int64_t installed = (milligrams + 500'000) / 1'000'000;
    if (!rules_.cap_installed_weight || std::get<2>(key) == 2) return installed;
    return std::min(installed, Stock(key, parts));
  }

  NameSummaryRules rules_;
  std::map<Key, Parts> groups_;
};

class NameSummaryOfRandomRows : public NameSummary, public testing::WithParamInterface<NameSummaryRules> {
 protected:
  /// Rows of the names 1 to 3, of no name and of name 0, of all diameters and kinds, of lengths without a
  /// column too.
  void Fill(PlainSummary& plain, unsigned seed) {
    std::mt19937 random(seed);
    const auto pick = [&](int low, int high) {
      return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1));
    };
    for (int row = 0; row < 300; ++row) {
      const int name = pick(-1, 3);
      const int code = kDiameters.at(static_cast<std::size_t>(pick(0, kDiameterRows - 1))).code;
      const int kind = pick(0, 5);
      const double stock_m = 3.5 + 0.5 * pick(0, 19);  // 12.5 and 13.0 among them
      const int pieces = pick(1, 40);
      const int cut_mm = pick(201, 9'999);
      const int bars = pick(1, 30);
      AddRow(name < 0 ? kNull : Number(name), {{"太さ", Number(code)},
                                               {"予備2", kind == 0 ? kNull : Number(kind)},
                                               {"伸定尺", Value{stock_m}},
                                               {"合計", Number(pieces)},
                                               {"伸切寸", Number(cut_mm)},
                                               {"伸総計", Number(bars)}});
      if (kind != 0 && name > 0) {
        plain.Add(name, code, kind == 2, stock_m, bars, std::int64_t{cut_mm} * pieces);
      }
    }
  }
};

TEST_P(NameSummaryOfRandomRows, IsInEachOfItsTablesThatOfAPlainCount) {
  for (const unsigned seed : {17U, 18U, 19U, 20U}) {
    site_.Work().Execute("DELETE FROM 加工テーブル");
    PlainSummary plain(GetParam());
    Fill(plain, seed);
    EXPECT_THAT(Summary(GetParam()), ElementsAre(plain.Of(1), plain.Of(2), plain.Of(3))) << seed;
    EXPECT_EQ(Table("SELECT 登録AN,太さ,材質,伸定尺,S伸切寸,S伸定_本 FROM WorkTable "
                    "ORDER BY 登録AN,太さ,材質,伸定尺"),
              plain.WorkTable())
        << seed;
    EXPECT_EQ(Table("SELECT 登録AN,太さ,材質,定尺重量合計,取付重量合計 FROM WorkSumTable "
                    "ORDER BY 登録AN,太さ,材質"),
              plain.WorkSumTable())
        << seed;
  }
}

INSTANTIATE_TEST_SUITE_P(Rules, NameSummaryOfRandomRows,
                         testing::Values(kPlain, kCapped, NameSummaryRules{.weigh_13m_stock = true},
                                         NameSummaryRules{.weigh_13m_stock = true,
                                                          .cap_installed_weight = true}));

}  // namespace
}  // namespace rbt
