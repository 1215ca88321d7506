// SPDX-License-Identifier: MIT
#include "session/floorpart/floor_texts.h"

#include <gtest/gtest.h>

namespace rbt::test {

TEST(FloorsOfSchedule, AreToldByTheLowestAndTheHighest) {
  struct {
    FloorExtent extent;
    const char* text;
  } const cases[] = {
      {{78, 78, false}, "データは 階なし のみです。"},
      {{77, 78, false}, "データは ﾍﾟﾝﾄﾊｳｽ 階なし のみです。"},
      {{76, 76, false}, "データは R階 ﾍﾟﾝﾄﾊｳｽ 階なし のみです。"},
      {{1, 12, false}, "データは1階 ～ 12階まで登録されています。"},
      {{0, 12, true}, "データは0階（基礎階）～ 12階まで登録されています。"},
      {{-2, 12, false}, "データは0階（基礎階）～ 12階まで登録されています。"},
      {{-3, 0, true}, "データは0階（基礎階）～ -3階まで登録されています。"},
      {{-3, -1, false}, "データは0階（基礎階）～ -1階まで登録されています。"},
      {{0, 0, true}, "データは0階（基礎階）～ 0階まで登録されています。"},
  };
  for (const auto& row : cases) EXPECT_EQ(FloorsOfSchedule(row.extent), row.text);
}

TEST(TalliedScope, NamesTheSpecialFloorsThatWereTakenInPlaceOfTheRange) {
  const char* const texts[] = {
      "【1階～5階】",   "Ｒ階を含む。",         "Ｐ階を含む。",         "Ｒ階、Ｐ階を含む。",
      "階なしを含む。", "Ｒ階、階なしを含む。", "Ｐ階、階なしを含む。", "Ｒ階、Ｐ階、階なしを含む。"};
  for (std::int16_t mask = 0; mask <= 7; ++mask) {
    EXPECT_EQ(TalliedScope({"1", "5"}, SpecialMask(mask)), texts[mask]);
  }
}

TEST(TalliedScope, NamesOneSpecialFloor) {
  EXPECT_EQ(TalliedScope({"76", "76"}, {}), "Ｒ階");
  EXPECT_EQ(TalliedScope({"77", "77"}, {}), "ＰＨ階");
  EXPECT_EQ(TalliedScope({"78", "78"}, {}), "階なし");
  EXPECT_EQ(TalliedScope({"76", "78"}, {}), "【76階～78階】");
  EXPECT_EQ(TalliedScope({"5", "5"}, {}), "【5階～5階】");
}

TEST(FloorPartCaptions, NameUlbonForNoKind) {
  EXPECT_EQ(FloorPartKindCaption(KindMask()), "ウルボン");
  EXPECT_EQ(FloorPartKindCaption(KindMask(3)), "異形･ネジ");
  EXPECT_EQ(FloorPartKindCaption(kAllKinds), "異形･ネジ･高強度･スリット");
}

TEST(FloorPartCaptions, ShortenTheFormCutAndBent) {
  EXPECT_EQ(FloorPartFormCaption(FormMask(8)), "切断加");
  EXPECT_EQ(FloorPartFormCaption(FormMask(4)), "切断");
  EXPECT_EQ(FloorPartFormCaption(FormMask(2)), "生材加工");
  EXPECT_EQ(FloorPartFormCaption(FormMask(12)), "切･切加");
  EXPECT_EQ(FloorPartFormCaption(kAllForms), "すべて");
}

}  // namespace rbt::test
