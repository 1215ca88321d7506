// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "shell/config/setting_keys.h"
#include "ui_setjs.h"

namespace rbt {

/// An option of SETJS and what its click saves.
struct SettingOption {
  QRadioButton* Ui::SETJS::*button;
  const NumberKey& key;
  std::int32_t value;
};

inline constexpr std::array<SettingOption, 14> kSettingOptions{{
    {&Ui::SETJS::optAD, kDateStyleKey, 1},
    {&Ui::SETJS::optNenGou, kDateStyleKey, 2},
    {&Ui::SETJS::OptTaihiA, kComparisonKindKey, 1},
    {&Ui::SETJS::OptTaihiB, kComparisonKindKey, 2},
    {&Ui::SETJS::OptTaihiC, kComparisonKindKey, 3},
    {&Ui::SETJS::OptTitleA, kReportTitleChoiceKey, 1},
    {&Ui::SETJS::OptTitleB, kReportTitleChoiceKey, 2},
    {&Ui::SETJS::OptTitleC, kReportTitleChoiceKey, 3},
    {&Ui::SETJS::OptChangeColor_0, kAlternateRowColoursKey, 1},
    {&Ui::SETJS::OptChangeColor_1, kAlternateRowColoursKey, 0},
    {&Ui::SETJS::OptShowWeight_0, kDetailShowsWeightKey, 1},
    {&Ui::SETJS::OptShowWeight_1, kDetailShowsWeightKey, 0},
    {&Ui::SETJS::OptPrtZero_0, kPrintEmptyDiametersKey, 1},
    {&Ui::SETJS::OptPrtZero_1, kPrintEmptyDiametersKey, 0},
}};

/// What `lblMsg` tells of a control, by its object name.
struct SettingHint {
  std::string_view control;
  std::string_view hint;
};

inline constexpr std::array<SettingHint, 18> kSettingHints{{
    {"optAD", "印字する日付の年を西暦で表す"},
    {"optNenGou", "印字する日付の年を和暦で表す"},
    {"OptTaihiA", "対比表に定尺重量・取付重量・差引・圧接を印字する"},
    {"OptTaihiB", "対比表に定尺重量と圧接を印字する"},
    {"OptTaihiC", "対比表に取付重量と圧接を印字する"},
    {"OptTitleA", "数量表のタイトルを「合計数量表」にする"},
    {"OptTitleB", "数量表のタイトルを「材料明細表」にする"},
    {"OptTitleC", "数量表のタイトルを右の欄に入力する"},
    {"title", "入力した文字が印字される"},
    {"AtsuCheck", "溶接閉鎖型フープの圧接を圧接数に数えるかどうか"},
    {"OptChangeColor_0", "重量表の色を一行おきに変える"},
    {"OptChangeColor_1", "重量表の色をすべての行で同じにする"},
    {"cmdSetColor", "一行おきの行の背景色と文字の色を選ぶ"},
    {"OptShowWeight_0", "材料明細の画面に重量を表示する"},
    {"OptShowWeight_1", "材料明細の画面に重量を表示しない"},
    {"OptPrtZero_0", "重量が無い太さの行も印字する"},
    {"OptPrtZero_1", "重量が無い太さの行を印字しない"},
    {"btnExit", "設定を終えて元の画面に戻る"},
}};

}  // namespace rbt
