// SPDX-License-Identifier: MIT
#include "session/floorpart/floor_questions.h"

#include <string>

#include "platform/system/message.h"

namespace rbt {

namespace {

struct SpecialFloor {
  std::string_view rows;
  std::string_view question;
};

/// In the order of `kSpecialFloors`.
constexpr std::array<SpecialFloor, kSpecialFloors.size()> kSpecials{{
    {"SELECT [階] FROM 加工テーブル WHERE 階 = 76", "Ｒ階を含めますか？"},
    {"SELECT [階] FROM 加工テーブル WHERE 階 = 77", "Ｐ階を含めますか？"},
    {"SELECT [階] FROM 加工テーブル WHERE 階 = 78 AND 太さ <> 0", "階なしを含めますか？"},
}};

}  // namespace

SpecialMask SpecialFloorsOf(Database& site) {
  SpecialMask::Ticks found{};
  for (std::size_t i = 0; i < kSpecials.size(); ++i) found[i] = site.HasRows(kSpecials[i].rows);
  return SpecialMask::OfTicks(found);
}

SpecialMask AskAboutSpecialFloors(SpecialMask floors, const SpecialTitles& titles) {
  const SpecialMask::Ticks asked = floors.AsTicks();
  SpecialMask::Ticks taken{};
  for (std::size_t i = 0; i < kSpecials.size(); ++i) {
    if (!asked[i]) continue;
    taken[i] = MsgBox(kSpecials[i].question, titles[i], MessageButtons::yes_no) == MessageAnswer::yes;
  }
  return SpecialMask::OfTicks(taken);
}

}  // namespace rbt
