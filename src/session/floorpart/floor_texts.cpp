// SPDX-License-Identifier: MIT
#include "session/floorpart/floor_texts.h"

#include <array>

#include <fmt/format.h>

#include "data/floors.h"
#include "tally/captions.h"
#include "tally/mask_text.h"

namespace rbt {

namespace {

struct FloorWord {
  int floor;
  std::string_view word;
};

/// The schedule has this floor and those above it alone.
constexpr std::array<FloorWord, 3> kSpecialFloorsAlone{{
    {kNoFloor, "データは 階なし のみです。"},
    {kPenthouseFloor, "データは ﾍﾟﾝﾄﾊｳｽ 階なし のみです。"},
    {kRoofFloor, "データは R階 ﾍﾟﾝﾄﾊｳｽ 階なし のみです。"},
}};

constexpr std::array<FloorWord, 3> kOneSpecialFloor{{
    {kRoofFloor, "Ｒ階"},
    {kPenthouseFloor, "ＰＨ階"},
    {kNoFloor, "階なし"},
}};

constexpr MaskText<SpecialMask> kTakenBeside[] = {
    {1, "Ｒ階を含む。"},
    {2, "Ｐ階を含む。"},
    {3, "Ｒ階、Ｐ階を含む。"},
    {4, "階なしを含む。"},
    {5, "Ｒ階、階なしを含む。"},
    {6, "Ｐ階、階なしを含む。"},
    {7, "Ｒ階、Ｐ階、階なしを含む。"},
};

/// Narrower than elsewhere.
constexpr FormMask kCutAndBent = FormMask::Of({MaterialForm::cut_bent});
constexpr std::string_view kCutAndBentCaption = "切断加";

}  // namespace

std::string FloorsOfSchedule(const FloorExtent& extent) {
  for (const FloorWord& row : kSpecialFloorsAlone) {
    if (row.floor == extent.KaiMin) return std::string(row.word);
  }
  if (!extent.KaiFound()) {
    return fmt::format("データは{}階 ～ {}階まで登録されています。", extent.KaiMin, extent.KaiMax);
  }
  // A building that ends at its foundation is told downwards; basements without one are not.
  const std::int16_t end = extent.KaiMax == kFoundationFloor ? extent.KaiMin : extent.KaiMax;
  return fmt::format("データは0階（基礎階）～ {}階まで登録されています。", end);
}

std::string AskedScope(const FloorInput::Texts& boxes) {
  return fmt::format("【{}階～{}階】", boxes[FloorInput::kStart], boxes[FloorInput::kEnd]);
}

std::string TalliedScope(const FloorInput::Texts& boxes, SpecialMask taken) {
  for (const FloorWord& row : kOneSpecialFloor) {
    const std::string code = std::to_string(row.floor);
    if (boxes[FloorInput::kStart] == code && boxes[FloorInput::kEnd] == code) return std::string(row.word);
  }
  const std::string_view beside = TextOfMask(kTakenBeside, taken);
  return beside.empty() ? AskedScope(boxes) : std::string(beside);
}

std::string_view FloorPartKindCaption(KindMask kinds) {
  return kinds.IsNone() ? "ウルボン" : KindCaption(kinds);
}

std::string_view FloorPartFormCaption(FormMask forms) {
  return forms == kCutAndBent ? kCutAndBentCaption : FormCaption(forms);
}

}  // namespace rbt
