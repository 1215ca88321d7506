// SPDX-License-Identifier: MIT
#include "session/settings/setting_options.h"

#include <algorithm>
#include <array>
#include <string>

#include "platform/fault.h"
#include "shell/config/settings.h"

namespace rbt {

namespace {

constexpr std::array<SettingOption, 14> kOptions{{
    {"optAD", kDateStyleKey, 1},
    {"optNenGou", kDateStyleKey, 2},
    {"OptTaihiA", kComparisonKindKey, 1},
    {"OptTaihiB", kComparisonKindKey, 2},
    {"OptTaihiC", kComparisonKindKey, 3},
    {"OptTitleA", kReportTitleChoiceKey, 1},
    {"OptTitleB", kReportTitleChoiceKey, 2},
    {"OptTitleC", kReportTitleChoiceKey, 3},
    {"OptChangeColor_0", kAlternateRowColoursKey, 1},
    {"OptChangeColor_1", kAlternateRowColoursKey, 0},
    {"OptShowWeight_0", kDetailShowsWeightKey, 1},
    {"OptShowWeight_1", kDetailShowsWeightKey, 0},
    {"OptPrtZero_0", kPrintEmptyDiametersKey, 1},
    {"OptPrtZero_1", kPrintEmptyDiametersKey, 0},
}};

constexpr std::array<SettingHint, 18> kHints{{
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

}  // namespace

std::span<const SettingOption> SettingOptions() { return kOptions; }

const SettingOption& FindSettingOption(std::string_view control) {
  const auto* option = std::find_if(kOptions.begin(), kOptions.end(),
                                    [&](const SettingOption& each) { return each.control == control; });
  if (option == kOptions.end()) {
    throw Fault(FaultKind::subscript_out_of_range, "setting option " + std::string(control));
  }
  return *option;
}

bool IsOfShownSetting(const Fault& fault) {
  const auto names = [&](const NumberKey& key) {
    const std::string place = PlaceOf(key, "");  // with the quotes of its empty text
    return fault.Where().find(place.substr(0, place.size() - 1)) != std::string::npos;
  };
  return names(kWeldedHoopWeldsKey) ||
         std::any_of(kOptions.begin(), kOptions.end(),
                     [&](const SettingOption& each) { return names(each.key); });
}

std::span<const SettingHint> SettingHints() { return kHints; }

}  // namespace rbt
