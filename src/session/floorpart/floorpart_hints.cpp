// SPDX-License-Identifier: MIT
#include "session/floorpart/floorpart_hints.h"

#include <array>
#include <span>

namespace rbt {

namespace {

constexpr std::array<ControlHint, 27> kHints{{
    {"txtStartKai", "始めの階を入力して Enter"},
    {"txtEndKai", "終わりの階を入力して Enter"},
    {"ALLKAIB", "登録されている一番下の階から一番上の階までを入力する"},
    {"RkaiB", "Ｒ階だけを入力する"},
    {"PHkaiB", "ペントハウスだけを入力する"},
    {"NOkaiB", "階の無い行だけを入力する"},
    {"Command3", "集計する材質（異形・ネジ・高強度・スリット、またはウルボンだけ）を選ぶ"},
    {"ZaishituR", "集計する材質（異形・ネジ・高強度・スリット、またはウルボンだけ）を選ぶ"},
    {"ZairyouR", "集計する材料（生材・加工・切断）を選ぶ"},
    {"cmdHoop", "溶接閉鎖型フープを 含む → 含まず → のみ と切り替える"},
    {"cmdTei", "定着板付き鉄筋を 含む → 含まず → のみ と切り替える"},
    {"Text1", "割増しの％を入力して Enter"},
    {"Command2", "入力した％で割増しして集計し直す"},
    {"cmdMeisaiSakusei", "印字する表を選ぶ"},
    {"cmdKaiHenkou", "階の範囲を入力し直す"},
    {"cmdJShuusei", "％で割増しするか、重量を一つずつ直す"},
    {"cmdSave", "すべての階を選択しているときだけ保存できます"},
    {"cmdLoad", "保存した集計を読み込む"},
    {"cmdMent", "保存した集計は読込の画面で管理する"},
    {"cmdExit", "メニューに戻る"},
    {"btnClose", "印字をやめて表に戻る"},
    {"txtYear", "表に印字する年"},
    {"txtMonth", "表に印字する月"},
    {"txtDay", "表に印字する日"},
    {"btnBuiPrint", "階または部位ごとに一枚ずつ印字する"},
    {"Opt1_0", "定尺の重量で集計する"},
    {"Opt1_1", "取付の重量で集計する"},
}};

constexpr std::array<ControlHint, 4> kFloorHints{{
    {"cmdKaiJS", "入力した階を集計する"},
    {"dbgKai", "↑↓で階を移る、Ctrl+C で表を写す"},
    {"cmdCutPrint", "すべての階の明細を一つの表に印字する"},
    {"btnAllBuiPrint", "すべての階の合計表を印字する"},
}};

constexpr std::array<ControlHint, 4> kPartHints{{
    {"cmdBuiJS", "入力した階を部位ごとに集計する"},
    {"dbgBui", "↑↓で太さを移る、Ctrl+C で表を写す"},
    {"btnAllBuiPrint", "すべての部位の合計を印字する"},
    {"Command1", "合計表を印字する"},
}};

}  // namespace

std::vector<ControlHint> FloorPartHints(const FloorPartScreen& screen) {
  std::vector<ControlHint> hints(kHints.begin(), kHints.end());
  const bool floors = screen.kind == TallyKind::floor;
  const std::span<const ControlHint> own =
      floors ? std::span<const ControlHint>(kFloorHints) : std::span<const ControlHint>(kPartHints);
  hints.insert(hints.end(), own.begin(), own.end());
  return hints;
}

}  // namespace rbt
