// SPDX-License-Identifier: MIT
#include "session/result/result_hints.h"

#include <array>

namespace rbt {

namespace {

constexpr std::array<ControlHint, 27> kHints{{
    {"cmdPrint", "この集計の合計表を印字する"},
    {"cmdUSum", "ウルボンの行だけを表示する"},
    {"cmdurubon", "ウルボンの重量の割増し、または印字"},
    {"cmdPrint2", "ウルボンを除いた異形だけの合計表を印字する"},
    {"CmdVReturn", "割増しを取り消し、集計した値に戻す"},
    {"cmdMeisai", "材料の明細を表示する"},
    {"cmdPGChange", "頁と行の範囲を入力し直す"},
    {"Command6", "ほかの現場の集計と足し合わせる"},
    {"cmdPlan", "現場全体の切断と購買の計画を立てる"},
    {"cmdExit", "一つ前に戻る"},
    {"Command1", "今の選択で集計し直す"},
    {"Command2", "集計する材料（生材・加工・切断）を選ぶ"},
    {"Command3", "集計する材質（異形・ネジ・高強度・スリット）を選ぶ"},
    {"cmdHoop", "溶接閉鎖型フープを 含む → 含まず → のみ と切り替える"},
    {"cmdTei", "定着板付き鉄筋を 含む → 含まず → のみ と切り替える"},
    {"txtPercent", "割増しの％を入力して Enter、Esc で取り消し"},
    {"dbgJS", "↑↓で行を移る、Ctrl+C で表を写す"},
    {"txtStartPage", "開始頁を入力して Enter"},
    {"txtStartGyo", "開始行を入力して Enter"},
    {"txtEndPage", "終了頁を入力して Enter"},
    {"txtEndGyo", "終了行を入力して Enter：集計を始める"},
    {"txtStartKeijouNo", "始めの形状No を入力して Enter"},
    {"txtEndKeijouNo", "終わりの形状No を入力して Enter：集計を始める"},
    {"txtSubKojNa", "表の工事名の下に印字するメモ"},
    {"txtYear", "表に印字する年"},
    {"txtMonth", "表に印字する月"},
    {"txtDay", "表に印字する日"},
}};

}  // namespace

std::span<const ControlHint> ResultHints() { return kHints; }

}  // namespace rbt
