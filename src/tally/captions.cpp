// SPDX-License-Identifier: MIT
#include "tally/captions.h"

#include "platform/text/characters.h"

namespace rbt {
namespace {

struct KindTexts {
  std::int32_t mask;
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

constexpr std::string_view kFormCaptions[] = {
    "生材",    "生材加工",  "生･生加",      "切断",    "生･切",      "生加･切",      "生･生加･切", "切断加工",
    "生･切加", "生加･切加", "生･生加･切加", "切･切加", "生･切･切加", "生加･切･切加", "すべて"};
constexpr std::int32_t kAllForms = 15;

struct ShortForm {
  std::int32_t mask;
  std::string_view caption;
};

constexpr ShortForm kShortForms[] = {{1, "生"}, {2, "生加"}, {4, "切"}, {8, "切加"}};

const KindTexts* FindKind(std::int32_t mask) {
  for (const KindTexts& row : kKindTexts) {
    if (row.mask == mask) return &row;
  }
  return nullptr;
}

}  // namespace

std::string_view KindCaption(std::int32_t material_kind_mask) {
  const KindTexts* kind = FindKind(material_kind_mask);
  return kind != nullptr ? kind->caption : "";
}

std::string_view TotalRowLabel(std::int32_t material_kind_mask) {
  const KindTexts* kind = FindKind(material_kind_mask);
  return kind != nullptr ? kind->total_row_label : kUnknownTotalRowLabel;
}

std::string_view FormCaption(std::int32_t material_form_mask) {
  const bool known = material_form_mask >= 1 && material_form_mask <= kAllForms;
  return kFormCaptions[(known ? material_form_mask : kAllForms) - 1];
}

std::string_view ShortFormCaption(std::int32_t material_form_mask) {
  for (const ShortForm& form : kShortForms) {
    if (form.mask == material_form_mask) return form.caption;
  }
  return FormCaption(material_form_mask);
}

std::string StripSlitWord(std::string_view caption) {
  std::string text(caption);
  for (const std::string_view word : {"･スリット", "・スリット", "･スリット", "スリット", "スリットのみ"}) {
    text = ReplaceAll(text, word, "");
  }
  return text;
}

}  // namespace rbt
