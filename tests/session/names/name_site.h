// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "session/result/result_site.h"

namespace rbt::test {

/// Ten bars of D19 by 6.0 m, 135 kg, of a registered name.
inline Cells TenBarsOf(std::int64_t name) {
  Cells bar = TenBars(19, 1, 0);
  bar.emplace_back("登録名", name);
  return bar;
}

inline constexpr const char* kSecondSchedule = "GENBA002.MDB";

/// A site with the registered names 1 い, 2 あ and 4 う, of whose rows 1 has two, 4 one, and 2 none.
class NameSite : public SiteFixture {
 public:
  NameSite() {
    AddName(1, "い");
    AddName(2, "あ");
    AddName(4, "う");
    AddRows({TenBarsOf(1), TenBarsOf(1), TenBarsOf(4)});
  }

  void AddName(std::int64_t number, const std::string& name) {
    Add(kCompanionFile, "登録名", {{"登録AN", number}, {"登録名", name}});
  }
  /// "number=mark stock installed|", name after name.
  std::string Names() const {
    std::string text;
    for (const auto& row :
         Rows(kCompanionFile,
              "SELECT 登録AN,表示番号,定尺重量合計,取付重量合計 FROM 登録名 ORDER BY 登録AN")) {
      text += Shown(row[0]) + "=" + Shown(row[1]) + " " + Shown(row[2]) + " " + Shown(row[3]) + "|";
    }
    return text;
  }
  static void Load() { ResultSite::Load(); }

  /// A second site with the same rows and names, number 2: before the first is loaded.
  void AddSecondSite() {
    std::filesystem::copy_file(Data(kScheduleFile), Data(kSecondSchedule));
    std::filesystem::copy_file(Data(kCompanionFile), Data("HIROI002.mdb"));
    Add(kMasterFile, "工事テーブル",
        {{"番号", std::int64_t{2}},
         {"工事名", std::string("次の現場")},
         {"データパス", std::string(kSecondSchedule)}});
  }
  /// As another program of the family chooses a site.
  void Choose(const std::string& schedule) const { SetIni(kSteelFile, "データ", "選択ＤＢ名", schedule); }
  bool HasTable(const std::string& file, std::string_view table) const {
    return Database::OpenReadOnly(Data(file)).FindTable(table) != nullptr;
  }
};

}  // namespace rbt::test
