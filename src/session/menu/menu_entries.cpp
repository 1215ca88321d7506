// SPDX-License-Identifier: MIT
#include "session/menu/menu_entries.h"

#include <algorithm>
#include <array>
#include <string>

#include "platform/fault.h"

namespace rbt {

namespace {

constexpr std::array<MenuEntry, 18> kEntries{{
    {"cmdShuukei", OpensTally{TallyKind::bulk, "JS"}, "現場全体の重量を太さごとに集計する"},
    {"cmdAllSites", RunsSibling{kAllSites}, "全現場を集計し、ＣＳＶファイルを作るプログラムを開く"},
    {"cmdPGShuukei", OpensTally{TallyKind::page, "PGJS"}, "頁と行の範囲を決めて重量を集計する"},
    {"cmdWeldCount", RunsSibling{kWeldCounter}, "階・部位ごとに圧接数を数えるプログラムを開く"},
    {"cmdKeijoShuukei", OpensTally{TallyKind::shape, "KEIJOJS"}, "形状の範囲を決めて重量を集計する"},
    {"cmdPlateCount", RunsSibling{kPlateCounter}, "階・部位ごとに定着板数を数えるプログラムを開く"},
    {"cmdKeijoPGShuukeia", OpensTally{TallyKind::page_shape, "PKEIJOJS"},
     "頁と行の範囲を決め、形状ごとに定尺を取って集計する"},
    {"cmdKaiShuukei", OpensTally{TallyKind::floor, "KAIJS"}, "階ごとに重量を集計する"},
    {"cmdBuiShuukei", OpensTally{TallyKind::part, "BUIJS"}, "部位ごとに重量を集計する"},
    {"cmdKaiBuiK", RunsSibling{kLedger}, "階別・部位別に集計するプログラムを開く"},
    {"cmdSiteSum", RunsSibling{kSiteSum}, "工事別に集計し、ＣＳＶファイルを作るプログラムを開く"},
    {"cmdTouroS", RunsNameCompanion{}, "登録名ごとに集計するプログラムを開く"},
    {"cmdCouplerCount", RunsSibling{kCouplerCounter}, "階・部位ごとにカプラ数を数えるプログラムを開く"},
    {"cmdCutCount", RunsSibling{kCutCounter}, "階・部位ごとに切断数を数えるプログラムを開く"},
    {"cmdMeiEfu", RunsStockFitter{}, "部位などを指定して明細を印字するプログラムを開く"},
    {"cmdPlateSheet", RunsSibling{kPlateSheet}, "定着板の加工帳を印字するプログラムを開く"},
    {"Command1", OpensSettings{}, "日付・対比表・画面の色などの設定を変える"},
    {"cmdExit", Leaves{}, "プログラムを終わる"},
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
