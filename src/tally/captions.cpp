// SPDX-License-Identifier: MIT
#include "tally/captions.h"

#include "platform/text/characters.h"
#include "tally/mask_text.h"

namespace rbt {
namespace {

struct KindTexts {
  KindMask::Number mask;
  std::string_view caption;
  std::string_view total_row_label;
};

// The total-row labels of 10 to 13 name other kinds than their captions: so they stand on the sheets that the
// sites have filed, and so they stay.
constexpr KindTexts kKindTexts[] = {
    {1, "異形のみ", "異　形　合   計"},
    {2, "ネジのみ", "ネ　ジ　合   計"},
    {3, "異形･ネジ", "異形･ネジ合 計"},
    {4, "高強度のみ", "高強度　合   計"},
    {5, "異形･高強度", "異形･高強度合計"},
    {6, "ネジ･高強度", "ネジ･高強度合計"},
    {7, "異形･ネジ･高強度", "異形･高強度･ネジ"},
    {8, "スリットのみ", "スリット合  計"},
    {9, "異形･スリット", "異形･スリット"},
    {10, "ネジ･スリット", "高強度･スリット"},
    {11, "異形･ネジ･スリット", "異形･高強度･ｽﾘｯﾄ"},
    {12, "高強度･スリット", "ネジ･スリット"},
    {13, "異形･高強度･スリット", "異形･ﾈｼﾞ･高強度合計"},
    {14, "ネジ･高強度･スリット", "高強度･ﾈｼﾞ･ｽﾘｯﾄ"},
    {15, "異形･ネジ･高強度･スリット", "す　 べ 　て"},
};

constexpr std::string_view kUnknownTotalRowLabel = "合　　　　   計";

constexpr MaskText<FormMask> kFormCaptions[] = {
    {1, "生材"},          {2, "生材加工"},   {3, "生･生加"},     {4, "切断"},          {5, "生･切"},
    {6, "生加･切"},       {7, "生･生加･切"}, {8, "切断加工"},    {9, "生･切加"},       {10, "生加･切加"},
    {11, "生･生加･切加"}, {12, "切･切加"},   {13, "生･切･切加"}, {14, "生加･切･切加"},
};
constexpr std::string_view kAllFormsCaption = "すべて";

constexpr MaskText<FormMask> kShortFormCaptions[] = {{1, "生"}, {2, "生加"}, {4, "切"}, {8, "切加"}};

std::string_view TextOr(std::string_view text, std::string_view fallback) {
  return text.empty() ? fallback : text;
}

const KindTexts* FindKind(KindMask kinds) {
  for (const KindTexts& row : kKindTexts) {
    if (row.mask == kinds.AsNumber()) return &row;
  }
  return nullptr;
}

}  // namespace

std::string_view KindCaption(KindMask kinds) {
  const KindTexts* texts = FindKind(kinds);
  return texts != nullptr ? texts->caption : "";
}

std::string_view TotalRowLabel(KindMask kinds) {
  const KindTexts* texts = FindKind(kinds);
  return texts != nullptr ? texts->total_row_label : kUnknownTotalRowLabel;
}

std::string_view FormCaption(FormMask forms) {
  return TextOr(TextOfMask(kFormCaptions, forms), kAllFormsCaption);
}

std::string_view ShortFormCaption(FormMask forms) {
  return TextOr(TextOfMask(kShortFormCaptions, forms), FormCaption(forms));
}

std::string_view ShapeFilterCaption(ShapeFilter filter) {
  switch (filter) {
    case ShapeFilter::left_out:
      return "含まず";
    case ShapeFilter::alone:
      return "のみ";
    case ShapeFilter::with_others:
      break;
  }
  return "含む";
}

std::string_view HoopsNote(ShapeFilter hoops) {
  return hoops == ShapeFilter::alone ? "(形状No87)" : "(形状No87)を";
}

std::string StripSlitWord(std::string_view caption) {
  std::string text(caption);
  for (const std::string_view word : {"･スリット", "・スリット", "･スリット", "スリット", "スリットのみ"}) {
    text = ReplaceAll(text, word, "");
  }
  return text;
}

}  // namespace rbt
