// SPDX-License-Identifier: MIT
#include <array>

#include "session/floorpart/floorpart_screen.h"

namespace rbt {

namespace {

using enum FloorPartSheet;
constexpr std::array kFloorSheets{floor_range, each_floor, floor_totals, floor_blocks};
constexpr std::array kPartSheets{all_parts, each_part, part_totals};

// The caption of `cmdLoad` tells F7, which presses `cmdMent`; F8 presses it. It stays so: the users have it
// in their fingers.
constexpr std::array<ControlText, 8> kPartCaptions{{{"ALLKAIB", "登録されている全ての階(F2)"},
                                                    {"cmdBuiJS", "部 位 集 計 （F1）"},
                                                    {"cmdMeisaiSakusei", "明細作成（F1）"},
                                                    {"cmdMent", "管理(F7)"},
                                                    {"Command1", "合計表印字（F5）"},
                                                    {"btnBuiPrint", "各部位任意印字（F3）"},
                                                    {"btnAllBuiPrint", "全部位合計印字（F1）"},
                                                    {"btnClose", "終       了 （Esc）"}}};
constexpr std::array<ControlText, 4> kPartNames{{{"cmdKaiJS", "cmdBuiJS"},
                                                 {"dbgKai", "dbgBui"},
                                                 {"btnAllBuiPrint", "Command1"},
                                                 {"cmdCutPrint", "btnAllBuiPrint"}}};
constexpr std::array<std::string_view, 3> kNotOfParts{"Frame1", "lblJsyu", "btnPrintKaiBuiFuto"};

}  // namespace

constinit const FloorPartScreen kFloorScreen{.name = "KAIJS",
                                             .title = "階別集計",
                                             .kind = TallyKind::floor,
                                             .chooses_weight = true,
                                             .question_titles = {"Ｒ階集計", "Ｐ階集計", "階無し集計"},
                                             .uplift = &SelectionData::UwanoseRitu,
                                             .columns = Set_dbgkai,
                                             .sheets = kFloorSheets,
                                             .captions = {},
                                             .names = {},
                                             .without = {}};

constinit const FloorPartScreen kPartScreen{.name = "BUIJS",
                                            .title = "部位別集計",
                                            .kind = TallyKind::part,
                                            .starts_from_all = true,
                                            .question_titles = {"部位集計", "部位集計", "部位集計"},
                                            .uplift = &SelectionData::BuiUwanoseRitu,
                                            .columns = Set_dbgBui,
                                            .sheets = kPartSheets,
                                            .captions = kPartCaptions,
                                            .names = kPartNames,
                                            .without = kNotOfParts};

}  // namespace rbt
