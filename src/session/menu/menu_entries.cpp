// SPDX-License-Identifier: MIT
#include "session/menu/menu_entries.h"

#include <algorithm>
#include <array>
#include <string>

#include "platform/fault.h"

namespace rbt {

namespace {

constexpr std::array<MenuEntry, 18> kEntries{{
    {"cmdShuukei", "F1", OpensTally{TallyKind::bulk, "JS"}, "現場全体の重量を太さごとに集計する"},
    {"cmdAllSites", "F2", RunsSibling{kAllSites}, "全現場を集計し、ＣＳＶファイルを作るプログラムを開く"},
    {"cmdPGShuukei", "F3", OpensTally{TallyKind::page, "PGJS"}, "頁と行の範囲を決めて重量を集計する"},
    {"cmdWeldCount", "F4", RunsSibling{kWeldCounter}, "階・部位ごとに圧接数を数えるプログラムを開く"},
    {"cmdKeijoShuukei", "F5", OpensTally{TallyKind::shape, "KEIJOJS"}, "形状の範囲を決めて重量を集計する"},
    {"cmdPlateCount", "F6", RunsSibling{kPlateCounter}, "階・部位ごとに定着板数を数えるプログラムを開く"},
    {"cmdKeijoPGShuukeia", "F7", OpensTally{TallyKind::page_shape, "PKEIJOJS"},
     "頁と行の範囲を決め、形状ごとに定尺を取って集計する"},
    {"cmdKaiShuukei", "F8", OpensTally{TallyKind::floor, "KAIJS"}, "階ごとに重量を集計する"},
    {"cmdBuiShuukei", "F9", OpensTally{TallyKind::part, "BUIJS"}, "部位ごとに重量を集計する"},
    {"cmdKaiBuiK", "F10", RunsSibling{kLedger}, "階別・部位別に集計するプログラムを開く"},
    {"cmdSiteSum", "F11", RunsSibling{kSiteSum}, "工事別に集計し、ＣＳＶファイルを作るプログラムを開く"},
    {"cmdTouroS", "F12", RunsNameCompanion{}, "登録名ごとに集計するプログラムを開く"},
    {"cmdCouplerCount", "0", RunsSibling{kCouplerCounter}, "階・部位ごとにカプラ数を数えるプログラムを開く"},
    {"cmdCutCount", "1", RunsSibling{kCutCounter}, "階・部位ごとに切断数を数えるプログラムを開く"},
    {"cmdMeiEfu", "2", RunsStockFitter{}, "部位などを指定して明細を印字するプログラムを開く"},
    {"cmdPlateSheet", "3", RunsSibling{kPlateSheet}, "定着板の加工帳を印字するプログラムを開く"},
    {"Command1", "", OpensSettings{}, "日付・対比表・画面の色などの設定を変える"},
    {"cmdExit", "Esc", Leaves{}, "プログラムを終わる"},
}};

}  // namespace

std::span<const MenuEntry> MenuEntries() { return kEntries; }

const MenuEntry& FindMenuEntry(std::string_view control) {
  const auto* entry = std::find_if(kEntries.begin(), kEntries.end(),
                                   [&](const MenuEntry& each) { return each.control == control; });
  if (entry == kEntries.end()) {
    throw Fault(FaultKind::subscript_out_of_range, "menu entry " + std::string(control));
  }
  return *entry;
}

}  // namespace rbt
